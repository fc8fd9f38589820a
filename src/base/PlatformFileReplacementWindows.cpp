#include "base/PlatformFiles.h"

#include "base/PlatformWide.h"

#include <io.h>
#include <windows.h>

namespace Platform {

namespace {

constexpr int kMostAtOnce = 100;  // who write one file at the same moment

// The first, second, ... name for what is not finished: "farm.oidpro.unfinished", then
// "farm.oidpro.unfinished2". Cut where it would become too long.
std::wstring temporaryNameBeside(const std::wstring& file, int number)
{
    constexpr size_t kLongestName = 255;  // characters
    const std::wstring suffix = L".unfinished" + (number > 1 ? std::to_wstring(number) : L"");
    const size_t separator = file.find_last_of(L"\\/");
    const size_t start = separator == std::wstring::npos ? 0 : separator + 1;
    return file.substr(0, start + kLongestName - suffix.size()) + suffix;
}

// What a stopped program left is overwritten; what somebody is writing does not open.
FILE* openForOneWriter(const std::wstring& name)
{
    return openWide(name, "wb", 0);
}

// What a program holds open stays; ReplaceFileW would notice it halfway and leave a file of its
// own.
bool canBeReplaced(const std::wstring& path)
{
    constexpr DWORD kEverything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(path.c_str(), DELETE, kEverything, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(file);
    return true;
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path, Temporary /*kind*/)
    : target(resolveLinks(path))
{
    const DWORD attributes = GetFileAttributesW(widePath(target).c_str());
    constexpr DWORD kNotWritable = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (target.empty() ||
        (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNotWritable) != 0)) {
        return;
    }
    for (int number = 1; number <= kMostAtOnce && stream == nullptr; ++number) {
        const std::wstring name = temporaryNameBeside(widePath(target), number);
        stream = openForOneWriter(name);
        temporary = pathFromWide(name);
        if (stream == nullptr && GetLastError() != ERROR_SHARING_VIOLATION) {
            break;
        }
    }
    if (stream == nullptr) {
        temporary.clear();
    }
}

FileReplacement::~FileReplacement()
{
    if (stream != nullptr) {
        fclose(stream);
    }
    if (!temporary.empty()) {
        removeFile(temporary);
    }
}

bool FileReplacement::closeComplete()
{
    bool complete = ferror(stream) == 0 && fflush(stream) == 0 && _commit(_fileno(stream)) == 0;
    complete = fclose(stream) == 0 && complete;
    stream = nullptr;
    return complete;
}

// ReplaceFileW keeps the permissions of the file that it replaces; it wants one to be there.
bool FileReplacement::takePlace()
{
    const std::wstring from = widePath(temporary);
    const std::wstring to = widePath(target);
    const bool done = fileExists(target)
                          ? canBeReplaced(to) && ReplaceFileW(to.c_str(), from.c_str(), nullptr, 0,
                                                              nullptr, nullptr) != 0
                          : MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    if (done) {
        temporary.clear();
    }
    return done;
}

bool FileReplacement::commit()
{
    return stream != nullptr && closeComplete() && takePlace();
}

}  // namespace Platform
