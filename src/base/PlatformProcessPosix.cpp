#include "base/PlatformProcess.h"

#include <climits>
#include <fstream>
#include <unistd.h>

namespace Platform {

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

}  // namespace Platform
