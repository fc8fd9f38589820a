#include "editor/core/ReplaceAll.h"

#include <utility>

namespace KVTextEditor {

ReplaceAll::ReplaceAll(std::u16string text, std::u16string searchText,
                       const std::u16string& replacement)
    : search(std::move(searchText)),
      reversedReplacement(replacement.rbegin(), replacement.rend()),
      source(std::move(text))
{
    done.reserve(source.size());
}

ReplaceAll::State ReplaceAll::run(std::size_t characters)
{
    for (; characters > 0 && remaining() > 0; --characters) {
        takeNext();
        if (searchEndsHere()) {
            done.resize(done.size() - search.size());
            replaced += reversedReplacement;
            if (done.size() + remaining() > limit) {
                return tooLarge;
            }
        }
    }
    return remaining() == 0 ? finished : running;
}

std::u16string ReplaceAll::text() const
{
    std::u16string whole = done;
    whole.append(replaced.rbegin(), replaced.rend());
    return whole.append(source, position);
}

std::size_t ReplaceAll::remaining() const
{
    return replaced.size() + source.size() - position;
}

void ReplaceAll::takeNext()
{
    if (replaced.empty()) {
        done += source[position++];
    } else {
        done += replaced.back();
        replaced.pop_back();
    }
}

bool ReplaceAll::searchEndsHere() const
{
    return done.back() == search.back() && done.size() >= search.size() &&
           done.compare(done.size() - search.size(), search.size(), search) == 0;
}

}  // namespace KVTextEditor
