#include <filesystem>
#include <gmock/gmock.h>

#include <unistd.h>

#include "base/PlatformProcess.h"
#include "tests/cli/RunCli.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/Sound.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const std::string kBook = "PRODUCT 17, \"Zoo\"\r\n"
                          "OID 1234\r\nBOX lion 1.5 2.5 10 10\r\n"
                          "SCRIPT\r\nsub lion\r\nsay eve \"Roar, \\o/ roar\"\r\nend sub\r\n";
// Nine steps lead to its only sound.
const std::string kSlowBook = "PRODUCT 17, \"Zoo\"\r\n"
                              "OID 1234\r\nBOX lion 1.5 2.5 10 10\r\n"
                              "SCRIPT\r\nsub lion\r\na = a + 1\r\nb = a * 2\r\nsay Roar\r\n"
                              "end sub\r\n";
const std::string kSaving =
    "Quick answers: 10 steps became 2; the slowest answer takes 1 step instead of 9\n";
const std::string kSpeechFolder = PLINKETT_BIN_DIR "/tools/text2speech_win";
const std::string kAssembling = "Compiling yaml to gme...\ndone.\n";
const std::string kNotMade = "The game file was not made. There is no older one.\n";

// A book with two texts (one of them the welcome), and stand-ins for the outside programs that
// stand before the real ones on PATH.
class Build : public testing::Test
{
protected:
    Build()
    {
        writeFile(folder.file("book.oidpro"), kBook);
        tttool.plan("print assembled\n");
        speech.plan("write 9 speech\n");
        sound.plan("write -1 sound\n");
    }

    std::string build(const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> words = {"build", folder.file("book.oidpro")};
        words.insert(words.end(), options.begin(), options.end());
        return resultOf(cli(words, {"TIPTOITOOL=", "PATH=" + tools.path() + ":" + kSpeechFolder}));
    }

    TemporaryFolder folder;
    TemporaryFolder tools;
    FakeProgram tttool{tools.path(), "tttool"};
    FakeProgram speech{tools.path(), "Text2Speech.exe"};
    FakeProgram sound{tools.path(), "ffmpeg.exe"};
};

}  // namespace

TEST_F(Build, PrintsWhatTheConsoleWouldShow)
{
    EXPECT_EQ(build(), "status 0\n" + kAssembling + "assembled\n");
    EXPECT_EQ(folder.listing(), "17-Zoo.yaml 17-audio book.oidpro");
}

TEST_F(Build, EveryProgramGetsItsArgumentsAsTheyStand)
{
    build();
    const std::string audio = folder.path() + "/17-audio/";
    EXPECT_EQ(speech.calls(), "-q\n-v\nen\n-a\n30\n-g\nm\n-f\n" + audio +
                                  "_welcome_message_text.wav\n-t\nZoo. Start.\n\n"
                                  "-q\n-v\nen\n-a\n30\n-g\nf\n-f\n" +
                                  audio + "say_eve_Roar___o__roar.wav\n-t\nRoar, \\o/ roar\n\n");
    EXPECT_THAT(sound.calls(), StartsWith("-hide_banner\n-loglevel\nerror\n-i\n" + audio +
                                          "_welcome_message_text.wav\n-ar\n22050\n-ac\n1\n" +
                                          audio + "_welcome_message_text.ogg\n\n"));
    EXPECT_EQ(tttool.calls(), "assemble\n" + folder.file("17-Zoo.yaml") + "\n\n");
}

TEST_F(Build, ASecondBuildSpeaksNothing)
{
    build();
    EXPECT_EQ(build(), "status 0\n" + kAssembling + "assembled\n");
    EXPECT_EQ(speech.callCount(), 2);
    EXPECT_EQ(sound.callCount(), 2);
}

TEST_F(Build, WaitsForTheAssemblerAndFailsWithIt)
{
    tttool.plan("print out\nexit 1\n");
    EXPECT_EQ(build(), "status 1\n" + kAssembling + "out\n" + kNotMade);
}

