#pragma once

#include <optional>
#include <string>

#include "tests/helpers/TemporaryFolder.h"

// A small drive (ext4) on a file in memory, which can vanish at any moment and come back as it was
// then. Only the administrator can have one, and only this process sees it.
class LoopDrive
{
public:
    LoopDrive();
    ~LoopDrive();
    LoopDrive(const LoopDrive&) = delete;
    LoopDrive& operator=(const LoopDrive&) = delete;

    // Why there is no such drive on this machine; empty when there is one.
    const std::string& whyNone() const { return problem; }

    const std::string& path() const { return place; }
    std::string file(const std::string& name) const { return place + "/" + name; }
    // From now on every operation on it fails, and what the system had not yet handed to it is
    // lost. On any thread.
    void vanish() const;
    // It is plugged in again.
    void comeBack();

private:
    bool attach();
    bool mountIt();
    void fail(const std::string& what);

    const TemporaryFolder folder;
    std::string place = folder.file("drive");
    std::string device;  // "/dev/loop0"
    int loop = -1;
    bool isMounted = false;
    std::string problem;
};
