#include "gme/Messages.h"

#include "base/FileSystem.h"

#include <utility>

namespace gme {

namespace {

// A name may hold line ends and other control characters, but a message is one line.
std::string inOneLine(std::string text)
{
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || byte == 0x7F) {
            c = '?';
        }
    }
    return text;
}

bool isInsideCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

}  // namespace

Messages::Messages(const std::string& path, DiagnosticSink diagnosticSink)
    : file(path), sink(std::move(diagnosticSink))
{}

void Messages::error(Place place, const char* kind, const std::string& text,
                     const std::string& subject)
{
    ++errors;
    say(Severity::error, place, kind, text, subject);
}

void Messages::warning(Place place, const char* kind, const std::string& text,
                       const std::string& subject)
{
    say(Severity::warning, place, kind, text, subject);
}

void Messages::note(const char* kind, const std::string& text)
{
    Diagnostic finding;
    finding.severity = Severity::hint;
    finding.kind = kind;
    finding.text = inOneLine(text);
    finding.file = file;
    finding.printed = FileSystem::getFilenameOfPath(file) + " " + finding.text + "\n";
    sink(finding);
}

void Messages::say(Severity severity, Place place, const char* kind, const std::string& text,
                   const std::string& subject)
{
    Diagnostic finding;
    finding.severity = severity;
    finding.kind = kind;
    finding.text = inOneLine(text);
    finding.file = file;
    finding.line = place.line;
    finding.column = place.column;
    finding.length = place.length;
    finding.subject = subject;
    sink(finding);
}

Place placeIn(const SourceLine& line, size_t at, size_t length)
{
    Place place = line.place;
    if (place.column > 0 && static_cast<size_t>(place.length) == line.text.size()) {
        place.column += static_cast<int>(at);
        place.length = static_cast<int>(length);
    }
    return place;
}

std::string quoted(const std::string& text)
{
    constexpr size_t kLongest = 80;  // bytes; enough to find the place
    if (text.size() <= kLongest) {
        return '"' + text + '"';
    }
    size_t end = kLongest;
    while (isInsideCharacter(text[end])) {
        --end;
    }
    return '"' + text.substr(0, end) + "...\"";
}

}  // namespace gme
