#include "base/PlatformMemory.h"

#include <algorithm>
#include <limits>
#include <windows.h>

namespace Platform {

std::uint64_t availableMemory()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status)) {
        return std::numeric_limits<std::uint64_t>::max();
    }
    return std::min<std::uint64_t>(status.ullAvailPhys, status.ullAvailVirtual);
}

void releaseFreeMemory()
{
    HeapCompact(GetProcessHeap(), 0);
}

}  // namespace Platform
