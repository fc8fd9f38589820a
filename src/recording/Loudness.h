#pragma once

#include "sound/MonoSound.h"

namespace recording {

// How loud all voices of a book are.
constexpr double kLoudness = -16;      // LUFS
constexpr double kHighestPeak = -1.5;  // dB below full scale, between the samples, too
constexpr double kSameLoudness = 0.5;  // LU: nobody hears less

struct Level
{
    double loudness;  // LUFS, integrated; minus infinity for silence
    double peak;      // dB, the true peak; likewise
};

// By EBU R 128. That measures from 0.4 s on: a shorter sound is as loud as one that repeats it.
Level levelOf(const MonoSound& sound);

// The sound with that loudness, peaks that would be higher than they may taken back for some
// milliseconds. As near as that comes to it; silence stays silent.
MonoSound levelled(const MonoSound& sound, double loudness, double highestPeak);

}  // namespace recording
