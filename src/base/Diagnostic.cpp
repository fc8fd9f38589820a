#include "base/Diagnostic.h"

#include <tuple>

bool operator==(const Diagnostic& a, const Diagnostic& b)
{
    const auto all = [](const Diagnostic& d) {
        return std::tie(d.severity, d.kind, d.text, d.file, d.line, d.column, d.length, d.subject,
                        d.page, d.area);
    };
    return all(a) == all(b);
}

DiagnosticSink collectInto(std::vector<Diagnostic>& list)
{
    return [&list](const Diagnostic& diagnostic) { list.push_back(diagnostic); };
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
