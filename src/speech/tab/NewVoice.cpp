#include "speech/tab/NewVoice.h"

#include <algorithm>

#include "base/TextHelpers.h"

std::string voiceStatement(const std::string& name, const ttbasic::VOICE& voice)
{
    return "voice " + name + " lang " + voice.language + " sex " + (voice.female ? "f" : "m") +
           " age " + itostr(voice.age);
}

bool isVoiceName(const std::string& name)
{
    const auto isSmall = [](char c) { return isReadableAscii(c) && (c < 'A' || c > 'Z'); };
    return !name.empty() && std::all_of(name.begin(), name.end(), isSmall) && !isNumber(name);
}

std::string freeVoiceName(const std::string& wish, const Voices& voices)
{
    std::string name = wish;
    for (int number = 2; voices.count(name) != 0; ++number) {
        name = wish + itostr(number);
    }
    return name;
}
