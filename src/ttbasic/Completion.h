#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ttbasic/ScriptOutline.h"

// What an author may want to write at a place of a script.

// What stands there.
enum class Wanted {
    nothing,        // a text, a comment, something without a name
    statement,      // the first word of a line
    end,            // the word behind "end"
    areaOfSub,      // behind "sub"
    subOfGoto,      // behind "goto"
    voiceOfSay,     // the first word behind "say"
    optionOfVoice,  // behind a voice's name, where an option begins
    variable        // in an expression, or behind "select"
};

// The word that is being written: up to the caret, from begin on.
struct WrittenWord
{
    Wanted wanted = Wanted::nothing;
    std::size_t begin = 0;  // in bytes of the line
    std::string_view text;  // of the line
};

// Of a line up to the caret.
WrittenWord writtenWord(std::string_view lineToCaret);

struct Suggestion
{
    enum class Kind { keyword, area, sub, variable, voice, option };
    Kind kind;
    std::string text;
};

// What begins with the written word, whatever its case, without the word itself if that is all: in
// the order of their names, areas that have no sub yet in front. The line (from 1) is the caret's.
std::vector<Suggestion> suggestionsFor(const WrittenWord& word, const ScriptOutline& outline,
                                       const std::vector<std::string>& areas, int line);
