#include "oid/AudioFolder.h"

#include "base/FileSystem.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"

std::string audioFolder(const Oid::OidProject& project)
{
    return FileSystem::getDirectoryOfPath(project.projectPath) + FileSystem::directorySeparator +
           itostr(project.productId) + "-audio";
}
