#include "gme/HeaderText.h"

#include "base/Utf8.h"

#include <string_view>

namespace gme {

std::string headerText(const std::string& owner, const SourceLine& text, Messages& messages)
{
    std::string bytes;
    std::string garbled;
    std::string_view rest = text.text;
    char32_t c = 0;
    while (!rest.empty()) {
        const std::string_view before = rest;
        if (!Utf8::takeCharacter(rest, c)) {
            break;
        }
        bytes += static_cast<char>(c & 0xFFU);
        garbled += c > 0xFF ? before.substr(0, before.size() - rest.size()) : std::string_view();
    }
    if (!garbled.empty()) {
        messages.warning(text.line,
                         owner + ": the game file cannot hold these characters: " + garbled);
    }
    return bytes;
}

}  // namespace gme
