#pragma once

#include <string>

// Where the files of one game lie. Paths are UTF-8 and native.
namespace gme {

// The codes file beside the YAML file: "900-Zoo.yaml" gives "900-Zoo.codes.yaml".
std::string codesFileFor(const std::string& yamlFile);
// The folder of a file, empty for the current one.
std::string folderOf(const std::string& file);
// Whether two paths lead to the same place, as far as their texts tell.
bool isSamePath(const std::string& one, const std::string& other);

}  // namespace gme
