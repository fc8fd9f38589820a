#pragma once

#include <string>

#include <QString>

#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

// Programs, settings, loudspeaker and cache of one test alone: a speech program that speaks in no
// time, no other engines, and a loudspeaker that is a file.
class FakeSpeech
{
public:
    FakeSpeech();

    // What the speech program does instead of speaking, by the shell; its arguments are noted, and
    // the WAV file is $2 then.
    void letSpeak(const std::string& command) const;
    // Language, age, sex and text of what it was asked for, one to a line.
    QString log() const;

    // Other engines, as engines.ini has them.
    void setEngines(const std::string& text) const;

    TemporaryFolder programs;
    ChangedVariable searchPath{"PATH", programs.path() + ":/usr/bin:/bin"};
    ChangedVariable cache{kUserCache, programs.file("cache")};
    ChangedVariable settings{kUserSettings, programs.file("settings")};
    ChangedVariable driver{"SDL_AUDIODRIVER", "disk"};
    ChangedVariable output{"SDL_DISKAUDIOFILE", programs.file("heard.raw")};
};
