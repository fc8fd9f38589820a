#pragma once

#include "tests/helpers/TemporaryFolder.h"

#include <string>

// What came of assembling.
struct Assembled
{
    bool ok = false;
    std::string messages;
    std::string game;   // bytes of the game file; empty when there is none
    std::string codes;  // the codes file without its comment; empty when there is none
};

// A folder in which games are assembled: the YAML file is 900-case.yaml, and the audio files
// roar.ogg and moo.ogg lie beside it.
class GameFolder
{
public:
    GameFolder();

    std::string file(const std::string& name) const { return folder.file(name); }
    std::string listing() const { return folder.listing(); }
    void add(const std::string& name, const std::string& bytes) const;
    // Without a date, so that the result does not change.
    Assembled assemble(const std::string& yaml) const;

private:
    TemporaryFolder folder;
};

// Assembles in a folder of its own.
Assembled assemble(const std::string& yaml);
// A whole YAML file around the lines of its section "scripts".
std::string yamlWithScripts(const std::string& scripts);
// A whole YAML file around one line of its one script "a".
std::string yamlWithLine(const std::string& line);
// A whole YAML file with one script and more lines at its top level.
std::string yamlWith(const std::string& lines);

// Runs the assembler on a file; the game file is the one that an empty option stands for.
Assembled assembleFile(const std::string& yamlFile);
// The file if it is there.
std::string readIfThere(const std::string& path);
// The text but for the lines that begin with "#".
std::string withoutComments(const std::string& text);
