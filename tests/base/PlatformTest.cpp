#include <gtest/gtest.h>

#include <cstdint>

#include "base/PlatformFiles.h"
#include "base/PlatformMemory.h"
#include "tests/helpers/TemporaryFolder.h"

TEST(Memory, SomeIsAvailableAndNoMachineHasAPetabyte)
{
    EXPECT_GT(Platform::availableMemory(), 1ULL << 20);
    EXPECT_LT(Platform::availableMemory(), 1ULL << 50);
}

TEST(Files, PositionsBeyondFourGigabytesAreReached)
{
    const TemporaryFolder folder;
    FILE* file = Platform::openFile(folder.file("sparse"), "wb");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(Platform::seekFile(file, 5000000000, SEEK_SET), 5000000000);
    EXPECT_EQ(Platform::seekFile(file, -1, SEEK_CUR), 4999999999);
    EXPECT_EQ(Platform::seekFile(file, 0, SEEK_END), 0);
    EXPECT_EQ(Platform::seekFile(file, -1, SEEK_SET), -1);
    EXPECT_EQ(fclose(file), 0);
}
