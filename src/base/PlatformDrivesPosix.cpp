#include "base/PlatformDrives.h"

#include "base/PlatformFiles.h"

#include <QStorageInfo>

#include <algorithm>
#include <dirent.h>
#include <memory>
#include <strings.h>

namespace Platform {

namespace {

struct CloseFolder
{
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

std::vector<std::string> penVolumes()
{
    std::vector<std::string> roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const std::string root = volume.rootPath().toStdString();
        roots.push_back(root == "/" ? std::string() : root);
    }
    std::sort(roots.begin(), roots.end());
    roots.erase(std::unique(roots.begin(), roots.end()), roots.end());
    return roots;
}

bool folderHolds(const std::string& folder, const std::string& name)
{
    const std::unique_ptr<DIR, CloseFolder> entries(opendir((nativePath(folder) + "/").c_str()));
    while (entries != nullptr) {
        const dirent* entry = readdir(entries.get());
        if (entry == nullptr) {
            break;
        }
        if (strcasecmp(entry->d_name, name.c_str()) == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace Platform
