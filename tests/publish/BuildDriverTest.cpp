#include "publish/BuildDriver.h"

#include <QCoreApplication>
#include <filesystem>
#include <gmock/gmock.h>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "oid/OutputLock.h"
#include "oid/PrintImage.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/programs/RecordingRunner.h"

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string kInstructions =
    "If you set the environment variable 'TIPTOITOOL' to the directory of the TTTOOL installation, "
    "I'll have the gme file built for you.\n"
    "-Download tttool for your system from its release page.\n"
    "-Unzip the tool.\n"
    "-Copy files to " +
    Platform::programsFolder() +
    ".\n"
    "-Set the environment variable TIPTOITOOL to this directory.\n";

// A book with one area, product 900 "Zoo", in a folder of its own, whose texts have their audio
// files already; programs are not started but noted. No tttool is installed.
class BuildingAGame : public testing::Test
{
protected:
    BuildingAGame()
    {
        project.productName = "Zoo";
        project.projectPath = folder.path() + "\\zoo.oidpro";
        project.pictures.resize(1);
        project.pictures[0].polys.resize(1);
        project.pictures[0].polys[0].name = "lion";
        project.compiler.source = "sub lion\nsay \"Roar\"\nend sub\n";
        options.assembler = "/our tools\\plinkett-cli.exe";
        fs::create_directory(folder.file("900-audio"));
        writeFile(folder.file("900-audio/say_adam_Roar.ogg"), "sound");
        writeFile(folder.file("900-audio/_welcome_message_text.ogg"), "sound");
    }
    ~BuildingAGame() override { mi_printf = printToStandardOutput; }

    bool build(bool debugMode = false) { return buildGame(project, debugMode, runner, options); }

    std::string yaml() const { return folder.file("900-Zoo.yaml"); }
    std::string game() const { return folder.file("900-Zoo.gme"); }

    const TemporaryFolder folder;
    const ChangedVariable noTool{"TIPTOITOOL", ""};
    const ChangedVariable noPrograms{"ProgramFiles", ""};
    const ChangedVariable path{"PATH", "/nowhere"};
    Oid::OidProject project;
    RecordingRunner runner;
    BuildOptions options;
};

// Where it is found without a variable that tells: on PATH, or, on Windows, in its own folder below
// ProgramFiles.
class InstalledTttool
{
public:
    InstalledTttool()
    {
        fs::create_directory(programs.file("tttool"));
        const std::string file = programs.file("tttool/" + programFile("tttool"));
        writeFile(file, "");
        fs::permissions(file, fs::perms::owner_all);
    }

private:
    const TemporaryFolder programs;
    const ChangedVariable onPath{"PATH", programs.file("tttool")};
    const ChangedVariable below{"ProgramFiles", programs.path()};
};

// The words of a call of our assembler.
RecordingRunner::Words ours(const std::string& arguments)
{
    return commandWords("\"/our tools\\plinkett-cli.exe\" " + arguments);
}

std::string standardOutputOf(const std::function<void()>& work)
{
    testing::internal::CaptureStdout();
    work();
    fflush(stdout);
    return testing::internal::GetCapturedStdout();
}

}  // namespace