TEST_F(Build, AnAssemblerThatCrashesIsReported)
{
    tttool.plan("crash\n");
    EXPECT_EQ(build(), "status 1\n" + kAssembling + "ERROR: Program Crash\n" + kNotMade);
}

TEST_F(Build, AnAssemblerThatIsNotThereIsReported)
{
    fs::remove(tttool.path());
    const ProgramRun run =
        cli({"build", folder.file("book.oidpro")},
            {"TIPTOITOOL=/nowhere", "PATH=" + tools.path() + ":" + kSpeechFolder});
    EXPECT_EQ(resultOf(run), "status 1\n"
                             "Compiling yaml to gme...\n"
                             "ERROR: File not Found\n"
                             "Execution of tttool failed\n" +
                                 kNotMade);
}

TEST_F(Build, TttoolIsFoundWhereTheVariableTells)
{
    const TemporaryFolder elsewhere;
    const FakeProgram tool(elsewhere.path(), "tttool", "print elsewhere\n");
    fs::remove(tttool.path());
    const ProgramRun run =
        cli({"build", folder.file("book.oidpro")},
            {"TIPTOITOOL=" + elsewhere.path(), "PATH=" + tools.path() + ":" + kSpeechFolder});
    EXPECT_EQ(resultOf(run), "status 0\n" + kAssembling + "elsewhere\n");
}

TEST_F(Build, AScriptErrorStopsIt)
{
    writeFile(folder.file("book.oidpro"), kBook + "foo\r\n");
    EXPECT_THAT(build(), AllOf(StartsWith("status 1\n"), EndsWith("Stopped build process.\n")));
    EXPECT_EQ(tttool.callCount(), 0);
    EXPECT_EQ(folder.listing(), "book.oidpro");
}

TEST_F(Build, AProjectThatCannotBeOpenedIsNamed)
{
    EXPECT_EQ(resultOf(cli({"build", folder.file("none.oidpro")})),
              "status 1\nError: Can't open file '" + folder.file("none.oidpro") + "'\n");
}

TEST_F(Build, ATextWithoutAudioFails)
{
    speech.plan("error out of breath\nexit 1\n");
    sound.plan("error no such file\nexit 1\n");
    const std::string complaints = "out of breath\nno such file\n";
    EXPECT_EQ(build(), "status 1\n" + complaints +
                           "Error: The text 'Zoo. Start.' has no audio file\n" + complaints +
                           "Error: The text 'Roar, \\o/ roar' has no audio file\n" + kAssembling +
                           "assembled\n");
}

TEST_F(Build, MissingSpeechProgramsAreReportedForEveryText)
{
    fs::remove(speech.path());
    fs::remove(sound.path());
    const ProgramRun run =
        cli({"build", folder.file("book.oidpro")},
            {"TIPTOITOOL=" + tools.path(), "PATH=" + tools.path() + ":/nowhere"});
    // Our own Text2Speech is there, but no espeak-ng.
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, StartsWith("Text2Speech: espeak-ng is not installed (it is not on PATH)\n"
                                    "ERROR: File not Found\n"
                                    "Error: The text 'Zoo. Start.' has no audio file\n"));
}

TEST_F(Build, InDebugModeMoreTextsAreSpoken)
{
    build({"--debug"});
    EXPECT_GT(speech.callCount(), 2);
}

TEST_F(Build, ARelativeProjectPathWorks)
{
    const ProgramRun run =
        cli({"build", fs::path(folder.path()).filename().string() + "/book.oidpro"},
            {"TIPTOITOOL=", "PATH=" + tools.path() + ":" + kSpeechFolder},
            fs::path(folder.path()).parent_path().string());
    EXPECT_EQ(resultOf(run), "status 0\n" + kAssembling + "assembled\n");
    EXPECT_EQ(folder.listing(), "17-Zoo.yaml 17-audio book.oidpro");
}

