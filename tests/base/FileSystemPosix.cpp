#include "base/FileSystem.h"

#include "base/PlatformFiles.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(RunningACommand, GivesItsExitCode)
{
    EXPECT_EQ(FileSystem::execCommand("sh -c \"exit 7\"", true, true), 7);
    EXPECT_EQ(FileSystem::execCommand("true", false, false), 0);
}

TEST(RunningACommand, ShowsOnlyWhatIsAskedFor)
{
    const auto shown = [](bool output, bool errors) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        FileSystem::execCommand("sh -c \"echo out; echo err >&2\"", output, errors);
        return testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(shown(true, true), "out\nerr\n");
    EXPECT_EQ(shown(true, false), "out\n");
    EXPECT_EQ(shown(false, true), "err\n");
    EXPECT_EQ(shown(false, false), "");
}

TEST(ReplacingAFile, KeepsASymbolicLinkAndThePermissions)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book"), "old");
    fs::permissions(folder.file("book"), fs::perms(0640));
    fs::create_symlink("book", folder.file("link"));
    Platform::FileReplacement replacement(folder.file("link"));
    fputs("new", replacement.file());
    EXPECT_TRUE(replacement.commit());
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(readFile(folder.file("book")), "new");
    EXPECT_EQ(fs::status(folder.file("book")).permissions(), fs::perms(0640));
}

TEST(ReplacingAFile, GoesThroughALinkToAFileThatIsNotThereYet)
{
    const TemporaryFolder folder;
    fs::create_symlink("book", folder.file("link"));
    Platform::FileReplacement replacement(folder.file("link"));
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(folder.listing(), "book link");
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
}

TEST(ReplacingAFile, CannotGoThroughLinksThatGoRoundInACircle)
{
    const TemporaryFolder folder;
    fs::create_symlink("b", folder.file("a"));
    fs::create_symlink("a", folder.file("b"));
    EXPECT_EQ(Platform::FileReplacement(folder.file("a")).file(), nullptr);
    EXPECT_TRUE(fs::is_symlink(folder.file("a")));
}

TEST(ReplacingAFile, WritesToAPipeAsItStands)
{
    testing::internal::CaptureStdout();
    {
        FILE* const pipe = popen("cat", "w");
        ASSERT_NE(pipe, nullptr);
        Platform::FileReplacement replacement("/proc/self/fd/" + std::to_string(fileno(pipe)));
        ASSERT_NE(replacement.file(), nullptr);
        fputs("new", replacement.file());
        EXPECT_TRUE(replacement.commit());
        pclose(pipe);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "new");
}

TEST(ReplacingAFile, OnAFullDiskFailsAtTheCommit)
{
    Platform::FileReplacement full("/dev/full");
    ASSERT_NE(full.file(), nullptr);
    fputs("new", full.file());
    EXPECT_FALSE(full.commit());
}
