#pragma once

#include "sound/AudioSystem.h"

#include <atomic>
#include <string>
#include <thread>

class Playback;

// Fetches what is to be heard, from when it is made until it goes: the loudspeaker, or, where none
// can be opened, a clock that takes as long. One at a time; made and destroyed on the same thread.
class SoundDevice
{
public:
    explicit SoundDevice(Playback& source);
    ~SoundDevice();
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    int rate() const { return framesPerSecond; }
    // Why nothing is heard, in the system's words; empty for a loudspeaker.
    const std::string& problem() const { return reason; }

private:
    bool open();
    void keepTime();

    Playback& playback;
    AudioSystem system;
    unsigned device = 0;  // 0: none
    int framesPerSecond = 44100;
    std::string reason;
    std::atomic<bool> isOver{false};
    std::thread clock;
};
