#include "base/Diagnostic.h"

#include <tuple>

#include "base/FileSystem.h"
#include "base/TextHelpers.h"

bool operator==(const Diagnostic& a, const Diagnostic& b)
{
    const auto all = [](const Diagnostic& d) {
        return std::tie(d.severity, d.kind, d.text, d.file, d.line, d.column, d.length, d.subject,
                        d.page, d.area, d.printed);
    };
    return all(a) == all(b);
}

DiagnosticSink collectInto(std::vector<Diagnostic>& list)
{
    return [&list](const Diagnostic& diagnostic) { list.push_back(diagnostic); };
}

DiagnosticSink printWith(PrintFunction print)
{
    const PrintFunction chosen = print != nullptr ? print : printToStandardOutput;
    return [chosen](const Diagnostic& diagnostic) {
        const bool isFixed = !diagnostic.printed.empty();
        chosen("%s", (isFixed ? diagnostic.printed : consoleLine(diagnostic)).c_str());
    };
}

std::string consoleLine(const Diagnostic& diagnostic)
{
    std::string place = FileSystem::getFilenameOfPath(diagnostic.file);
    if (diagnostic.line > 0) {
        place += (place.empty() ? "line " : " line ") + itostr(diagnostic.line);
    }
    return std::string(severityName(diagnostic.severity)) + ": " + place +
           (place.empty() ? "" : ": ") + diagnostic.text + "\n";
}

const char* severityName(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return "Error";
    case Severity::warning:
        return "Warning";
    case Severity::hint:
        return "Hint";
    }
    return "";
}
