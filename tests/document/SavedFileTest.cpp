#include "document/SavedFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

class SavedFileTest : public testing::Test
{
protected:
    SavedFileTest() { saveAs("Zoo"); }

    // As this window.
    void saveAs(const std::string& name)
    {
        book.productName = name;
        ASSERT_TRUE(book.save(path));
        file.isWritten(book);
    }

    void otherSaves(const std::string& name)
    {
        Oid::OidProject other;
        other.productName = name;
        ASSERT_TRUE(other.save(path));
    }

    TemporaryFolder folder;
    std::string path = folder.file("zoo.oidpro");
    Oid::OidProject book;
    SavedFile file;
};

}  // namespace

TEST_F(SavedFileTest, WhatWasJustWrittenIsNotChanged)
{
    EXPECT_FALSE(file.wasChanged());
    book.productName = "Farm";
    EXPECT_FALSE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, WhatWasJustReadIsNotChanged)
{
    writeFile(path, "PRODUCT 7, Zoo\n");  // by hand: saving would write it otherwise
    file.isRead(path);
    EXPECT_FALSE(file.wasChanged());
    EXPECT_FALSE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, WhatAnotherProgramWroteIsChangedAndWouldBeLost)
{
    otherSaves("Farm");
    EXPECT_TRUE(file.wasChanged());
    EXPECT_TRUE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AChangeOfTheSameLengthAtTheSameTimeIsNoticed)
{
    setTime(path, "2024-05-31 14:05:40");
    otherSaves("Cow");
    setTime(path, "2024-05-31 14:05:40");
    EXPECT_TRUE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AnotherTimeAloneIsNoChange)
{
    setTime(path, "2024-05-31 14:05:40");
    EXPECT_FALSE(file.wasChanged());
}

TEST_F(SavedFileTest, WhatSavingWouldWriteAnywayIsNotLost)
{
    otherSaves("Farm");
    book.productName = "Farm";
    EXPECT_TRUE(file.wasChanged());
    EXPECT_FALSE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, WhatWasWrittenWhileTheFileWasReadIsNoticed)
{
    file.isRead(path);
    otherSaves("Farm");
    EXPECT_TRUE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AFileThatVanishedIsNotChanged)
{
    std::filesystem::remove(path);
    EXPECT_FALSE(file.wasChanged());
    EXPECT_FALSE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AFileThatCameToAPlaceWithoutOneIsNoticed)
{
    std::filesystem::remove(path);
    file.isRead(path);
    otherSaves("Farm");
    EXPECT_TRUE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AFileThatWasNeverSeenWouldBeLost)
{
    file.isUnseen(path);
    book.productName = "Farm";
    EXPECT_TRUE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, AFolderOrAPipeInItsPlaceIsNotWaitedFor)
{
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_FALSE(file.wouldBeLost(book));
    std::filesystem::remove(path);
    makePipe(path);
    EXPECT_FALSE(file.wouldBeLost(book));
}

TEST_F(SavedFileTest, WithoutAFileNothingIsLost)
{
    EXPECT_FALSE(SavedFile().wasChanged());
    EXPECT_FALSE(SavedFile().wouldBeLost(book));
}
