#pragma once

#include "gme/Messages.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// A file in YAML as a tree of values.
namespace gme {

// One value. Scalars keep their spelling; what type a plain one has is told by scalarType.
struct YamlNode
{
    enum class Kind { Plain, Quoted, List, Mapping };  // block texts count as quoted

    Kind kind = Kind::Plain;  // nothing at all, "null" and "~" are an empty plain text
    Place place;
    Place keyPlace;  // of the key, for a value in a mapping
    std::string key;
    std::string text;
    std::vector<YamlNode> children;  // of a list or mapping, in the order of the file

    bool isScalar() const { return kind == Kind::Plain || kind == Kind::Quoted; }
};

// Larger files are refused, so that a wrong file name cannot fill the memory.
constexpr size_t kLargestSource = 256U << 20;

// The bytes of a file. False, with the reason, when it is not there, cannot be read or is larger
// than kLargestSource.
bool readBytes(const std::string& path, std::string& bytes, Messages& messages);

// Reads the one document of a file. False, with the place, when it is no valid
// YAML, holds a form that is not supported (anchors, references, tags, document markers), is empty
// or too large.
bool readYaml(std::string bytes, YamlNode& root, Messages& messages);

// Where a value that is wrong is marked: itself if it stands on the line of its key, else the key.
Place valuePlace(const YamlNode& node);

// Whether two values say the same, wherever they stand.
bool isSameValue(const YamlNode& one, const YamlNode& other);

// The values of a mapping by name. A name may stand in it several times: the last one counts.
using YamlMapping = std::map<std::string, const YamlNode*>;

// Calls lost(earlier, last) for every value that a later one of the same name replaces.
template <class Lost>
YamlMapping lastValues(const YamlNode& mapping, Lost lost)
{
    YamlMapping values;
    for (const YamlNode& value : mapping.children) {
        const YamlNode*& place = values[value.key];
        if (place != nullptr) {
            lost(*place, value);
        }
        place = &value;
    }
    return values;
}

// What a plain text of YAML means without further say; a quoted one is always text.
enum class ScalarType { Null, Truth, Number, Text };

// Of a scalar; a list or mapping counts as text.
ScalarType scalarType(const YamlNode& node);
bool isNull(const YamlNode& node);
bool isText(const YamlNode& node);

// Whether a plain text reads wholly as a number: "-2.5", "1e3", "0x1F", "0o17".
bool looksLikeNumber(const std::string& text);
// "true", "Yes", "OFF", "n" and the like.
bool isTruthWord(const std::string& text);
// "null", "Null", "NULL", "~".
bool isNullWord(const std::string& text);

// Reads a plain scalar of decimal digits. False, with the reason in problem, when it is anything
// else or beyond largest.
bool readWholeNumber(const YamlNode& node, uint32_t largest, uint32_t& number,
                     std::string& problem);

}  // namespace gme
