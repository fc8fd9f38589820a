// The parser's complaints in words that help someone who knows little about YAML.
#include "gme/YamlProblem.h"

#include <algorithm>

namespace gme {

namespace {

constexpr ptrdiff_t kLongestName = 1024;  // characters; the parser looks no further for the colon

constexpr const char* kLongName = "a name is longer than 1024 characters";
constexpr const char* kNoName = "a name with a colon is expected";
constexpr const char* kColonInText = "a name without quotes cannot hold a colon before a blank";
constexpr const char* kTabIndents = "a tab cannot indent a line";

struct Words
{
    std::string_view parser;
    const char* ours;
};

// What shows anywhere behind the place where it began, which is the parser's context.
constexpr Words kUnfinished[] = {
    {"while scanning a quoted scalar", "the quotes of this text are not closed"},
    {"while parsing a flow sequence", "a comma or the closing bracket is missing in this list"},
    {"while parsing a flow mapping", "a comma or the closing bracket is missing in this list"}};

constexpr Words kMistakes[] = {
    {"found unknown escape character", "an unknown character follows a backslash in double quotes"},
    {"did not find expected hexdecimal number",
     "hexadecimal digits must follow the backslash in double quotes"},
    {"found invalid Unicode character escape code",
     "there is no character with the number behind the backslash"},
    {"found a tab character that violates indentation", kTabIndents},
    {"found a tab character where an indentation space is expected", kTabIndents},
    {"block sequence entries are not allowed in this context",
     "a list with dashes begins on a line of its own"},
    {"did not find expected '-' indicator", "an entry that begins with a dash is expected"},
    {"did not find expected <document start>",
     "the file does not end with its mapping of names and values"}};

bool isInsideCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

size_t bytesOf(std::string_view text, size_t characters)
{
    size_t at = 0;
    for (; characters > 0 && at < text.size(); --characters) {
        do {
            ++at;
        } while (at < text.size() && isInsideCharacter(text[at]));
    }
    return at;
}

template <size_t count>
const char* translated(const Words (&table)[count], std::string_view words)
{
    for (const Words& entry : table) {
        if (entry.parser == words) {
            return entry.ours;
        }
    }
    return nullptr;
}

// Whether a line begins with a name that is too long.
bool hasLongName(std::string_view line)
{
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    const std::string_view name = line.substr(0, line.find(": "));
    const auto inside = std::count_if(name.begin(), name.end(), isInsideCharacter);
    return static_cast<ptrdiff_t>(name.size()) - inside > kLongestName;
}

bool isNeverFirst(char c)
{
    return std::string_view(",[]{}&*!|>@`%?").find(c) != std::string_view::npos;
}

// One complaint, and the line that it is about.
class Complaint
{
public:
    Complaint(const yaml_parser_t& source, YamlLines& allLines);

    YamlProblem explained(const LongQuote& lastQuote);

private:
    bool isBehindQuote() const;
    YamlProblem behindQuote(const LongQuote& lastQuote);
    YamlProblem byCharacter();
    const char* misplacedName() const;
    bool isEmptyName() const;
    char characterAt(const yaml_mark_t& mark);
    YamlProblem problemAt(const yaml_mark_t& mark, const std::string& reason);

