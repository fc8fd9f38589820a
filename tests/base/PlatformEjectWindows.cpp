#include "base/PlatformEject.h"

#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(Ejecting, AFolderOrTheDriveOfTheSystemIsNoRemovableDrive)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Platform::ejectVolume(folder.path()), "it is no removable drive");
    EXPECT_EQ(Platform::ejectVolume("C:"), "it is no removable drive");
}
