#pragma once

#include <string>

#include "tools/text2speech/Languages.h"
#include "tools/text2speech/Request.h"

class Engines;

// Speaks the request's text into its file, whole or not at all, by the engine that is named for its
// language, else by espeak-ng, else by the voices of the system. Returns what went wrong, in one
// line; empty when nothing did.
std::string speak(const Request& request, const Engines& engines);

// What can be spoken without an engine that is named. Returns what went wrong; empty when nothing
// did.
std::string spokenLanguages(Languages& languages);
