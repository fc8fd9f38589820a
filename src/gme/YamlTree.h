#pragma once

#include "gme/YamlLines.h"

#include <string>
#include <vector>

namespace gme {

// One value of a YAML file. Scalars keep their spelling; what type a plain one has is not decided
// here.
struct YamlNode
{
    enum class Kind { Plain, Quoted, List, Mapping };  // nothing at all is an empty plain text

    Kind kind = Kind::Plain;
    int line = 0;     // in the file, from 1
    int keyLine = 0;  // of the key, for a value in a mapping
    std::string key;
    std::string text;
    std::vector<YamlNode> children;  // of a list or mapping, in the order of the file

    bool isScalar() const { return kind == Kind::Plain || kind == Kind::Quoted; }
};

// Reads the one document of a file. False, with the line, when it is no valid YAML, holds a form
// that is not supported, or is empty.
bool readYamlTree(const PreparedYaml& yaml, YamlNode& root, Messages& messages);

// Whether two values say the same, wherever they stand.
bool isSameValue(const YamlNode& one, const YamlNode& other);

}  // namespace gme
