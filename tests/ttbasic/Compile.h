#pragma once

#include <string>

#include "ttbasic/ttbasic.h"

// A script after its compilation, with what the author was told.
struct Compiled
{
    bool ok;
    std::string messages;
    ttbasic script;

    const std::string& code() const { return script.code; }
    // The words after "init:", each with its blank: "$_zero $rnd $x".
    std::string registers() const;
};

Compiled compile(const std::string& source, bool debugMode = false);
// The same as values. A script without any has to compile, one with some must not.
std::vector<Diagnostic> diagnosticsOf(const std::string& source);
// The messages of a script that must not compile.
std::string errorsOf(const std::string& source);

// The code that a script becomes, written with "\n" as line end and {R} for each random number; the
// headline "scripts:" is added.
std::string scripts(const std::string& lines);
// Fills in the random numbers that a compilation draws.
std::string withRandomNumbers(std::string text);
std::string withWindowsLineEnds(const std::string& text);
