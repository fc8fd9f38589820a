#pragma once

#include <string>
#include <vector>

// The drives of this computer. Nothing else stands here: a test links drives of its own in their
// place.
namespace Platform {

// The roots of the volumes that may be a pen, in the order in which they are to be searched: on
// Windows the drives "D:" to "Z:", elsewhere the mounted volumes by mount point. Without a
// separator at the end (so the root folder of a POSIX system is the empty text).
std::vector<std::string> penVolumes();

// True when the folder holds an entry of that name; upper and lower case are the same.
bool folderHolds(const std::string& folder, const std::string& name);

}  // namespace Platform
