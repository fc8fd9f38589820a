#pragma once

#include <map>
#include <string>

#include "speech/Engine.h"

// The engines of one settings file by their languages, in lower case, "*" for all others. One
// without words is espeak-ng.
using LanguageEngines = std::map<std::string, Engine>;

// Adds the engines that the file has; a file that is not there has none. Returns what is wrong with
// it: file, line and cause; empty when nothing is.
std::string readEngineFile(const std::string& file, LanguageEngines& engines);

// Whether a text can be the name of a language: letters, digits, "-" and "_", in lower case, not
// beginning with a dash.
bool isLanguageName(const std::string& name);
