#pragma once

#include <string>

namespace pen {

// How long the bytes of an Ogg Vorbis or WAV file sound, in seconds; 0 for every other content and
// for what is damaged.
double soundSeconds(const std::string& bytes);

}  // namespace pen
