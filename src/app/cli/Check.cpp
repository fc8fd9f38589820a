#include <cstdio>
#include <vector>

#include "app/cli/Commands.h"
#include "app/cli/FindingsAsJson.h"
#include "hints/FindHints.h"
#include "oid/OpenProject.h"
#include "publish/BuildDriver.h"

namespace {

bool asksForHints(const Arguments& arguments)
{
    return arguments.has("--hints") || arguments.has("--json") || arguments.has("--strict");
}

std::vector<hints::Finding> hintsOf(const Oid::OidProject& project)
{
    hints::PagePictures pictures;
    return hints::findHints(project, pictures);
}

// "Hint: line 7: The pen plays only one of these texts. [several-texts]"
void printHint(const hints::Finding& hint)
{
    std::string line = consoleLine(hint.diagnostic);
    line.pop_back();
    printf("%s [%s]\n", line.c_str(), hint.hint->name);
}

// As compileProject, with values instead of printed words.
bool compileSilently(Oid::OidProject& project, bool debugMode, const DiagnosticSink& sink)
{
    project.compiler.reportTo(sink);
    return compileScript(project.compiler, debugMode) && project.checkSanity(sink);
}

int checkAsJson(const Arguments& arguments)
{
    setDefaultPrintf(printNothing);
    std::vector<Diagnostic> messages;
    const DiagnosticSink sink = collectInto(messages);
    Oid::OidProject project;
    const bool opened = Oid::openProject(project, arguments.operands[0], sink);
    const bool compiled = opened && compileSilently(project, arguments.has("--debug"), sink);
    std::vector<hints::Finding> hints;
    if (opened) {
        hints = hintsOf(project);
    }
    fputs(findingsAsJson(messages, hints).c_str(), stdout);
    return compiled && (hints.empty() || !arguments.has("--strict")) ? kFine : kFailed;
}

int check(const Arguments& arguments)
{
    if (arguments.has("--json")) {
        return checkAsJson(arguments);
    }
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    const bool compiled = compileProject(project, arguments.has("--debug"));
    bool isStrictlyFine = true;
    if (asksForHints(arguments)) {
        for (const hints::Finding& hint : hintsOf(project)) {
            printHint(hint);
            isStrictlyFine = !arguments.has("--strict");
        }
    }
    return compiled && isStrictlyFine ? kFine : kFailed;
}

}  // namespace

Command checkCommand()
{
    return {"check",
            "PROJECT",
            "Compiles the script and compares it with the pictures; writes nothing.",
            {{"--debug", nullptr, "compile as for a game that says its line numbers"},
             {"--hints", nullptr, "then tell what may go wrong on paper or with the pen"},
             {"--json", nullptr, "messages and hints as one JSON array instead of lines"},
             {"--strict", nullptr, "as --hints, and the exit status is 1 when there are any"}},
            check};
}
