#include "gme/YamlProblem.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/Unicode.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

namespace gme {

namespace {

struct CloseFile
{
    void operator()(FILE* file) const { fclose(file); }
};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// What is left without comments is far below this for the largest game that can be built.
constexpr size_t kLargestYaml = 16U << 20;
// The parser's time for a text grows with the longest gap in it.
constexpr size_t kLongestGap = 4096;

bool isAllowed(char32_t c)
{
    if (c < 0x20) {
        return c == '\t' || c == '\n';
    }
    const bool isControl = c >= 0x7F && c <= 0x9F;
    const bool isLineEnd = c == 0x2028 || c == 0x2029;
    const bool isSurrogate = c >= 0xD800 && c <= 0xDFFF;
    return !isControl && !isLineEnd && !isSurrogate && c != 0xFFFE && c != 0xFFFF;
}

std::string nameOf(char32_t c)
{
    char name[16];
    snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(c));
    return name;
}

std::string kindOf(char32_t c)
{
    if (c == 0x85 || c == 0x2028 || c == 0x2029) {
        return "line separator ";
    }
    return c < 0xA0 ? "control character " : "character ";
}

// CR LF and CR become LF.
void unifyLineEnds(std::string& text)
{
    size_t to = 0;
    for (size_t from = 0; from < text.size(); ++from) {
        const bool isBeforeLf = from + 1 < text.size() && text[from + 1] == '\n';
        if (text[from] == '\r' && isBeforeLf) {
            continue;
        }
        text[to++] = text[from] == '\r' ? '\n' : text[from];
    }
    text.resize(to);
}

bool isPrintableAscii(char c)
{
    return c > ' ' && c <= '~';
}

bool isSpace(char32_t c)
{
    return c == ' ' || c == '\t' || c == '\n';
}

bool checkCharacters(std::string_view text, Messages& messages)
{
    int line = 1;
    const char* lineBegin = text.data();
    size_t gap = 0;
    char32_t c = 0;
    while (!text.empty()) {
        const char* const begin = text.data();
        if (isPrintableAscii(*begin)) {  // nearly everything
            text.remove_prefix(1);
            gap = 0;
            continue;
        }
        const auto column = static_cast<int>(begin - lineBegin) + 1;
        if (!Utf8::takeCharacter(text, c)) {
            messages.error({line, column, 0}, "text-encoding", "the text is not valid UTF-8");
            return false;
        }
        if (!isAllowed(c)) {
            const auto length = static_cast<int>(text.data() - begin);
            messages.error({line, column, length}, "text-character",
                           kindOf(c) + nameOf(c) + " is not allowed");
            return false;
        }
        gap = isSpace(c) ? gap + 1 : 0;
        if (gap > kLongestGap) {
            messages.error({line, column, 0}, "file-limit",
                           "more than 4096 blanks or line ends follow each other");
            return false;
        }
        if (c == '\n') {
            ++line;
            lineBegin = text.data();
        }
    }
    return true;
}

// Intended: a tab may indent a line without anything but a comment, which the parser would refuse.
// Returns the size of all other lines in bytes: what there is to parse.
size_t blankTabs(std::string& text)
{
    size_t size = 0;
    for (auto begin = text.begin(); begin != text.end();) {
        const auto end = std::find(begin, text.end(), '\n');
        const auto first = std::find_if(begin, end, [](char c) { return c != ' ' && c != '\t'; });
        if (first == end || *first == '#') {
            std::replace(begin, first, '\t', ' ');
        } else {
            size += static_cast<size_t>(end - begin);
        }
        begin = end == text.end() ? end : end + 1;
    }
    return size;
}

}  // namespace

bool readBytes(const std::string& path, std::string& bytes, Messages& messages)
{
    const std::unique_ptr<FILE, CloseFile> file(FileSystem::myfopen(path, "rb"));
    bytes.clear();
    std::vector<char> block(1 << 16);
    size_t count = 0;
    while (file != nullptr && (count = fread(block.data(), 1, block.size(), file.get())) > 0) {
        bytes.append(block.data(), count);
        if (bytes.size() > kLargestSource) {
            messages.error({}, "file-limit", "the file is larger than 256 MiB");
            return false;
        }
    }
    if (file == nullptr || ferror(file.get()) != 0) {
        const std::string kind = Platform::kindOfNoFile(path);
        messages.error({}, "file-unreadable",
                       "the file cannot be read" + (kind.empty() ? kind : ": it is " + kind));
        return false;
    }
    return true;
}

bool makeText(std::string& bytes, Messages& messages)
{
    if (bytes.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) {
        bytes.erase(0, kByteOrderMark.size());
    }
    unifyLineEnds(bytes);
    if (!checkCharacters(bytes, messages)) {
        return false;
    }
    if (blankTabs(bytes) > kLargestYaml) {
        messages.error({}, "file-limit", "more than 16 MiB of YAML besides its comments");
        return false;
    }
    return true;
}

}  // namespace gme
