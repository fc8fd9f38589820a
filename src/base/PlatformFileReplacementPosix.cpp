#include "base/PlatformFiles.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr int kMostAtOnce = 100;  // who write one file at the same moment

// The permissions that a file made by fopen would get.
mode_t newFileMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// Gives a new file the owner and the permissions of the one that it replaces. Where the owner
// cannot be kept, the file does not run with the rights of its owner either.
void copyPermissions(int handle, const struct stat* replaced)
{
    if (replaced == nullptr) {
        fchmod(handle, newFileMode());
        return;
    }
    const bool sameOwner = fchown(handle, replaced->st_uid, replaced->st_gid) == 0;
    fchmod(handle, replaced->st_mode & (sameOwner ? 07777 : 0777));
}

std::string folderOf(const std::string& file)
{
    const size_t slash = file.rfind('/');
    return slash == std::string::npos ? "." : file.substr(0, slash + 1);
}

// The first, second, ... name for what is not finished: "farm.oidpro.unfinished", then
// "farm.oidpro.unfinished2". Cut where it would become too long.
std::string temporaryNameBeside(const std::string& file, int number)
{
    constexpr size_t kLongestName = 255;  // bytes, on every usual file system
    const std::string suffix = ".unfinished" + (number > 1 ? std::to_string(number) : "");
    const size_t slash = file.rfind('/');
    const size_t start = slash == std::string::npos ? 0 : slash + 1;
    return file.substr(0, start + kLongestName - suffix.size()) + suffix;
}

// False when the device has failed, so that nobody knows what it holds. Not every file system can
// flush a folder, and not every folder can be read.
bool flushFolder(const std::string& file)
{
    const auto isAlive = [] { return errno != EIO && errno != ENODEV && errno != ENXIO; };
    const int handle = open(folderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return isAlive();
    }
    const bool done = fsync(handle) == 0 || isAlive();
    close(handle);
    return done;
}

// False when somebody else holds the file. Where files cannot be locked, nobody does.
bool lockFile(int handle)
{
    return flock(handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool isNameOf(const std::string& path, int handle)
{
    struct stat named = {};
    struct stat opened = {};
    return lstat(path.c_str(), &named) == 0 && fstat(handle, &opened) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

// Frees the name of a file that a stopped program left. False when it is somebody's who is writing
// it, or no file.
bool removeLeftover(const std::string& name)
{
    const int handle = open(name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) {
        return errno == ENOENT;  // it has just gone
    }
    struct stat status = {};
    const bool isLeft = fstat(handle, &status) == 0 && S_ISREG(status.st_mode) && lockFile(handle);
    const bool removed = isLeft && isNameOf(name, handle) && unlink(name.c_str()) == 0;
    close(handle);
    return removed || (isLeft && access(name.c_str(), F_OK) != 0);
}

int openUnnamed(const std::string& file)
{
    const bool canBeNamed = access("/proc/self/fd", X_OK) == 0;
    return canBeNamed ? open(folderOf(file).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600) : -1;
}

int createLocked(const std::string& name)
{
    const int handle = open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (handle < 0 || (lockFile(handle) && isNameOf(name, handle))) {
        return handle;
    }
    close(handle);  // somebody took it for a leftover in between
    errno = EEXIST;
    return -1;
}

// Calls create, which fails with EEXIST, with one name after the other until one is free. The name,
// or the empty one.
template <typename Create>
std::string takeName(const std::string& file, const Create& create)
{
    for (int number = 1; number <= kMostAtOnce;) {
        std::string name = temporaryNameBeside(file, number);
        if (create(name)) {
            return name;
        }
        if (errno != EEXIST) {
            return {};
        }
        if (!removeLeftover(name)) {
            ++number;
        }
    }
    return {};
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path, Temporary kind) : target(nativePath(path))
{
    struct stat status = {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (!exists && errno == ELOOP) {
        return;  // links that go round in a circle name no file
    }
    if (target.empty() || (exists && access(target.c_str(), W_OK) != 0)) {
        return;  // what cannot be written is not replaced either
    }
    isInPlace = exists && !S_ISREG(status.st_mode);
    if (isInPlace) {
        stream = openFile(target, "wb");  // a device or pipe is written to, never replaced
        return;
    }
    target = resolveLinks(target);
    int handle = kind == Temporary::unnamed ? openUnnamed(target) : -1;
    if (handle >= 0) {
        lockFile(handle);
    } else {
        temporary = takeName(target, [&handle](const std::string& name) {
            handle = createLocked(name);
            return handle >= 0;
        });
    }
    if (handle < 0) {
        return;
    }
    copyPermissions(handle, exists ? &status : nullptr);
    stream = fdopen(handle, "wb");
    lock = fcntl(handle, F_DUPFD_CLOEXEC, 0);  // the lock ends with the last handle
}

FileReplacement::~FileReplacement()
{
    if (stream != nullptr) {
        fclose(stream);
    }
    if (!temporary.empty() && isNameOf(temporary, lock)) {
        unlink(temporary.c_str());
    }
    if (lock >= 0) {
        close(lock);
    }
}

bool FileReplacement::closeComplete()
{
    bool complete = ferror(stream) == 0 && fflush(stream) == 0;
    complete = complete && (isInPlace || fsync(fileno(stream)) == 0);
    complete = fclose(stream) == 0 && complete;
    stream = nullptr;
    return complete;
}

// No call puts a file without a name in the place of another one: it gets a name before.
bool FileReplacement::takePlace()
{
    if (temporary.empty()) {
        const std::string unnamed = "/proc/self/fd/" + std::to_string(lock);
        temporary = takeName(target, [&unnamed](const std::string& name) {
            return linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) ==
                   0;
        });
    }
    if (temporary.empty() || !isNameOf(temporary, lock) ||  // a stranger's is not ours to move
        rename(temporary.c_str(), target.c_str()) != 0) {
        return false;
    }
    temporary.clear();
    return flushFolder(target);
}

bool FileReplacement::commit()
{
    if (stream == nullptr) {
        return false;
    }
    return closeComplete() && (isInPlace || takePlace());
}

}  // namespace Platform
