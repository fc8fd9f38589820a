#include "gme/Assembler.h"

#include "base/PlatformFiles.h"
#include "base/PrintNothing.h"
#include "gme/CodesFile.h"
#include "gme/GameBuilder.h"
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
    Assembly(const AssembleOptions& options, PrintFunction print);

    bool run();

private:
    bool checkPaths();
    bool readYamlFile();
    bool resolve();
    bool writeFiles();

    std::string yamlFile;
    std::string codesPath;
    std::string gameFile;
    Messages messages;       // about the YAML file
    Messages codesMessages;  // about the codes file
    Messages gameMessages;   // about the game file
    CodesFile codesFile;
    Description description;
    Codes codes;
    Game game;
    bool withDate;
};

Assembly::Assembly(const AssembleOptions& options, PrintFunction print)
    : yamlFile(Platform::nativePath(options.yamlFile)),
      codesPath(codesFileFor(options.yamlFile)),
      gameFile(options.gameFile.empty() ? gameFileFor(options.yamlFile)
                                        : Platform::nativePath(options.gameFile)),
      messages(yamlFile, print),
      codesMessages(codesPath, print),
      gameMessages(gameFile, print),
      codesFile(codesPath),
      withDate(options.withDate)
{}

bool Assembly::run()
{
    return checkPaths() && readYamlFile() && codesFile.read(codesMessages) && resolve() &&
           writeFiles();
}

bool Assembly::checkPaths()
{
    if (isSamePath(gameFile, yamlFile) || isSamePath(gameFile, codesPath)) {
        gameMessages.error(0, "the game file would take the place of what it is made from");
        return false;
    }
    return true;
}

bool Assembly::readYamlFile()
{
    std::string text;
    YamlNode root;
    if (readBytes(yamlFile, text, messages) && readYaml(std::move(text), root, messages)) {
        readDescription(root, description, messages);
    }
    return !messages.hasErrors();
}

bool Assembly::resolve()
{
    const GivenCodes given = mergeCodes(description.codes, codesFile.codes(), messages);
    codes = assignCodes(description, given, messages);
    if (messages.hasErrors()) {
        return false;
    }
    game = buildGame(description, codes, folderOf(yamlFile), messages);
    game.date = withDate ? today() : "19700101";
    return !messages.hasErrors();
}

// Both files or neither: the game file is complete under a temporary name before the codes file
// changes, and the codes file changes back if the last step fails.
bool Assembly::writeFiles()
{
    std::string problem = "cannot be written";
    Platform::FileReplacement file(gameFile);
    if (file.file() == nullptr || !writeGame(game, file.file(), problem)) {
        gameMessages.error(0, "the game file " + problem);
        return false;
    }
    if (!codesFile.update(description, codes)) {
        codesMessages.error(0, "the codes file cannot be written");
        return false;
    }
    if (!file.commit()) {
        codesFile.restore();
        gameMessages.error(0, "the game file cannot be written");
        return false;
    }
    return true;
}

}  // namespace

bool makeRoomForAreas(const std::string& yamlFile, const std::map<std::string, int>& areas,
                      PrintFunction print)
{
    const std::string path = codesFileFor(yamlFile);
    CodesFile codesFile(path);
    Messages unheard(path, printNothing);  // assemble will tell
    if (!codesFile.read(unheard)) {
        return true;
    }
    Messages messages(path, print);
    return codesFile.makeRoomFor(areas, messages);
}

bool assemble(const AssembleOptions& options, PrintFunction print)
{
    return Assembly(options, print).run();
}

}  // namespace gme
