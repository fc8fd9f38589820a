#include "base/PlatformMachine.h"

#include "base/PlatformProcess.h"

#include <algorithm>
#include <limits>
#include <windows.h>

namespace Platform {

std::string machineName()
{
    return environmentVariable("COMPUTERNAME");
}

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

std::optional<bool> insertKeyToggled()
{
    return (GetKeyState(VK_INSERT) & 1) != 0;
}

const char* screenlessPlugin()
{
    return "windows";  // the one that is installed; there always is a desktop
}

}  // namespace Platform
