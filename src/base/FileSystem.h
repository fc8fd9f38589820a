#pragma once

#include <cstdio>
#include <string>
#include <vector>

// Files by UTF-8 path. Paths are kept with the backslash as separator on every system; each
// function here hands them to the system in its native form.
namespace FileSystem {

// Always the backslash, on every system.
constexpr char directorySeparator = '\\';

// Opens as fopen does; null when it fails. The caller closes.
FILE* myfopen(const std::string& path, const std::string& mode);
// Why a file that is there does not open for reading, for a message: "'zoo.jpg' is a pipe, not a
// file". Empty when that is not the reason.
std::string whyNoFile(const std::string& path);
// The message on a file that does not open, with a second line for that reason.
std::string cannotOpen(const std::string& path);
// True when the attributes can be read; a directory counts as existing.
bool doesFileExist(const std::string& path);
// Overwrites the destination. False on failure; then nothing half-written stays.
bool copyFileContent(const std::string& source, const std::string& destination);
// False when the file cannot be removed (also when it is not there).
bool deleteFile(const std::string& path);
// Makes one folder; true when it is there afterwards.
bool createDirectory(const std::string& path);

// 0 on success, as chdir.
int setCurrentDirectory(const std::string& path);
std::string getCurrentDirectory();
// Leaving a scope, the process is back in the folder in which it was before.
class WorkingFolder
{
public:
    WorkingFolder() : before(getCurrentDirectory()) {}
    // Works in the given folder until then; one that is not there changes nothing.
    explicit WorkingFolder(const std::string& folder) : WorkingFolder()
    {
        setCurrentDirectory(folder);
    }
    ~WorkingFolder() { setCurrentDirectory(before); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::string before;
};

// The folder of the running program, without a separator at its end.
std::string exeDirectory();

// Everything before the last "." of the whole path. Intended: a dot in a folder's name counts too.
std::string trimFileExtension(const std::string& path);
// The text before the last backslash, else before the last "/", else ".".
std::string getDirectoryOfPath(const std::string& path);
// The text after the last backslash, else after the last "/", else the whole path.
std::string getFilenameOfPath(const std::string& path);

// Where a file lies in the end, links followed, when that is not below the folder; else empty. The
// file need not be there.
std::string placeOutside(const std::string& folder, const std::string& path);

// Runs a program and waits for its end; its output goes to this process's own streams unless it is
// not to be shown. Returns the exit code, or 2 when the program cannot be started.
int execCommand(const std::string& commandLine, bool showOutput, bool showErrors);

}  // namespace FileSystem
