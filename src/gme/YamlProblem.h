#pragma once

#include "gme/Yaml.h"

#include <yaml.h>

#include <stdexcept>
#include <string_view>

namespace gme {

// Makes the bytes of a text file plain UTF-8 text: the byte-order mark goes, every line ends in LF.
// False, with the line of the first one, when a byte is no UTF-8 or a character is not allowed in
// YAML. The line ends U+0085, U+2028 and U+2029 are refused as well: they look like part of a line
// but end it.
bool makeText(std::string& bytes, Messages& messages);

// The lines of a text by number, from 0. Quick when they are asked for in ascending order.
class YamlLines
{
public:
    explicit YamlLines(std::string_view source) : text(source) {}

    std::string_view line(size_t number);
    // Where a mark of the parser is, which counts characters; the length is not known yet.
    Place placeOf(const yaml_mark_t& mark);
    Place placeOf(const yaml_mark_t& from, const yaml_mark_t& to);

private:
    std::string_view text;
    size_t number = 0;  // of the line that was asked for last
    size_t begin = 0;   // of that line, in the text
};

// Ends the reading of a text; what() is the reason in plain words.
class YamlProblem : public std::runtime_error
{
public:
    YamlProblem(Place where, const std::string& reason, bool isAboutLine = false)
        : std::runtime_error(reason), place(where), showsLine(isAboutLine)
    {}

    Place place;
    bool showsLine;  // the reason is clear only together with the text of the line
};

// A quoted text over several lines; begin and end on one line stand for none.
struct LongQuote
{
    yaml_mark_t begin{};
    yaml_mark_t end{};
};

// A form of YAML that games do not have, told by the character that it begins with.
YamlProblem unsupportedForm(char first, Place place);

// What the parser stumbled over. lastQuote is the last quoted text over several lines before that:
// a forgotten quote shows only behind the next one, which seems to close it.
YamlProblem problemOf(const yaml_parser_t& parser, YamlLines& lines, const LongQuote& lastQuote);

}  // namespace gme
