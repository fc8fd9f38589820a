#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/PrintFunction.h"

enum class Severity {
    error,    // nothing can be made of this
    warning,  // the author should look at it; nothing is stopped
    hint      // advice
};

// Something to say to the author, as a value: who finds it does not know whether it becomes a line
// of a console, a mark in the editor or JSON. Values own their texts and may go to other threads.
struct Diagnostic
{
    Severity severity = Severity::error;
    // What kind of finding this is, a short name that stays the same when the words change:
    // "goto-undefined". Small letters, digits and dashes.
    std::string kind;
    // One sentence in English without place and line end. It may hold line ends inside.
    std::string text;

    // Where. The file that line counts in, as a path; empty for the script (and whatever else is
    // only in memory).
    std::string file;
    // Line and column count from 1; 0 is unknown, or the thing as a whole. Column and length count
    // bytes of the line's UTF-8 text (a byte-order mark is not part of its line), never half a
    // character; length 0: only the place is known, or nothing can be marked.
    int line = 0;
    int column = 0;
    int length = 0;

    // Whose. The name in question, of an area, a sub, a voice and so on; empty where there is none.
    std::string subject;
    // The page and the area on it, counted from 1; 0 where it is not about one.
    int page = 0;
    int area = 0;

    // What a console shows, line end included, where its words are fixed; else empty. It may name
    // another line than the one above, which is where the author has to look.
    std::string printed;
};

bool operator==(const Diagnostic& a, const Diagnostic& b);
inline bool operator!=(const Diagnostic& a, const Diagnostic& b)
{
    return !(a == b);
}

// Takes the findings one by one, in the order in which they are found, on the thread that finds
// them. An empty sink may be handed over only where a declaration allows it.
using DiagnosticSink = std::function<void(const Diagnostic&)>;

// A sink that appends to the list, which has to outlive it.
DiagnosticSink collectInto(std::vector<Diagnostic>& list);

// A sink that prints each finding, in its fixed words or else as consoleLine says. Null stands for
// standard output.
DiagnosticSink printWith(PrintFunction print);

// "Error: 900-Zoo.yaml line 7: text" with its line end; without a file or a line they are left out.
std::string consoleLine(const Diagnostic& diagnostic);

// "Error", "Warning", "Hint": how a line of a console begins.
const char* severityName(Severity severity);
