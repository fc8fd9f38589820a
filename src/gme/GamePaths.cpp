#include "gme/Assembler.h"

#include "base/PlatformFiles.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace gme {

namespace {

fs::path pathOf(const std::string& utf8)
{
    return fs::u8path(Platform::nativePath(utf8));
}

}  // namespace

std::string gameFileFor(const std::string& yamlFile)
{
    return pathOf(yamlFile).replace_extension(".gme").u8string();
}

std::string codesFileFor(const std::string& yamlFile)
{
    const fs::path yaml = pathOf(yamlFile);
    fs::path name = yaml.stem();
    name += ".codes";
    name += yaml.extension();
    return (yaml.parent_path() / name).u8string();
}

std::string folderOf(const std::string& file)
{
    return pathOf(file).parent_path().u8string();
}

bool isSamePath(const std::string& one, const std::string& other)
{
    std::error_code ignored;  // a path that cannot be resolved is compared as it stands
    return fs::absolute(pathOf(one), ignored).lexically_normal() ==
           fs::absolute(pathOf(other), ignored).lexically_normal();
}

}  // namespace gme
