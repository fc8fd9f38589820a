#include "ttbasic/SourceLines.h"

#include <cstring>

#include "base/TextHelpers.h"
#include "ttbasic/ScriptLanguage.h"

namespace {

void removeTrailingWhite(char* line)
{
    char* end = line + std::strlen(line);
    while (end != line && isSpace(end[-1])) {
        --end;
    }
    *end = '\0';
}

}  // namespace

char* nextLine(char* text)
{
    static LineSplitter splitter(nullptr);
    if (text != nullptr) {
        splitter = LineSplitter(text);
    }
    return splitter.next();
}

char* LineSplitter::next()
{
    char* const line = position;
    position = nullptr;  // at the end there is nothing to go on with
    if (line == nullptr || *line == '\0') {
        return nullptr;
    }
    char* end = std::strchr(line, '\n');
    if (end == nullptr) {
        return line;
    }
    *end = '\0';
    position = end + 1;
    if (end != line && end[-1] == '\r') {
        end[-1] = '\0';
    }
    return line;
}

char* CutComment(char* line, char marker, bool respectQuotes)
{
    removeTrailingWhite(line);
    bool insideQuotes = false;
    for (char* c = line; *c != '\0'; ++c) {
        if (*c == marker && !(respectQuotes && insideQuotes)) {
            *c = '\0';
            return c;
        }
        if (*c == '"') {
            insideQuotes = !insideQuotes;
        }
    }
    return nullptr;
}

// What is left in front of the one marker may still hold the other one.
char* CutComments(char* line)
{
    char* begin = nullptr;
    for (const char marker : ScriptLanguage::kCommentMarkers) {
        if (char* const found = CutComment(line, marker, true)) {
            begin = found;
        }
    }
    return begin;
}
