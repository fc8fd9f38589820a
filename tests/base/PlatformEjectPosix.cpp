#include "base/PlatformEject.h"

#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QStorageInfo>

#include <gtest/gtest.h>

namespace {

// A drive that every Linux has, and a UDisks that does as planned.
class Ejecting : public testing::Test
{
protected:
    std::string eject(const std::string& plan)
    {
        udisks.plan(plan);
        return Platform::ejectVolume("/proc");
    }

    const TemporaryFolder folder;
    const FakeProgram udisks{folder.path(), "udisksctl"};
    const ChangedVariable path{"PATH", folder.path()};
};

}  // namespace

TEST_F(Ejecting, UDisksUnmountsItsDeviceAndAsksNobody)
{
    EXPECT_EQ(eject("print Unmounted proc.\n"), "");
    EXPECT_EQ(udisks.calls(), "unmount\n--no-user-interaction\n--block-device\n" +
                                  QStorageInfo("/proc").device().toStdString() + "\n\n");
}

TEST_F(Ejecting, WhatUDisksSaysIsTheReason)
{
    EXPECT_EQ(eject("error Error unmounting /dev/sdb1: GDBus.Error:org.freedesktop.UDisks2.Error."
                    "DeviceBusy: Error unmounting /dev/sdb1: target is busy\nexit 1\n"),
              "target is busy");
    EXPECT_EQ(eject("error Error looking up object for device proc\nexit 1\n"),
              "Error looking up object for device proc");
    EXPECT_EQ(eject("exit 1\n"), "udisksctl failed");
}

TEST_F(Ejecting, AFolderOrTheRootIsNoDriveOfItsOwn)
{
    EXPECT_EQ(Platform::ejectVolume(folder.path()), "it is no drive of its own");
    EXPECT_EQ(Platform::ejectVolume(""), "it is no drive of its own");
    EXPECT_EQ(udisks.calls(), "");
}

TEST(EjectingWithoutUDisks, IsTold)
{
    const TemporaryFolder empty;
    const ChangedVariable path("PATH", empty.path());
    EXPECT_EQ(Platform::ejectVolume("/proc"), "udisksctl is not installed (it is not on PATH)");
}
