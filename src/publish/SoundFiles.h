#pragma once

#include <functional>
#include <string>

class ProcessRunner;
namespace Oid {
class OidProject;
}

// Speech: an audio file beside the game for every text that the script says.

// Told before each new text, and once at the end, how many of the new texts are done or being made;
// texts whose audio file exists already do not count. False cancels.
using SpeechProgress = std::function<bool(int done, int total)>;

enum class SpeechOutcome {
    complete,    // every text has its audio file
    incomplete,  // at least one has none; each was named in the console
    cancelled
};

// Removes the audio files of a compiled project that we spoke when a text or its voice were others,
// then makes the missing ones: a WAV file by Text2Speech.exe, from it an OGG file by ffmpeg.exe,
// for several texts at a time where the runner can. What was made is noted in the index of the
// audio folder (SpeechIndex); audio files that are not noted there are the author's and stay. Puts
// the folders of the two tools that are shipped with the program in front of PATH, once. Throws
// std::out_of_range when a text names a voice that is not declared.
SpeechOutcome createSoundFiles(const Oid::OidProject& project, ProcessRunner& runner,
                               const SpeechProgress& progress = {});
// The same on any thread; the tools are on PATH already.
SpeechOutcome makeSoundFiles(const Oid::OidProject& project, ProcessRunner& runner,
                             const SpeechProgress& progress);
