#include "tests/faults/LoopDrive.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <linux/loop.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t kBytes = 16 << 20;

// Of ext4, which the system's headers do not tell: from now on it does nothing any more, and writes
// nothing of what it still holds.
constexpr unsigned long kShutDown = _IOR('X', 125, __u32);
constexpr __u32 kWithoutFlushing = 2;

}  // namespace

LoopDrive::LoopDrive()
{
    if (unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        fail("no mounts of our own");
        return;
    }
    mkdir(place.c_str(), 0755);
    if (attach() &&
        std::system(("/sbin/mkfs.ext4 -q " + device + " >/dev/null 2>&1").c_str()) != 0) {
        fail("no mkfs.ext4");
    } else if (problem.empty()) {
        mountIt();
    }
}

LoopDrive::~LoopDrive()
{
    if (isMounted) {
        umount2(place.c_str(), MNT_DETACH);
    }
    if (loop >= 0) {
        ioctl(loop, LOOP_CLR_FD, 0);
        close(loop);
    }
}

void LoopDrive::fail(const std::string& what)
{
    problem = what + ": " + std::strerror(errno);
}

bool LoopDrive::attach()
{
    const std::string image = folder.file("image");
    const int file = open(image.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
    const int control = open("/dev/loop-control", O_RDWR | O_CLOEXEC);
    const int number = control >= 0 ? ioctl(control, LOOP_CTL_GET_FREE) : -1;
    device = "/dev/loop" + std::to_string(number);
    loop = number >= 0 ? open(device.c_str(), O_RDWR | O_CLOEXEC) : -1;
    const bool done =
        ftruncate(file, kBytes) == 0 && loop >= 0 && ioctl(loop, LOOP_SET_FD, file) == 0;
    if (!done) {
        fail("no loop device");
    }
    close(file);
    close(control);
    return done;
}

bool LoopDrive::mountIt()
{
    isMounted = mount(device.c_str(), place.c_str(), "ext4", MS_NOATIME, nullptr) == 0;
    if (!isMounted) {
        fail("cannot be mounted");
    }
    return isMounted;
}

void LoopDrive::vanish() const
{
    const int handle = open(place.c_str(), O_RDONLY | O_CLOEXEC);
    __u32 how = kWithoutFlushing;
    if (handle < 0 || ioctl(handle, kShutDown, &how) != 0) {
        std::abort();  // a test that shows nothing
    }
    close(handle);
}

void LoopDrive::comeBack()
{
    umount2(place.c_str(), 0);
    mountIt();
}
