#include "gme/Messages.h"

#include "base/FileSystem.h"

namespace gme {

namespace {

// A name may hold line ends and other control characters, but a message is one line.
std::string inOneLine(std::string text)
{
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || byte == 0x7F) {
            c = '?';
        }
    }
    return text;
}

bool isInsideCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

}  // namespace

Messages::Messages(const std::string& path, PrintFunction printFunction)
    : fileName(FileSystem::getFilenameOfPath(path)),
      print(printFunction != nullptr ? printFunction : defaultPrintf())
{}

void Messages::error(int line, const std::string& text)
{
    ++errors;
    say("Error", line, text);
}

void Messages::warning(int line, const std::string& text)
{
    say("Warning", line, text);
}

void Messages::note(const std::string& text)
{
    print("%s %s\n", fileName.c_str(), inOneLine(text).c_str());
}

void Messages::say(const char* kind, int line, const std::string& text)
{
    const std::string place = line > 0 ? " line " + std::to_string(line) : std::string();
    print("%s: %s%s: %s\n", kind, fileName.c_str(), place.c_str(), inOneLine(text).c_str());
}

std::string quoted(const std::string& text)
{
    constexpr size_t kLongest = 80;  // bytes; enough to find the place
    if (text.size() <= kLongest) {
        return '"' + text + '"';
    }
    size_t end = kLongest;
    while (isInsideCharacter(text[end])) {
        --end;
    }
    return '"' + text.substr(0, end) + "...\"";
}

}  // namespace gme
