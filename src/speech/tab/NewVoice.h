#pragma once

#include <map>
#include <string>

#include "ttbasic/ttbasic.h"

// A voice that a script is to get.

using Voices = std::map<std::string, ttbasic::VOICE>;  // by their names

// The line of a script that declares it: "voice grandma lang de sex f age 70".
std::string voiceStatement(const std::string& name, const ttbasic::VOICE& voice);

// Whether a script can name a voice so wherever it speaks: small letters and digits of ASCII, a
// letter first.
bool isVoiceName(const std::string& name);

// The wish, with a number behind it if there is a voice of that name already.
std::string freeVoiceName(const std::string& wish, const Voices& voices);
