#pragma once

#include <string>
#include <vector>

// The sound of a WAV file with 16 bits a sample.
struct Sound
{
    int channels = 0;
    int rate = 0;                // samples a second
    std::vector<float> samples;  // -1 to 1, channels interleaved

    double seconds() const;
    // Root of the mean square: 0 is silence.
    double loudness() const;
    // The fundamental frequency in Hz of a voice in a sound of one channel: the median over its
    // voiced moments; 0 when there are none.
    double pitch() const;
};

// Throws when the file is no such WAV file.
Sound readSound(const std::string& path);
// Writes a tone of a second as a WAV file of 22050 Hz, 16 bits, mono. The loudness is that of its
// peaks, up to 1.
void writeTone(const std::string& path, double loudness = 0.1);
