#include "tools/text2speech/Speech.h"

#include "speech/Engines.h"
#include "tools/text2speech/Espeak.h"
#include "tools/text2speech/OtherEngine.h"
#include "tools/text2speech/SpeakingProgram.h"
#include "tools/text2speech/SystemVoice.h"

namespace {

// Those that take the place of espeak-ng where that is not installed.
std::vector<Platform::SystemVoice> voicesInPlaceOfEspeak()
{
    return isSpeakerThere(kEspeak) ? std::vector<Platform::SystemVoice>()
                                   : Platform::systemVoices();
}

}  // namespace

std::string speak(const Request& request, const Engines& engines)
{
    if (!engines.problem().empty()) {
        return engines.problem();
    }
    const Engine* const engine = engines.find(request.voice.language);
    if (engine != nullptr) {
        return speakBy(*engine, request);
    }
    const std::vector<Platform::SystemVoice> voices = voicesInPlaceOfEspeak();
    return voices.empty() ? speakByEspeak(request) : speakBySystem(request, voices);
}

std::string spokenLanguages(Languages& languages)
{
    const std::vector<Platform::SystemVoice> voices = voicesInPlaceOfEspeak();
    if (voices.empty()) {
        return findLanguages(languages);
    }
    languages = languagesOf(voices);
    return {};
}
