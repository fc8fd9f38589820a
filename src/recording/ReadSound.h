#pragma once

#include "sound/MonoSound.h"

#include <QString>

#include <functional>
#include <string>

namespace recording {

constexpr double kLongestSound = 3600;  // seconds

// What a file was found to hold.
struct FoundSound
{
    MonoSound sound;       // at the rate of the book's voices
    bool isVoice = false;  // the file has one channel, that rate, and is Ogg Vorbis
    QString problem;       // why there is no sound, with the name of the file; else empty
};

// The sound of a file of any kind, its channels mixed: WAV, Ogg, FLAC and MP3 are read here, all
// else by ffmpeg, which is searched on PATH. While that runs, isWanted is asked about ten times a
// second whether to go on. May be called on any thread.
FoundSound readSound(const std::string& path, const std::function<bool()>& isWanted = {});

}  // namespace recording
