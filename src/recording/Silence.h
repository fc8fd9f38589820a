#pragma once

#include "recording/Take.h"

namespace recording {

// Whether nothing was heard at all: the microphone was muted, or nobody spoke.
bool isSilent(const MonoSound& sound);

// Where somebody speaks, with a little air before and behind. Noise that is there all the time is
// silence, and so is a short knock far from the voice, such as that of a key. All of a sound that
// is silent.
Span withoutSilence(const MonoSound& sound);

}  // namespace recording
