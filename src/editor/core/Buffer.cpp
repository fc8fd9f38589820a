#include "editor/core/Buffer.h"

#include <algorithm>

#include "editor/core/Saturate.h"

namespace KVTextEditor {

TextBuffer::TextBuffer() : lines(1) {}

TextLine& TextBuffer::line(int i)
{
    if (i < 0) {
        static thread_local TextLine nowhere;
        nowhere = TextLine();
        return nowhere;
    }
    if (i >= line_count()) {
        lines.resize(static_cast<std::size_t>(i) + 1);
    }
    touched.include(i, i + 1);
    return lines[i];
}

const TextLine& TextBuffer::line(int i) const
{
    static const TextLine outside;
    return i >= 0 && i < line_count() ? lines[i] : outside;
}

int TextBuffer::width() const
{
    int widest = 0;
    for (const TextLine& line : lines) {
        widest = std::max(widest, line.length());
    }
    return widest;
}

void TextBuffer::erase_lines(int first, int n)
{
    if (first < 0 || first >= line_count() || n == 0) {
        return;
    }
    const int rest = line_count() - first;
    const int erased = n < 0 ? rest : std::min(n, rest);
    lines.erase(lines.begin() + first, lines.begin() + first + erased);
    touched.linesErased(first, erased);
}

void TextBuffer::insert_rows(int at, int n)
{
    if (at < 0 || n <= 0) {
        return;
    }
    if (at >= line_count()) {
        lines.resize(static_cast<std::size_t>(at) + n);
        return;
    }
    lines.insert(lines.begin() + at, n, TextLine());
    touched.linesInserted(at, n);
}

int TextBuffer::block_height() const
{
    int height = line_count();
    while (height > 1 && line(height - 1).length() == 0) {
        --height;
    }
    return std::max(height, 1);
}

void TextBuffer::insert_block(const TextBuffer& block, int row, int col)
{
    const int height = block.block_height();
    const int columns = block.width();
    const std::vector<EdChar> blanks(columns, EdChar{u' ', kPlainRole});
    for (int i = 0; i < height; ++i) {
        const int target = saturating_add(row, i);
        const bool belowText = target >= line_count();
        if (target < 0 || col < 0 || (belowText && columns == 0)) {
            continue;
        }
        const TextLine& source = block.line(i);
        line(target).insert(col, blanks.data(), columns);
        line(target).overwrite(col, source.begin(), source.length());
    }
}

void TextBuffer::tabs_insert(int width)
{
    for (TextLine& line : lines) {
        line.tabs_insert(width);
    }
    touched.include(0, line_count());
}

void TextBuffer::tabs_remove()
{
    for (TextLine& line : lines) {
        line.tabs_remove();
    }
    touched.include(0, line_count());
}

bool TextBuffer::has_changed_line()
{
    for (int i = touched.first(); i < touched.end(); ++i) {
        if (lines[i].changed) {
            touched.exclude(0, i);
            return true;
        }
    }
    touched.clear();
    return false;
}

std::vector<int> TextBuffer::changed_lines(int first, int last) const
{
    std::vector<int> found;
    const int end = std::min(saturating_add(last, 1), touched.end());
    for (int i = std::max(first, touched.first()); i < end; ++i) {
        if (lines[i].changed) {
            found.push_back(i);
        }
    }
    return found;
}

void TextBuffer::forget_changes(int first, int last)
{
    touched.exclude(first, saturating_add(last, 1));
}

}  // namespace KVTextEditor
