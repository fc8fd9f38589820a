#include "gme/Media.h"

#include "base/PlatformFiles.h"

#include <array>
#include <filesystem>

namespace fs = std::filesystem;

namespace gme {

namespace {

constexpr size_t kMostFiles = 65536;
constexpr unsigned char kKey = 0xAD;

bool isFile(const std::string& path)
{
    std::error_code ignored;
    return fs::is_regular_file(fs::u8path(path), ignored);
}

std::string listOf(const std::vector<std::string>& names)
{
    std::string list = names[0];
    for (size_t i = 1; i < names.size(); ++i) {
        list += (i + 1 < names.size() ? ", " : " and ") + names[i];
    }
    return list;
}

std::array<unsigned char, 256> makeTable()
{
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        const bool isKept = byte == 0x00 || byte == 0xFF || byte == kKey || byte == (kKey ^ 0xFFU);
        table[byte] = static_cast<unsigned char>(isKept ? byte : byte ^ kKey);
    }
    return table;
}

}  // namespace

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

void Media::addName(const std::string& name, const std::string& user)
{
    const auto place = names.lower_bound(name);
    if (place == names.end() || place->first != name) {
        names.emplace_hint(place, name, Name{0, user});
    }
}

void Media::findFiles(const MediaPath& mediaPath, Messages& messages)
{
    if (names.size() > kMostFiles) {
        messages.error(0, "the game has more than 65536 audio files");
        return;
    }
    uint16_t index = 0;
    for (auto& [name, place] : names) {
        place.index = index++;
        findFile(name, place.user, mediaPath, messages);
    }
}

void Media::findFile(const std::string& name, const std::string& user, const MediaPath& mediaPath,
                     Messages& messages)
{
    const std::vector<std::string> candidates = mediaPath.candidates(name);
    std::vector<std::string> existing;
    for (const std::string& candidate : candidates) {
        if (isFile(mediaPath.fullPath(candidate))) {
            existing.push_back(candidate);
        }
    }
    if (existing.empty()) {
        messages.error(0, "no audio file for " + name + " of " + user + ": there is none of " +
                              listOf(candidates));
        return;
    }
    if (existing.size() > 1) {
        messages.error(0, "more than one audio file for " + name + " of " + user + ": " +
                              listOf(existing));
        return;
    }
    const std::string path = mediaPath.fullPath(existing[0]);
    std::error_code problem;
    const uintmax_t size = fs::file_size(fs::u8path(path), problem);
    found.push_back({path, problem ? 0 : size});  // a vanished file is noticed when it is read
}

void applyCypher(unsigned char* bytes, size_t count)
{
    static const std::array<unsigned char, 256> table = makeTable();
    for (size_t i = 0; i < count; ++i) {
        bytes[i] = table[bytes[i]];
    }
}

}  // namespace gme
