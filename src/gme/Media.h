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
    // user: who names the file first, "script lion", for messages.
    void addName(const std::string& name, const std::string& user);
    // Finds the file of every name; reports all that are missing and all that are there twice.
    void findFiles(const MediaPath& mediaPath, Messages& messages);

    uint16_t indexOf(const std::string& name) const { return names.at(name).index; }
    const std::vector<MediaFile>& files() const { return found; }

private:
    struct Name
    {
        uint16_t index = 0;
        std::string user;
    };

    void findFile(const std::string& name, const std::string& user, const MediaPath& mediaPath,
                  Messages& messages);

    std::map<std::string, Name> names;
    std::vector<MediaFile> found;
};

}  // namespace gme
