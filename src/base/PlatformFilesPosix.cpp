#include "base/PlatformFiles.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Platform {

namespace {

// The file that a path names in the end, so that replacing it leaves symbolic links alone. A link
// to a file that is not there yet is followed as well.
std::string resolveLinks(std::string path)
{
    constexpr int kMostLinks = 40;  // as many as Linux follows
    for (int i = 0; i < kMostLinks; ++i) {
        char link[PATH_MAX];
        const ssize_t length = readlink(path.c_str(), link, sizeof link);
        if (length < 0) {
            break;
        }
        std::string next(link, static_cast<size_t>(length));
        const size_t slash = path.rfind('/');
        if (next[0] != '/' && slash != std::string::npos) {
            next.insert(0, path, 0, slash + 1);
        }
        path = std::move(next);
    }
    return path;
}

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

// A pattern for mkostemp in the same folder. The name is cut where it would become too long.
std::string temporaryNameBeside(const std::string& file)
{
    constexpr size_t kLongestName = 255;  // bytes, on every usual file system
    const std::string pattern = ".XXXXXX";
    const size_t slash = file.rfind('/');
    const size_t start = slash == std::string::npos ? 0 : slash + 1;
    return file.substr(0, start + kLongestName - pattern.size()) + pattern;
}

void flushFolder(const std::string& file)
{
    const size_t slash = file.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : file.substr(0, slash + 1);
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (handle >= 0) {
        fsync(handle);  // best effort: not every file system can flush a folder
        close(handle);
    }
}

struct CloseFile
{
    void operator()(FILE* file) const { fclose(file); }
};

bool copyStream(FILE* from, FILE* to)
{
    constexpr size_t kBlock = 1 << 16;
    const std::unique_ptr<char[]> block(new char[kBlock]);
    size_t count;
    while ((count = fread(block.get(), 1, kBlock, from)) > 0) {
        if (fwrite(block.get(), 1, count, to) != count) {
            return false;
        }
    }
    return ferror(from) == 0;
}

}  // namespace

std::string nativePath(const std::string& path)
{
    std::string native = path;
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

FILE* openFile(const std::string& path, const std::string& mode)
{
    FILE* file = fopen(nativePath(path).c_str(), (mode + "e").c_str());  // not for child processes
    struct stat status = {};
    if (file != nullptr && fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode)) {
        fclose(file);  // a folder opens for reading here, but there is nothing to read
        errno = EISDIR;
        return nullptr;
    }
    return file;
}

bool fileExists(const std::string& path)
{
    struct stat status = {};
    return stat(nativePath(path).c_str(), &status) == 0;
}

bool removeFile(const std::string& path)
{
    return unlink(nativePath(path).c_str()) == 0;
}

bool renameFile(const std::string& from, const std::string& to)
{
    const std::string target = nativePath(to);
    struct stat status = {};
    if (lstat(target.c_str(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return rename(nativePath(from).c_str(), target.c_str()) == 0;
}

std::string lastFileError()
{
    return std::generic_category().message(errno);
}

bool createDirectory(const std::string& path)
{
    const std::string native = nativePath(path);
    struct stat status = {};
    return mkdir(native.c_str(), 0777) == 0 ||
           (stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode));
}

bool copyFile(const std::string& source, const std::string& destination)
{
    const std::unique_ptr<FILE, CloseFile> from(openFile(source, "rb"));
    if (from == nullptr) {
        return false;
    }
    FileReplacement to(destination);
    return to.file() != nullptr && copyStream(from.get(), to.file()) && to.commit();
}

std::int64_t seekFile(FILE* file, std::int64_t offset, int origin)
{
    return fseeko(file, static_cast<off_t>(offset), origin) == 0 ? ftello(file) : -1;
}

int changeDirectory(const std::string& path)
{
    return chdir(nativePath(path).c_str());
}

std::string currentDirectory()
{
    char buffer[2048];
    return getcwd(buffer, sizeof buffer) != nullptr ? buffer : std::string();
}

FileReplacement::FileReplacement(const std::string& path) : target(nativePath(path))
{
    struct stat status = {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (!exists && errno == ELOOP) {
        return;  // links that go round in a circle name no file
    }
    if (target.empty() || (exists && access(target.c_str(), W_OK) != 0)) {
        return;  // what cannot be written is not replaced either
    }
    if (exists && !S_ISREG(status.st_mode)) {
        stream = openFile(target, "wb");  // a device or pipe is written to, never replaced
        return;
    }
    target = resolveLinks(target);
    temporary = temporaryNameBeside(target);
    const int handle = mkostemp(temporary.data(), O_CLOEXEC);
    if (handle < 0) {
        temporary.clear();
        return;
    }
    copyPermissions(handle, exists ? &status : nullptr);
    stream = fdopen(handle, "wb");
}

FileReplacement::~FileReplacement()
{
    if (stream != nullptr) {
        fclose(stream);
    }
    if (!temporary.empty()) {
        unlink(temporary.c_str());
    }
}

bool FileReplacement::commit()
{
    if (stream == nullptr) {
        return false;
    }
    const bool isReplacement = !temporary.empty();
    bool complete = ferror(stream) == 0 && fflush(stream) == 0;
    complete = complete && (!isReplacement || fsync(fileno(stream)) == 0);
    complete = fclose(stream) == 0 && complete;
    stream = nullptr;
    if (!isReplacement || !complete) {
        return complete;
    }
    if (rename(temporary.c_str(), target.c_str()) != 0) {
        return false;
    }
    temporary.clear();
    flushFolder(target);
    return true;
}

}  // namespace Platform
