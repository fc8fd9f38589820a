#pragma once

#include "gme/MediaPath.h"
#include "gme/Messages.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace gme {

struct MediaFile
{
    std::string path;
    uint64_t size = 0;  // in bytes
};

// The audio files of a game, each name once, in ascending order of the names.
class Media
{
public:
    void addName(const std::string& name) { indexes.emplace(name, 0); }
    // Finds the file of every name; reports all that are missing and all that are there twice.
    void findFiles(const MediaPath& mediaPath, Messages& messages);

    uint16_t indexOf(const std::string& name) const { return indexes.at(name); }
    const std::vector<MediaFile>& files() const { return found; }

private:
    void findFile(const std::string& name, const MediaPath& mediaPath, Messages& messages);

    std::map<std::string, uint16_t> indexes;
    std::vector<MediaFile> found;
};

}  // namespace gme
