#include "editor/widget/LineMarks.h"

#include <algorithm>
#include <tuple>

void LineMarks::set(std::vector<TextMark> newMarks)
{
    marks = std::move(newMarks);
    std::stable_sort(marks.begin(), marks.end(), [](const TextMark& a, const TextMark& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
}

LineMarks::Range LineMarks::of(int line) const
{
    const auto isBefore = [](const TextMark& mark, int wanted) { return mark.line < wanted; };
    const auto first = std::lower_bound(marks.begin(), marks.end(), line + 1, isBefore);
    const auto end = std::lower_bound(first, marks.end(), line + 2, isBefore);
    const TextMark* const begin = marks.data();
    return {begin + (first - marks.begin()), begin + (end - marks.begin())};
}

std::optional<TextMark::Kind> LineMarks::worst_of(int line) const
{
    std::optional<TextMark::Kind> worst;
    for (auto [mark, end] = of(line); mark != end; ++mark) {
        worst = std::min(worst.value_or(mark->kind), mark->kind);
    }
    return worst;
}