TEST_F(Build, LettersBeyondAsciiReachTheProgramsInAnyLocale)
{
    const std::string zoo = folder.file("Zoo für Löwen");
    fs::create_directory(zoo);
    writeFile(zoo + "/book.oidpro", "PRODUCT 17, \"Löwen\"\r\nSCRIPT\r\nsub a\r\nend sub\r\n");
    for (const std::string locale : {"C", "C.UTF-8"}) {
        fs::remove_all(zoo + "/17-audio");
        cli({"build", zoo + "/book.oidpro"},
            {"LC_ALL=" + locale, "TIPTOITOOL=", "PATH=" + tools.path() + ":" + kSpeechFolder});
        EXPECT_THAT(speech.calls(), EndsWith("-f\n" + zoo +
                                             "/17-audio/_welcome_message_text.wav\n"
                                             "-t\nLöwen. Start.\n\n"))
            << locale;
        EXPECT_THAT(tttool.calls(), EndsWith("assemble\n" + zoo + "/17-Löwen.yaml\n\n")) << locale;
    }
}

TEST_F(Build, OnATerminalNewTextsAreCounted)
{
    const std::string command =
        PLINKETT_BIN_DIR "/plinkett-cli build " + folder.file("book.oidpro");
    const ProgramRun run = runProgram(
        "/usr/bin/script", {"-qec", command, "/dev/null"},
        {"TIPTOITOOL=", "PATH=" + tools.path() + ":" + kSpeechFolder + ":/usr/bin:/bin"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "1/2\r2/2\r   \rCompiling yaml to gme...\r\ndone.\r\nassembled\r\n");
}

namespace {

class QuickBuild : public Build
{
protected:
    QuickBuild() { writeFile(folder.file("book.oidpro"), kSlowBook); }

    // The game that assemble makes of the description, and its codes file, in a folder of their
    // own.
    void assembleInto(const TemporaryFolder& other, const std::vector<std::string>& options) const
    {
        fs::copy(folder.path(), other.path(), fs::copy_options::recursive);
        fs::remove(other.file("17-Zoo.gme"));
        fs::remove(other.file("17-Zoo.codes.yaml"));
        std::vector<std::string> words = {"assemble", other.file("17-Zoo.yaml")};
        words.insert(words.end(), options.begin(), options.end());
        EXPECT_EQ(cli(words).status, 0);
    }

    bool builtAsAssembled(const std::vector<std::string>& options) const
    {
        const TemporaryFolder other;
        assembleInto(other, options);
        return readFile(folder.file("17-Zoo.gme")) == readFile(other.file("17-Zoo.gme"));
    }
};

}  // namespace

TEST_F(QuickBuild, IsMadeWhereThereIsNoTttool)
{
    fs::remove(tttool.path());
    EXPECT_THAT(build(), AllOf(StartsWith("status 0\n"), EndsWith(kAssembling + kSaving)));
    EXPECT_TRUE(builtAsAssembled({"--quick"}));
    EXPECT_FALSE(builtAsAssembled({}));
}

TEST_F(QuickBuild, IsNotMadeWithPlain)
{
    fs::remove(tttool.path());
    EXPECT_THAT(build({"--plain"}), AllOf(StartsWith("status 0\n"), EndsWith(kAssembling)));
    EXPECT_TRUE(builtAsAssembled({}));
}

TEST_F(QuickBuild, IsNotMadeWhereTttoolIsInstalled)
{
    EXPECT_EQ(build(), "status 0\n" + kAssembling + "assembled\n");
    EXPECT_EQ(build({"--plain"}), "status 0\n" + kAssembling + "assembled\n");
    EXPECT_EQ(tttool.callCount(), 2);
}

TEST_F(QuickBuild, TakesThePlaceOfAnInstalledTttoolWithQuick)
{
    EXPECT_EQ(build({"--quick"}), "status 0\n" + kAssembling + kSaving);
    EXPECT_EQ(tttool.callCount(), 0);
    EXPECT_TRUE(builtAsAssembled({"--quick"}));
}

TEST_F(QuickBuild, HasTheCodesFileOfThePlainGameByteForByte)
{
    build({"--quick"});
    const TemporaryFolder plain;
    assembleInto(plain, {});
    EXPECT_THAT(readFile(plain.file("17-Zoo.codes.yaml")), HasSubstr("asm9: "));
    EXPECT_EQ(readFile(folder.file("17-Zoo.codes.yaml")),
              readFile(plain.file("17-Zoo.codes.yaml")));
}

TEST_F(QuickBuild, OfADebugGameSaysWhatItSaves)
{
    EXPECT_EQ(build({"--quick", "--debug"}),
              "status 0\n" + kAssembling + "Quick answers: 14 steps became 6\n");
}

TEST(BuildWithRealPrograms, MakesSpeechAndAGameOnAMachineWithoutTttool)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    const ProgramRun run =
        cli({"build", folder.file("book.oidpro")}, {"TIPTOITOOL=", "PATH=/usr/bin:/bin"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, AllOf(StartsWith("If you set the environment variable 'TIPTOITOOL'"),
                               EndsWith("-Set the environment variable TIPTOITOOL to this "
                                        "directory.\n" +
                                        kAssembling)));
    EXPECT_EQ(folder.listing(), "17-Zoo.codes.yaml 17-Zoo.gme 17-Zoo.yaml 17-audio book.oidpro");
}

// The sub was built once without an area, which is drawn afterwards.
TEST(BuildWithRealPrograms, ASubThatGetsAnAreaAfterItWasBuiltIsBuiltAgain)
{
    const TemporaryFolder folder;
    const std::string script = "SCRIPT\r\nsub lion\r\nend sub\r\nsub hen\r\nend sub\r\n";
    const auto build = [&](const std::string& areas) {
        writeFile(folder.file("book.oidpro"), "PRODUCT 17, \"Zoo\"\r\n" + areas + script);
        return cli({"build", folder.file("book.oidpro")}, {"TIPTOITOOL=", "PATH=/usr/bin:/bin"});
    };
    const std::string lion = "OID 1234\r\nBOX lion 1.5 2.5 10 10\r\n";
    EXPECT_EQ(build(lion).status, 0);
    const ProgramRun run = build(lion + "OID 1235\r\nBOX hen 20 2.5 10 10\r\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out,
                testing::ContainsRegex("17-Zoo.codes.yaml no longer holds hen \\([0-9]+\\), "
                                       "whose name or number an area has now\n"));
}

TEST(BuildWithRealPrograms, TheAudioHasOneChannelAt22050HzAndSoundInIt)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    cli({"build", folder.file("book.oidpro")}, {"TIPTOITOOL=", "PATH=/usr/bin:/bin"});
    for (const std::string name : {"_welcome_message_text", "say_eve_Roar___o__roar"}) {
        const std::string wav = folder.file(name + ".wav");
        runProgram("/usr/bin/ffmpeg", {"-i", folder.file("17-audio/" + name + ".ogg"), wav});
        const Sound sound = readSound(wav);
        EXPECT_EQ(sound.channels, 1);
        EXPECT_EQ(sound.rate, 22050);
        EXPECT_GT(sound.seconds(), 0.5);
        EXPECT_GT(sound.loudness(), 0.02);
    }
}

TEST_F(Build, AnotherProgramThatBuildsTheSameBookIsWaitedForInVain)
{
    const std::string process = std::to_string(getpid());
    writeFile(folder.file("17-build.lock"), process + "\ncli_tests\n");
    const std::string who = "cli_tests (process " + process + ")";
    EXPECT_EQ(build(), "status 1\n"
                       "Waiting: " +
                           who +
                           " makes the same files\n"
                           "Error: " +
                           who + " makes the same files. Try again when it is done. (" +
                           folder.file("17-build.lock") + ")\nStopped build process.\n");
    EXPECT_EQ(folder.listing(), "17-build.lock book.oidpro");
}
