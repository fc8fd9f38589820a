#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "speech/AudioFile.h"
#include "speech/Utterance.h"

class Engines;
class SpeechIndex;
namespace Oid {
class OidProject;
}

// Every text that a book says, and how its audio file stands.

enum class SpeechState {
    missing,   // there is no file: the next build speaks the text
    spoken,    // by us, as text and voice are now
    recorded,  // the file is the author's own
    stale,     // we spoke it, but text or voice were others then: the next build speaks it again
    refused    // there is no file, and none can be made for it: see refusal
};

// "missing" and so on.
const char* nameOf(SpeechState state);

struct SpeechText
{
    std::string audioName;
    Utterance said;
    ttbasic::Place place;  // where the script says it first; line 0 for the welcome
    // Where the script says the text that the pen says in its place, because both have one audio
    // name; line 0 when there is none.
    ttbasic::Place inItsPlace;

    // As lookUp finds them.
    SpeechState state = SpeechState::missing;
    Refusal refusal = Refusal::none;  // why it is refused
    std::string file;                 // native path, where the audio file is or would be
    std::int64_t fileSize = -1;       // bytes; -1 while there is none
    std::int64_t fileTime = 0;        // of its last change, in milliseconds since 1970
};

// The texts of a project in the order in which the script says them first, the welcome last. The
// script is compiled, be it without success, and not for the debug mode; a text of a voice that is
// not declared is left out. Only reads: it can be done on any thread as long as nobody changes the
// project.
std::vector<SpeechText> speechTexts(const Oid::OidProject& project, const Engines& engines);

// Looks which files there are in the audio folder of the index. Notes in the index which files were
// only touched, and writes nothing.
void lookUp(std::vector<SpeechText>& texts, const std::string& audioFolder, SpeechIndex& index);
