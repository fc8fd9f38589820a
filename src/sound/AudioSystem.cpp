#include "sound/AudioSystem.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

AudioSystem::AudioSystem()
{
    const Lock lock(mutex());
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");  // they are the program's own business
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Plinkett");
    there = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
}

AudioSystem::~AudioSystem()
{
    const Lock lock(mutex());
    if (there) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
}

std::mutex& AudioSystem::mutex()
{
    static std::mutex all;
    return all;
}
