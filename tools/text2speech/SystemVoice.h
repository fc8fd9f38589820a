#pragma once

#include <string>

#include "base/PlatformVoices.h"
#include "tools/text2speech/Languages.h"
#include "tools/text2speech/Request.h"

// The voice for a speaker: of those that speak the language ("de", "en-gb") one of the same region
// before one of the same sex before one of the same age; of equals the first. Null when none speaks
// it.
const Platform::SystemVoice* chooseVoice(const std::vector<Platform::SystemVoice>& voices,
                                         const ttbasic::VOICE& speaker);

// What these voices speak: "de" and "de-de".
Languages languagesOf(const std::vector<Platform::SystemVoice>& voices);

// Has a voice of the system speak the request's text into its file. Returns what went wrong, in one
// line; empty when nothing did.
std::string speakBySystem(const Request& request, const std::vector<Platform::SystemVoice>& voices);
