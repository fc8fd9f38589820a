#pragma once

#include <string>

#include "speech/Engine.h"
#include "tools/text2speech/Request.h"

// Has an engine of a settings file speak the request's text into its file. Returns what went wrong,
// in one line that begins with the place of its command; empty when nothing did.
std::string speakBy(const Engine& engine, const Request& request);
