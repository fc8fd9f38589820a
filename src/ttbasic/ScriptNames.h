#pragma once

#include <optional>

#include "ttbasic/ScriptOutline.h"

enum class NameKind { sub, variable, voice };

// A place where a name stands in a script.
struct NameUse
{
    NameKind kind;
    ScriptOutline::Word word;
    // As the compiler compares it: two uses are about one thing when kind and name are equal.
    std::string name;
    // A `sub`, a `voice`, or a variable that is set.
    bool isDefinition;
};

// All of them in the order of the text.
std::vector<NameUse> namesIn(const ScriptOutline& outline);
std::vector<NameUse> usesOf(const ScriptOutline& outline, NameKind kind, const std::string& name);
// The name at a byte of a line, both counted from 1, or directly in front of it.
std::optional<NameUse> nameAt(const ScriptOutline& outline, int line, int column);
