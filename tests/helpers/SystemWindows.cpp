#include "tests/helpers/Environment.h"

#include "base/TextHelpers.h"

#include <stdexcept>

const char kUserData[] = "LOCALAPPDATA";
const char kUserSettings[] = "LOCALAPPDATA";
const char kUserCache[] = "LOCALAPPDATA";

SmallDisk::SmallDisk(unsigned long bytes) : before(bytes), handlerBefore(nullptr)
{
    throw std::runtime_error("Windows limits no files");
}

SmallDisk::~SmallDisk() = default;

void makePipe(const std::string& path)
{
    throw std::runtime_error("Windows has no pipes in folders: " + path);
}

std::string printedLines(std::string output)
{
    strReplace(output, "\r\n", "\n");
    return output;
}

std::string programFile(const std::string& program)
{
    const bool hasSuffix = program.size() > 4 && program.substr(program.size() - 4) == ".exe";
    return hasSuffix ? program : program + ".exe";
}

std::string germanLocaleName(const std::string& charset)
{
    const char* const codePage = charset == "ISO-8859-1"    ? "28591"
                                 : charset == "ISO-8859-15" ? "28605"
                                                            : "1252";
    return std::string("German_Germany.") + codePage;
}
