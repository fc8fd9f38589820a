#include "editor/core/Utf8Columns.h"

#include <algorithm>

namespace KVTextEditor {

namespace {

bool isHighSurrogate(char16_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}

bool isLowSurrogate(char16_t c)
{
    return c >= 0xDC00 && c < 0xE000;
}

// A pair counts with its first half.
int bytesAt(const TextLine& line, int column)
{
    const char16_t c = line.at(column).ch;
    if (c == kFiller) {
        return 0;
    }
    if (isHighSurrogate(c)) {
        return isLowSurrogate(line.at(column + 1).ch) ? 4 : 1;
    }
    if (isLowSurrogate(c)) {
        return column > 0 && isHighSurrogate(line.at(column - 1).ch) ? 0 : 1;
    }
    return c < 0x80 ? 1 : c < 0x800 ? 2 : 3;
}

}  // namespace

int column_of_byte(const TextLine& line, int byte)
{
    int begin = 0;
    for (int column = 0; column < line.length(); ++column) {
        const int bytes = bytesAt(line, column);
        if (begin + bytes > byte) {
            return column;
        }
        begin += bytes;
    }
    return line.length();
}

int byte_of_column(const TextLine& line, int column)
{
    int byte = 0;
    const int end = std::min(column, line.length());
    for (int i = 0; i < end; ++i) {
        byte += bytesAt(line, i);
    }
    return byte;
}

}  // namespace KVTextEditor