TEST_F(BuildingAGame, NumbersAreasWritesTheDescriptionAndStartsTheAssembler)
{
    Platform::setEnvironmentVariable("TIPTOITOOL", "/opt/tttool");
    EXPECT_TRUE(build());
    EXPECT_EQ(runner.shown(), "OID  1001 assigned to 'lion'\n"
                              "Compiling yaml to gme...\n"
                              "done.\n");
    EXPECT_THAT(readFile(yaml()), HasSubstr("lion:                1001\r\n"));
    EXPECT_THAT(runner.commands, ElementsAre(commandWords("tttool assemble \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, SpeechComesBeforeTheAssembler)
{
    fs::remove(folder.file("900-audio/say_adam_Roar.ogg"));
    EXPECT_FALSE(build());  // nobody has written the audio file
    ASSERT_EQ(runner.commands.size(), 3U);
    EXPECT_THAT(runner.commands[0], Contains("Text2Speech.exe"));
    EXPECT_THAT(runner.commands[1], Contains("ffmpeg.exe"));
    EXPECT_THAT(runner.commands[2], Contains("assemble"));
    EXPECT_THAT(runner.shown(), HasSubstr("Error: The text 'Roar' has no audio file\n"));
}

TEST_F(BuildingAGame, StopsAfterAScriptError)
{
    project.compiler.source = "sub lion\nfoo\nend sub\n";
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(), testing::EndsWith("!!! Error: Line 2 Syntax Error\n"
                                                  "Stopped build process.\n"));
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_FALSE(fs::exists(yaml()));
}

TEST_F(BuildingAGame, StopsAfterAnExpressionWithoutOperands)
{
    project.compiler.source = "sub lion\na = +\nend sub\n";
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(), HasSubstr("!!! Error: Line 2 Stack underflow\n"));
    EXPECT_THAT(runner.shown(), testing::EndsWith("Stopped build process.\n"));
}

TEST_F(BuildingAGame, WarnsAboutNamesThatDoNotMatchAndGoesOn)
{
    project.compiler.source = "sub cow\nend sub\n";
    EXPECT_TRUE(build());
    EXPECT_THAT(runner.shown(),
                HasSubstr("!!! Warning: Used OID 'cow' in script, but not in the image\n"
                          "!!! Warning: Used OID 'lion' in image, but not in the script\n"
                          "Compiling yaml to gme...\n"));
}

TEST_F(BuildingAGame, InDebugModeLineNumbersAreSpoken)
{
    build(false);
    const size_t texts = project.compiler.talkTexts.size();
    build(true);
    EXPECT_GT(project.compiler.talkTexts.size(), texts);
}

TEST_F(BuildingAGame, AfterwardsMessagesGoToStandardOutputAgain)
{
    build();
    EXPECT_EQ(mi_printf, printToStandardOutput);
}

// Intended.
TEST_F(BuildingAGame, AfterAStopMessagesStillGoToTheRunner)
{
    project.compiler.source = "foo\n";
    build();
    EXPECT_EQ(mi_printf, runner.printFunction());
}

TEST_F(BuildingAGame, ProgramsStartInTheFolderOfTheProject)
{
    const std::string before = FileSystem::getCurrentDirectory();
    std::string during;
    runner.program = [&] {
        during = FileSystem::getCurrentDirectory();
        return 0;
    };
    build();
    EXPECT_EQ(during, fs::canonical(folder.path()).string());
    EXPECT_EQ(FileSystem::getCurrentDirectory(), before);
}

TEST_F(BuildingAGame, TheAssemblerWorksInTheFolderOfTheProjectWhateverOursIsByThen)
{
    const FileSystem::WorkingFolder sameAfterwards(folder.path());
    options.createSoundFiles = [] {
        FileSystem::setCurrentDirectory("/");
        return SpeechOutcome::complete;
    };
    EXPECT_TRUE(build());
    EXPECT_EQ(runner.surroundings.folder, folder.path());
}

TEST_F(BuildingAGame, AProjectOpenedByARelativePathIsBuiltInItsFolder)
{
    const FileSystem::WorkingFolder outside(fs::path(folder.path()).parent_path().string());
    project.projectPath = fs::path(folder.path()).filename().string() + "/zoo.oidpro";
    EXPECT_TRUE(build());
    EXPECT_TRUE(fs::exists(yaml()));
}

TEST_F(BuildingAGame, AProjectThatWasNeverSavedIsBuiltInTheCurrentFolder)
{
    const FileSystem::WorkingFolder current(folder.path());
    project.projectPath = "";
    EXPECT_TRUE(build());
    EXPECT_TRUE(fs::exists(yaml()));
    EXPECT_THAT(runner.commands, ElementsAre(ours("assemble --quick " +
                                                  Platform::nativePath("./900-Zoo.yaml") + " &")));
}

TEST_F(BuildingAGame, ADescriptionThatCannotBeWrittenStopsTheBuild)
{
    fs::create_directory(yaml());
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(), testing::EndsWith("Error: Can't open file '" + yaml() + "'\n"));
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(mi_printf, printToStandardOutput);
}

TEST_F(BuildingAGame, CancelledSpeechStopsTheBuild)
{
    fs::remove(folder.file("900-audio/say_adam_Roar.ogg"));
    options.createSoundFiles = [&] {
        return createSoundFiles(project, runner, [](int, int) { return false; });
    };
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(), testing::EndsWith("Stopped build process.\n"));
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(mi_printf, printToStandardOutput);
}

// --- Finding the assembler -----------------------------------------------------------------------

TEST_F(BuildingAGame, TheToolFolderStandsAtTheEndOfPathOnlyWhileTttoolStarts)
{
    Platform::setEnvironmentVariable("TIPTOITOOL", "/opt/tttool");
    std::string during;
    runner.program = [&] {
        during = Platform::environmentVariable("PATH");
        return 0;
    };
    build();
    const std::string behind = Platform::searchPathSeparator + std::string("/opt/tttool");
    EXPECT_THAT(during, testing::EndsWith("/nowhere" + behind));
    EXPECT_EQ(during, Platform::environmentVariable("PATH") + behind);
}

