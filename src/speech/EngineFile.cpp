#include "speech/EngineFile.h"

#include <QTextCodec>

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "programs/ProcessRunner.h"

namespace {

const std::string kDefaultEngine = "espeak-ng";
constexpr size_t kSteps = 5;  // of speed and pitch

using Words = std::vector<std::string>;

const Words& voiceKeys()
{
    static const Words keys = {"voice", "female", "male", "girl", "boy"};
    return keys;
}

bool contains(const Words& words, const std::string& word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string trimmed(const std::string& text)
{
    const auto begin = std::find_if_not(text.begin(), text.end(), isSpace);
    const auto end = std::find_if_not(text.rbegin(), text.rend() - (begin - text.begin()), isSpace);
    return {begin, end.base()};
}

std::string joined(const Words& words, const std::string& before, const std::string& behind)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + before + word + behind;
    }
    return text;
}

Words listOf(const std::string& text)
{
    Words words;
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, ',');) {
        words.push_back(trimmed(part));
    }
    return words;
}

bool isUtf8(const std::string& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.data(), static_cast<int>(text.size()),
                                                 &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

// Reads line by line. Every function returns what is wrong.
class Reader
{
public:
    Reader(std::string fileName, LanguageEngines& found) : file(std::move(fileName)), engines(found)
    {}

    std::string read(const std::string& text)
    {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            ++lineNumber;
            const std::string problem = readLine(trimmed(line));
            if (!problem.empty()) {
                return place() + ": " + problem;
            }
        }
        return checkSections();
    }

private:
    std::string place() const { return file + ", line " + itostr(lineNumber); }

    std::string readLine(const std::string& line)
    {
        if (!isUtf8(line)) {
            return "this is not UTF-8";
        }
        if (line.empty() || line.front() == '#' || line.front() == ';') {
            return {};
        }
        if (line.front() == '[') {
            return beginSection(line);
        }
        const size_t equals = line.find('=');
        if (equals == std::string::npos) {
            return "neither [language] nor key = value";
        }
        return readSetting(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }

    std::string beginSection(const std::string& line)
    {
        const std::string name = line.back() == ']' ? trimmed(line.substr(1, line.size() - 2)) : "";
        language = toLower(name);
        if (language != "*" && !isLanguageName(language)) {
            return "'" + line + "' is not [language], such as [en], nor [*]";
        }
        if (!engines.emplace(language, Engine()).second) {
            return "[" + language + "] is there twice";
        }
        keys.clear();
        sections.emplace_back(language, place());
        return {};
    }

    std::string readSetting(const std::string& key, const std::string& value)
    {
        if (language.empty()) {
            return "a setting before the first [language]";
        }
        if (key != "command" && key != "speed" && key != "pitch" && !contains(voiceKeys(), key)) {
            return "unknown key '" + key + "' (there are command, " + joined(voiceKeys(), "", "") +
                   ", speed, pitch)";
        }
        if (!keys.insert(key).second) {
            return "the key '" + key + "' is there twice";
        }
        if (value.empty()) {
            return "the key '" + key + "' has no value";
        }
        Engine& engine = engines[language];
        if (key == "command") {
            return readCommand(engine, value);
        }
        if (key == "speed") {
            return readSteps(engine.speeds, key, value);
        }
        if (key == "pitch") {
            return readSteps(engine.pitches, key, value);
        }
        engine.voices[key] = value;
        return {};
    }

    std::string readCommand(Engine& engine, const std::string& command) const
    {
        engine.place = place();
        if (command == kDefaultEngine) {
            return {};
        }
        if (std::count(command.begin(), command.end(), '"') % 2 != 0) {
            return "a quote is not closed";
        }
        engine.words = commandWords(command);
        if (engine.words.empty()) {
            return "the command has no program";
        }
        for (const std::string& word : engine.words) {
            for (const std::string& name : Engine::placeholdersOf(word)) {
                if (!contains(Engine::placeholders(), name)) {
                    return "unknown placeholder {" + name + "} (there are " +
                           joined(Engine::placeholders(), "{", "}") + ")";
                }
            }
        }
        if (!Engine::placeholdersOf(engine.program()).empty()) {
            return "the program's name may not have placeholders";
        }
        return {};
    }

    static std::string readSteps(Words& steps, const std::string& key, const std::string& value)
    {
        steps = listOf(value);
        const bool isComplete = steps.size() == kSteps && !contains(steps, "");
        return isComplete ? std::string()
                          : "the key '" + key + "' needs five values, separated by commas";
    }

    // What is known only when all settings were read.
    std::string checkSections() const
    {
        for (const auto& [name, where] : sections) {
            const std::string problem = lackOf(engines.at(name));
            if (!problem.empty()) {
                return where + ": [" + name + "] " + problem;
            }
        }
        return {};
    }

    static std::string lackOf(const Engine& engine)
    {
        if (engine.place.empty()) {
            return "has no command";
        }
        const auto& voices = engine.voices;
        const bool everyoneHasVoice =
            voices.count("voice") != 0 || voices.count("female") + voices.count("male") == 2;
        const bool lacksVoice = engine.uses("voice") && !everyoneHasVoice;
        return lacksVoice ? "uses {voice} and needs 'voice', or 'female' and 'male'" : "";
    }

    const std::string file;
    LanguageEngines& engines;
    int lineNumber = 0;
    std::string language;                                       // whose settings are read
    std::set<std::string> keys;                                 // of them so far
    std::vector<std::pair<std::string, std::string>> sections;  // with the places of their names
};

// Editors on Windows put this in front of UTF-8.
QByteArray withoutMark(const QByteArray& bytes)
{
    constexpr char kMark[] = "\xEF\xBB\xBF";
    return bytes.startsWith(kMark) ? bytes.mid(3) : bytes;
}

}  // namespace

bool isLanguageName(const std::string& name)
{
    const auto fits = [](char c) {
        return (isReadableAscii(c) && (c < 'A' || c > 'Z')) || c == '-' || c == '_';
    };
    return !name.empty() && name.front() != '-' && std::all_of(name.begin(), name.end(), fits);
}

std::string readEngineFile(const std::string& file, LanguageEngines& engines)
{
    if (!Platform::fileExists(file)) {
        return {};
    }
    const std::optional<QByteArray> bytes = readInput(file);
    if (!bytes) {
        const std::string kind = Platform::kindOfNoFile(file);
        return file + " cannot be read: " +
               (kind.empty() ? Platform::lastFileError() : "it is " + kind + ", not a file");
    }
    return Reader(file, engines).read(withoutMark(*bytes).toStdString());
}
