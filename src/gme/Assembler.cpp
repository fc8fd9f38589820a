#include "gme/Assembler.h"

#include "base/PlatformFiles.h"
#include "gme/CodesFile.h"
#include "gme/DescriptionReader.h"
#include "gme/GameFile.h"

#include <ctime>

namespace gme {

namespace {

std::string today()
{
    const std::time_t now = std::time(nullptr);
    char text[16];
    const size_t length = std::strftime(text, sizeof text, "%Y%m%d", std::gmtime(&now));
    return {text, length};
}

class Assembly
{
public:
    Assembly(const AssembleOptions& options, const DiagnosticSink& diagnosticSink);

    bool run();

private:
    bool checkPaths();
    bool readYamlFile();
    bool compile();
    bool writeFiles();

    std::string yamlFile;
    std::string codesPath;
    std::string gameFile;
    DiagnosticSink sink;
    Messages codesMessages;  // about the codes file
    Messages gameMessages;   // about the game file
    CodesFile codesFile;
    std::optional<Description> description;
    std::optional<Game> game;
    bool withDate;
    std::function<Game(const Game&, const Description&)> change;
};

Assembly::Assembly(const AssembleOptions& options, const DiagnosticSink& diagnosticSink)
    : yamlFile(Platform::nativePath(options.yamlFile)),
      codesPath(codesFileFor(options.yamlFile)),
      gameFile(options.gameFile.empty() ? gameFileFor(options.yamlFile)
                                        : Platform::nativePath(options.gameFile)),
      sink(diagnosticSink),
      codesMessages(codesPath, sink),
      gameMessages(gameFile, sink),
      codesFile(codesPath),
      withDate(options.withDate),
      change(options.change)
{}

bool Assembly::run()
{
    return checkPaths() && readYamlFile() && codesFile.read(codesMessages) && compile() &&
           writeFiles();
}

bool Assembly::checkPaths()
{
    if (isSamePath(gameFile, yamlFile) || isSamePath(gameFile, codesPath)) {
        gameMessages.error({}, "file-same",
                           "the game file would take the place of what it is made from");
        return false;
    }
    return true;
}

bool Assembly::readYamlFile()
{
    Messages messages(yamlFile, sink);
    std::string bytes;
    if (readBytes(yamlFile, bytes, messages)) {
        description = readDescription(bytes, yamlFile, sink);
    }
    return description.has_value();
}

bool Assembly::compile()
{
    game = compileGame(*description, mediaIn(folderOf(yamlFile)), sink, codesFile.codes());
    if (game && withDate) {
        game->date = today();
    }
    if (game && change) {
        game = change(*game, *description);
    }
    return game.has_value();
}

// Both files or neither: the game file is complete under a temporary name before the codes file
// changes, and the codes file changes back if the last step fails.
bool Assembly::writeFiles()
{
    std::string problem = "cannot be written";
    Platform::FileReplacement file(gameFile);
    if (file.file() == nullptr || !writeGame(*game, file.file(), problem)) {
        gameMessages.error({}, "file-unwritable", "the game file " + problem);
        return false;
    }
    if (!codesFile.update(*description, game->codes)) {
        codesMessages.error({}, "file-unwritable", "the codes file cannot be written");
        return false;
    }
    if (!file.commit()) {
        codesFile.restore();
        gameMessages.error({}, "file-unwritable", "the game file cannot be written");
        return false;
    }
    return true;
}

}  // namespace

bool makeRoomForAreas(const std::string& yamlFile, const std::map<std::string, int>& areas,
                      const DiagnosticSink& sink)
{
    const std::string path = codesFileFor(yamlFile);
    CodesFile codesFile(path);
    Messages unheard(path, [](const Diagnostic&) {});  // assemble will tell
    if (!codesFile.read(unheard)) {
        return true;
    }
    Messages messages(path, sink);
    return codesFile.makeRoomFor(areas, messages);
}

bool assemble(const AssembleOptions& options, const DiagnosticSink& sink)
{
    return Assembly(options, sink).run();
}

bool assemble(const AssembleOptions& options, PrintFunction print)
{
    return assemble(options, printWith(print != nullptr ? print : defaultPrintf()));
}

}  // namespace gme
