#include "base/PlatformProcess.h"

#include "base/PlatformFiles.h"

#include <QTextCodec>

#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

bool isExecutableFile(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           access(path.c_str(), X_OK) == 0;
}

bool endsWithExe(const std::string& name)
{
    constexpr size_t kSuffix = 4;
    return name.size() > kSuffix && strcasecmp(name.c_str() + name.size() - kSuffix, ".exe") == 0;
}

}  // namespace

const char searchPathSeparator = ':';
// One word of a program's arguments has at most 32 pages, its terminator included.
const std::size_t longestArgument = 128 * 1024 - 1;

std::string exeDirectory()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0) {
        return {};
    }
    const std::string program(path, static_cast<size_t>(length));
    return program.substr(0, program.rfind('/'));
}

std::vector<std::string> commandLineArguments()
{
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::vector<std::string> words;
    for (std::string word; std::getline(file, word, '\0');) {
        words.push_back(word);
    }
    return words;
}

bool standardOutputIsTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

std::string environmentVariable(const std::string& name)
{
    const char* value = getenv(name.c_str());
    return value != nullptr ? value : std::string();
}

void setEnvironmentVariable(const std::string& name, const std::string& value)
{
    if (value.empty()) {
        unsetenv(name.c_str());
    } else {
        setenv(name.c_str(), value.c_str(), 1);
    }
}

std::string searchPath()
{
    const std::string path = environmentVariable("PATH");
    return !path.empty() ? path : "/usr/local/bin:/usr/bin:/bin";
}

std::string findProgram(const std::string& name)
{
    const std::string native = nativePath(name);
    if (native.find('/') != std::string::npos) {
        return isExecutableFile(native) ? native : std::string();
    }
    std::istringstream folders(searchPath());
    for (std::string folder; std::getline(folders, folder, searchPathSeparator);) {
        std::string candidate = folder;
        candidate += "/" + native;
        if (!folder.empty() && !native.empty() && isExecutableFile(candidate)) {
            return candidate;
        }
    }
    return {};
}

std::string programToStart(const std::string& word)
{
    std::string found = findProgram(word);
    if (found.empty() && endsWithExe(word)) {
        found = findProgram(word.substr(0, word.size() - 4));
    }
    return !found.empty() ? found : nativePath(word);
}

std::string installedToolFolder(const std::string& tool)
{
    const std::string program = findProgram(tool);
    return !program.empty() ? program.substr(0, program.rfind('/')) : std::string();
}

std::string programsFolder()
{
    const std::string folder = environmentVariable("ProgramFiles");
    return !folder.empty() ? folder : "/usr/local";
}

void useUtf8ForSystemTexts()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

}  // namespace Platform
