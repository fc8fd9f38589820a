#include <string>

#include "editor/core/Buffer.h"

namespace KVTextEditor {

namespace {

const char16_t* endOfLine(const char16_t* text)
{
    while (*text != u'\n' && *text != u'\r' && *text != 0) {
        ++text;
    }
    return text;
}

// CR LF and LF CR are one break.
int breakLength(const char16_t* text)
{
    const bool pair =
        (text[0] == u'\r' && text[1] == u'\n') || (text[0] == u'\n' && text[1] == u'\r');
    return pair ? 2 : 1;
}

// Copies what is part of the text: no character 0, whether it is a filler or comes from a
// separator. Returns the end of the copy.
template <class ITERATOR, class CHARACTER>
char16_t* copyCharacters(char16_t* out, ITERATOR first, ITERATOR end, CHARACTER characterOf)
{
    for (; first != end; ++first) {
        const char16_t c = characterOf(*first);
        *out = c;
        out += c != kFiller ? 1 : 0;
    }
    return out;
}

// Puts a text into a line of an earlier content. The line keeps its storage when that fits, which
// makes undo cheap: most lines are as long as before.
void refill(TextLine& line, const char16_t* text, int n)
{
    constexpr int kSpareCells = 4;
    if (line.capacity() < n || line.capacity() > n + kSpareCells) {
        line.clear();
    }
    line.bookmark = false;
    line.set(text, n);
}

}  // namespace

void TextBuffer::set_text(const char16_t* text)
{
    int count = 0;
    while (text != nullptr) {
        const char16_t* end = endOfLine(text);
        if (count == line_count()) {
            lines.emplace_back();
        }
        refill(lines[count++], text, static_cast<int>(end - text));
        text = *end == 0 ? nullptr : end + breakLength(end);
    }
    lines.resize(count);
    touched.clear();
    touched.include(0, count);
}

void TextBuffer::set_text(const std::u16string& text)
{
    set_text(text.c_str());
}

std::u16string TextBuffer::get_all_text(const std::u16string& separator) const
{
    std::u16string text;
    get_all_text(separator, text);
    return text;
}

void TextBuffer::get_all_text(const std::u16string& separator, std::u16string& text) const
{
    std::size_t size = lines.empty() ? 0 : (lines.size() - 1) * separator.size();
    for (const TextLine& line : lines) {
        size += line.length();
    }
    text.resize(size);
    char16_t* out = text.data();
    for (const TextLine& line : lines) {
        if (&line != &lines.front()) {
            out = copyCharacters(out, separator.begin(), separator.end(),
                                 [](char16_t c) { return c; });
        }
        out = copyCharacters(out, line.begin(), line.end(),
                             [](const EdChar& cell) { return cell.ch; });
    }
    text.resize(out - text.data());
}

}  // namespace KVTextEditor
