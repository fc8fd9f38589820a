#include "tools/text2speech/Espeak.h"

#include <iterator>

#include "base/TextHelpers.h"
#include "tools/text2speech/Languages.h"
#include "tools/text2speech/SpeakingProgram.h"
#include "tools/text2speech/WavFile.h"

namespace {

// The voice for a language; returns what is wrong with it.
std::string findVoice(const std::string& language, std::string& voice)
{
    Languages languages;
    std::string problem = findLanguages(languages);
    if (!problem.empty()) {
        return problem;
    }
    const auto found = languages.find(toLower(language));
    if (found == languages.end()) {
        return "unknown language '" + language + "' (Text2Speech -l lists them)";
    }
    voice = found->second.voice;
    return {};
}

// How espeak-ng is to sound: one of its voice variants, and a pitch from 0 to 99.
struct VoiceVariant
{
    const char* name;
    int pitch;
};

struct AgeGroup
{
    int oldest;  // years
    VoiceVariant female;
    VoiceVariant male;
};

constexpr AgeGroup kGroups[] = {
    {12, {"f3", 99}, {"m2", 99}},  // child
    {24, {"f5", 65}, {"m2", 68}},  // young
    {59, {"f2", 55}, {"m3", 50}},  // adult
    {99, {"f1", 30}, {"m1", 42}},  // old
};

// Child (up to 12 years), young, adult (from 25) or old (from 60): the eight voices differ in
// timbre and each in its pitch.
VoiceVariant variantFor(bool female, int age)
{
    const AgeGroup* group = std::begin(kGroups);
    while (group + 1 != std::end(kGroups) && age > group->oldest) {
        ++group;
    }
    return female ? group->female : group->male;
}

// The sound comes through a pipe, since espeak-ng itself cuts long paths.
std::vector<std::string> espeakArguments(const ttbasic::VOICE& speaker, const std::string& voice)
{
    const VoiceVariant variant = variantFor(speaker.female, speaker.age);
    return {"--stdin", "-b",
            "1",  // UTF-8
            "-v",      voice + "+" + variant.name,
            "-p",      itostr(variant.pitch),
            "--stdout"};
}

}  // namespace

std::string speakByEspeak(const Request& request)
{
    std::string voice;
    std::string problem = findVoice(request.voice.language, voice);
    if (!problem.empty()) {
        return problem;
    }
    return writeWav(request.file, kEspeak, [&](ArrivingSound& sound) {
        return runSpeakingProgram(kEspeak, espeakArguments(request.voice, voice), request.text,
                                  [&](const QByteArray& piece) { sound.add(piece); });
    });
}
