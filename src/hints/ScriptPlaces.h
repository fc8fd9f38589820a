#pragma once

#include <string>

#include "base/Diagnostic.h"
#include "ttbasic/ScriptOutline.h"

namespace hints {

// What a hint about a part of the script says of its place.
inline Diagnostic placeInScript(const ScriptOutline::Place& place, const std::string& subject = {})
{
    Diagnostic diagnostic;
    diagnostic.subject = subject;
    diagnostic.line = place.line;
    diagnostic.column = place.column;
    diagnostic.length = place.length;
    return diagnostic;
}

inline Diagnostic placeInScript(const ScriptOutline::Word& word)
{
    return placeInScript(word.place, std::string(word.text));
}

// From the beginning of the first to the end of the last, on one line.
inline ScriptOutline::Place across(const ScriptOutline::Place& first,
                                   const ScriptOutline::Place& last)
{
    return {first.line, first.column, last.column + last.length - first.column};
}

}  // namespace hints
