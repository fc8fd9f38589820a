#include "gme/CodesFile.h"

#include "base/TextHelpers.h"
#include "base/Unicode.h"
#include "gme/Yaml.h"

#include <algorithm>
#include <string_view>

namespace gme {

namespace {

constexpr const char* kExplanation =
    "# The codes of this game's steps, kept so that they stay the same from build to build.\n"
    "# None of them is printed. Delete this file to have all of them chosen afresh,\n"
    "# for instance when a new area got a number that a step already has.\n";

constexpr size_t kLongestShortName = 128;  // bytes; longer ones take the form "? NAME"

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isPrintable(char32_t c)
{
    return (c >= 0x20 && c <= 0x7E) || c == 0x85 || (c >= 0xA0 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD && c != 0xFEFF);
}

bool isPrintable(std::string_view name)
{
    char32_t c = 0;
    while (!name.empty() && Utf8::takeCharacter(name, c)) {
        if (!isPrintable(c)) {
            return false;
        }
    }
    return name.empty();
}

std::string escape(char32_t c)
{
    static constexpr std::string_view codes("\0\a\b\t\n\v\f\r\x1B", 9);
    static constexpr std::string_view letters = "0abtnvfre";
    const size_t known = c < 0x80 ? codes.find(static_cast<char>(c)) : std::string_view::npos;
    if (known != std::string_view::npos) {
        return std::string("\\") + letters[known];
    }
    char text[16];
    const char* format = c > 0xFFFF ? "\\U%08X" : c > 0xFF ? "\\u%04X" : "\\x%02X";
    snprintf(text, sizeof text, format, static_cast<unsigned>(c));
    return text;
}

std::string inDoubleQuotes(std::string_view name)
{
    std::string text = "\"";
    char32_t c = 0;
    while (!name.empty()) {
        const std::string_view before = name;
        if (!Utf8::takeCharacter(name, c)) {
            break;
        }
        if (!isPrintable(c)) {
            text += escape(c);
            continue;
        }
        text += c == '"' || c == '\\' ? "\\" : "";
        text += before.substr(0, before.size() - name.size());
    }
    return text + '"';
}

std::string inSingleQuotes(std::string name)
{
    strReplace(name, "'", "''");
    return "'" + name + "'";
}

bool hasOtherMeaning(const std::string& name)
{
    return isTruthWord(name) || isNullWord(name) || name == "*" || looksLikeNumber(name);
}

bool canBeginPlain(const std::string& name)
{
    constexpr std::string_view kNeverFirst = "#,[]{}&*!|>'\"%@` ";
    constexpr std::string_view kNeverBeforeBlank = "-?:";
    const bool isMarker = name.compare(0, 3, "---") == 0 || name.compare(0, 3, "...") == 0;
    const bool isIndicator = kNeverBeforeBlank.find(name[0]) != std::string_view::npos &&
                             (name.size() == 1 || isBlank(name[1]));
    return !isMarker && !isIndicator && kNeverFirst.find(name[0]) == std::string_view::npos;
}

bool canBePlain(const std::string& name)
{
    if (name.empty() || !canBeginPlain(name) || name.back() == ' ' || name.back() == ':') {
        return false;
    }
    for (size_t i = 1; i < name.size(); ++i) {
        const bool isKeyEnd = name[i - 1] == ':' && isBlank(name[i]);
        const bool isComment = isBlank(name[i - 1]) && name[i] == '#';
        if (isKeyEnd || isComment) {
            return false;
        }
    }
    return true;
}

std::string entry(const std::string& name, uint16_t code)
{
    const std::string number = std::to_string(code) + "\n";
    if (name.size() > kLongestShortName) {
        return "  ? " + yamlName(name) + "\n  : " + number;
    }
    return "  " + yamlName(name) + ": " + number;
}

}  // namespace

std::string yamlName(const std::string& name)
{
    if (!isPrintable(name)) {
        return inDoubleQuotes(name);
    }
    return hasOtherMeaning(name) || !canBePlain(name) ? inSingleQuotes(name) : name;
}

std::string codesText(const GivenCodes& codes)
{
    std::string text = kExplanation;
    if (codes.replay) {
        text += "replay: " + std::to_string(codes.replay->code) + "\n";
    }
    text += codes.names.empty() ? "scriptcodes: {}\n" : "scriptcodes:\n";
    for (const auto& [name, code] : codes.names) {
        text += entry(name, code.code);
    }
    if (codes.stop) {
        text += "stop: " + std::to_string(codes.stop->code) + "\n";
    }
    return text;
}

}  // namespace gme
