#pragma once

#include <string>
#include <vector>

// Voices that the system itself has: on Windows those of its speech interface. Elsewhere there are
// none.
namespace Platform {

struct SystemVoice
{
    enum class Sex { unknown, female, male };

    std::string id;                      // by which the system knows it
    std::string title;                   // "Microsoft Hedda Desktop - German"
    std::vector<std::string> languages;  // "de-DE"
    Sex sex = Sex::unknown;
    std::string age;  // "Child", "Teen", "Adult", "Senior", or empty
};

std::vector<SystemVoice> systemVoices();

// Speaks a UTF-8 text by the voice with that id; wav becomes a whole WAV file. Returns what went
// wrong, in one line; empty when nothing did.
std::string speakBySystemVoice(const std::string& id, const std::string& text, std::string& wav);

}  // namespace Platform
