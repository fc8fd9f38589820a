#include "editor/core/ReplaceAll.h"

#include <utility>

namespace KVTextEditor {

ReplaceAll::ReplaceAll(const std::u16string& text, std::u16string searchText,
                       std::u16string replacement)
    : search(std::move(searchText)),
      reversedReplacement(replacement.rbegin(), replacement.rend()),
      rest(text.rbegin(), text.rend())
{
    done.reserve(text.size());
}

ReplaceAll::State ReplaceAll::run(std::size_t characters)
{
    for (; characters > 0 && !rest.empty(); --characters) {
        done += rest.back();
        rest.pop_back();
        if (searchEndsHere()) {
            done.resize(done.size() - search.size());
            rest += reversedReplacement;
            if (done.size() + rest.size() > limit) {
                return tooLarge;
            }
        }
    }
    return rest.empty() ? finished : running;
}

std::u16string ReplaceAll::text() const
{
    return done + std::u16string(rest.rbegin(), rest.rend());
}

bool ReplaceAll::searchEndsHere() const
{
    return done.back() == search.back() && done.size() >= search.size() &&
           done.compare(done.size() - search.size(), search.size(), search) == 0;
}

}  // namespace KVTextEditor
