#include "base/TextHelpers.h"
#include "ttbasic/ScriptLanguage.h"
#include "ttbasic/ttbasic.h"

namespace {

const char* const kVoiceSyntax = "syntax is: VOICE name_of_voice [LANG de/en/es/..] [SPEED 1..5] "
                                 "[PITCH 1..5] [SEX m/f]";
const char* const kSaySyntax = "Syntax is: SAY \"text\" _or_ SAY voice_name \"text1\" "
                               "[\"text 2\"] [...].";

std::vector<std::string> wordsOf(const std::string& text)
{
    std::vector<std::string> words;
    SplitStringKeepQuotes(text, words, true);
    return words;
}

// Intended: speed and pitch go up to 99 although their messages speak of 5.
bool setNumber(int& number, const std::string& value)
{
    number = toInt(value.c_str());
    return number >= ScriptLanguage::kSmallestVoiceNumber &&
           number <= ScriptLanguage::kLargestVoiceNumber;
}

// True when the value is fine.
bool setOption(ttbasic::VOICE& voice, VoiceOptionKind option, const std::string& value)
{
    switch (option) {
    case VoiceOptionKind::language:
        voice.language = value;
        return true;
    case VoiceOptionKind::age:
        return setNumber(voice.age, value);
    case VoiceOptionKind::speed:
        return setNumber(voice.speed, value);
    case VoiceOptionKind::pitch:
        return setNumber(voice.pitch, value);
    case VoiceOptionKind::sex:
        voice.female = value == "f";
        return voice.female || value == "m";
    }
    return false;
}

// What an author is told whose value is not fine.
struct Problem
{
    const char* kind;
    const char* text;
};

Problem problemOf(VoiceOptionKind option)
{
    switch (option) {
    case VoiceOptionKind::age:
        return {"voice-age", "voice age must be in range 1..99"};
    case VoiceOptionKind::speed:
        return {"voice-speed", "voice speed must be in range 1..5"};
    case VoiceOptionKind::pitch:
        return {"voice-pitch", "voice pitch must be in range 1..5"};
    case VoiceOptionKind::sex:
        return {"voice-sex", "sex only supports 'm' and 'f'."};
    case VoiceOptionKind::language:
        break;  // every language is fine
    }
    return {"", ""};
}

const ScriptLanguage::VoiceOption* voiceOption(const std::string& word)
{
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        if (word == option.word) {
            return &option;
        }
    }
    return nullptr;
}

}  // namespace

std::vector<std::string> ttbasic::voiceOptions()
{
    std::vector<std::string> words;
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        words.emplace_back(option.word);
    }
    return words;
}

bool ttbasic::doVoice(const std::string& rest)
{
    const std::vector<std::string> words = wordsOf(rest);
    VOICE voice;
    bool isMalformed = words.size() % 2 == 0;
    size_t wrong = words.empty() ? 0 : words.size() - 1;  // a keyword without its value
    bool isUnknown = false;
    for (size_t i = 1; i + 1 < words.size(); i += 2) {
        const ScriptLanguage::VoiceOption* const option = voiceOption(toLower(words[i]));
        if (option == nullptr) {
            wrong = isUnknown ? wrong : i;
            isMalformed = isUnknown = true;
        } else if (!setOption(voice, option->kind, toLower(words[i + 1]))) {
            const Problem problem = problemOf(option->kind);
            return error(problem.kind, argument(i + 1), problem.text, words[0]);
        }
    }
    if (isMalformed) {
        return error("voice-syntax", argument(wrong), kVoiceSyntax);
    }
    if (!voices.emplace(words[0], voice).second) {
        return error("voice-repeated", argument(0), "voice " + words[0] + " is aleady defined.",
                     words[0]);
    }
    return true;
}

bool ttbasic::doSay(const std::string& rest)
{
    std::vector<std::string> words = wordsOf(rest);
    if (words.empty()) {
        return error("say-nothing", keyword, "No argument given. What to play?");
    }
    std::string voice = currentVoice;
    if (words.size() >= 2 && !chooseVoice(words, voice)) {
        return false;
    }
    std::string names;
    for (const std::string& text : words) {
        if (text.empty()) {
            return error("say-empty", wholeStatement(), "Found an empty string to say.");
        }
        const std::string name = audioNameOf(voice, text);
        talkTexts[name] = {voice, text};
        names += (names.empty() ? "" : ", ") + name;
    }
    asmSay(names);
    return true;
}

// Takes the voice's name from the front of the words. Intended: the name is lowered, so only voices
// declared in lower case can be chosen.
bool ttbasic::chooseVoice(std::vector<std::string>& words, std::string& voice)
{
    voice = toLower(words.front());
    if (voices.count(voice) == 0) {
        std::string defined;
        for (const auto& [name, properties] : voices) {
            defined += name + "\n";
        }
        return error("voice-unknown", argument(0),
                     "The voice " + voice + " is not defined, yet.\ndefined are:\n" + defined +
                         kSaySyntax,
                     voice);
    }
    words.erase(words.begin());
    return true;
}

void ttbasic::asmSay(const std::string& names)
{
    asmCmd("P(" + names + ")");
}

std::string ttbasic::prepareWelcomeMessage(const std::string& text)
{
    if (talkTexts.count(kWelcomeName) == 0) {
        talkTexts[kWelcomeName] = welcomeMessage(text);
    }
    return kWelcomeName;
}

ttbasic::TALKTEXT ttbasic::welcomeMessage(const std::string& text) const
{
    return {welcomeVoice(), text + ". Start."};
}

// The first voice that speaks something else than English is the language of the book.
std::string ttbasic::welcomeVoice() const
{
    for (const auto& [name, voice] : voices) {
        if (voice.language != "en") {
            return name;
        }
    }
    return "adam";
}

std::vector<std::string> ttbasic::usedOidNames() const
{
    std::vector<std::string> names;
    names.reserve(labels.size());
    for (const auto& [name, count] : labels) {
        names.push_back(name);
    }
    return names;
}
