#pragma once

#include "gme/Messages.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace gme {

// Where the audio file of a name lies: "950-audio/%s".
class MediaPath
{
public:
    // yamlFolder is the folder that relative paths start from.
    explicit MediaPath(const std::string& yamlFolder) : folder(yamlFolder) {}

    // False unless "%s" occurs exactly once; "%%" stands for one percent sign.
    bool setTemplate(const std::string& text);
    // The five places where the file of a name may lie, as the template has them.
    std::vector<std::string> candidates(const std::string& name) const;
    // Native path of a candidate.
    std::string fullPath(const std::string& candidate) const;

private:
    std::string folder;
    std::string beforeName;
    std::string behindName;
};

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

// The simple cypher in which a game file holds its audio; the same operation decrypts. 0x00, 0xFF,
// the key and its complement stay as they are.
void applyCypher(unsigned char* bytes, size_t count);

// What the header holds for the key: the pen finds the key in a table of its own.
constexpr unsigned kRawKey = 0x39;

}  // namespace gme
