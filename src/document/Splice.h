#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

// Where two lists differ: the stretch between what they begin and what they end with alike.
template <class T>
struct Splice
{
    std::size_t first = 0;
    std::vector<T> before;
    std::vector<T> after;

    bool empty() const { return before.empty() && after.empty(); }
    std::size_t bytes() const { return (before.capacity() + after.capacity()) * sizeof(T); }

    // Puts the one stretch in the place of the other.
    void apply(std::vector<T>& list, bool forward) const
    {
        const std::vector<T>& out = forward ? before : after;
        const std::vector<T>& in = forward ? after : before;
        const auto begin = list.begin() + static_cast<std::ptrdiff_t>(first);
        const auto common = static_cast<std::ptrdiff_t>(std::min(out.size(), in.size()));
        const auto behind = std::copy(in.begin(), in.begin() + common, begin);
        if (out.size() > in.size()) {
            list.erase(behind, begin + static_cast<std::ptrdiff_t>(out.size()));
        } else {
            list.insert(behind, in.begin() + common, in.end());
        }
    }
};

template <class T, class Equal>
Splice<T> spliceBetween(const std::vector<T>& before, const std::vector<T>& after, Equal equal)
{
    const auto [leftBefore, leftAfter] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end(), equal);
    const auto [rightBefore, rightAfter] =
        std::mismatch(before.rbegin(), std::make_reverse_iterator(leftBefore), after.rbegin(),
                      std::make_reverse_iterator(leftAfter), equal);
    Splice<T> splice;
    splice.first = static_cast<std::size_t>(leftBefore - before.begin());
    splice.before.assign(leftBefore, rightBefore.base());
    splice.after.assign(leftAfter, rightAfter.base());
    return splice;
}
