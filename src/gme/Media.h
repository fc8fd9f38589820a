#pragma once

#include "gme/Messages.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gme {

// Where the audio file of a name may lie: "950-audio/%s".
class MediaPath
{
public:
    // False unless "%s" occurs exactly once; "%%" stands for one percent sign.
    bool setTemplate(const std::string& text);
    // The five places where the file of a name may lie, as the template has them.
    std::vector<std::string> candidates(const std::string& name) const;

private:
    std::string beforeName;
    std::string behindName;
};

struct MediaFile
{
    std::string path;   // native; empty where a game does without the file
    uint64_t size = 0;  // in bytes
};

// How a game finds its audio. Without a function it does without any.
struct MediaLookup
{
    // The file at a place such as "950-audio/say_adam_Roar.ogg", if there is one.
    std::function<std::optional<MediaFile>(const std::string& place)> find;
    // For a game that is only tried: a name without a file is no error, and of several files the
    // one that a build makes is taken, with a warning.
    bool isLenient = false;
};

// Finds files on the disk; relative places start from the folder.
MediaLookup mediaIn(const std::string& folder);
// The native path of a place.
std::string mediaFilePath(const std::string& folder, const std::string& place);

// The audio files of a game, each name once, in ascending order of the names.
class Media
{
public:
    // user: who names the file first, "script lion", for messages.
    void addName(const std::string& name, const std::string& user);
    // Finds the file of every name; reports all that are missing and all that are there twice.
    void findFiles(const MediaPath& mediaPath, const MediaLookup& lookup, Messages& messages);

    uint16_t indexOf(const std::string& name) const { return names.at(name).index; }
    // One for each name, at its index.
    const std::vector<MediaFile>& files() const { return found; }

private:
    struct Name
    {
        uint16_t index = 0;
        std::string user;
    };

    MediaFile findFile(const std::string& name, const std::string& user, const MediaPath& mediaPath,
                       const MediaLookup& lookup, Messages& messages) const;

    std::map<std::string, Name> names;
    std::vector<MediaFile> found;
};

// The simple cypher in which a game file holds its audio; the same operation decrypts. 0x00, 0xFF,
// the key and its complement stay as they are.
void applyCypher(unsigned char* bytes, size_t count);

// What the header holds for the key: the pen finds the key in a table of its own.
constexpr unsigned kRawKey = 0x39;

}  // namespace gme
