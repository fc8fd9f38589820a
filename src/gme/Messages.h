#pragma once

#include "base/Diagnostic.h"
#include "gme/Description.h"

#include <string>

namespace gme {

// What there is to say about one file: values, whose text is one line.
class Messages
{
public:
    // The file is a path, or empty for what is only in memory.
    Messages(const std::string& path, DiagnosticSink diagnosticSink);

    // The subject is the name of the script, area or audio file in question.
    void error(Place place, const char* kind, const std::string& text,
               const std::string& subject = {});
    void warning(Place place, const char* kind, const std::string& text,
                 const std::string& subject = {});
    // What was done without being asked: "no longer holds ...".
    void note(const char* kind, const std::string& text);
    bool hasErrors() const { return errors > 0; }

private:
    void say(Severity severity, Place place, const char* kind, const std::string& text,
             const std::string& subject);

    std::string file;
    DiagnosticSink sink;
    int errors = 0;
};

// Text for a message: cut when it is long, in double quotes.
std::string quoted(const std::string& text);

// The place of a part of a line, as exactly as the line's own place allows. In bytes.
Place placeIn(const SourceLine& line, size_t at, size_t length);

}  // namespace gme
