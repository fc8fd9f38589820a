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

// Appends what is part of the text: no character 0, whether it is a filler or comes from a
// separator.
template <class ITERATOR, class CHARACTER>
void appendCharacters(char16_t*& out, ITERATOR first, ITERATOR end, CHARACTER characterOf)
{
    for (; first != end; ++first) {
        const char16_t c = characterOf(*first);
        if (c != kFiller) {
            *out++ = c;
        }
    }
}

}  // namespace

template <class CELL>
void Buffer<CELL>::set_text(const char16_t* text)
{
    lines.clear();
    touched.clear();
    if (text == nullptr) {
        return;
    }
    for (;;) {
        const char16_t* end = endOfLine(text);
        lines.emplace_back().set(text, static_cast<int>(end - text));
        if (*end == 0) {
            break;
        }
        text = end + breakLength(end);
    }
    touched.include(0, line_count());
}

template <class CELL>
void Buffer<CELL>::set_text(const std::u16string& text)
{
    set_text(text.c_str());
}

template <class CELL>
std::u16string Buffer<CELL>::get_all_text(const std::u16string& separator) const
{
    std::u16string text;
    get_all_text(separator, text);
    return text;
}

template <class CELL>
void Buffer<CELL>::get_all_text(const std::u16string& separator, std::u16string& text) const
{
    std::size_t size = lines.empty() ? 0 : (lines.size() - 1) * separator.size();
    for (const Line<CELL>& line : lines) {
        size += line.length();
    }
    text.resize(size);
    char16_t* out = text.data();
    for (const Line<CELL>& line : lines) {
        if (&line != &lines.front()) {
            appendCharacters(out, separator.begin(), separator.end(), [](char16_t c) { return c; });
        }
        appendCharacters(out, line.begin(), line.end(), [](const CELL& cell) { return cell.ch; });
    }
    text.resize(out - text.data());
}

template void Buffer<EdChar>::set_text(const char16_t*);
template void Buffer<EdChar>::set_text(const std::u16string&);
template std::u16string Buffer<EdChar>::get_all_text(const std::u16string&) const;
template void Buffer<EdChar>::get_all_text(const std::u16string&, std::u16string&) const;

}  // namespace KVTextEditor
