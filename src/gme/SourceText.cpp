#include "gme/SourceText.h"

#include "base/FileSystem.h"
#include "base/Utf8.h"

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

bool checkCharacters(std::string_view text, Messages& messages)
{
    int line = 1;
    char32_t c = 0;
    while (!text.empty()) {
        if (!Utf8::takeCharacter(text, c)) {
            messages.error(line, "the text is not valid UTF-8");
            return false;
        }
        if (!isAllowed(c)) {
            messages.error(line, kindOf(c) + nameOf(c) + " is not allowed");
            return false;
        }
        line += c == '\n' ? 1 : 0;
    }
    return true;
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
            messages.error(0, "the file is larger than 256 MiB");
            return false;
        }
    }
    if (file == nullptr || ferror(file.get()) != 0) {
        messages.error(0, "the file cannot be read");
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
    return checkCharacters(bytes, messages);
}

}  // namespace gme
