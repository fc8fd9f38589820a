// Pipes, folders and devices in the place of files: nothing waits for them, and each is named.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

const char* const kBook = "PRODUCT 900, \"Zoo\"\r\nBOX lion 10 10 20 20\r\n"
                          "SCRIPT\r\nsub lion\r\nsay \"Roar\"\r\nend sub\r\n";

// A folder with the project zoo.oidpro.
class NoFiles : public testing::Test
{
protected:
    NoFiles() { writeFile(folder.file("zoo.oidpro"), kBook); }

    std::string file(const std::string& name) const { return folder.file(name); }
    // Puts a pipe in the place of a file.
    std::string pipe(const std::string& name) const
    {
        fs::remove(file(name));
        EXPECT_EQ(mkfifo(file(name).c_str(), 0600), 0);
        return file(name);
    }
    std::string run(const std::vector<std::string>& words) const
    {
        return resultOf(cli(words, {"TIPTOITOOL="}));
    }

    const TemporaryFolder folder;
};

}  // namespace

TEST_F(NoFiles, AProjectThatIsAPipeIsRefusedByEveryCommand)
{
    const std::string zoo = pipe("zoo.oidpro");
    const std::string message =
        "Error: Can't open file '" + zoo + "'\nError: '" + zoo + "' is a pipe, not a file\n";
    for (const char* command : {"check", "build", "yaml", "print", "pdf", "copy"}) {
        EXPECT_EQ(run({command, zoo}), "status 1\n" + message) << command;
    }
    EXPECT_EQ(run({"save", zoo, "-o", file("new.oidpro")}), "status 1\n" + message);
    for (const char* command : {"play", "test"}) {
        EXPECT_EQ(run({command, zoo}), "status 1\nstderr: " + message) << command;
    }
    EXPECT_EQ(folder.listing(), "zoo.oidpro");
}

TEST_F(NoFiles, AProjectThatIsADeviceIsRefused)
{
    fs::create_symlink("/dev/zero", file("zero.oidpro"));
    const std::string zero = file("zero.oidpro");
    EXPECT_EQ(run({"check", zero}), "status 1\nError: Can't open file '" + zero + "'\nError: '" +
                                        zero + "' is a device, not a file\n");
}

TEST_F(NoFiles, AProjectThatIsAFolderIsRefused)
{
    EXPECT_EQ(run({"check", folder.path()}), "status 1\nError: Can't open file '" + folder.path() +
                                                 "'\nError: '" + folder.path() +
                                                 "' is a folder, not a file\n");
}

TEST_F(NoFiles, APictureThatIsAPipeIsRefusedByPrintAndPdf)
{
    const std::string picture = pipe("900-bkgnd0.jpg");
    const std::string message = "Error: '" + picture + "' is a pipe, not a file\n";
    EXPECT_EQ(run({"print", file("zoo.oidpro")}), "status 1\nCreating pixel image...\n" + message);
    EXPECT_EQ(run({"pdf", file("zoo.oidpro")}), "status 1\nCreating PDF...\n" + message);
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg zoo.oidpro");
}

TEST_F(NoFiles, HintsDoNotWaitForAPictureThatIsAPipe)
{
    pipe("900-bkgnd0.jpg");
    EXPECT_EQ(run({"check", "--hints", file("zoo.oidpro")}),
              "status 0\nHint: No area has the product's number 900: nothing on the pages starts "
              "the book, so a page of symbols has to [no-start-area]\n");
}

TEST_F(NoFiles, AScanThatIsAPipeIsRefused)
{
    const std::string scan = pipe("scan.png");
    EXPECT_EQ(run({"read", scan}), "status 1\nError: '" + scan + "' is a pipe, not a file\n");
}

TEST_F(NoFiles, ADescriptionThatIsAPipeIsNeitherReadNorWritten)
{
    const std::string yaml = pipe("900-Zoo.yaml");
    EXPECT_EQ(run({"assemble", yaml}),
              "status 1\nError: 900-Zoo.yaml: the file cannot be read: it is a pipe\n");
    EXPECT_EQ(run({"yaml", file("zoo.oidpro")}),
              "status 1\nError: Can't open file '" + yaml + "'\n");
}

TEST_F(NoFiles, ALockThatIsAPipeStopsTheBuild)
{
    const std::string lock = pipe("900-build.lock");
    EXPECT_EQ(run({"build", file("zoo.oidpro")}),
              "status 1\nError: '" + lock + "' is a pipe, not a file\nStopped build process.\n");
}

TEST_F(NoFiles, ACodesFileThatIsAPipeIsRefused)
{
    ASSERT_EQ(run({"yaml", file("zoo.oidpro")}), "status 0\n");
    pipe("900-Zoo.codes.yaml");
    EXPECT_EQ(run({"assemble", file("900-Zoo.yaml")}),
              "status 1\nError: 900-Zoo.codes.yaml: the file cannot be read: it is a pipe\n");
}

TEST_F(NoFiles, AnAudioFileThatIsAPipeIsNone)
{
    ASSERT_EQ(run({"yaml", file("zoo.oidpro")}), "status 0\n");
    fs::create_directory(file("900-audio"));
    pipe("900-audio/say_adam_Roar.ogg");
    writeFile(file("900-audio/_welcome_message_text.ogg"), "sound");
    const std::string audio = "900-audio/say_adam_Roar";
    EXPECT_EQ(run({"assemble", file("900-Zoo.yaml")}),
              "status 1\nError: 900-Zoo.yaml: no audio file for say_adam_Roar of script lion: "
              "there is none of " +
                  audio + ", " + audio + ".wav, " + audio + ".ogg, " + audio + ".flac and " +
                  audio + ".mp3\n");
}

TEST_F(NoFiles, AGameThatIsAPipeIsRefused)
{
    const std::string game = pipe("900-Zoo.gme");
    EXPECT_EQ(run({"play", game}),
              "status 1\nstderr: Error: '" + game + "' is a pipe, not a file\n");
}

TEST_F(NoFiles, ABookTestThatIsAPipeIsRefused)
{
    const std::string test = pipe("zoo.booktest");
    EXPECT_EQ(run({"test", file("zoo.oidpro"), test}),
              "status 1\nstderr: Error: Can't open file '" + test + "'\nError: '" + test +
                  "' is a pipe, not a file\n");
}
