#include "gme/YamlLine.h"

#include <algorithm>

namespace gme {

namespace {

constexpr size_t kLongestKey = 1024;  // characters

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

size_t characters(std::string_view text)
{
    return static_cast<size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
    }));
}

// Goes through a line from left to right: indicators, then a text, then perhaps a colon that makes
// the text a key, and so on.
class LineReader
{
public:
    LineReader(std::string_view text, size_t openKey) : line(text), openKeyColumn(openKey) {}

    YamlLine read();

private:
    bool readIndicators();
    bool readColonWithoutKey();
    bool readText();
    void readQuoted(char quote);
    bool readEscape();
    void readEmptyBrackets();
    void readPlain();
    bool readColon(size_t textBegin);

    bool atEnd() const { return at == line.size() || isComment(); }
    bool isComment() const { return line[at] == '#'; }
    bool isBlankOrEnd(size_t i) const { return i >= line.size() || isBlank(line[i]); }
    bool isIndicator(char c) const { return line[at] == c && isBlankOrEnd(at + 1); }
    void skipBlanks();
    void refuse(const std::string& reason);

    std::string_view line;
    size_t openKeyColumn;
    size_t at = 0;
    bool isBehindDash = false;  // the text that comes next
    YamlLine result;
};

YamlLine LineReader::read()
{
    if (line.substr(0, 3) == "---" || line.substr(0, 3) == "...") {
        if (isBlankOrEnd(3)) {
            refuse("document markers are not supported");
        }
    }
    skipBlanks();
    if (!atEnd() && line.substr(0, at).find('\t') != std::string_view::npos) {
        refuse("a tab cannot indent a line");
    }
    while (result.refusal.empty() && readIndicators() && !atEnd()) {
        const size_t begin = at;
        const bool isPlain = readText();
        skipBlanks();
        if (result.refusal.empty() && atEnd() && isPlain && isBehindDash) {
            result.entryColumn = begin;
        }
        if (!result.refusal.empty() || atEnd() || !readColon(begin)) {
            break;
        }
    }
    result.length = result.refusal.empty() ? at : line.size();
    while (result.length > 0 && isBlank(line[result.length - 1])) {
        --result.length;
    }
    return result;
}

// The dashes of list entries and the marks of explicit keys and values. False when one of them
// cannot stand here.
bool LineReader::readIndicators()
{
    skipBlanks();
    isBehindDash = false;
    while (!atEnd()) {
        const bool isFirst = line.find_first_not_of(' ') == at;
        if (isIndicator('?') && isFirst) {
            result.explicitKeyColumn = at;
        } else if (isIndicator(':')) {
            if (!isFirst || openKeyColumn != at) {
                refuse("a name is empty");
                return false;
            }
        } else if (!isIndicator('-')) {
            return true;
        }
        isBehindDash = line[at] == '-';
        ++at;
        skipBlanks();
    }
    if (result.explicitKeyColumn != YamlLine::kNone) {
        refuse("a name is empty");
    }
    return true;
}

// True for a plain text.
bool LineReader::readText()
{
    constexpr std::string_view kNeverFirst = ",]}&*!|>%@`";
    const char first = line[at];
    if (first == '"' || first == '\'') {
        readQuoted(first);
    } else if (first == '[' || first == '{') {
        readEmptyBrackets();
    } else if (kNeverFirst.find(first) != std::string_view::npos || isIndicator('?')) {
        refuse("this form of YAML is not supported: a name or text without quotes cannot begin "
               "with " +
               std::string(1, first));
    } else {
        readPlain();
        return true;
    }
    return false;
}

void LineReader::readQuoted(char quote)
{
    for (++at; at < line.size(); ++at) {
        if (line[at] == '\\' && quote == '"') {
            if (!readEscape()) {
                return;
            }
        } else if (line[at] == quote) {
            const bool isDoubled = quote == '\'' && at + 1 < line.size() && line[at + 1] == quote;
            if (!isDoubled) {
                ++at;
                return;
            }
            ++at;
        }
    }
    refuse("a text in quotes must end on its line");
}

bool LineReader::readEscape()
{
    constexpr std::string_view kEscapes = "0abtnvfre\"/\\N_LPxuU \t";
    ++at;
    if (at < line.size() && kEscapes.find(line[at]) == std::string_view::npos) {
        refuse("an unknown character follows a backslash in double quotes");
        return false;
    }
    if (at < line.size() && (line[at] == 'N' || line[at] == '_')) {
        result.misreadEscapes.push_back(at);
    }
    return true;
}

void LineReader::readEmptyBrackets()
{
    const char closing = line[at] == '[' ? ']' : '}';
    ++at;
    skipBlanks();
    if (at == line.size() || line[at] != closing) {
        refuse("lists in brackets are not supported, except empty ones");
        return;
    }
    ++at;
}

// Ends at a comment, at a colon that makes a key, or with the line.
void LineReader::readPlain()
{
    while (at < line.size()) {
        const bool isKeyEnd = line[at] == ':' && isBlankOrEnd(at + 1);
        const bool isCommentStart = isComment() && isBlank(line[at - 1]);
        if (isKeyEnd || isCommentStart) {
            break;
        }
        ++at;
    }
}

// The colon that makes a key of the text before it. False when something else follows the text.
bool LineReader::readColon(size_t textBegin)
{
    if (!isIndicator(':')) {
        refuse("there is text behind the closing quote or bracket");
        return false;
    }
    if (result.keyLength > 0) {
        refuse("a name without quotes cannot hold a colon before a blank");
        return false;
    }
    const std::string_view key = line.substr(textBegin, at - textBegin);
    if (characters(key) > kLongestKey) {
        refuse("a name is longer than 1024 characters");
        return false;
    }
    result.keyColumn = textBegin;
    result.keyLength = key.size();
    result.colon = at;
    ++at;
    return true;
}

void LineReader::skipBlanks()
{
    while (at < line.size() && isBlank(line[at])) {
        ++at;
    }
}

void LineReader::refuse(const std::string& reason)
{
    result.refusal = reason;
}

}  // namespace

YamlLine readYamlLine(std::string_view line, size_t openKeyColumn)
{
    return LineReader(line, openKeyColumn).read();
}

}  // namespace gme
