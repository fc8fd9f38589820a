#pragma once

#include <string>

#include "ttbasic/ttbasic.h"

class Engines;

// A text as a voice speaks it.
struct Utterance
{
    std::string text;
    std::string voice;  // its name
    ttbasic::VOICE settings;
    // What speaks it, with its settings, as Engines::identity has it; empty where it is not known.
    std::string engine;
};

// As it would be spoken now.
Utterance utteranceOf(const ttbasic::TALKTEXT& text, const ttbasic::VOICE& settings,
                      const Engines& engines);

// True when one hears no difference, as far as that is known. The name of a voice does not sound;
// nor do speed and pitch, unless the engine says so.
bool soundAlike(const Utterance& one, const Utterance& other);
