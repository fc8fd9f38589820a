#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

// Files as the system wants them. All paths are UTF-8; every function takes them in our form (with
// backslashes) or in the native one.
namespace Platform {

// The form in which a path reaches the system: on POSIX every backslash becomes "/".
std::string nativePath(const std::string& path);

FILE* openFile(const std::string& path, const std::string& mode);
bool fileExists(const std::string& path);
bool removeFile(const std::string& path);
bool createDirectory(const std::string& path);
// Never overwrites: false also when there is a file of the new name.
bool renameFile(const std::string& from, const std::string& to);
// Why the function above or another one that works on files has just failed, in the system's words.
std::string lastFileError();
// Overwrites; the copy appears under its name only when it is complete.
bool copyFile(const std::string& source, const std::string& destination);

// fseek and ftell for files of any size; the origin is SEEK_SET, SEEK_CUR or SEEK_END. The new
// position, or -1 when it cannot be reached.
std::int64_t seekFile(FILE* file, std::int64_t offset, int origin);

int changeDirectory(const std::string& path);
std::string currentDirectory();

// Writing a file whole or not at all: the text is written to a temporary file beside the target,
// which then takes the target's place. A symbolic link stays one (the file that it names is
// replaced) and an existing file keeps its permissions.
class FileReplacement
{
public:
    explicit FileReplacement(const std::string& path);
    // Removes the temporary file unless commit succeeded.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // The temporary file, open for binary writing; null when it could not be made.
    FILE* file() const { return stream; }
    // Native path of the temporary file, for writers that open it themselves.
    const std::string& temporaryPath() const { return temporary; }
    // Closes the file, flushes it to the device and puts it in the target's place. False when
    // anything failed since the file was opened; the target is then as it was.
    bool commit();

private:
    std::string target;  // native, links resolved
    std::string temporary;
    FILE* stream = nullptr;
};

}  // namespace Platform
