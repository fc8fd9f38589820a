#include "publish/PenCopy.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "oid/OidProject.h"
#include "tests/helpers/SmallDisk.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/publish/RecordingRunner.h"

namespace fs = std::filesystem;

namespace {

// A built game "900-Zoo.gme", and folders that stand for the volumes "first" and "second".
class CopyingToThePen : public testing::Test
{
protected:
    CopyingToThePen()
    {
        project.productName = "Zoo";
        project.projectPath = folder.path() + "\\zoo.oidpro";
        writeFile(folder.file("900-Zoo.gme"), game);
        fs::create_directory(folder.file("first"));
        fs::create_directory(folder.file("second"));
    }

    void markAsPen(const std::string& volume, const std::string& mark = "tiptoi.ico")
    {
        writeFile(folder.file(volume + "/" + mark), "");
    }

    PenCopy copy()
    {
        return copyGmeToPen(project, runner,
                            {folder.file("none"), folder.file("first"), folder.file("second")});
    }

    std::string contentOf(const std::string& volume) const
    {
        std::string names;
        for (const auto& entry : fs::directory_iterator(folder.file(volume))) {
            names += entry.path().filename().string() + " ";
        }
        return names;
    }

    const TemporaryFolder folder;
    const std::string game = std::string(300000, 'g');
    Oid::OidProject project;
    RecordingRunner runner;
};

}  // namespace

TEST_F(CopyingToThePen, TheGameGoesIntoTheRootOfThePen)
{
    markAsPen("second");
    EXPECT_EQ(copy(), PenCopy::done);
    EXPECT_EQ(runner.shown(), "Copy to Pen...\ndone.\n");
    EXPECT_EQ(readFile(folder.file("second/900-Zoo.gme")), game);
    EXPECT_EQ(contentOf("first"), "");
}

TEST_F(CopyingToThePen, OfTwoPensOnlyTheFirstIsServed)
{
    markAsPen("first");
    markAsPen("second");
    EXPECT_EQ(copy(), PenCopy::done);
    EXPECT_EQ(readFile(folder.file("first/900-Zoo.gme")), game);
    EXPECT_EQ(contentOf("second"), "tiptoi.ico ");
}

TEST_F(CopyingToThePen, ThePenIsKnownByItsMarkInAnyCase)
{
    markAsPen("first", "TIPTOI.ICO");
    EXPECT_EQ(copy(), PenCopy::done);
}

TEST_F(CopyingToThePen, WithoutAPenNothingIsSaid)
{
    EXPECT_EQ(copy(), PenCopy::noPen);
    EXPECT_EQ(runner.shown(), "");
}

TEST_F(CopyingToThePen, AGameThatIsNotBuiltYetFails)
{
    markAsPen("first");
    fs::remove(folder.file("900-Zoo.gme"));
    EXPECT_EQ(copy(), PenCopy::failed);
    EXPECT_EQ(runner.shown(), "Copy to Pen...\nfailed.\n");
    EXPECT_EQ(contentOf("first"), "tiptoi.ico ");
}

TEST_F(CopyingToThePen, AnOlderGameIsReplaced)
{
    markAsPen("first");
    writeFile(folder.file("first/900-Zoo.gme"), "old");
    EXPECT_EQ(copy(), PenCopy::done);
    EXPECT_EQ(readFile(folder.file("first/900-Zoo.gme")), game);
}

TEST_F(CopyingToThePen, AFullDriveKeepsNoHalfFile)
{
    markAsPen("first");
    const SmallDisk disk(100000);
    EXPECT_EQ(copy(), PenCopy::failed);
    EXPECT_EQ(runner.shown(), "Copy to Pen...\nfailed.\n");
    EXPECT_EQ(contentOf("first"), "tiptoi.ico ");
}

TEST_F(CopyingToThePen, AFullDriveKeepsTheOlderGame)
{
    markAsPen("first");
    writeFile(folder.file("first/900-Zoo.gme"), "old");
    const SmallDisk disk(100000);
    EXPECT_EQ(copy(), PenCopy::failed);
    EXPECT_EQ(readFile(folder.file("first/900-Zoo.gme")), "old");
}

namespace {

// Pulls a volume out while the author is told that copying begins.
class PullingRunner : public RecordingRunner
{
public:
    explicit PullingRunner(const std::string& path) : volume(path) {}
    void echo(const char* text) override
    {
        RecordingRunner::echo(text);
        fs::remove_all(volume);
    }

private:
    std::string volume;
};

}  // namespace

TEST_F(CopyingToThePen, AVanishedDriveFails)
{
    markAsPen("first");
    PullingRunner pulling(folder.file("first"));
    EXPECT_EQ(copyGmeToPen(project, pulling, {folder.file("first")}), PenCopy::failed);
    EXPECT_EQ(pulling.shown(), "Copy to Pen...\nfailed.\n");
}
