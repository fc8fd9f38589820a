#pragma once

#include "gme/Codes.h"

#include <map>
#include <string>

namespace gme {

// The file beside the YAML file in which labels keep their codes from one build to the next.
class CodesFile
{
public:
    explicit CodesFile(const std::string& nativePath) : path(nativePath) {}

    // Reads the file if it is there. False, with the reason, when it is there but not valid.
    bool read(Messages& messages);
    const GivenCodes& codes() const { return known; }

    // Takes out what stands in the way of the areas (by name, with their numbers): entries with the
    // name of one, and those with the number of one, replay and stop included. Says so in one line.
    // False when the file cannot be written; it is then as it was.
    bool makeRoomFor(const std::map<std::string, int>& areas, Messages& messages) const;
    // Brings the file up to date: writes it, deletes it, or leaves it as it is. False when that
    // fails; the file is then as it was.
    bool update(const Description& description, const Codes& codes) const;
    // Undoes update.
    void restore() const;

private:
    GivenCodes newContent(const Description& description, const Codes& codes) const;
    // Writes the file, or deletes it where there is nothing to hold.
    bool replaceBy(const GivenCodes& content) const;
    bool write(const std::string& bytes) const;

    std::string path;
    bool exists = false;
    std::string oldBytes;
    GivenCodes known;
};

// The codes file as text, with its explanation for the author.
std::string codesText(const GivenCodes& codes);

// A name as it stands in that text: plain where that is possible, else in quotes.
std::string yamlName(const std::string& name);

}  // namespace gme
