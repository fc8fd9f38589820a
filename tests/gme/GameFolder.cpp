#include "tests/gme/GameFolder.h"

#include "gme/Assembler.h"
#include "tests/helpers/CapturedMessages.h"

#include <filesystem>
#include <sstream>

GameFolder::GameFolder()
{
    add("roar.ogg", "OggS roar");
    add("moo.ogg", "OggS moo");
}

void GameFolder::add(const std::string& name, const std::string& bytes) const
{
    writeFile(file(name), bytes);
}

Assembled GameFolder::assemble(const std::string& yaml) const
{
    add("900-case.yaml", yaml);
    return assembleFile(file("900-case.yaml"));
}

Assembled assemble(const std::string& yaml)
{
    return GameFolder().assemble(yaml);
}

std::string yamlWithScripts(const std::string& scripts)
{
    return "product-id: 900\n"
           "scripts:\n" +
           scripts;
}

std::string yamlWithLine(const std::string& line)
{
    return yamlWithScripts("  a:\n"
                           "  - " +
                           line + "\n");
}

std::string yamlWith(const std::string& lines)
{
    return "product-id: 900\n" + lines +
           "scripts:\n"
           "  a: $x := 1\n";
}

Assembled assembleFile(const std::string& yamlFile)
{
    CapturedMessages messages;
    gme::AssembleOptions options;
    options.yamlFile = yamlFile;
    options.withDate = false;
    Assembled result;
    result.ok = gme::assemble(options, CapturedMessages::print);
    result.messages = messages.take();
    result.game = readIfThere(gme::gameFileFor(yamlFile));
    result.codes = withoutComments(readIfThere(gme::codesFileFor(yamlFile)));
    return result;
}

std::string readIfThere(const std::string& path)
{
    std::error_code ignored;  // a path that cannot exist
    const bool isThere = std::filesystem::exists(std::filesystem::u8path(path), ignored);
    return isThere ? readFile(path) : std::string();
}

std::string withoutComments(const std::string& text)
{
    std::istringstream lines(text);
    std::string kept;
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line[0] != '#') {
            kept += line + "\n";
        }
    }
    return kept;
}
