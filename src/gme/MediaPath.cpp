#include "gme/MediaPath.h"

#include "base/PlatformFiles.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace gme {

bool MediaPath::setTemplate(const std::string& text)
{
    int names = 0;
    beforeName.clear();
    behindName.clear();
    for (size_t i = 0; i < text.size(); ++i) {
        std::string& part = names == 0 ? beforeName : behindName;
        if (text[i] != '%') {
            part += text[i];
            continue;
        }
        ++i;
        if (i < text.size() && text[i] == '%') {
            part += '%';
        } else if (i < text.size() && text[i] == 's') {
            ++names;
        } else {
            return false;
        }
    }
    return names == 1;
}

std::vector<std::string> MediaPath::candidates(const std::string& name) const
{
    const std::string path = beforeName + name + behindName;
    return {path, path + ".wav", path + ".ogg", path + ".flac", path + ".mp3"};
}

std::string MediaPath::fullPath(const std::string& candidate) const
{
    const fs::path start = fs::u8path(Platform::nativePath(folder));
    return (start / fs::u8path(Platform::nativePath(candidate))).u8string();
}

}  // namespace gme
