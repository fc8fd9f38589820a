#include "tests/helpers/Environment.h"

#include <csignal>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/stat.h>

const char kUserData[] = "XDG_DATA_HOME";
const char kUserSettings[] = "XDG_CONFIG_HOME";
const char kUserCache[] = "XDG_CACHE_HOME";

static void limitFiles(unsigned long bytes, unsigned long& before)
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

SmallDisk::SmallDisk(unsigned long bytes) : handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
{
    limitFiles(bytes, before);
}

SmallDisk::~SmallDisk()
{
    unsigned long ignored = 0;
    limitFiles(before, ignored);
    std::signal(SIGXFSZ, handlerBefore);
}

void makePipe(const std::string& path)
{
    if (mkfifo(path.c_str(), 0600) != 0) {
        throw std::runtime_error("cannot make a pipe " + path);
    }
}

std::string printedLines(std::string output)
{
    return output;
}

std::string programFile(const std::string& program)
{
    return program;
}

std::string germanLocaleName(const std::string& charset)
{
    return "de_DE." + charset;
}
