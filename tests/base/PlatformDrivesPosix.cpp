#include "base/PlatformDrives.h"

#include <algorithm>
#include <gtest/gtest.h>

TEST(PenVolumes, AreTheMountedVolumesInTheOrderOfTheirMountPoints)
{
    const std::vector<std::string> volumes = Platform::penVolumes();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes.front(), "");  // the root folder
    EXPECT_TRUE(std::is_sorted(volumes.begin(), volumes.end()));
    EXPECT_EQ(std::adjacent_find(volumes.begin(), volumes.end()), volumes.end());
}

TEST(FolderHolds, NamesInTheRootFolder)
{
    EXPECT_TRUE(Platform::folderHolds("", "etc"));
}
