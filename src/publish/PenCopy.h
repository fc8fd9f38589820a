#pragma once

#include <string>
#include <vector>

#include "base/PlatformDrives.h"

class ProcessRunner;
namespace Oid {
class OidProject;
}

enum class PenCopy {
    done,
    failed,
    noPen  // nothing was printed
};

// Copies the project's game file into the root of the first volume that holds "tiptoi.ico" there.
// A copy that is done has reached the device; one that failed leaves no half file on it.
PenCopy copyGmeToPen(const Oid::OidProject& project, ProcessRunner& runner,
                     const std::vector<std::string>& volumes = Platform::penVolumes());
