#pragma once

#include "gme/Codes.h"

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

    // Brings the file up to date: writes it, deletes it, or leaves it as it is. False when that
    // fails; the file is then as it was.
    bool update(const Description& description, const Codes& codes) const;
    // Undoes update.
    void restore() const;

private:
    GivenCodes newContent(const Description& description, const Codes& codes) const;
    bool write(const std::string& bytes) const;

    std::string path;
    bool exists = false;
    std::string oldBytes;
    GivenCodes known;
};

}  // namespace gme
