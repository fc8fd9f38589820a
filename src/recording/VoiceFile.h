#pragma once

#include "sound/MonoSound.h"

#include <string>

namespace recording {

// The files of a book's voices, in memory: mono Ogg Vorbis, as every pen plays it.
constexpr int kVoiceRate = 22050;  // samples a second

// The same sound at another rate.
MonoSound atRate(const MonoSound& sound, int rate);

// A sound as the bytes of a voice's file: at the voices' rate, with the loudness and the peak that
// all have, as near as it comes to them, measured in what the file holds.
std::string voiceFileOf(const MonoSound& sound);

// The same, as loud as it is.
std::string pensFileOf(const MonoSound& sound);

// A recording as the bytes of a FLAC file, with 24 bits a sample.
std::string flacFileOf(const MonoSound& sound);

// What a file holds, mixed to one channel; no samples where it is damaged.
MonoSound soundOfFile(const std::string& bytes);

// Writes the file whole or not at all, and its folder if that is not there. Returns why not, in the
// system's words; empty when it is written.
std::string writeWhole(const std::string& path, const std::string& bytes);

}  // namespace recording
