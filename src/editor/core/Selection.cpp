#include "editor/core/Selection.h"

#include <utility>

#include "editor/core/Saturate.h"

namespace KVTextEditor {

namespace {

std::int32_t distance(std::int32_t left, std::int32_t right)
{
    const std::int64_t difference = std::int64_t{left} - right;
    return saturate(difference < 0 ? -difference : difference);
}

}  // namespace

CARET operator+(CARET left, CARET right)
{
    return {saturating_add(left.line, right.line), saturating_add(left.column, right.column)};
}

bool operator==(CARET left, CARET right)
{
    return left.line == right.line && left.column == right.column;
}

bool operator!=(CARET left, CARET right)
{
    return !(left == right);
}

bool operator<(CARET left, CARET right)
{
    return left.line != right.line ? left.line < right.line : left.column < right.column;
}

void SELECTION::set(std::int32_t line, std::int32_t column)
{
    start = end = {line, column};
    block = false;
    active = has_range();
}

void SELECTION::stop_selecting()
{
    start = end;
    active = false;
    block = false;
}

void SELECTION::normalize()
{
    if (!block) {
        if (end < start) {
            std::swap(start, end);
        }
        return;
    }
    if (start.line > end.line) {
        std::swap(start.line, end.line);
    }
    if (start.column > end.column) {
        std::swap(start.column, end.column);
    }
}

SELECTION SELECTION::normalized() const
{
    SELECTION copy = *this;
    copy.normalize();
    return copy;
}

std::int32_t SELECTION::width() const
{
    return distance(start.column, end.column);
}

std::int32_t SELECTION::height() const
{
    return saturating_add(distance(start.line, end.line), 1);
}

bool SELECTION::has_range() const
{
    return width() > 0 || (!block && height() > 1);
}

bool SELECTION::is_selected(CARET caret) const
{
    if (!has_range()) {
        return false;
    }
    const SELECTION range = normalized();
    if (block) {
        return range.start.line <= caret.line && caret.line <= range.end.line &&
               range.start.column <= caret.column && caret.column < range.end.column;
    }
    return !(caret < range.start) && caret < range.end;
}

bool operator==(const SELECTION& left, const SELECTION& right)
{
    return left.start == right.start && left.end == right.end && left.active == right.active &&
           left.block == right.block;
}

}  // namespace KVTextEditor
