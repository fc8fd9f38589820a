#pragma once

#include "pen/Pen.h"

#include <utility>
#include <vector>

// Keeps the sounds that a pen plays.
class PlayedSounds : public pen::PenListener
{
public:
    void soundStarted(const pen::Sound& sound) override { sounds.push_back(sound); }
    // Those since the last call.
    std::vector<pen::Sound> take() { return std::exchange(sounds, {}); }

private:
    std::vector<pen::Sound> sounds;
};
