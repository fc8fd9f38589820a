#include "base/PlatformEject.h"

#include "base/PlatformFiles.h"
#include "base/PlatformWide.h"

#include <windows.h>

#include <winioctl.h>

namespace Platform {

namespace {

bool control(HANDLE volume, DWORD code, void* input = nullptr, DWORD size = 0)
{
    DWORD ignored = 0;
    return DeviceIoControl(volume, code, input, size, nullptr, 0, &ignored, nullptr) != 0;
}

// Who looks at a new file, such as a virus scanner, is done with it soon.
bool lockPatiently(HANDLE volume)
{
    constexpr int kAttempts = 20;
    constexpr DWORD kPause = 250;  // ms
    for (int i = 0; i < kAttempts; ++i) {
        if (control(volume, FSCTL_LOCK_VOLUME)) {
            return true;
        }
        if (GetLastError() != ERROR_ACCESS_DENIED && GetLastError() != ERROR_SHARING_VIOLATION) {
            return false;
        }
        Sleep(kPause);
    }
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

std::string letGo(HANDLE volume)
{
    FlushFileBuffers(volume);
    if (!lockPatiently(volume)) {
        return GetLastError() == ERROR_ACCESS_DENIED ? "another program uses it" : lastFileError();
    }
    if (!control(volume, FSCTL_DISMOUNT_VOLUME)) {
        return lastFileError();
    }
    // Some drives know no ejecting; nothing is lost any more when they are pulled out.
    PREVENT_MEDIA_REMOVAL allowed = {FALSE};
    control(volume, IOCTL_STORAGE_MEDIA_REMOVAL, &allowed, sizeof allowed);
    control(volume, IOCTL_STORAGE_EJECT_MEDIA);
    return {};
}

}  // namespace

std::string ejectVolume(const std::string& root)
{
    const bool isDrive = root.size() == 2 && root[1] == ':';
    if (!isDrive || GetDriveTypeW(widePath(root + "\\").c_str()) != DRIVE_REMOVABLE) {
        return "it is no removable drive";
    }
    const HANDLE volume =
        CreateFileW(widePath("\\\\.\\" + root).c_str(), GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (volume == INVALID_HANDLE_VALUE) {
        return lastFileError();
    }
    std::string why = letGo(volume);
    CloseHandle(volume);
    return why;
}

}  // namespace Platform
