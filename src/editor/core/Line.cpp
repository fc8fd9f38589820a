#include "editor/core/Line.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

namespace KVTextEditor {

namespace {

int checkedLength(std::int64_t cells)
{
    if (cells > std::numeric_limits<int>::max()) {
        throw std::bad_array_new_length();
    }
    return static_cast<int>(cells);
}

}  // namespace

TextLine::TextLine(const TextLine& other) : bookmark(other.bookmark), changed(other.changed)
{
    alloc(other.used);
    std::copy(other.begin(), other.end(), cells.get());
    used = other.used;
}

TextLine& TextLine::operator=(const TextLine& other)
{
    if (this != &other) {
        *this = TextLine(other);
    }
    return *this;
}

TextLine::TextLine(TextLine&& other) noexcept
    : bookmark(other.bookmark),
      changed(other.changed),
      cells(std::move(other.cells)),
      used(std::exchange(other.used, 0)),
      allocated(std::exchange(other.allocated, 0))
{}

TextLine& TextLine::operator=(TextLine&& other) noexcept
{
    bookmark = other.bookmark;
    changed = other.changed;
    std::swap(cells, other.cells);
    std::swap(used, other.used);
    std::swap(allocated, other.allocated);
    return *this;
}

const EdChar& TextLine::at(int pos) const
{
    static const EdChar outside;
    return pos >= 0 && pos < used ? cells[pos] : outside;
}

bool TextLine::is_filler_at(int pos) const
{
    return pos >= 0 && pos < used && cells[pos].ch == kFiller;
}

bool TextLine::is_string_at(const std::u16string& text, int pos) const
{
    if (pos < 0 || pos > used || text.size() > static_cast<std::size_t>(used - pos)) {
        return false;
    }
    const auto sameCharacter = [](char16_t c, const EdChar& cell) { return c == cell.ch; };
    return std::equal(text.begin(), text.end(), begin() + pos, sameCharacter);
}

BLOCKTYPE TextLine::get_blocktype_at(int pos) const
{
    return pos >= 0 && pos < used ? blocktype_of(cells[pos].ch) : BLOCKTYPE_NONE;
}

int TextLine::indentation() const
{
    const auto isText = [](const EdChar& cell) {
        return cell.ch != kFiller && cell.ch != u' ' && cell.ch != u'\t';
    };
    return static_cast<int>(std::find_if(begin(), end(), isText) - begin());
}

TextLine TextLine::substr(int pos, int n) const
{
    TextLine part;
    if (pos >= 0 && pos < used) {
        const int rest = used - pos;
        part.overwrite(0, begin() + pos, n < 0 ? rest : std::min(n, rest));
    }
    return part;
}

void TextLine::alloc(int n)
{
    if (n <= allocated) {
        return;
    }
    auto grown = std::make_unique<EdChar[]>(static_cast<std::size_t>(n) + 1);
    std::copy(begin(), end(), grown.get());
    cells = std::move(grown);
    allocated = n;
}

void TextLine::clear()
{
    cells.reset();
    used = 0;
    allocated = 0;
    changed = false;
}

void TextLine::empty()
{
    used = 0;
    changed = false;
    terminate();
}

void TextLine::set(const char16_t* text, int n)
{
    empty();
    if (n == -1) {
        n = checkedLength(std::char_traits<char16_t>::length(text));
    }
    if (n <= 0) {
        return;
    }
    changed = true;
    alloc(n);
    used = n;
    std::transform(text, text + n, cells.get(), [](char16_t c) { return EdChar{c, kPlainRole}; });
    terminate();
}

void TextLine::insert_gap(int pos, int n)
{
    if (pos < 0 || n <= 0) {
        return;
    }
    changed = true;
    const int padding = std::max(pos - used, 0);
    const int tail = used - std::min(pos, used);
    alloc(checkedLength(std::int64_t{used} + padding + n));
    grow(used + padding + n);
    std::fill_n(cells.get() + pos - padding, padding, EdChar{u' ', kPlainRole});
    std::move_backward(cells.get() + pos, cells.get() + pos + tail, cells.get() + used);
    std::fill_n(cells.get() + pos, n, EdChar{});
}

void TextLine::overwrite(int pos, const EdChar* src, int n)
{
    if (pos < 0 || n < 0) {
        return;
    }
    changed = true;
    const int end = checkedLength(std::int64_t{pos} + n);
    if (end > used) {
        grow(end);
    }
    std::copy_n(src, n, cells.get() + pos);
}

void TextLine::insert(int pos, const EdChar* src, int n)
{
    insert_gap(pos, n);
    overwrite(pos, src, n);
}

bool TextLine::erase(int pos, int n)
{
    if (pos < 0 || pos >= used || n == 0 || n < -1) {
        return false;
    }
    const int rest = used - pos;
    const int removed = n == -1 ? rest : std::min(n, rest);
    std::copy(begin() + pos + removed, begin() + used, cells.get() + pos);
    used -= removed;
    changed = true;
    terminate();
    return true;
}

void TextLine::append(const TextLine& other)
{
    if (this == &other) {
        append(TextLine(other));
        return;
    }
    insert(used, other.begin(), other.used);
}

bool TextLine::transform(int pos, int n, CHARACTER_FUNCTION fn)
{
    if (pos < 0) {
        return false;
    }
    changed = true;
    if (fn == nullptr) {
        return false;
    }
    const int end = n < 0 || n > used - pos ? used : pos + n;
    bool transformed = false;
    for (int i = pos; i < end; ++i) {
        if (cells[i].ch != kFiller) {
            cells[i] = {fn(cells[i].ch), kPlainRole};
            transformed = true;
        }
    }
    return transformed;
}

// Lengthens the line to n cells; the new ones are plain fillers, whatever stood there before.
void TextLine::grow(int n)
{
    alloc(n);
    std::fill_n(cells.get() + used, n - used, EdChar{});
    used = n;
    terminate();
}

void TextLine::terminate()
{
    if (cells) {
        cells[used] = EdChar{};
    }
}

}  // namespace KVTextEditor
