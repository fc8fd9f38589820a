#include "hints/Fix.h"

namespace hints {

std::vector<std::size_t> startsOfLines(const std::string& script)
{
    std::vector<std::size_t> starts = {0};
    for (std::size_t end = script.find('\n'); end != std::string::npos;
         end = script.find('\n', end)) {
        starts.push_back(++end);
    }
    return starts;
}

std::string edited(const std::string& script, const TextEdits& edits)
{
    const std::vector<std::size_t> starts = startsOfLines(script);
    std::string text;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        const std::size_t at = starts[edit.line - 1] + edit.column - 1;
        text.append(script, done, at - done);
        text += edit.text;
        done = at + static_cast<std::size_t>(edit.length);
    }
    return text.append(script, done, std::string::npos);
}

}  // namespace hints
