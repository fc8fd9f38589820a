#pragma once

#include <map>
#include <string>
#include <vector>

#include "speech/EngineFile.h"

// Which program speaks a language: espeak-ng, unless the settings files name another one. The first
// file that says something of a language counts; in a file "en-us" before "en" before "*".
class Engines
{
public:
    // espeak-ng alone.
    Engines() = default;
    explicit Engines(const std::vector<std::string>& files);

    // What is wrong with one of the files: file, line and cause. Empty: nothing; otherwise there
    // are no engines, and nobody should speak with another one than the author meant.
    const std::string& problem() const { return whatIsWrong; }

    // Null: espeak-ng. The pointer is good as long as this object.
    const Engine* find(const std::string& language) const;
    // The names for which an engine is named, "*" among them, with its program.
    std::map<std::string, std::string> programs() const;

    // By which engine and settings this voice's texts are spoken, in one line that is another one
    // when they would sound different: "espeak-ng", or the command without the texts and files of
    // one call. Empty when a file is wrong: then it is not known.
    std::string identity(const ttbasic::VOICE& voice) const;

private:
    std::vector<LanguageEngines> files;
    std::string whatIsWrong;
};

// The settings files that count: the user's own, then the one beside the speech program.
std::vector<std::string> engineFiles(const std::string& speechProgramFolder);

// The engines as the files are at this moment, for programs that start the speech program. On any
// thread; for many questions at once it is kept.
Engines currentEngines();
