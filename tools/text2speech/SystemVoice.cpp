#include "tools/text2speech/SystemVoice.h"

#include "base/TextHelpers.h"
#include "tools/text2speech/WavFile.h"

namespace {

using Platform::SystemVoice;

// "en" of "en-GB"
std::string withoutRegion(const std::string& language)
{
    return language.substr(0, language.find('-'));
}

// As espeak-ng's voices are divided.
const char* ageGroup(int age)
{
    return age <= 12 ? "Child" : age <= 24 ? "Teen" : age <= 59 ? "Adult" : "Senior";
}

// 0 when it does not speak the language at all, 2 when also the region is the one that is named.
int rankOfLanguage(const SystemVoice& voice, const std::string& wanted)
{
    const bool namesRegion = withoutRegion(wanted) != wanted;
    int rank = 0;
    for (const std::string& each : voice.languages) {
        const std::string language = toLower(each);
        if (namesRegion && language == wanted) {
            return 2;
        }
        if (withoutRegion(language) == withoutRegion(wanted)) {
            rank = 1;
        }
    }
    return rank;
}

int rankOf(const SystemVoice& voice, const ttbasic::VOICE& speaker)
{
    const int language = rankOfLanguage(voice, toLower(speaker.language));
    const auto sex = speaker.female ? SystemVoice::Sex::female : SystemVoice::Sex::male;
    return language == 0 ? 0
                         : language * 4 + (voice.sex == sex ? 2 : 0) +
                               (voice.age == ageGroup(speaker.age) ? 1 : 0);
}

}  // namespace

const SystemVoice* chooseVoice(const std::vector<SystemVoice>& voices,
                               const ttbasic::VOICE& speaker)
{
    const SystemVoice* chosen = nullptr;
    int highest = 0;
    for (const SystemVoice& voice : voices) {
        const int rank = rankOf(voice, speaker);
        if (rank > highest) {
            highest = rank;
            chosen = &voice;
        }
    }
    return chosen;
}

Languages languagesOf(const std::vector<SystemVoice>& voices)
{
    Languages languages;
    for (const SystemVoice& voice : voices) {
        for (const std::string& each : voice.languages) {
            const std::string name = toLower(each);
            languages.emplace(name, Language{voice.id, voice.title, 0});
            languages.emplace(withoutRegion(name), Language{voice.id, voice.title, 0});
        }
    }
    return languages;
}

std::string speakBySystem(const Request& request, const std::vector<SystemVoice>& voices)
{
    const SystemVoice* const voice = chooseVoice(voices, request.voice);
    if (voice == nullptr) {
        return std::string(kEspeak) + " is not installed, and no voice of the system speaks '" +
               request.voice.language + "' (Text2Speech -l lists the languages)";
    }
    return writeWav(request.file, voice->title, [&](ArrivingSound& sound) {
        std::string wav;
        std::string problem = Platform::speakBySystemVoice(voice->id, request.text, wav);
        sound.add(QByteArray::fromStdString(wav));
        return problem;
    });
}
