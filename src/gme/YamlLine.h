#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gme {

// The form of one line of YAML.
struct YamlLine
{
    static constexpr size_t kNone = static_cast<size_t>(-1);

    size_t length = 0;                 // without comment and trailing blanks
    size_t keyColumn = kNone;          // of the last key in the line, in bytes
    size_t keyLength = 0;              // in bytes
    size_t colon = 0;                  // behind that key
    size_t explicitKeyColumn = kNone;  // of a "?"
    size_t entryColumn = kNone;        // of a plain text that is all of a list entry
    // Places behind a backslash where the escapes N and _ stand; the parser takes them wrongly.
    std::vector<size_t> misreadEscapes;
    std::string refusal;  // why the line is not supported; empty when it is
};

// Reads the form of a line without its line end. openKeyColumn is the column of the "?" in the line
// before, if it had one: only then a line may begin with ": ".
YamlLine readYamlLine(std::string_view line, size_t openKeyColumn);

}  // namespace gme
