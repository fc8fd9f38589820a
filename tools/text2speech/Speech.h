#pragma once

#include <string>

#include "tools/text2speech/Request.h"

// Speaks the request's text into its file, whole or not at all. Returns what went wrong, in one
// line; empty when nothing did.
std::string speak(const Request& request);
