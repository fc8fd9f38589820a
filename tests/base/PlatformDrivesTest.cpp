#include "base/PlatformDrives.h"

#include "tests/helpers/TemporaryFolder.h"

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

TEST(FolderHolds, ANameInAnyCase)
{
    const TemporaryFolder folder;
    writeFile(folder.file("TipToi.ICO"), "");
    EXPECT_TRUE(Platform::folderHolds(folder.path(), "tiptoi.ico"));
    EXPECT_FALSE(Platform::folderHolds(folder.path(), "tiptoi.ic"));
    EXPECT_FALSE(Platform::folderHolds(folder.file("vanished"), "tiptoi.ico"));
}

TEST(FolderHolds, NamesInTheRootFolder)
{
    EXPECT_TRUE(Platform::folderHolds("", "etc"));
}
