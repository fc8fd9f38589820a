#pragma once

#include <string>

#include "tools/text2speech/Request.h"

// Has espeak-ng speak the request's text into its file. Returns what went wrong, in one line; empty
// when nothing did.
std::string speakByEspeak(const Request& request);
