#include "base/PlatformKeys.h"

#include <windows.h>

namespace Platform {

std::optional<bool> insertKeyToggled()
{
    return (GetKeyState(VK_INSERT) & 1) != 0;
}

}  // namespace Platform
