// Any script: the compiler ends, and what it lets pass can be made a game.
#include "fuzz/Fuzzing.h"

#include "gme/Game.h"
#include "oid/OidProject.h"
#include "publish/DescribeGame.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    Oid::OidProject project;
    project.print = printNothing;
    project.compiler.source.assign(reinterpret_cast<const char*>(data), size);
    for (const bool debugMode : {false, true}) {
        std::string errors;
        const DiagnosticSink sink = [&errors](const Diagnostic& finding) {
            errors += finding.severity == Severity::error ? consoleLine(finding) : std::string();
        };
        const auto description = describeGame(project, sink, debugMode);
        fuzzing::require(description.has_value() == errors.empty(), "an error is told: " + errors);
        if (description) {
            gme::MediaLookup silence;
            silence.isLenient = true;
            gme::compileGame(*description, silence, sink);
        }
    }
    return 0;
}
