#include "base/PlatformMachine.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <sys/resource.h>
#include <sys/utsname.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Platform {

namespace {

constexpr std::uint64_t kUnknown = std::numeric_limits<std::uint64_t>::max();

// What the system could hand out, caches included.
std::uint64_t memoryOfTheMachine()
{
    FILE* file = fopen("/proc/meminfo", "re");
    if (file == nullptr) {
        return kUnknown;
    }
    std::uint64_t bytes = kUnknown;
    char line[256];
    while (fgets(line, sizeof line, file) != nullptr) {
        unsigned long long kibibytes = 0;
        if (sscanf(line, "MemAvailable: %llu kB", &kibibytes) == 1) {
            bytes = kibibytes * 1024;
        }
    }
    fclose(file);
    return bytes;
}

// The limit that the user has set (ulimit -v), whatever is used of it already.
std::uint64_t memoryLimitOfTheProcess()
{
    rlimit limit = {};
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) {
        return kUnknown;
    }
    return limit.rlim_cur;
}

}  // namespace

std::string machineName()
{
    utsname system = {};
    return uname(&system) == 0 ? system.nodename : std::string();
}

std::uint64_t availableMemory()
{
    return std::min(memoryOfTheMachine(), memoryLimitOfTheProcess());
}

void releaseFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);  // else pieces between what is still in use would stay for good
#endif
}

std::optional<bool> insertKeyToggled()
{
    return std::nullopt;
}

const char* screenlessPlugin()
{
    return "offscreen";
}

}  // namespace Platform
