#pragma once

#include <mutex>

// SDL's audio, there from when this is made until the last one of these goes. May be made on any
// thread.
class AudioSystem
{
public:
    AudioSystem();
    ~AudioSystem();
    AudioSystem(const AudioSystem&) = delete;
    AudioSystem& operator=(const AudioSystem&) = delete;

    // Otherwise SDL_GetError says on this thread why.
    bool isThere() const { return there; }

    // Who opens, closes or lists devices holds this, for loudspeaker and microphone have threads of
    // their own.
    using Lock = std::lock_guard<std::mutex>;
    static std::mutex& mutex();

private:
    bool there = false;
};
