#include "base/PlatformProcess.h"

#include "base/PlatformFiles.h"
#include "base/PlatformWide.h"
#include "base/Unicode.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <io.h>
#include <sstream>
#include <windows.h>

#include <shellapi.h>

namespace Platform {

namespace {

bool isFile(const std::string& path)
{
    const DWORD attributes = GetFileAttributesW(widePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The native path of a program, which may have been named without its suffix; else empty.
std::string programFile(const std::string& path)
{
    const std::string native = nativePath(path);
    if (isFile(native + ".exe")) {
        return native + ".exe";
    }
    const bool hasSuffix = native.find('.', native.find_last_of("\\:") + 1) != std::string::npos;
    return hasSuffix && isFile(native) ? native : std::string();
}

}  // namespace

const char searchPathSeparator = ';';
// The whole command line has at most 32767 characters; the other words need some of them.
const std::size_t longestArgument = 30000;

std::string exeDirectory()
{
    wchar_t path[32768];
    const DWORD length = GetModuleFileNameW(nullptr, path, 32768);
    const std::string program = toUtf8(std::wstring(path, length).c_str());
    const size_t separator = program.rfind('\\');
    return separator != std::string::npos ? program.substr(0, separator) : std::string();
}

std::vector<std::string> wordsOfCommandLine(const std::wstring& commandLine)
{
    std::vector<std::string> words;
    int count = 0;
    wchar_t** const list = CommandLineToArgvW(commandLine.c_str(), &count);
    for (int i = 0; i < count; ++i) {
        words.push_back(toUtf8(list[i]));
    }
    LocalFree(list);
    return words;
}

std::vector<std::string> commandLineArguments()
{
    return wordsOfCommandLine(GetCommandLineW());
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
    if (name.find_first_of("\\/:") != std::string::npos) {
        return programFile(name);
    }
    std::istringstream folders(searchPath());
    for (std::string folder; std::getline(folders, folder, searchPathSeparator);) {
        folder.erase(std::remove(folder.begin(), folder.end(), '"'), folder.end());
        const std::string found =
            folder.empty() || name.empty() ? std::string() : programFile(folder + "\\" + name);
        if (!found.empty()) {
            return found;
        }
    }
    return {};
}

std::string programToStart(const std::string& word)
{
    const std::string found = findProgram(word);
    return !found.empty() ? found : nativePath(word);
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

// Intended: Qt itself speaks to this system in wide letters.
void useUtf8ForSystemTexts()
{
    static const UINT before = GetConsoleOutputCP();  // 0 without a console
    if (before != 0 && before != CP_UTF8 && SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit([] { SetConsoleOutputCP(before); });
    }
}

}  // namespace Platform
