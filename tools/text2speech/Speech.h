#pragma once

#include <string>

#include "tools/text2speech/Request.h"

class Engines;

// Speaks the request's text into its file, whole or not at all, by the engine that is named for its
// language. Returns what went wrong, in one
// line; empty when nothing did.
std::string speak(const Request& request, const Engines& engines);
