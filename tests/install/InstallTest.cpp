#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QMimeDatabase>

#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Plinkett as it lies below the prefix of an installation.
class InstalledPlinkett : public testing::Test
{
protected:
    void SetUp() override
    {
        const ProgramRun run = runProgram(
            PLINKETT_CMAKE, {"--install", PLINKETT_BUILD_FOLDER, "--prefix", prefix.path()});
        ASSERT_EQ(run.status, 0) << resultOf(run);
    }

    TemporaryFolder prefix;
};

const char* const kSample = PLINKETT_SOURCE_DIR "/examples/farm/";

}  // namespace

TEST_F(InstalledPlinkett, ChecksABook)
{
    const ProgramRun run = runProgram(prefix.file("bin/plinkett-cli"),
                                      {"check", std::string(kSample) + "farm.oidpro"});
    EXPECT_EQ(run.status, 0) << resultOf(run);
}

TEST_F(InstalledPlinkett, SpeaksTheTextsOfABook)
{
    const TemporaryFolder book;
    writeFile(book.file("book.oidpro"),
              "PRODUCT 7, \"Zoo\"\nSCRIPT\nsub lion\nsay \"Roar\"\nendsub\n");
    const ProgramRun run =
        runProgram(prefix.file("bin/plinkett-cli"), {"build", book.file("book.oidpro")});
    EXPECT_EQ(run.status, 0) << resultOf(run);
    EXPECT_EQ(book.listing(), "7-Zoo.codes.yaml 7-Zoo.gme 7-Zoo.yaml 7-audio book.oidpro");
}

TEST_F(InstalledPlinkett, GivesProjectFilesATypeOfTheirOwn)
{
    qputenv("XDG_DATA_DIRS", QByteArray::fromStdString(prefix.file("share")));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(prefix.file("none")));
    EXPECT_EQ(QMimeDatabase().mimeTypeForFile("book.oidpro").name().toStdString(),
              "application/x-plinkett-project");
}

TEST_F(InstalledPlinkett, OpensProjectFilesWithTheWindow)
{
    const std::string entry = readFile(prefix.file("share/applications/plinkett.desktop"));
    const std::string window = prefix.file("bin/plinkett");
    EXPECT_NE(entry.find("\nExec=\"" + window + "\" %f\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nMimeType=application/x-plinkett-project;\n"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(window));
    EXPECT_TRUE(
        std::filesystem::exists(prefix.file("share/icons/hicolor/scalable/apps/plinkett.svg")));
}

TEST_F(InstalledPlinkett, BringsTheSampleBooks)
{
    const std::string farm = prefix.file("share/plinkett/samples/en/farm");
    const ProgramRun run =
        runProgram(prefix.file("bin/plinkett-cli"), {"test", farm + "/farm.oidpro"});
    EXPECT_EQ(run.status, 0) << resultOf(run);
    EXPECT_TRUE(std::filesystem::exists(farm + "/901-bkgnd0.jpg"));
    EXPECT_FALSE(std::filesystem::exists(farm + "/farmyard.svg"));
}

TEST_F(InstalledPlinkett, BringsTheManual)
{
    const ProgramRun run = runProgram(prefix.file("bin/plinkett-cli"), {"help"});
    EXPECT_EQ(resultOf(run), "status 0\n" + prefix.file("share/plinkett/manual/en/index.html\n") +
                                 prefix.file("share/plinkett/manual/de/index.html\n"));
}

TEST_F(InstalledPlinkett, TellsItsVersionAndItsHelpWithoutADisplay)
{
    const std::vector<std::string> noDisplay = {
        "DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=xcb"};
    const std::string version = runProgram(prefix.file("bin/plinkett-cli"), {"--version"}).out;
    const std::string ours = "plinkett" + version.substr(std::string("plinkett-cli").size());
    EXPECT_EQ(resultOf(runProgram(prefix.file("bin/plinkett"), {"--version"}, noDisplay)),
              "status 0\n" + ours);
    EXPECT_EQ(resultOf(runProgram(prefix.file("bin/plinkett"), {"--help"}, noDisplay)),
              "status 0\n"
              "Usage: plinkett [PROJECT.oidpro]\n"
              "\n"
              "Makes printed books and boards talk. Opens its window, and the project if one is "
              "named.\n"
              "\n"
              "  --help       tells this\n"
              "  --version    tells the version, that of Qt, and the licences\n"
              "  --man        prints the manual page, for man\n");
}
