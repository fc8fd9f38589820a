#include "base/PlatformDrives.h"

#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(FolderHolds, ANameInAnyCase)
{
    const TemporaryFolder folder;
    writeFile(folder.file("TipToi.ICO"), "");
    EXPECT_TRUE(Platform::folderHolds(folder.path(), "tiptoi.ico"));
    EXPECT_FALSE(Platform::folderHolds(folder.path(), "tiptoi.ic"));
    EXPECT_FALSE(Platform::folderHolds(folder.file("vanished"), "tiptoi.ico"));
}
