#pragma once

#include <string>
#include <vector>

#include "base/PlatformDrives.h"

class ProcessRunner;
namespace Oid {
class OidProject;
}

enum class PenCopy {
    done,        // and the pen can be unplugged
    stillInUse,  // done, but the pen must be ejected before it is unplugged
    failed,
    noPen  // nothing was printed
};

inline bool isCopied(PenCopy result)
{
    return result == PenCopy::done || result == PenCopy::stillInUse;
}

// A volume that holds this in its root is a pen.
constexpr char kPenMark[] = "tiptoi.ico";

// Copies the project's game file into the root of the first volume that is a pen, and ejects that.
// Says when the game is older than the given script, the areas or the speech, that the pen can be
// unplugged or why not, where the copy lies, and which other games on the pen have its number. A
// copy that is done has reached the device; one that failed leaves no half file on it.
PenCopy copyGmeToPen(const Oid::OidProject& project, const std::string& script,
                     ProcessRunner& runner,
                     const std::vector<std::string>& volumes = Platform::penVolumes());
// The same with the script that the project holds.
PenCopy copyGmeToPen(const Oid::OidProject& project, ProcessRunner& runner,
                     const std::vector<std::string>& volumes = Platform::penVolumes());
