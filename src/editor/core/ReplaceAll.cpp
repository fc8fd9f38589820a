#include "editor/core/ReplaceAll.h"

#include <algorithm>
#include <utility>

namespace KVTextEditor {

ReplaceAll::ReplaceAll(std::u16string text, std::u16string searchText,
                       const std::u16string& replacement)
    : search(std::move(searchText)),
      reversedReplacement(replacement.rbegin(), replacement.rend()),
      source(std::move(text))
{
    constexpr std::size_t kGrowth = 8;  // an eighth of the text, before the memory is moved
    done.reserve(source.size() + source.size() / kGrowth);
}

ReplaceAll::State ReplaceAll::run(std::size_t characters)
{
    while (characters > 0 && remaining() > 0) {
        characters -= takeNext(characters);
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

std::u16string ReplaceAll::takeText()
{
    done.append(replaced.rbegin(), replaced.rend());
    done.append(source, position);
    return std::move(done);
}

std::size_t ReplaceAll::remaining() const
{
    return replaced.size() + source.size() - position;
}

std::size_t ReplaceAll::takeNext(std::size_t most)
{
    if (!replaced.empty()) {
        done += replaced.back();
        replaced.pop_back();
        return 1;
    }
    const char16_t* const next = source.data() + position;
    const std::size_t available = std::min(most, source.size() - position);
    const char16_t* const end = std::char_traits<char16_t>::find(next, available, search.back());
    const std::size_t count = end != nullptr ? static_cast<std::size_t>(end - next) + 1 : available;
    done.append(next, count);
    position += count;
    return count;
}

bool ReplaceAll::searchEndsHere() const
{
    return done.back() == search.back() && done.size() >= search.size() &&
           done.compare(done.size() - search.size(), search.size(), search) == 0;
}

}  // namespace KVTextEditor
