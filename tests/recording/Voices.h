#pragma once

#include "sound/MonoSound.h"

#include <string>
#include <vector>

// Sounds for tests, made of numbers.

// Seconds of a tone, as high as that.
MonoSound toneOf(double seconds, double height = 0.3, int rate = 44100, double hertz = 440);
MonoSound silenceOf(double seconds, double noise = 0, int rate = 44100);
// Something like a voice: syllables of harmonics with short high peaks and pauses between them.
MonoSound voiceOf(double seconds, double height = 0.3, int rate = 44100);
// One after the other.
MonoSound joined(const std::vector<MonoSound>& sounds);

// A WAV file of floating point samples.
void writeWav(const std::string& path, const MonoSound& sound);

// As ffmpeg measures a file.
struct Measured
{
    double loudness;  // LUFS
    double peak;      // dB, the true one
};
// A file that is played that many times.
Measured measuredByFfmpeg(const std::string& path, int times = 1);
// "vorbis 22050 1": codec, rate and channels.
std::string kindOf(const std::string& path);
