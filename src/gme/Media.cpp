#include "gme/Media.h"

#include "base/PlatformFiles.h"

#include <array>
#include <filesystem>

namespace fs = std::filesystem;

namespace gme {

namespace {

constexpr size_t kMostFiles = 65536;
constexpr unsigned char kKey = 0xAD;
constexpr size_t kMadeByBuild = 2;  // of the candidates: the Ogg file

std::optional<MediaFile> fileAt(const std::string& path)
{
    const fs::path place = fs::u8path(path);
    std::error_code problem;
    if (!fs::is_regular_file(place, problem)) {
        return std::nullopt;
    }
    const uintmax_t size = fs::file_size(place, problem);
    return MediaFile{path, problem ? 0 : size};  // a vanished file is noticed when it is read
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

std::string mediaFilePath(const std::string& folder, const std::string& place)
{
    const fs::path start = fs::u8path(Platform::nativePath(folder));
    return (start / fs::u8path(Platform::nativePath(place))).u8string();
}

MediaLookup mediaIn(const std::string& folder)
{
    MediaLookup lookup;
    lookup.find = [folder](const std::string& place) {
        return fileAt(mediaFilePath(folder, place));
    };
    return lookup;
}

void Media::addName(const std::string& name, const std::string& user)
{
    const auto place = names.lower_bound(name);
    if (place == names.end() || place->first != name) {
        names.emplace_hint(place, name, Name{0, user});
    }
}

void Media::findFiles(const MediaPath& mediaPath, const MediaLookup& lookup, Messages& messages)
{
    if (names.size() > kMostFiles) {
        messages.error({}, "audio-too-many", "the game has more than 65536 audio files");
        return;
    }
    for (auto& [name, place] : names) {
        place.index = static_cast<uint16_t>(found.size());
        found.push_back(lookup.find ? findFile(name, place.user, mediaPath, lookup, messages)
                                    : MediaFile());
    }
}

MediaFile Media::findFile(const std::string& name, const std::string& user,
                          const MediaPath& mediaPath, const MediaLookup& lookup,
                          Messages& messages) const
{
    const std::vector<std::string> candidates = mediaPath.candidates(name);
    std::vector<std::string> existing;
    MediaFile file;
    std::string taken;
    for (const std::string& candidate : candidates) {
        const std::optional<MediaFile> there = lookup.find(candidate);
        if (!there) {
            continue;
        }
        existing.push_back(candidate);
        if (taken.empty() || candidate == candidates[kMadeByBuild]) {
            file = *there;
            taken = candidate;
        }
    }
    if (existing.empty() && !lookup.isLenient) {
        messages.error({}, "audio-missing",
                       "no audio file for " + name + " of " + user + ": there is none of " +
                           listOf(candidates),
                       name);
    } else if (existing.size() > 1) {
        const std::string several =
            "more than one audio file for " + name + " of " + user + ": " + listOf(existing);
        if (lookup.isLenient) {
            messages.warning({}, "audio-ambiguous", several + "; taken is " + taken, name);
        } else {
            messages.error({}, "audio-ambiguous", several, name);
        }
    }
    return file;
}

void applyCypher(unsigned char* bytes, size_t count)
{
    static const std::array<unsigned char, 256> table = makeTable();
    for (size_t i = 0; i < count; ++i) {
        bytes[i] = table[bytes[i]];
    }
}

}  // namespace gme
