#include "editor/core/LineRange.h"

#include <algorithm>

namespace KVTextEditor {

void LineRange::include(int first, int end)
{
    if (first >= end) {
        return;
    }
    if (empty()) {
        from = first;
        to = end;
        return;
    }
    from = std::min(from, first);
    to = std::max(to, end);
}

void LineRange::exclude(int first, int end)
{
    if (first <= from) {
        from = std::max(from, end);
    }
    if (end >= to) {
        to = std::min(to, first);
    }
}

void LineRange::linesInserted(int at, int n)
{
    if (at < to) {
        to += n;
    }
    if (at <= from) {
        from += n;
    }
}

void LineRange::linesErased(int first, int n)
{
    const auto moved = [&](int line) { return line <= first ? line : std::max(first, line - n); };
    from = moved(from);
    to = moved(to);
}

}  // namespace KVTextEditor
