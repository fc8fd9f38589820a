#include "base/PlatformDrives.h"

#include "base/PlatformFiles.h"

namespace Platform {

std::vector<std::string> penVolumes()
{
    std::vector<std::string> roots;
    for (char letter = 'D'; letter <= 'Z'; ++letter) {
        roots.push_back(std::string(1, letter) + ":");
    }
    return roots;
}

bool folderHolds(const std::string& folder, const std::string& name)
{
    return fileExists(folder + "\\" + name);  // names have no case on Windows
}

}  // namespace Platform
