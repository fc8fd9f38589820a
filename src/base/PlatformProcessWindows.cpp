#include "base/PlatformProcess.h"

#include "base/TextHelpers.h"

#include <windows.h>

namespace Platform {

std::string exeDirectory()
{
    char path[1024];
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program(path, length);
    const size_t separator = program.rfind('\\');
    return separator != std::string::npos ? program.substr(0, separator) : std::string();
}

std::vector<std::string> commandLineArguments()
{
    std::vector<std::string> words;
    SplitStringKeepQuotes(toUtf8(GetCommandLineW()), words, true);
    return words;
}

}  // namespace Platform
