#include "base/PlatformCodePage.h"

#include "base/Utf8.h"

namespace Platform {

std::string wideToCodePage(const std::wstring& text)
{
    return Utf8::encode(text);
}

}  // namespace Platform
