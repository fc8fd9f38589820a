#include "document/BookNumbers.h"

#include <gtest/gtest.h>

#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>

namespace {

void writeProject(const TemporaryFolder& folder, const std::string& name, int number)
{
    writeFile(folder.file(name),
              "\xEF\xBB\xBFPRODUCT " + std::to_string(number) + ", \"Zoo\"\r\nSCRIPT # \r\n");
}

std::string sameNumber(const TemporaryFolder& folder, const std::string& project, int number)
{
    return projectsOfSameNumber(folder.file(project), number).join(' ').toStdString();
}

}  // namespace

TEST(BookNumbers, OtherProjectsOfTheFolderWithTheNumberAreFound)
{
    const TemporaryFolder folder;
    writeProject(folder, "book.oidpro", 900);
    writeProject(folder, "zoo.oidpro", 900);
    writeProject(folder, "farm.oidpro", 900);
    writeProject(folder, "sea.oidpro", 901);
    EXPECT_EQ(sameNumber(folder, "book.oidpro", 900), "farm.oidpro zoo.oidpro");
    EXPECT_EQ(sameNumber(folder, "book.oidpro", 901), "sea.oidpro");
    EXPECT_EQ(sameNumber(folder, "book.oidpro", 902), "");
}

TEST(BookNumbers, AProjectWrittenByHandIsFound)
{
    const TemporaryFolder folder;
    writeFile(folder.file("zoo.oidpro"), "# my zoo\n\n  PRODUCT 900 Zoo\nIMAGE\n");
    EXPECT_EQ(sameNumber(folder, "book.oidpro", 900), "zoo.oidpro");
}

TEST(BookNumbers, AScriptThatSpeaksOfAProductIsNoBook)
{
    const TemporaryFolder folder;
    writeFile(folder.file("zoo.oidpro"), "SCRIPT\nPRODUCT 900 Zoo\n");
    EXPECT_EQ(sameNumber(folder, "book.oidpro", 900), "");
}

TEST(BookNumbers, TheNextFreeNumberIsOneThatNoProjectHas)
{
    const TemporaryFolder folder;
    EXPECT_EQ(nextFreeNumber(folder.file("book.oidpro")), 900);
    writeProject(folder, "book.oidpro", 900);
    writeProject(folder, "zoo.oidpro", 901);
    writeProject(folder, "sea.oidpro", 903);
    EXPECT_EQ(nextFreeNumber(folder.file("book.oidpro")), 902);
}

TEST(BookNumbers, ANumberWhosePicturesLieThereIsNotFree)
{
    const TemporaryFolder folder;
    writeFile(folder.file("900-bkgnd0.jpg"), "");
    std::filesystem::create_directory(folder.file("901-audio"));
    EXPECT_EQ(nextFreeNumber(folder.file("book.oidpro")), 902);
}

TEST(BookNumbers, WhenAllAreTakenThereIsNone)
{
    const TemporaryFolder folder;
    for (int number = 900; number <= 999; ++number) {
        writeFile(folder.file(std::to_string(number) + "-bkgnd0.jpg"), "");
    }
    EXPECT_EQ(nextFreeNumber(folder.file("book.oidpro")), 0);
}

TEST(BookNumbers, ANumberOfAnotherBookIsNotFree)
{
    const TemporaryFolder folder;
    writeProject(folder, "zoo.oidpro", 901);
    EXPECT_EQ(nextFreeNumber(folder.file("book.oidpro"), {900, 902}), 903);
}

TEST(BookNumbers, TheNumberOfABookIsRead)
{
    const TemporaryFolder folder;
    writeProject(folder, "zoo.oidpro", 917);
    EXPECT_EQ(numberOfBook(folder.file("zoo.oidpro")), 917);
    EXPECT_EQ(numberOfBook(folder.file("missing.oidpro")), 0);
}

TEST(BookNumbers, FilesAreFoundByTheirNumber)
{
    const TemporaryFolder folder;
    for (const char* const name : {"900-bkgnd1.jpg", "900-bkgnd0.jpg", "9000-bkgnd0.jpg", "900"}) {
        writeFile(folder.file(name), "");
    }
    std::filesystem::create_directory(folder.file("900-audio"));
    EXPECT_EQ(filesOfNumber(QString::fromStdString(folder.path()), 900).join(' ').toStdString(),
              "900-audio 900-bkgnd0.jpg 900-bkgnd1.jpg");
}
