#include "base/PlatformCodePage.h"

#include <windows.h>

namespace Platform {

std::string wideToCodePage(const std::wstring& text)
{
    // The terminator is converted, too, as one character more.
    const int count = static_cast<int>(text.size()) + 1;
    const int size =
        WideCharToMultiByte(CP_ACP, 0, text.c_str(), count, nullptr, 0, nullptr, nullptr);
    if (size <= 0) {
        return {};
    }
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), count, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

}  // namespace Platform
