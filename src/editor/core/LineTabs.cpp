#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "editor/core/Line.h"

namespace KVTextEditor {

namespace {

bool isTab(const EdChar& cell)
{
    return cell.ch == u'\t';
}

bool isFiller(const EdChar& cell)
{
    return cell.ch == kFiller;
}

// The number of fillers behind a tab in this column.
int fillersBehind(int column, int width)
{
    return width - column % width - 1;
}

// Most lines hold no tab. Looks at all cells without a branch, so several at a time.
bool holdsTabs(const EdChar* first, const EdChar* end)
{
    unsigned found = 0;
    for (; first != end; ++first) {
        found |=
            static_cast<unsigned>(first->ch == u'\t') | static_cast<unsigned>(first->ch == kFiller);
    }
    return found != 0;
}

}  // namespace

void TextLine::tabs_insert(int width)
{
    if (!holdsTabs(begin(), end())) {
        changed = changed || used > 0;
        return;
    }
    width = std::max(width, 1);
    if (tabs_are_expanded(width)) {
        refresh_fillers();
        return;
    }
    tabs_remove();
    const auto tabs = std::count_if(begin(), end(), isTab);
    if (tabs > 0) {
        expand_tabs(width, tabs);
    }
}

void TextLine::tabs_remove()
{
    if (used == 0) {
        return;
    }
    changed = true;
    used =
        static_cast<int>(std::remove_if(cells.get(), cells.get() + used, isFiller) - cells.get());
    terminate();
}

int TextLine::characters_between(int first, int end) const
{
    int characters = 0;
    for (int column = std::max(first, 0); column < std::min(end, used); ++column) {
        characters += is_filler_at(column) ? 0 : 1;
    }
    return characters;
}

int TextLine::column_behind(int characters) const
{
    int column = 0;
    while (column < used && (characters > 0 || is_filler_at(column))) {
        characters -= is_filler_at(column) ? 0 : 1;
        ++column;
    }
    return column;
}

bool TextLine::tabs_are_expanded(int width) const
{
    width = std::max(width, 1);
    for (int column = 0; column < used; ++column) {
        if (cells[column].ch == kFiller) {
            return false;
        }
        if (cells[column].ch != u'\t') {
            continue;
        }
        for (int fillers = fillersBehind(column, width); fillers > 0; --fillers) {
            if (!is_filler_at(++column)) {
                return false;
            }
        }
    }
    return true;
}

// Leaves a line whose tabs are expanded as if its fillers had been made anew.
void TextLine::refresh_fillers()
{
    changed = changed || used > 0;
    std::replace_if(cells.get(), cells.get() + used, isFiller, EdChar{});
}

// Copies the cells into a new row instead of opening a gap at each tab: a line of many tabs takes
// one pass.
void TextLine::expand_tabs(int width, std::int64_t tabs)
{
    const std::int64_t room = used + (std::int64_t{width} - 1) * tabs;
    if (room > std::numeric_limits<int>::max()) {
        throw std::bad_array_new_length();
    }
    TextLine expanded;
    expanded.alloc(std::max(static_cast<int>(room), allocated));
    int column = 0;
    for (const EdChar& cell : *this) {
        expanded.cells[column] = cell;
        column += isTab(cell) ? 1 + fillersBehind(column, width) : 1;
    }
    expanded.used = column;
    std::swap(cells, expanded.cells);
    std::swap(used, expanded.used);
    std::swap(allocated, expanded.allocated);
}

}  // namespace KVTextEditor
