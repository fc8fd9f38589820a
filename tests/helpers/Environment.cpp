#include "tests/helpers/Environment.h"

#include "base/PlatformProcess.h"

#include <csignal>
#include <sys/resource.h>

ChangedVariable::ChangedVariable(const std::string& variable, const std::string& value)
    : name(variable), before(Platform::environmentVariable(variable))
{
    Platform::setEnvironmentVariable(name, value);
}

ChangedVariable::~ChangedVariable()
{
    Platform::setEnvironmentVariable(name, before);
}

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
