#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "base/Diagnostic.h"
#include "hints/Fix.h"

// What there is to say about the book, as the author reads it: a message of the compiler or of the
// comparison of script and pictures in its own words, or a hint.
struct Problem
{
    Diagnostic diagnostic;
    QString words;
    std::optional<hints::Fix> fix;
    QString fixWords;  // what the fix does; empty without one

    bool operator==(const Problem& other) const
    {
        return diagnostic == other.diagnostic && words == other.words && fix == other.fix;
    }
};

// Errors first, then warnings, then hints; each in the order of the book.
using Problems = std::vector<Problem>;
