#include "base/FileSystem.h"

#include "base/PlatformFiles.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(Paths, TheSeparatorIsTheBackslashEverywhere)
{
    EXPECT_EQ(FileSystem::directorySeparator, '\\');
}

TEST(Paths, TheLastBackslashWinsOverALaterSlash)
{
    EXPECT_EQ(FileSystem::getDirectoryOfPath("a/b\\c/d"), "a/b");
    EXPECT_EQ(FileSystem::getFilenameOfPath("a/b\\c/d"), "c/d");
}

TEST(Paths, ASlashSeparatesWhereThereIsNoBackslash)
{
    EXPECT_EQ(FileSystem::getDirectoryOfPath("/home/a/book.oidpro"), "/home/a");
    EXPECT_EQ(FileSystem::getFilenameOfPath("/home/a/book.oidpro"), "book.oidpro");
    EXPECT_EQ(FileSystem::getDirectoryOfPath("/book"), "");
}

TEST(Paths, APlainNameLiesInThePoint)
{
    EXPECT_EQ(FileSystem::getDirectoryOfPath("book.oidpro"), ".");
    EXPECT_EQ(FileSystem::getDirectoryOfPath(""), ".");
    EXPECT_EQ(FileSystem::getFilenameOfPath("book.oidpro"), "book.oidpro");
}

TEST(Paths, TheExtensionIsCutAtTheLastDotOfTheWholePath)
{
    EXPECT_EQ(FileSystem::trimFileExtension("C:\\my.dir\\file"), "C:\\my");
    EXPECT_EQ(FileSystem::trimFileExtension("book.tar.gz"), "book.tar");
    EXPECT_EQ(FileSystem::trimFileExtension("book"), "book");
}

TEST(Files, AreOpenedByBackslashAndByNonAsciiNames)
{
    const TemporaryFolder folder;
    FILE* file = FileSystem::myfopen(folder.path() + "\\Müh.txt", "wb");
    ASSERT_NE(file, nullptr);
    fputs("moo", file);
    fclose(file);
    EXPECT_EQ(readFile(folder.file("Müh.txt")), "moo");
    EXPECT_EQ(FileSystem::myfopen(folder.file("none.txt"), "rb"), nullptr);
}

TEST(Files, AFolderDoesNotOpenAsAFile)
{
    const TemporaryFolder folder;
    EXPECT_EQ(FileSystem::myfopen(folder.path(), "rb"), nullptr);
}

TEST(Files, ExistAsFilesAndAsFolders)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a"), "");
    EXPECT_TRUE(FileSystem::doesFileExist(folder.path()));
    EXPECT_TRUE(FileSystem::doesFileExist(folder.path() + "\\a"));
    EXPECT_FALSE(FileSystem::doesFileExist(folder.file("b")));
    EXPECT_FALSE(FileSystem::doesFileExist(""));
}

TEST(Files, AreCopiedOverWhatIsThere)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a"), std::string(200000, 'x'));
    writeFile(folder.file("b"), "old");
    EXPECT_TRUE(FileSystem::copyFileContent(folder.path() + "\\a", folder.path() + "\\b"));
    EXPECT_EQ(readFile(folder.file("b")), std::string(200000, 'x'));
    EXPECT_EQ(folder.listing(), "a b");
}

TEST(Files, AFailedCopyLeavesTheDestinationAsItWas)
{
    const TemporaryFolder folder;
    writeFile(folder.file("b"), "old");
    EXPECT_FALSE(FileSystem::copyFileContent(folder.file("none"), folder.file("b")));
    EXPECT_EQ(readFile(folder.file("b")), "old");
    EXPECT_FALSE(FileSystem::copyFileContent(folder.file("b"), folder.file("none/c")));
    EXPECT_EQ(folder.listing(), "b");
}

TEST(Files, AreDeletedOnce)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a"), "");
    EXPECT_TRUE(FileSystem::deleteFile(folder.path() + "\\a"));
    EXPECT_FALSE(FileSystem::deleteFile(folder.file("a")));
}

TEST(Folders, AreCreatedUnlessAFileIsInTheWay)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(FileSystem::createDirectory(folder.path() + "\\audio"));
    EXPECT_TRUE(FileSystem::createDirectory(folder.file("audio")));
    writeFile(folder.file("file"), "");
    EXPECT_FALSE(FileSystem::createDirectory(folder.file("file")));
    EXPECT_FALSE(FileSystem::createDirectory(folder.file("none/audio")));
}

TEST(Folders, TheCurrentOneIsChangedAndTold)
{
    const TemporaryFolder folder;
    const std::string before = FileSystem::getCurrentDirectory();
    EXPECT_NE(FileSystem::setCurrentDirectory(folder.file("none")), 0);
    EXPECT_EQ(FileSystem::getCurrentDirectory(), before);
    ASSERT_TRUE(FileSystem::createDirectory(folder.file("a b")));
    EXPECT_EQ(FileSystem::setCurrentDirectory(folder.path() + "\\a b"), 0);
    EXPECT_EQ(FileSystem::getCurrentDirectory(), fs::canonical(folder.file("a b")).u8string());
    EXPECT_EQ(FileSystem::setCurrentDirectory(before), 0);
}

TEST(Folders, TheProgramKnowsItsOwn)
{
    EXPECT_TRUE(FileSystem::doesFileExist(programFile(FileSystem::exeDirectory() + "/base_tests")));
}

TEST(RunningACommand, GivesTwoWhenItCannotStart)
{
    EXPECT_EQ(FileSystem::execCommand("no-such-program-here x", true, true), 2);
    EXPECT_EQ(FileSystem::execCommand("", true, true), 2);
}

TEST(ReplacingAFile, WorksForAFileWithTheLongestNameThereIs)
{
    const TemporaryFolder folder;
    const std::string name(255, 'x');
    Platform::FileReplacement replacement(folder.file(name));
    ASSERT_NE(replacement.file(), nullptr);
    fputs("moo", replacement.file());
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(readFile(folder.file(name)), "moo");
    EXPECT_EQ(folder.listing(), name);
}

TEST(ReplacingAFile, HappensAtTheCommitAndNotBefore)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    Platform::FileReplacement replacement(folder.path() + "\\book");
    ASSERT_NE(replacement.file(), nullptr);
    fputs("new", replacement.file());
    EXPECT_EQ(readFile(folder.file("book")), "old");
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(readFile(folder.file("book")), "new");
    EXPECT_EQ(folder.listing(), "book");
}

TEST(ReplacingAFile, WithoutACommitLeavesTheOldOne)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    {
        Platform::FileReplacement replacement(folder.file("book"));
        fputs("new", replacement.file());
    }
    EXPECT_EQ(readFile(folder.file("book")), "old");
    EXPECT_EQ(folder.listing(), "book");
}

TEST(ReplacingAFile, CannotReplaceAFolderOrReachIntoAMissingOne)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Platform::FileReplacement(folder.path()).file(), nullptr);
    EXPECT_EQ(Platform::FileReplacement(folder.file("none/book")).file(), nullptr);
    EXPECT_EQ(Platform::FileReplacement("").file(), nullptr);
    EXPECT_EQ(folder.listing(), "");
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
