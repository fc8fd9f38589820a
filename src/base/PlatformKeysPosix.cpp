#include "base/PlatformKeys.h"

namespace Platform {

std::optional<bool> insertKeyToggled()
{
    return std::nullopt;
}

}  // namespace Platform