TEST_F(BuildingAGame, AnInstalledTttoolHasPrecedence)
{
    const InstalledTttool tttool;
    EXPECT_EQ(standardOutputOf([&] { build(); }), "");
    EXPECT_THAT(runner.commands, ElementsAre(commandWords("tttool assemble \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, WithoutTttoolOurAssemblerTakesItsPlace)
{
    EXPECT_EQ(standardOutputOf([&] { EXPECT_TRUE(build()); }), kInstructions);
    EXPECT_THAT(runner.commands, ElementsAre(ours("assemble --quick \"" + yaml() + "\" &")));
    EXPECT_THAT(runner.shown(), testing::EndsWith("Compiling yaml to gme...\ndone.\n"));
}

TEST_F(BuildingAGame, OurAssemblerPrintsWhatTheRunnerReads)
{
    runner.latin1 = true;
    build();
    EXPECT_THAT(runner.commands,
                ElementsAre(ours("assemble --quick --latin1 \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, APlainGameIsMadeOfAllSteps)
{
    options.answers = Answers::plain;
    EXPECT_EQ(standardOutputOf([&] { EXPECT_TRUE(build()); }), kInstructions);
    EXPECT_THAT(runner.commands, ElementsAre(ours("assemble \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, WithoutTttoolQuickAnswersAreWhatIsMadeAnyway)
{
    options.answers = Answers::quick;
    EXPECT_EQ(standardOutputOf([&] { EXPECT_TRUE(build()); }), kInstructions);
    EXPECT_THAT(runner.commands, ElementsAre(ours("assemble --quick \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, ForQuickAnswersOurAssemblerTakesThePlaceOfTttool)
{
    Platform::setEnvironmentVariable("TIPTOITOOL", "/opt/tttool");
    options.answers = Answers::quick;
    EXPECT_EQ(standardOutputOf([&] { EXPECT_TRUE(build()); }), "");
    EXPECT_THAT(runner.commands, ElementsAre(ours("assemble --quick \"" + yaml() + "\" &")));
    EXPECT_EQ(runner.shown(), "OID  1001 assigned to 'lion'\n"
                              "Compiling yaml to gme...\n"
                              "done.\n");
}

TEST_F(BuildingAGame, APlainGameIsMadeByTttoolWhereItIsThere)
{
    Platform::setEnvironmentVariable("TIPTOITOOL", "/opt/tttool");
    options.answers = Answers::plain;
    EXPECT_TRUE(build());
    EXPECT_THAT(runner.commands, ElementsAre(commandWords("tttool assemble \"" + yaml() + "\" &")));
}

TEST_F(BuildingAGame, TttoolIsThereWhereTheVariableTellsOrOnPath)
{
    EXPECT_FALSE(isTttoolThere());
    {
        const ChangedVariable folderOfTool("TIPTOITOOL", "/opt/tttool");
        EXPECT_TRUE(isTttoolThere());
    }
    const InstalledTttool tttool;
    EXPECT_TRUE(isTttoolThere());
    EXPECT_EQ(Platform::environmentVariable("TIPTOITOOL"), "");
}

TEST_F(BuildingAGame, TheInstructionsNameTheFolderOfPrograms)
{
    Platform::setEnvironmentVariable("ProgramFiles", "/opt/programs");
    EXPECT_THAT(standardOutputOf([&] { build(); }), HasSubstr("\n-Copy files to /opt/programs.\n"));
}

TEST_F(BuildingAGame, OurAssemblerLiesBesideTheProgram)
{
    EXPECT_EQ(BuildOptions().assembler, FileSystem::exeDirectory() + "\\plinkett-cli.exe");
}

TEST_F(BuildingAGame, ATttoolThatDoesNotStartIsReported)
{
    Platform::setEnvironmentVariable("TIPTOITOOL", "/opt/tttool");
    runner.program = [] { return -1; };
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(), testing::EndsWith("Compiling yaml to gme...\n"
                                                  "Execution of tttool failed\n"
                                                  "The game file was not made. There is no older "
                                                  "one.\n"));
}

TEST_F(BuildingAGame, AnAssemblerOfOursThatDoesNotStartIsReported)
{
    runner.program = [] { return -1; };
    standardOutputOf([&] { EXPECT_FALSE(build()); });
    EXPECT_THAT(runner.shown(), testing::EndsWith("Compiling yaml to gme...\n"
                                                  "Execution of the assembler failed\n"
                                                  "The game file was not made. There is no older "
                                                  "one.\n"));
}

// --- When the assembler has ended ----------------------------------------------------------------

TEST_F(BuildingAGame, AFailedAssemblerHasTheLastWordThatNoGameWasMade)
{
    runner.program = [] { return 1; };
    build();
    EXPECT_THAT(runner.shown(),
                testing::EndsWith("Compiling yaml to gme...\n"
                                  "done.\n"
                                  "The game file was not made. There is no older one.\n"));
}

TEST_F(BuildingAGame, AnOlderGameThatStillLiesThereIsTold)
{
    writeFile(game(), "older");
    setTime(game(), "2024-05-31 14:05:40");
    runner.program = [] { return 1; };
    build();
    EXPECT_THAT(runner.shown(),
                testing::EndsWith("done.\nThe game file was not made. An older one of 2024-05-31 "
                                  "14:05 still lies there.\n"));
}

TEST_F(BuildingAGame, APartOfAGameIsNotTakenForAnOlderOne)
{
    writeFile(game(), "older");
    setTime(game(), "2024-05-31 14:05:40");
    runner.program = [&] {
        writeFile(game(), "");
        return 1;
    };
    build();
    EXPECT_THAT(runner.shown(), testing::EndsWith("done.\nThe game file was not made. What lies in "
                                                  "its place is not whole.\n"));
}

TEST_F(BuildingAGame, OldCodesInTheWayOfAnAreaGoBeforeTheAssemblerStarts)
{
    const std::string codes = folder.file("900-Zoo.codes.yaml");
    writeFile(codes, "scriptcodes:\n  asm1: 3946\n  lion: 4028\n");
    std::string seen;
    runner.program = [&] {
        seen = readFile(codes);
        return 0;
    };
    EXPECT_TRUE(build());
    EXPECT_THAT(seen, testing::EndsWith("scriptcodes:\n  asm1: 3946\n"));
    EXPECT_EQ(runner.shown(),
              "OID  1001 assigned to 'lion'\n"
              "900-Zoo.codes.yaml no longer holds lion (4028), whose name or number "
              "an area has now\n"
              "Compiling yaml to gme...\n"
              "done.\n");
}

TEST_F(BuildingAGame, ACodesFileThatCannotBeChangedStopsTheBuild)
{
    std::string codes = "scriptcodes:\n  lion: 4028\n";
    for (int i = 2000; i < 2500; ++i) {
        codes += "  asm" + std::to_string(i) + ": " + std::to_string(i) + "\n";
    }
    writeFile(folder.file("900-Zoo.codes.yaml"), codes);
    const SmallDisk disk(5000);  // enough for the description
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.shown(),
                testing::EndsWith("Error: 900-Zoo.codes.yaml: the codes file cannot be written\n"
                                  "Stopped build process.\n"));
    EXPECT_THAT(runner.commands, IsEmpty());
}

TEST_F(BuildingAGame, ABookThatAnotherProgramBuildsIsNotTouched)
{
    OutputLock other(project, kBuildLock);
    ASSERT_TRUE(other.take([](const char* /*line*/) {}));
    EXPECT_FALSE(build());
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_FALSE(fs::exists(yaml()));
    const std::string me =
        "publish_tests (process " + std::to_string(QCoreApplication::applicationPid()) + ")";
    EXPECT_EQ(runner.shown(), "OID  1001 assigned to 'lion'\n"
                              "Error: " +
                                  me + " makes the same files. Try again when it is done. (" +
                                  folder.file("900-build.lock") + ")\nStopped build process.\n");
}

TEST_F(BuildingAGame, NoOtherProgramBuildsUntilTheAssemblerHasEnded)
{
    bool wasFree = true;
    runner.program = [&] {
        OutputLock other(project, kBuildLock);
        wasFree = other.take([](const char* /*line*/) {});
        return 0;
    };
    EXPECT_TRUE(build());
    EXPECT_FALSE(wasFree);
    OutputLock other(project, kBuildLock);
    EXPECT_TRUE(other.take([](const char* /*line*/) {}));
}

TEST_F(BuildingAGame, ABuildThatFailedLeavesTheWayFree)
{
    runner.program = [] { return -1; };  // no assembler
    EXPECT_FALSE(build());
    fs::remove_all(folder.file("900-audio"));
    EXPECT_FALSE(build());  // no speech
    EXPECT_FALSE(fs::exists(folder.file("900-build.lock")));
}
