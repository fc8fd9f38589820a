#include "base/PlatformFiles.h"

#include "base/Unicode.h"

#include <direct.h>
#include <io.h>
#include <windows.h>

namespace Platform {

std::string nativePath(const std::string& path)
{
    return path;
}

FILE* openFile(const std::string& path, const std::string& mode)
{
    return _wfopen(fromUtf8(path).c_str(), fromUtf8(mode + "N").c_str());  // not for children
}

bool fileExists(const std::string& path)
{
    return GetFileAttributesW(fromUtf8(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool removeFile(const std::string& path)
{
    return DeleteFileW(fromUtf8(path).c_str()) != 0;
}

bool renameFile(const std::string& from, const std::string& to)
{
    return MoveFileExW(fromUtf8(from).c_str(), fromUtf8(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

std::string lastFileError()
{
    wchar_t text[512];
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                        nullptr, GetLastError(), 0, text, 512, nullptr);
    std::wstring words(text, length);
    words.erase(words.find_last_not_of(L"\r\n. ") + 1);
    return toUtf8(words.c_str());
}

bool createDirectory(const std::string& path)
{
    const std::wstring wide = fromUtf8(path);
    if (CreateDirectoryW(wide.c_str(), nullptr) != 0) {
        return true;
    }
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The names beside a file that writing it uses for a while, cut where they would become too long.
static std::wstring temporaryNameBeside(const std::wstring& file, const std::wstring& suffix)
{
    constexpr size_t kLongestName = 255;  // characters
    const size_t separator = file.find_last_of(L"\\/");
    const size_t start = separator == std::wstring::npos ? 0 : separator + 1;
    return file.substr(0, start + kLongestName - suffix.size()) + suffix;
}

static bool flushFile(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool flushed = FlushFileBuffers(file) != 0;
    CloseHandle(file);
    return flushed;
}

bool copyFile(const std::string& source, const std::string& destination)
{
    // Copied beside the destination first: a drive that fills up leaves no half file under the
    // name.
    const std::wstring target = fromUtf8(destination);
    const std::wstring partial = temporaryNameBeside(target, L".part");
    constexpr DWORD kReplaceForCertain = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (CopyFileW(fromUtf8(source).c_str(), partial.c_str(), FALSE) != 0 && flushFile(partial) &&
        MoveFileExW(partial.c_str(), target.c_str(), kReplaceForCertain) != 0) {
        return true;
    }
    DeleteFileW(partial.c_str());
    return false;
}

std::int64_t seekFile(FILE* file, std::int64_t offset, int origin)
{
    return _fseeki64(file, offset, origin) == 0 ? _ftelli64(file) : -1;
}

int changeDirectory(const std::string& path)
{
    return _chdir(path.c_str());
}

std::string currentDirectory()
{
    char buffer[2048];
    return _getcwd(buffer, sizeof buffer) != nullptr ? buffer : std::string();
}

// The file that a path names in the end, with symbolic links followed; the path itself when it
// names nothing yet.
static std::wstring resolveLinks(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return path;
    }
    wchar_t resolved[32768];
    const DWORD length = GetFinalPathNameByHandleW(file, resolved, 32768, FILE_NAME_NORMALIZED);
    CloseHandle(file);
    return length > 0 && length < 32768 ? std::wstring(resolved, length) : path;
}

FileReplacement::FileReplacement(const std::string& path)
    : target(toUtf8(resolveLinks(fromUtf8(path)).c_str()))
{
    const DWORD attributes = GetFileAttributesW(fromUtf8(target).c_str());
    constexpr DWORD kNotWritable = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (target.empty() ||
        (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kNotWritable) != 0)) {
        return;
    }
    const std::wstring suffix = L"." + std::to_wstring(GetCurrentProcessId()) + L".tmp";
    temporary = toUtf8(temporaryNameBeside(fromUtf8(target), suffix).c_str());
    stream = openFile(temporary, "wb");
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

bool FileReplacement::commit()
{
    if (stream == nullptr) {
        return false;
    }
    bool complete = ferror(stream) == 0 && fflush(stream) == 0 && _commit(_fileno(stream)) == 0;
    complete = fclose(stream) == 0 && complete;
    stream = nullptr;
    const std::wstring from = fromUtf8(temporary);
    const std::wstring to = fromUtf8(target);
    // ReplaceFileW keeps the permissions of the file that it replaces; it wants one to be there.
    complete =
        complete &&
        (fileExists(target) ? ReplaceFileW(to.c_str(), from.c_str(), nullptr, 0, nullptr, nullptr)
                            : MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH)) != 0;
    if (complete) {
        temporary.clear();
    }
    return complete;
}

}  // namespace Platform
