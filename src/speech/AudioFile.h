#pragma once

#include <string>

// The audio file of a text, by its audio name.

// "900-audio/say_adam_Moo.ogg"; the form of the path is that of the folder.
std::string audioFileIn(const std::string& folder, const std::string& audioName);

// "900-audio/say_adam_Moo.wav": what the speech program writes, of which the audio file is made.
std::string speechFileIn(const std::string& folder, const std::string& audioName);

// How long an audio file sounds, in seconds; 0 when it cannot be read, or is neither Ogg Vorbis nor
// WAV.
double secondsOf(const std::string& path);

// Whether an Ogg file does not end with the last page of its stream: who wrote it was stopped. An
// empty file is one, too; a file of another kind is not.
bool isCutOff(const std::string& path);

// Why a text can have no audio file that is made for it.
enum class Refusal {
    none,
    longName,   // too long for the name of a file, on every usual file system
    longText,   // too long for the speech program; it can be recorded
    sharedName  // another text has the same audio name, and the pen says that one
};

// The first two of them.
Refusal refusalOf(const std::string& audioName, const std::string& text);
