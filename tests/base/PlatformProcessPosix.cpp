#include "base/PlatformProcess.h"

#include "base/FileSystem.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(Environment, AVariableIsSetForThisProcessAndRemovedByAnEmptyValue)
{
    Platform::setEnvironmentVariable("PLINKETT_TEST", "Müh");
    EXPECT_STREQ(std::getenv("PLINKETT_TEST"), "Müh");
    EXPECT_EQ(Platform::environmentVariable("PLINKETT_TEST"), "Müh");
    Platform::setEnvironmentVariable("PLINKETT_TEST", "");
    EXPECT_EQ(std::getenv("PLINKETT_TEST"), nullptr);
    EXPECT_EQ(Platform::environmentVariable("PLINKETT_TEST"), "");
}

TEST(FindingPrograms, TheFirstFolderOfPathThatHoldsTheProgramWins)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.file("none"));
    const FakeProgram first(folder.file("first"), "speak");
    const FakeProgram second(folder.file("second"), "speak");
    const ChangedVariable path("PATH", folder.file("none") + ":" + folder.file("first") + ":" +
                                           folder.file("second"));
    EXPECT_EQ(Platform::findProgram("speak"), first.path());
    EXPECT_EQ(Platform::findProgram("sing"), "");
    EXPECT_EQ(Platform::findProgram(""), "");
}

TEST(FindingPrograms, APathIsTakenAsItIsInItsNativeForm)
{
    const TemporaryFolder folder;
    const FakeProgram program(folder.path(), "speak");
    EXPECT_EQ(Platform::findProgram(folder.path() + "\\speak"), program.path());
    EXPECT_EQ(Platform::findProgram(folder.path() + "\\sing"), "");
}

TEST(FindingPrograms, FoldersAndFilesThatAreNotProgramsDoNotCount)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.file("folder"));
    writeFile(folder.file("text"), "");
    const ChangedVariable path("PATH", folder.path());
    EXPECT_EQ(Platform::findProgram("folder"), "");
    EXPECT_EQ(Platform::findProgram("text"), "");
}

TEST(FindingPrograms, AnEmptyFolderOfPathIsNotTheCurrentOne)
{
    const TemporaryFolder folder;
    const FakeProgram program(folder.path(), "speak");
    const FileSystem::WorkingFolder current(folder.path());
    const ChangedVariable path("PATH", ":/nowhere:");
    EXPECT_EQ(Platform::findProgram("speak"), "");
}

TEST(FindingPrograms, WithoutPathTheFoldersOfTheSystemAreSearched)
{
    const ChangedVariable path("PATH", "");
    EXPECT_EQ(Platform::searchPath(), "/usr/local/bin:/usr/bin:/bin");
    EXPECT_EQ(Platform::findProgram("sh"), "/usr/bin/sh");
}

TEST(ProgramToStart, AProgramWithTheSuffixIsPreferredToOneWithout)
{
    const TemporaryFolder folder;
    const FakeProgram plain(folder.path(), "Text2Speech");
    const ChangedVariable path("PATH", folder.path());
    EXPECT_EQ(Platform::programToStart("Text2Speech.exe"), plain.path());
    EXPECT_EQ(Platform::programToStart("Text2Speech.EXE"), plain.path());
    const FakeProgram suffixed(folder.path(), "Text2Speech.exe");
    EXPECT_EQ(Platform::programToStart("Text2Speech.exe"), suffixed.path());
}

TEST(ProgramToStart, APathToAProgramWithTheSuffixFallsBackToo)
{
    const TemporaryFolder folder;
    const FakeProgram plain(folder.path(), "plinkett-cli");
    EXPECT_EQ(Platform::programToStart(folder.path() + "\\plinkett-cli.exe"), plain.path());
}

TEST(ProgramToStart, AProgramThatIsNotThereKeepsItsName)
{
    EXPECT_EQ(Platform::programToStart("no-such-program.exe"), "no-such-program.exe");
    EXPECT_EQ(Platform::programToStart("no\\such"), "no/such");
    EXPECT_EQ(Platform::programToStart(".exe"), ".exe");
    EXPECT_EQ(Platform::programToStart(""), "");
}

TEST(InstalledToolFolder, IsTheFolderOfPathThatHoldsTheTool)
{
    const TemporaryFolder folder;
    const FakeProgram tool(folder.file("tools"), "tttool");
    const ChangedVariable path("PATH", folder.path() + ":" + folder.file("tools"));
    EXPECT_EQ(Platform::installedToolFolder("tttool"), folder.file("tools"));
    EXPECT_EQ(Platform::installedToolFolder("othertool"), "");
}

TEST(ProgramsFolder, IsTheVariableProgramFilesOrTheUsualPlace)
{
    const ChangedVariable unset("ProgramFiles", "");
    EXPECT_EQ(Platform::programsFolder(), "/usr/local");
    const ChangedVariable set("ProgramFiles", "/opt/programs");
    EXPECT_EQ(Platform::programsFolder(), "/opt/programs");
}
