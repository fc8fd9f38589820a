#include "base/PlatformFiles.h"

#include "base/PlatformProcess.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Platform {

namespace {

bool isFolder(const struct stat& status)
{
    if (S_ISDIR(status.st_mode)) {
        errno = EISDIR;
        return true;
    }
    return false;
}

bool isFile(const struct stat& status)
{
    if (S_ISREG(status.st_mode) || isFolder(status)) {
        return S_ISREG(status.st_mode);
    }
    errno = ENXIO;
    return false;
}

// Without waiting: for a pipe that nobody reads it fails. Not for child processes.
int openAtOnce(const std::string& path, const std::string& mode)
{
    const bool updates = mode.find('+') != std::string::npos;
    int flags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    if (mode[0] == 'r') {
        flags |= updates ? O_RDWR : O_RDONLY;
    } else {
        flags |= O_CREAT | (updates ? O_RDWR : O_WRONLY) | (mode[0] == 'a' ? O_APPEND : O_TRUNC);
    }
    return open(path.c_str(), flags, 0666);
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

std::string pathFromOutside(const std::string& path)
{
    return path;
}

FILE* openFile(const std::string& path, const std::string& mode)
{
    const std::string native = nativePath(path);
    const bool reads = mode.compare(0, 1, "r") == 0;
    struct stat status = {};
    // Asked before, since a device may do something when it is only opened, and again afterwards.
    if (reads && stat(native.c_str(), &status) == 0 && !isFile(status)) {
        return nullptr;
    }
    const int handle = openAtOnce(native, mode);
    if (handle < 0) {
        return nullptr;
    }
    if (fstat(handle, &status) == 0 && (reads ? isFile(status) : !isFolder(status))) {
        fcntl(handle, F_SETFL, fcntl(handle, F_GETFL) & ~O_NONBLOCK);
        return fdopen(handle, mode.c_str());
    }
    const int problem = errno;
    close(handle);
    errno = problem;
    return nullptr;
}

std::string kindOfNoFile(const std::string& path)
{
    struct stat status = {};
    if (stat(nativePath(path).c_str(), &status) != 0) {
        return {};
    }
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return {};
    case S_IFDIR:
        return "a folder";
    case S_IFIFO:
        return "a pipe";
    case S_IFSOCK:
        return "a socket";
    default:
        return "a device";
    }
}

std::string resolveLinks(const std::string& path)
{
    constexpr int kMostLinks = 40;  // as many as Linux follows
    std::string place = path;
    for (int i = 0; i < kMostLinks; ++i) {
        char link[PATH_MAX];
        const ssize_t length = readlink(place.c_str(), link, sizeof link);
        if (length < 0) {
            break;
        }
        std::string next(link, static_cast<size_t>(length));
        const size_t slash = place.rfind('/');
        if (next[0] != '/' && slash != std::string::npos) {
            next.insert(0, place, 0, slash + 1);
        }
        place = std::move(next);
    }
    return place;
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

bool makeTrash()
{
    // freedesktop.org, "The Trash specification": the home trash is "Trash" in the data folder
    std::string dataFolder = environmentVariable("XDG_DATA_HOME");
    if (dataFolder.empty()) {
        const std::string home = environmentVariable("HOME");
        if (home.empty()) {
            return false;
        }
        dataFolder = home + "/.local/share";
    }
    std::error_code error;
    std::filesystem::create_directories(dataFolder, error);
    const std::string trash = dataFolder + "/Trash";
    return mkdir(trash.c_str(), S_IRWXU) == 0 || std::filesystem::is_directory(trash, error);
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

}  // namespace Platform
