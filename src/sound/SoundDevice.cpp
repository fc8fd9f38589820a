#include "sound/SoundDevice.h"

#include "sound/Playback.h"

#include <chrono>
#include <vector>

#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace {

constexpr Uint16 kFrames = 512;  // at once: 12 ms

void fetch(void* user, Uint8* bytes, int size)
{
    static_cast<Playback*>(user)->fetch(reinterpret_cast<float*>(bytes),
                                        static_cast<size_t>(size) /
                                            (sizeof(float) * Playback::kChannels));
}

}  // namespace

SoundDevice::SoundDevice(Playback& source) : playback(source)
{
    if (!open()) {
        reason = SDL_GetError();
        clock = std::thread([this] { keepTime(); });
    }
}

SoundDevice::~SoundDevice()
{
    isOver = true;
    if (clock.joinable()) {
        clock.join();
    }
    if (device != 0) {
        const AudioSystem::Lock lock(AudioSystem::mutex());
        SDL_CloseAudioDevice(device);
    }
}

bool SoundDevice::open()
{
    if (!system.isThere()) {
        return false;
    }
    const AudioSystem::Lock lock(AudioSystem::mutex());
    SDL_AudioSpec wanted{};
    wanted.freq = framesPerSecond;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = Playback::kChannels;
    wanted.samples = kFrames;
    wanted.callback = fetch;
    wanted.userdata = &playback;
    SDL_AudioSpec given{};
    device = SDL_OpenAudioDevice(nullptr, 0, &wanted, &given,
                                 SDL_AUDIO_ALLOW_FREQUENCY_CHANGE | SDL_AUDIO_ALLOW_SAMPLES_CHANGE);
    if (device == 0) {
        return false;
    }
    framesPerSecond = given.freq;
    SDL_PauseAudioDevice(device, 0);
    return true;
}

void SoundDevice::keepTime()
{
    const std::chrono::duration<double> piece(static_cast<double>(kFrames) / framesPerSecond);
    const auto start = std::chrono::steady_clock::now();
    std::vector<float> samples(static_cast<size_t>(kFrames) * Playback::kChannels);
    for (int pieces = 1; !isOver; ++pieces) {
        playback.fetch(samples.data(), kFrames);
        std::this_thread::sleep_until(start + pieces * piece);
    }
}
