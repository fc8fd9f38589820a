#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

// Files as the system wants them. All paths are UTF-8; every function takes them in our form (with
// backslashes) or in the native one.
namespace Platform {

// The form in which a path reaches the system: on POSIX every backslash becomes "/", on Windows
// every
// "/" a backslash.
std::string nativePath(const std::string& path);
// A path that came from outside, so that folder and file name can be told apart: on Windows, where
// both separators occur in one path, every "/" becomes a backslash. Elsewhere as it is.
std::string pathFromOutside(const std::string& path);

// As fopen. For reading ("r...") it opens files and nothing else: a folder, a pipe, a socket or a
// device is refused without being touched, and no call waits for one. What is opened for writing
// may be a device, or a pipe that somebody reads.
FILE* openFile(const std::string& path, const std::string& mode);
// What stands in the place of a file and is none, links followed: "a folder", "a pipe", "a socket",
// "a device". Empty for a file, and where there is nothing.
std::string kindOfNoFile(const std::string& path);
// The file that a path names in the end, so that replacing it leaves symbolic links alone. A link
// to a file that is not there yet is followed as well. Both native.
std::string resolveLinks(const std::string& path);
bool fileExists(const std::string& path);
bool removeFile(const std::string& path);
bool createDirectory(const std::string& path);
// Never overwrites: false also when there is a file of the new name.
bool renameFile(const std::string& from, const std::string& to);
// Why the function above or another one that works on files has just failed, in the system's words.
std::string lastFileError();
// Sees to it that the user has a trash where the system does not by itself. False when there can be
// none.
bool makeTrash();
// Overwrites; the copy appears under its name only when it is complete.
bool copyFile(const std::string& source, const std::string& destination);

// fseek and ftell for files of any size; the origin is SEEK_SET, SEEK_CUR or SEEK_END. The new
// position, or -1 when it cannot be reached.
std::int64_t seekFile(FILE* file, std::int64_t offset, int origin);

int changeDirectory(const std::string& path);
std::string currentDirectory();

// Writing a file whole or not at all: the text is written to a temporary file, which then takes the
// target's place. A symbolic link stays one (the file that it names is replaced) and an existing
// file keeps its permissions.
// The temporary file has no name where the system knows such files, so nothing of it is left
// whenever the program is stopped; else, and for the moment of taking the place, it is called like
// the target with ".unfinished" behind. The next one who writes takes such a file over, unless
// somebody is just writing it.
class FileReplacement
{
public:
    enum class Temporary {
        unnamed,  // if the file system has such files
        named
    };

    explicit FileReplacement(const std::string& path, Temporary kind = Temporary::unnamed);
    // Removes the temporary file unless commit succeeded.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // The temporary file, open for binary writing; null when it could not be made.
    FILE* file() const { return stream; }
    // Closes the file, flushes it to the device and puts it in the target's place. False when
    // anything failed since the file was opened; the target is then as it was. Of a device that
    // fails in the last moment nobody knows whether it holds the old or the new file.
    bool commit();

private:
    bool closeComplete();
    bool takePlace();

    std::string target;     // native, links resolved
    std::string temporary;  // native; empty while the file has no name
    FILE* stream = nullptr;
    int lock = -1;           // a second handle of the file where the system locks by handles, or -1
    bool isInPlace = false;  // what stands in the target's place is written to as it is
};

}  // namespace Platform
