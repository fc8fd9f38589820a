#include "base/PlatformFiles.h"

#include "base/PlatformWide.h"
#include "base/Unicode.h"

#include <algorithm>
#include <io.h>
#include <windows.h>

namespace Platform {

namespace {

HANDLE handleOf(FILE* file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
}

}  // namespace

std::string nativePath(const std::string& path)
{
    std::string native = path;
    std::replace(native.begin(), native.end(), '/', '\\');
    return native;
}

std::string pathFromOutside(const std::string& path)
{
    return nativePath(path);
}

FILE* openFile(const std::string& path, const std::string& mode)
{
    FILE* const file = openWide(widePath(path), mode, FILE_SHARE_READ | FILE_SHARE_WRITE);
    const bool reads = mode.compare(0, 1, "r") == 0;
    if (file != nullptr && reads && GetFileType(handleOf(file)) != FILE_TYPE_DISK) {
        fclose(file);
        SetLastError(ERROR_BAD_FILE_TYPE);
        return nullptr;
    }
    return file;
}

std::string kindOfNoFile(const std::string& path)
{
    const std::wstring wide = widePath(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return "a folder";
    }
    const HANDLE file = CreateFileW(wide.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return {};
    }
    const DWORD kind = GetFileType(file);
    CloseHandle(file);
    if (kind == FILE_TYPE_DISK) {
        return {};
    }
    return kind == FILE_TYPE_PIPE ? "a pipe" : "a device";  // sockets have no names here
}

std::string resolveLinks(const std::string& path)
{
    const HANDLE file = CreateFileW(widePath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nativePath(path);
    }
    wchar_t resolved[32768];
    const DWORD length = GetFinalPathNameByHandleW(file, resolved, 32768, FILE_NAME_NORMALIZED);
    CloseHandle(file);
    return length > 0 && length < 32768 ? pathFromWide(std::wstring(resolved, length))
                                        : nativePath(path);
}

bool fileExists(const std::string& path)
{
    return GetFileAttributesW(widePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool removeFile(const std::string& path)
{
    return DeleteFileW(widePath(path).c_str()) != 0;
}

bool renameFile(const std::string& from, const std::string& to)
{
    return MoveFileExW(widePath(from).c_str(), widePath(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0;
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
    const std::wstring wide = widePath(path);
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

bool makeTrash()
{
    return true;  // every drive that can have one does
}

bool copyFile(const std::string& source, const std::string& destination)
{
    // Copied beside the destination first: a drive that fills up leaves no half file under the
    // name.
    const std::wstring target = widePath(destination);
    const std::wstring partial = temporaryNameBeside(target, L".part");
    constexpr DWORD kReplaceForCertain = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (CopyFileW(widePath(source).c_str(), partial.c_str(), FALSE) != 0 && flushFile(partial) &&
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
    return SetCurrentDirectoryW(widePath(path).c_str()) != 0 ? 0 : -1;
}

std::string currentDirectory()
{
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return pathFromWide(folder);
}

}  // namespace Platform
