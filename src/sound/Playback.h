#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

// Between file and device: what is to be heard comes in at one end and is fetched at the other. One
// sound at a time; it begins and ends softly, wherever it is cut. All functions may be called on
// any thread.
class Playback
{
public:
    static constexpr int kChannels = 2;   // interleaved
    static constexpr size_t kFade = 220;  // frames, 5 ms

    // Is called, on the device's thread, when something has changed for who brings the samples.
    // Must be set before the first call of anything else, and must not call this object.
    std::function<void()> wake;

    // Another sound follows; what is being heard ends.
    void begin(uint64_t sound);
    // The next samples of the sound that began last; those of others are not wanted any more.
    void add(uint64_t sound, const std::vector<float>& samples);
    // All of its samples have been added.
    void finish(uint64_t sound);
    // What is being heard ends; nothing follows.
    void silence() { begin(0); }
    // 0 to 1.
    void setVolume(float volume);

    // Whether more samples are welcome: less than half a second is left.
    bool wantsMore() const;
    // The sound of which the last sample was fetched since the last call, 0 if none.
    uint64_t takeEnded();
    // Likewise for the first sample.
    uint64_t takeStarted();

    // For the device: the next frames; silence where there are none.
    void fetch(float* samples, size_t frames);

private:
    void cutOff();
    static size_t fetchFrom(std::deque<float>& queue, size_t most, float* samples);
    void applyGain(float* samples, size_t frames);

    mutable std::mutex mutex;
    uint64_t current = 0;      // 0: none
    std::deque<float> ending;  // of the sound before, faded out
    std::deque<float> samplesLeft;
    size_t samplesAdded = 0;
    bool isComplete = false;
    bool hasStarted = false;
    uint64_t started = 0;
    uint64_t ended = 0;
    float gain = 1;
    float wantedGain = 1;
};
