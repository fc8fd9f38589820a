#include "speech/Engines.h"

#include <QStandardPaths>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "speech/SpeechProgram.h"

namespace {

// "de-at", "de", "*": who may speak it, the nearest first.
std::vector<std::string> namesFor(const std::string& language)
{
    std::vector<std::string> names;
    for (std::string name = language; !name.empty();) {
        names.push_back(name);
        const size_t dash = name.find_last_of("-_");
        name = dash == std::string::npos ? "" : name.substr(0, dash);
    }
    names.emplace_back("*");
    return names;
}

}  // namespace

Engines::Engines(const std::vector<std::string>& names)
{
    for (const std::string& name : names) {
        files.emplace_back();
        whatIsWrong = readEngineFile(name, files.back());
        if (!whatIsWrong.empty()) {
            files.clear();
            return;
        }
    }
}

// What is no name of a language could be taken for something else in a command, so nobody gets it.
const Engine* Engines::find(const std::string& language) const
{
    const std::string name = toLower(language);
    if (!isLanguageName(name)) {
        return nullptr;
    }
    for (const LanguageEngines& engines : files) {
        for (const std::string& candidate : namesFor(name)) {
            const auto found = engines.find(candidate);
            if (found != engines.end()) {
                return found->second.words.empty() ? nullptr : &found->second;
            }
        }
    }
    return nullptr;
}

std::map<std::string, std::string> Engines::programs() const
{
    std::map<std::string, std::string> programs;
    for (const LanguageEngines& engines : files) {
        for (const auto& [language, engine] : engines) {
            programs.emplace(language, engine.words.empty() ? "espeak-ng" : engine.program());
        }
    }
    return programs;
}

std::string Engines::identity(const ttbasic::VOICE& voice) const
{
    if (!whatIsWrong.empty()) {
        return {};
    }
    const Engine* const engine = find(voice.language);
    if (engine == nullptr) {
        return "espeak-ng";
    }
    std::string text;
    for (const std::string& word : engine->filled(engine->valuesOf(voice))) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::vector<std::string> engineFiles(const std::string& speechProgramFolder)
{
    const QString settings =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {Platform::nativePath(settings.toStdString() + "/plinkett/engines.ini"),
            speechProgramFolder + "/engines.ini"};
}

Engines currentEngines()
{
    return Engines(engineFiles(speechProgramFolder()));
}
