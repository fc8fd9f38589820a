#include "sound/Playback.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kWidth = Playback::kChannels;
constexpr size_t kEnough = 22050 * kWidth;  // samples

// From all to nothing, or from nothing to all.
float fade(size_t frame, size_t frames, bool in)
{
    const float part = (static_cast<float>(frame) + 0.5F) / static_cast<float>(frames);
    return in ? part : 1 - part;
}

}  // namespace

void Playback::begin(uint64_t sound)
{
    const std::lock_guard<std::mutex> lock(mutex);
    cutOff();
    current = sound;
    samplesAdded = 0;
    isComplete = false;
    hasStarted = false;
    started = 0;
    ended = 0;
}

void Playback::cutOff()
{
    if (hasStarted) {
        const size_t frames = std::min(kFade, samplesLeft.size() / kWidth);
        for (size_t i = 0; i < frames * kWidth; ++i) {
            ending.push_back(samplesLeft[i] * fade(i / kWidth, frames, false));
        }
    }
    samplesLeft.clear();
}

void Playback::add(uint64_t sound, const std::vector<float>& samples)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (sound != current) {
        return;
    }
    for (const float sample : samples) {
        const size_t frame = samplesAdded++ / kWidth;
        samplesLeft.push_back(frame < kFade ? sample * fade(frame, kFade, true) : sample);
    }
}

// The last frames are still here: as long as it is open what follows them, fetch leaves them.
void Playback::finish(uint64_t sound)
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (sound != current) {
        return;
    }
    isComplete = true;
    const size_t all = samplesLeft.size() / kWidth;
    const size_t frames = std::min(kFade, all);
    for (size_t i = 0; i < frames * kWidth; ++i) {
        samplesLeft[(all - frames) * kWidth + i] *= fade(i / kWidth, frames, false);
    }
}

void Playback::setVolume(float volume)
{
    const std::lock_guard<std::mutex> lock(mutex);
    wantedGain = std::clamp(volume, 0.0F, 1.0F);
}

bool Playback::wantsMore() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return samplesLeft.size() < kEnough;
}

uint64_t Playback::takeEnded()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(ended, 0);
}

uint64_t Playback::takeStarted()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(started, 0);
}

void Playback::fetch(float* samples, size_t frames)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        const size_t wanted = frames * kWidth;
        size_t count = fetchFrom(ending, wanted, samples);
        const size_t kept = isComplete ? 0 : kFade * kWidth;
        const size_t open = samplesLeft.size() - std::min(kept, samplesLeft.size());
        const size_t fresh =
            fetchFrom(samplesLeft, std::min(open, wanted - count), samples + count);
        count += fresh;
        std::fill(samples + count, samples + wanted, 0.0F);
        applyGain(samples, frames);
        if (current != 0 && !hasStarted && fresh > 0) {
            hasStarted = true;
            started = current;
        }
        if (current != 0 && isComplete && samplesLeft.empty()) {
            ended = std::exchange(current, 0);
        }
    }
    wake();
}

// The gain comes to what it is to be within the frames.
void Playback::applyGain(float* samples, size_t frames)
{
    const float step = (wantedGain - gain) / static_cast<float>(frames);
    for (size_t i = 0; i < frames; ++i) {
        gain = i + 1 < frames ? gain + step : wantedGain;
        for (size_t channel = 0; channel < kWidth; ++channel) {
            samples[i * kWidth + channel] *= gain;
        }
    }
}

size_t Playback::fetchFrom(std::deque<float>& queue, size_t most, float* samples)
{
    const size_t count = std::min(most, queue.size());
    const auto end = queue.begin() + static_cast<std::ptrdiff_t>(count);
    std::copy(queue.begin(), end, samples);
    queue.erase(queue.begin(), end);
    return count;
}
