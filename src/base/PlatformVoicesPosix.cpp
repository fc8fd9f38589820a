#include "base/PlatformVoices.h"

namespace Platform {

std::vector<SystemVoice> systemVoices()
{
    return {};
}

std::string speakBySystemVoice(const std::string& /*id*/, const std::string& /*text*/,
                               std::string& /*wav*/)
{
    return "the system has no voices";
}

}  // namespace Platform