    const yaml_parser_t& parser;
    YamlLines& lines;
    std::string_view words;
    std::string_view context;
    std::string_view before;  // what stands in the line before the place
    std::string_view rest;    // and from the place on
};

Complaint::Complaint(const yaml_parser_t& source, YamlLines& allLines)
    : parser(source),
      lines(allLines),
      words(source.problem != nullptr ? source.problem : "there is not enough memory"),
      context(source.context != nullptr ? source.context : "")
{
    const std::string_view line = lines.line(parser.problem_mark.line);
    const size_t at = bytesOf(line, parser.problem_mark.column);
    before = line.substr(0, at);
    rest = line.substr(at);
}

YamlProblem Complaint::explained(const LongQuote& lastQuote)
{
    if (words == "could not find expected ':'") {
        const bool isLong = hasLongName(lines.line(parser.context_mark.line));
        return problemAt(parser.context_mark, isLong ? kLongName : kNoName);
    }
    if (words == "mapping values are not allowed in this context") {
        const bool isLong = hasLongName(lines.line(parser.problem_mark.line));
        return problemAt(parser.problem_mark, isLong ? kLongName : kColonInText);
    }
    if (const char* unfinished = translated(kUnfinished, context)) {
        return problemAt(parser.context_mark, unfinished);
    }
    if (isBehindQuote()) {
        return behindQuote(lastQuote);
    }
    if (const char* mistake = translated(kMistakes, words)) {
        return problemAt(parser.problem_mark, mistake);
    }
    return byCharacter();
}

bool Complaint::isBehindQuote() const
{
    const size_t last = before.find_last_not_of(" \t");
    return context.find("quoted") == std::string_view::npos && last != std::string_view::npos &&
           std::string_view("\"']}").find(before[last]) != std::string_view::npos;
}

YamlProblem Complaint::behindQuote(const LongQuote& lastQuote)
{
    const bool isLong =
        lastQuote.begin.line < lastQuote.end.line && lastQuote.end.line == parser.problem_mark.line;
    if (!isLong) {
        return problemAt(parser.problem_mark, "there is text behind the closing quote or bracket");
    }
    return problemAt(lastQuote.begin, "the text in quotes ends in line " +
                                          std::to_string(lastQuote.end.line + 1) +
                                          ", and there is text behind the closing quote");
}

YamlProblem Complaint::byCharacter()
{
    const bool isScanned = parser.error == YAML_SCANNER_ERROR && !context.empty();
    const yaml_mark_t& mark = isScanned ? parser.context_mark : parser.problem_mark;
    const char first = characterAt(mark);
    if (first == '\t') {
        const bool isIndentation = before.find_first_not_of(" \t") == std::string_view::npos;
        return problemAt(mark, isIndentation ? kTabIndents : "a tab cannot stand before a text");
    }
    if (isNeverFirst(first)) {
        return unsupportedForm(first, lines.placeOf(mark));
    }
    if (isEmptyName()) {
        return problemAt(mark, "a name is empty");
    }
    if (words == "did not find expected key") {
        return problemAt(mark, misplacedName());
    }
    if (context == "while parsing a flow node" && rest.empty()) {
        return problemAt(mark, "the closing bracket of a list is missing");
    }
    return problemAt(mark, "not valid YAML (" + std::string(words) + ")");
}

bool Complaint::isEmptyName() const
{
    return rest.substr(0, 2) == ": " || rest == ":";
}

const char* Complaint::misplacedName() const
{
    const bool isName = rest.substr(0, 2) != "- " && rest.find(':') != std::string_view::npos;
    return isName ? "the names of one mapping begin in the same column" : kNoName;
}

char Complaint::characterAt(const yaml_mark_t& mark)
{
    const std::string_view line = lines.line(mark.line);
    const size_t at = bytesOf(line, mark.column);
    return at < line.size() ? line[at] : '\0';
}

YamlProblem Complaint::problemAt(const yaml_mark_t& mark, const std::string& reason)
{
    return {lines.placeOf(mark), reason, true};
}

}  // namespace

std::string_view YamlLines::line(size_t wanted)
{
    if (wanted < number) {
        number = 0;
        begin = 0;
    }
    for (; number < wanted && begin < text.size(); ++number) {
        begin = std::min(text.find('\n', begin), text.size() - 1) + 1;
    }
    return text.substr(begin, text.find('\n', begin) - begin);
}

Place YamlLines::placeOf(const yaml_mark_t& mark)
{
    const size_t column = bytesOf(line(mark.line), mark.column);
    return {static_cast<int>(mark.line) + 1, static_cast<int>(column) + 1, 0};
}

Place YamlLines::placeOf(const yaml_mark_t& from, const yaml_mark_t& to)
{
    Place place = placeOf(from);
    if (from.line == to.line) {
        const std::string_view rest = line(from.line).substr(static_cast<size_t>(place.column) - 1);
        place.length = static_cast<int>(bytesOf(rest, to.column - from.column));
    }
    return place;
}

YamlProblem unsupportedForm(char first, Place place)
{
    return {place,
            "this form of YAML is not supported: a name or text without quotes cannot begin with " +
                std::string(1, first),
            true};
}

YamlProblem problemOf(const yaml_parser_t& parser, YamlLines& lines, const LongQuote& lastQuote)
{
    return Complaint(parser, lines).explained(lastQuote);
}

}  // namespace gme
