#include "speech/Engine.h"

#include <algorithm>
#include <functional>

#include "base/TextHelpers.h"

namespace {

constexpr int kOldestChild = 12;  // years

// Of an age and sex; what was not given is taken from who is nearest.
std::string voiceFor(const std::map<std::string, std::string>& voices, bool isFemale, int age)
{
    std::vector<std::string> keys = {isFemale ? "female" : "male", "voice"};
    if (age <= kOldestChild) {
        keys.insert(keys.begin(), isFemale ? "girl" : "boy");
    }
    for (const std::string& key : keys) {
        const auto found = voices.find(key);
        if (found != voices.end()) {
            return found->second;
        }
    }
    return {};
}

// Intended: a script may say up to 99; what is beyond the last is as the last.
std::string step(const std::vector<std::string>& steps, int number)
{
    if (steps.empty()) {
        return itostr(number);
    }
    const int last = static_cast<int>(steps.size());
    return steps[static_cast<size_t>(std::clamp(number, 1, last) - 1)];
}

// Calls for each placeholder of a word, and for the text before it and behind the last one.
void takeApart(const std::string& word, const std::function<void(const std::string&)>& takeText,
               const std::function<void(const std::string&)>& takePlaceholder)
{
    const auto isLetter = [](char c) { return isReadableAscii(c) && (c < '0' || c > '9'); };
    size_t done = 0;
    for (size_t open = word.find('{'); open != std::string::npos; open = word.find('{', open + 1)) {
        const auto name = word.begin() + static_cast<std::ptrdiff_t>(open) + 1;
        const auto close = std::find_if_not(name, word.end(), isLetter);
        if (close != name && close != word.end() && *close == '}') {
            takeText(word.substr(done, open - done));
            takePlaceholder(std::string(name, close));
            done = static_cast<size_t>(close - word.begin()) + 1;
        }
    }
    takeText(word.substr(done));
}

std::string filledWord(const std::string& word, const Engine::Values& values)
{
    std::string filled;
    const auto takeText = [&](const std::string& text) { filled += text; };
    takeApart(word, takeText, [&](const std::string& name) {
        const auto value = values.find(name);
        if (value == values.end()) {
            filled += '{' + name + '}';
        } else {
            const bool looksLikeOption =
                name == "text" && filled.empty() && value->second[0] == '-';
            filled += (looksLikeOption ? " " : "") + value->second;
        }
    });
    return filled;
}

}  // namespace

const std::vector<std::string>& Engine::placeholders()
{
    static const std::vector<std::string> names = {"text", "textfile", "wav",   "language", "sex",
                                                   "age",  "voice",    "speed", "pitch"};
    return names;
}

std::vector<std::string> Engine::placeholdersOf(const std::string& word)
{
    std::vector<std::string> names;
    takeApart(
        word, [](const std::string& /*text*/) {},
        [&](const std::string& name) { names.push_back(name); });
    return names;
}

bool Engine::uses(const std::string& placeholder) const
{
    return std::any_of(words.begin(), words.end(), [&](const std::string& word) {
        const std::vector<std::string> names = placeholdersOf(word);
        return std::find(names.begin(), names.end(), placeholder) != names.end();
    });
}

Engine::Values Engine::valuesOf(const ttbasic::VOICE& voice) const
{
    return {{"language", toLower(voice.language)},
            {"sex", voice.female ? "f" : "m"},
            {"age", itostr(voice.age)},
            {"voice", voiceFor(voices, voice.female, voice.age)},
            {"speed", step(speeds, voice.speed)},
            {"pitch", step(pitches, voice.pitch)}};
}

std::vector<std::string> Engine::filled(const Values& values) const
{
    std::vector<std::string> result;
    result.reserve(words.size());
    for (const std::string& word : words) {
        result.push_back(filledWord(word, values));
    }
    return result;
}
