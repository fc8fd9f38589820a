// What stands in the place of a file and is none.
#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "tests/helpers/TemporaryFolder.h"

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// A folder with one of each kind: book.txt, pipe, socket, folder, device, link (to the pipe).
class OfEachKind : public TemporaryFolder
{
public:
    OfEachKind()
    {
        writeFile(file("book.txt"), "moo");
        EXPECT_EQ(mkfifo(file("pipe").c_str(), 0600), 0);
        fs::create_directory(file("folder"));
        fs::create_symlink("/dev/zero", file("device"));
        fs::create_symlink("pipe", file("link"));
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        strncpy(address.sun_path, file("socket").c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(bind(handle, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    ~OfEachKind() { close(handle); }

private:
    int handle = ::socket(AF_UNIX, SOCK_STREAM, 0);
};

const char* const kNoFiles[] = {"pipe", "socket", "folder", "device", "link", "missing"};

}  // namespace

TEST(Inputs, OnlyFilesAreOpened)
{
    const OfEachKind folder;
    FILE* const file = FileSystem::myfopen(folder.path() + "\\book.txt", "rb");
    ASSERT_NE(file, nullptr);
    fclose(file);
    for (const char* name : kNoFiles) {
        EXPECT_EQ(FileSystem::myfopen(folder.file(name), "rb"), nullptr) << name;
        QFile input;
        EXPECT_FALSE(openInput(input, folder.file(name))) << name;
        EXPECT_EQ(readInput(folder.file(name)), std::nullopt) << name;
    }
    EXPECT_EQ(readInput(folder.path() + "\\book.txt"), QByteArray("moo"));
}

TEST(Inputs, TheSystemsWordsTellWhatIsWrong)
{
    const OfEachKind folder;
    EXPECT_EQ(FileSystem::myfopen(folder.file("folder"), "rb"), nullptr);
    EXPECT_EQ(Platform::lastFileError(), "Is a directory");
    EXPECT_EQ(FileSystem::myfopen(folder.file("pipe"), "rb"), nullptr);
    EXPECT_EQ(Platform::lastFileError(), "No such device or address");
}

TEST(Inputs, WhatIsNoFileIsNamed)
{
    const OfEachKind folder;
    const auto why = [&](const char* name) {
        return FileSystem::whyNoFile(folder.path() + "\\" + name);
    };
    const auto is = [&](const char* name, const char* kind) {
        return "'" + folder.file(name) + "' is " + kind + ", not a file";
    };
    EXPECT_EQ(why("pipe"), is("pipe", "a pipe"));
    EXPECT_EQ(why("link"), is("link", "a pipe"));
    EXPECT_EQ(why("socket"), is("socket", "a socket"));
    EXPECT_EQ(why("folder"), is("folder", "a folder"));
    EXPECT_EQ(why("device"), is("device", "a device"));
    EXPECT_EQ(why("book.txt"), "");
    EXPECT_EQ(why("missing"), "");
}

TEST(Inputs, ThatAreLargerThanAskedForAreNotRead)
{
    const OfEachKind folder;
    EXPECT_EQ(readInput(folder.file("book.txt"), 3), QByteArray("moo"));
    EXPECT_EQ(readInput(folder.file("book.txt"), 2), std::nullopt);
}
