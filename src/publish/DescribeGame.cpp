#include "publish/DescribeGame.h"

#include <limits>
#include <utility>

#include "base/TextHelpers.h"
#include "oid/OidProject.h"

namespace {

int printNothing(const char*, ...)
{
    return 0;
}

// Of the project only what a description says: script, names and numbers.
Oid::OidProject outlineOf(const Oid::OidProject& project)
{
    Oid::OidProject outline;
    outline.print = printNothing;
    outline.productId = project.productId;
    outline.productName = project.productName;
    outline.oids = project.oids;
    outline.compiler.source = project.compiler.source;
    for (const Oid::PICTURE& picture : project.pictures) {
        Oid::PICTURE& page = outline.pictures.emplace_back();
        for (const Oid::POLY& area : picture.polys) {
            page.polys.emplace_back().name = area.name;
        }
    }
    return outline;
}

gme::Place placeIn(const ttbasic::Place& place)
{
    return {place.line, place.column, place.length};
}

class GameDescriber
{
public:
    GameDescriber(Oid::OidProject& compiledProject, const DiagnosticSink& usedSink)
        : project(compiledProject), sink(usedSink)
    {}

    std::optional<gme::Description> describe();

private:
    void readProduct();
    void readScripts();
    void readScript(const ttbasic::Step& step);
    void readCodes();
    void readCode(const std::string& name, int oid, Diagnostic place);
    void report(Diagnostic diagnostic, const char* kind, const std::string& text);

    Oid::OidProject& project;
    const DiagnosticSink& sink;
    gme::Description description;
    bool hasErrors = false;
};

std::optional<gme::Description> GameDescriber::describe()
{
    readProduct();
    readScripts();
    readCodes();
    return hasErrors ? std::nullopt : std::make_optional(std::move(description));
}

void GameDescriber::readProduct()
{
    ttbasic& script = project.compiler;
    if (project.productId < 0) {
        report({}, "product-id", "the product id " + itostr(project.productId) + " is below 0");
    }
    description.productId = static_cast<uint32_t>(project.productId);
    description.comment.text = project.productName;
    description.mediaPath.text = itostr(project.productId) + "-audio/%s";
    description.welcome = {{script.prepareWelcomeMessage(project.productName), {}}};
    description.init.text = script.initialValues();
}

void GameDescriber::readScripts()
{
    for (const ttbasic::Step& step : project.compiler.steps()) {
        if (!step.name.empty()) {
            readScript(step);
            continue;
        }
        Diagnostic diagnostic;
        diagnostic.line = step.commands.front().place.line;
        diagnostic.column = step.commands.front().place.column;
        report(diagnostic, "statement-outside-sub",
               "what stands in front of the first sub is never carried out");
    }
}

void GameDescriber::readScript(const ttbasic::Step& step)
{
    const std::string name(step.name);
    gme::ScriptSource source;
    source.place = placeIn(step.place);
    source.isOpen = step.commands.empty();
    for (const ttbasic::Command& command : step.commands) {
        source.lines.push_back({std::string(command.text), placeIn(command.place)});
    }
    gme::ScriptSource& place = description.scripts[name];
    if (place.place.line != 0) {
        Diagnostic diagnostic;
        diagnostic.severity = Severity::warning;
        diagnostic.line = step.place.line;
        diagnostic.column = step.place.column;
        diagnostic.subject = name;
        report(diagnostic, "script-replaced",
               "script " + name + " replaces the one of line " + itostr(place.place.line) +
                   ", which is lost");
    }
    place = std::move(source);
}

void GameDescriber::readCodes()
{
    Diagnostic place;
    for (const Oid::PICTURE& picture : project.pictures) {
        ++place.page;
        place.area = 0;
        for (const Oid::POLY& area : picture.polys) {
            ++place.area;
            place.subject = area.name;
            readCode(area.name, project.oids.at(area.name).oid, place);
        }
    }
}

void GameDescriber::readCode(const std::string& name, int oid, Diagnostic place)
{
    constexpr int kLargest = std::numeric_limits<uint16_t>::max();
    if (oid < 0 || oid > kLargest) {
        report(std::move(place), "code-number",
               "area " + name + ": the code " + itostr(oid) + " is not in the range 0 to 65535");
    }
    description.codes.names[name].code = static_cast<uint16_t>(oid);
}

void GameDescriber::report(Diagnostic diagnostic, const char* kind, const std::string& text)
{
    hasErrors |= diagnostic.severity == Severity::error;
    diagnostic.kind = kind;
    diagnostic.text = text;
    sink(diagnostic);
}

}  // namespace

std::optional<DescribedBook> describeBook(const Oid::OidProject& project,
                                          const DiagnosticSink& sink, bool debugMode)
{
    Oid::OidProject outline = outlineOf(project);
    outline.compiler.reportTo(sink);
    outline.updateUsedOIDs();
    if (!compileScript(outline.compiler, debugMode) || !outline.checkSanity(sink)) {
        return std::nullopt;
    }
    std::optional<gme::Description> game = GameDescriber(outline, sink).describe();
    if (!game) {
        return std::nullopt;
    }
    return DescribedBook{std::move(*game), std::move(outline.compiler.talkTexts),
                         std::move(outline.compiler.voices)};
}

std::optional<gme::Description> describeGame(const Oid::OidProject& project,
                                             const DiagnosticSink& sink, bool debugMode)
{
    std::optional<DescribedBook> book = describeBook(project, sink, debugMode);
    return book ? std::make_optional(std::move(book->game)) : std::nullopt;
}
