#include "app/PlaceInManual.h"

#include "base/Diagnostic.h"

QString placeInManual(const Diagnostic& problem)
{
    if (problem.severity == Severity::hint) {
        return "hints-" + QString::fromStdString(problem.kind);
    }
    if (problem.line > 0) {
        return "script-messages";
    }
    return problem.page > 0 ? "areas-names" : "questions";
}
