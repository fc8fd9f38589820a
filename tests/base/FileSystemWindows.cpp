// Files as Windows has them: long paths, letters of all languages, files that others hold open.
#include "base/FileSystem.h"

#include "base/PlatformDrives.h"
#include "base/PlatformFiles.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace fs = std::filesystem;

namespace {

// A folder with letters of several languages and more than 260 characters.
class LongFolder
{
public:
    LongFolder() : path(folder.path())
    {
        for (int i = 0; i < 4; ++i) {
            path += "/" + std::string(70, 'x') + "ß語Ж";
            EXPECT_TRUE(FileSystem::createDirectory(path)) << path;
        }
    }
    std::string file(const std::string& name) const { return path + "\\" + name; }

private:
    TemporaryFolder folder;

public:
    std::string path;
};

void write(const std::string& path, const std::string& text)
{
    FILE* const file = FileSystem::myfopen(path, "wb");
    ASSERT_NE(file, nullptr) << Platform::lastFileError();
    fputs(text.c_str(), file);
    fclose(file);
}

std::string read(const std::string& path)
{
    FILE* const file = FileSystem::myfopen(path, "rb");
    if (file == nullptr) {
        return "cannot open: " + Platform::lastFileError();
    }
    char text[100] = {};
    const size_t size = fread(text, 1, sizeof text, file);
    fclose(file);
    return {text, size};
}

// Another program that works with the file.
class HeldOpen
{
public:
    explicit HeldOpen(const std::string& path)
        : handle(CreateFileW(fs::u8path(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        EXPECT_NE(handle, INVALID_HANDLE_VALUE);
    }
    ~HeldOpen() { CloseHandle(handle); }
    HeldOpen(const HeldOpen&) = delete;
    HeldOpen& operator=(const HeldOpen&) = delete;

private:
    HANDLE handle;
};

}  // namespace

TEST(LongPaths, AreWrittenReadAndFound)
{
    const LongFolder folder;
    write(folder.file("Müh 牛.txt"), "moo");
    EXPECT_EQ(read(folder.file("Müh 牛.txt")), "moo");
    EXPECT_TRUE(FileSystem::doesFileExist(folder.file("Müh 牛.txt")));
    EXPECT_FALSE(FileSystem::doesFileExist(folder.file("none")));
    EXPECT_EQ(Platform::kindOfNoFile(folder.path), "a folder");
    EXPECT_EQ(Platform::kindOfNoFile(folder.file("Müh 牛.txt")), "");
    EXPECT_TRUE(Platform::folderHolds(folder.path, "müh 牛.TXT"));
}

TEST(LongPaths, AreCopiedRenamedAndRemoved)
{
    const LongFolder folder;
    write(folder.file("a"), "moo");
    EXPECT_TRUE(FileSystem::copyFileContent(folder.file("a"), folder.file("b")));
    EXPECT_TRUE(Platform::renameFile(folder.file("b"), folder.file("ç")));
    EXPECT_FALSE(Platform::renameFile(folder.file("a"), folder.file("ç")));
    EXPECT_EQ(read(folder.file("ç")), "moo");
    EXPECT_TRUE(FileSystem::deleteFile(folder.file("ç")));
    EXPECT_FALSE(FileSystem::doesFileExist(folder.file("ç")));
}

TEST(LongPaths, AreReplacedWhole)
{
    const LongFolder folder;
    write(folder.file("book"), "old");
    Platform::FileReplacement replacement(folder.file("book"));
    ASSERT_NE(replacement.file(), nullptr);
    fputs("new", replacement.file());
    EXPECT_EQ(read(folder.file("book")), "old");
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(read(folder.file("book")), "new");
    EXPECT_EQ(Platform::resolveLinks(folder.file("book")),
              Platform::nativePath(Platform::resolveLinks(folder.path + "/book")));
}

TEST(Folders, OfAnyLettersCanBeTheCurrentOne)
{
    const TemporaryFolder folder;
    const std::string inside = folder.path() + "\\Bücher 書 Ж";
    ASSERT_TRUE(FileSystem::createDirectory(inside));
    const FileSystem::WorkingFolder before(inside);
    EXPECT_EQ(FileSystem::getCurrentDirectory(), Platform::nativePath(inside));
    write("here", "moo");
    EXPECT_EQ(read(inside + "\\here"), "moo");
}

TEST(NativePaths, HaveBackslashesOnly)
{
    EXPECT_EQ(Platform::nativePath("C:\\books/zoo/farm.oidpro"), "C:\\books\\zoo\\farm.oidpro");
}

TEST(HeldFiles, AreNotReplacedAndNothingStaysBeside)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    {
        const HeldOpen other(folder.file("book"));
        Platform::FileReplacement replacement(folder.file("book"));
        ASSERT_NE(replacement.file(), nullptr);
        fputs("new", replacement.file());
        EXPECT_FALSE(replacement.commit());
    }
    EXPECT_EQ(readFile(folder.file("book")), "old");
    EXPECT_EQ(folder.listing(), "book");
}

TEST(HeldFiles, AreNotRemovedOrCopiedOver)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    writeFile(folder.file("other"), "new");
    const HeldOpen other(folder.file("book"));
    EXPECT_FALSE(FileSystem::deleteFile(folder.file("book")));
    EXPECT_FALSE(FileSystem::copyFileContent(folder.file("other"), folder.file("book")));
    EXPECT_EQ(readFile(folder.file("book")), "old");
    EXPECT_EQ(folder.listing(), "book other");
}

TEST(HeldFiles, WhatIsBeingWrittenHasAnotherNameForTheNextOne)
{
    const TemporaryFolder folder;
    Platform::FileReplacement first(folder.file("book"));
    Platform::FileReplacement second(folder.file("book"));
    ASSERT_NE(second.file(), nullptr);
    EXPECT_EQ(folder.listing(), "book.unfinished book.unfinished2");
    fputs("second", second.file());
    EXPECT_TRUE(second.commit());
    EXPECT_EQ(readFile(folder.file("book")), "second");
}

TEST(HeldFiles, AFileThatIsOnlyForReadingIsNotReplaced)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    fs::permissions(fs::u8path(folder.file("book")), fs::perms::owner_read);
    EXPECT_EQ(Platform::FileReplacement(folder.file("book")).file(), nullptr);
    fs::permissions(fs::u8path(folder.file("book")), fs::perms::all);
}

TEST(PenVolumes, AreTheDrivesFromD)
{
    const std::vector<std::string> volumes = Platform::penVolumes();
    EXPECT_EQ(volumes.front(), "D:");
    EXPECT_EQ(volumes.back(), "Z:");
    EXPECT_EQ(volumes.size(), 23U);
}

TEST(PenVolumes, TheRootOfADriveIsSearched)
{
    // The drive of the system, whatever its letter.
    const std::string drive = fs::path(fs::temp_directory_path()).root_name().u8string();
    EXPECT_TRUE(Platform::folderHolds(drive, "Windows"));
    EXPECT_TRUE(Platform::folderHolds(drive, "WINDOWS"));
    EXPECT_FALSE(Platform::folderHolds(drive, "tiptoi.ico"));
}
