#include "base/PlatformWide.h"

#include "base/Unicode.h"

#include <algorithm>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace Platform {

namespace {

constexpr wchar_t kLong[] = L"\\\\?\\";
constexpr wchar_t kLongServer[] = L"\\\\?\\UNC\\";

bool beginsWith(const std::wstring& text, const std::wstring& start)
{
    return text.compare(0, start.size(), start) == 0;
}

std::wstring fullPath(const std::wstring& path)
{
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full;
}

struct OpenMode
{
    DWORD access;
    DWORD creation;
};

OpenMode openModeOf(const std::string& mode)
{
    const bool both = mode.find('+') != std::string::npos;
    switch (mode.empty() ? 'r' : mode[0]) {
    case 'w':
        return {GENERIC_WRITE | (both ? GENERIC_READ : 0), CREATE_ALWAYS};
    case 'a':
        return {GENERIC_WRITE | (both ? GENERIC_READ : 0), OPEN_ALWAYS};
    default:
        return {GENERIC_READ | (both ? GENERIC_WRITE : 0), OPEN_EXISTING};
    }
}

}  // namespace

std::wstring widePath(const std::string& path)
{
    constexpr size_t kLongest = 247;  // characters; a folder leaves room for a short file name
    std::wstring wide = fromUtf8(path);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (wide.empty() || beginsWith(wide, kLong)) {
        return wide;
    }
    const std::wstring full = fullPath(wide);
    if (full.size() <= kLongest || beginsWith(full, L"\\\\.\\")) {
        return wide;
    }
    return beginsWith(full, L"\\\\") ? kLongServer + full.substr(2) : kLong + full;
}

std::string pathFromWide(const std::wstring& path)
{
    if (beginsWith(path, kLongServer)) {
        return toUtf8((L"\\\\" + path.substr(std::size(kLongServer) - 1)).c_str());
    }
    return toUtf8(path.c_str() + (beginsWith(path, kLong) ? std::size(kLong) - 1 : 0));
}

FILE* openWide(const std::wstring& path, const std::string& mode, unsigned long sharing)
{
    const OpenMode how = openModeOf(mode);
    const HANDLE handle = CreateFileW(path.c_str(), how.access, sharing, nullptr, how.creation,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    const int flags = _O_NOINHERIT | (mode.compare(0, 1, "a") == 0 ? _O_APPEND : 0) |
                      (mode.find('b') != std::string::npos ? _O_BINARY : _O_TEXT);
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), flags);
    FILE* const file = descriptor >= 0 ? _fdopen(descriptor, mode.c_str()) : nullptr;
    if (file == nullptr) {
        if (descriptor >= 0) {
            _close(descriptor);
        } else {
            CloseHandle(handle);
        }
    }
    return file;
}

}  // namespace Platform
