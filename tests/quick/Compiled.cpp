#include "tests/quick/Compiled.h"

#include "gme/DescriptionReader.h"
#include "publish/DescribeGame.h"
#include "quick/Quick.h"

#include <stdexcept>

namespace {

class Errors
{
public:
    DiagnosticSink sink()
    {
        return [this](const Diagnostic& finding) {
            text += finding.severity == Severity::error ? consoleLine(finding) : std::string();
        };
    }
    std::string text;
};

Compiled compiledFrom(const std::optional<gme::Description>& description, Errors& errors)
{
    const gme::MediaLookup silence;
    const std::optional<gme::Game> game =
        description ? gme::compileGame(*description, silence, errors.sink()) : std::nullopt;
    if (!game) {
        throw std::runtime_error(errors.text);
    }
    Compiled result{*game, quick::innerCodes(*game, *description), {}};
    for (const auto& [name, given] : description->codes.names) {
        result.areas[name] = given.code;
    }
    return result;
}

}  // namespace

Compiled compiled(const Oid::OidProject& project, bool debugMode)
{
    Errors errors;
    return compiledFrom(describeGame(project, errors.sink(), debugMode), errors);
}

Compiled compiled(const std::string& yaml)
{
    Errors errors;
    return compiledFrom(gme::readDescription(yaml, {}, errors.sink()), errors);
}
