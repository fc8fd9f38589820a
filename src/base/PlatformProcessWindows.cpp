#include "base/PlatformProcess.h"

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "base/Unicode.h"

#include <cstdio>
#include <cstdlib>
#include <io.h>
#include <windows.h>

namespace Platform {

const char searchPathSeparator = ';';
// The whole command line has at most 32767 characters; the other words need some of them.
const std::size_t longestArgument = 30000;

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

bool standardOutputIsTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}

std::string environmentVariable(const std::string& name)
{
    return toUtf8(_wgetenv(fromUtf8(name).c_str()));
}

void setEnvironmentVariable(const std::string& name, const std::string& value)
{
    _wputenv((fromUtf8(name) + L"=" + fromUtf8(value)).c_str());
}

std::string searchPath()
{
    return environmentVariable("PATH");
}

std::string findProgram(const std::string& name)
{
    wchar_t path[32768];
    const DWORD length = SearchPathW(fromUtf8(searchPath()).c_str(), fromUtf8(name).c_str(),
                                     L".exe", 32768, path, nullptr);
    return length > 0 && length < 32768 ? toUtf8(path) : std::string();
}

std::string programToStart(const std::string& word)
{
    const std::string found = findProgram(word);
    return !found.empty() ? found : word;
}

std::string installedToolFolder(const std::string& tool)
{
    const std::string folder = environmentVariable("ProgramFiles") + "\\" + tool;
    return fileExists(folder + "\\" + tool + ".exe") ? folder : std::string();
}

std::string programsFolder()
{
    const std::string folder = environmentVariable("ProgramFiles");
    return !folder.empty() ? folder : "C:\\Program Files";
}

void useUtf8ForSystemTexts() {}

}  // namespace Platform
