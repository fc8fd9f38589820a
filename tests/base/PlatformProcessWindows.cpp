#include "base/PlatformProcess.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformWide.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <windows.h>

namespace fs = std::filesystem;

using Platform::nativePath;

TEST(Environment, AVariableIsSetForThisProcessAndRemovedByAnEmptyValue)
{
    Platform::setEnvironmentVariable("PLINKETT_TEST", "Müh");
    EXPECT_EQ(Platform::environmentVariable("plinkett_test"), "Müh");
    Platform::setEnvironmentVariable("PLINKETT_TEST", "");
    EXPECT_EQ(Platform::environmentVariable("PLINKETT_TEST"), "");
}

TEST(FindingPrograms, FoldersOfPathAreSeparatedBySemicolonsAndTheFirstWins)
{
    const TemporaryFolder folder;
    fs::create_directory(fs::u8path(folder.file("none")));
    const FakeProgram first(folder.file("Zoë Bücher"), "speak");
    const FakeProgram second(folder.file("second"), "speak");
    const ChangedVariable path("PATH", folder.file("none") + ";" + folder.file("Zoë Bücher") + ";" +
                                           folder.file("second"));
    EXPECT_EQ(nativePath(Platform::findProgram("speak")), nativePath(first.path()) + ".exe");
    EXPECT_EQ(nativePath(Platform::findProgram("speak.exe")), nativePath(first.path()) + ".exe");
    EXPECT_EQ(Platform::findProgram("sing"), "");
    EXPECT_EQ(Platform::findProgram(""), "");
}

TEST(FindingPrograms, AFolderIsNoProgram)
{
    const TemporaryFolder folder;
    fs::create_directory(fs::u8path(folder.file("folder.exe")));
    const ChangedVariable path("PATH", folder.path());
    EXPECT_EQ(Platform::findProgram("folder"), "");
}

TEST(FindingPrograms, AnEmptyFolderOfPathIsNotTheCurrentOne)
{
    const TemporaryFolder folder;
    const FakeProgram program(folder.path(), "speak");
    const FileSystem::WorkingFolder current(folder.path());
    const ChangedVariable path("PATH", ";C:\\nowhere;");
    EXPECT_EQ(Platform::findProgram("speak"), "");
    const ChangedVariable none("PATH", "");
    EXPECT_EQ(Platform::findProgram("speak"), "");
}

TEST(InstalledToolFolder, IsTheToolsOwnBelowProgramFiles)
{
    const TemporaryFolder folder;
    const FakeProgram tool(folder.file("tttool"), "tttool");
    const ChangedVariable programs("ProgramFiles", nativePath(folder.path()));
    EXPECT_EQ(Platform::installedToolFolder("tttool"), nativePath(folder.file("tttool")));
    EXPECT_EQ(Platform::installedToolFolder("othertool"), "");
    EXPECT_EQ(Platform::programsFolder(), nativePath(folder.path()));
}

TEST(RunningACommand, GivesItsExitCodeAlsoWithQuotesAndBlanksInItsPath)
{
    const TemporaryFolder folder;
    const FakeProgram program(folder.file("my programs"), "say it", "print said\nexit 7\n");
    EXPECT_EQ(FileSystem::execCommand("\"" + program.path() + ".exe\" \"two words\" \"\" a\"b",
                                      false, false),
              7);
    EXPECT_EQ(program.calls(), "two words\n\"\"\na\"b\n\n");
}

TEST(Console, TakesUtf8)
{
    if (SetConsoleOutputCP(850) == 0) {
        GTEST_SKIP() << "started without a console";
    }
    Platform::useUtf8ForSystemTexts();
    EXPECT_EQ(GetConsoleOutputCP(), static_cast<UINT>(CP_UTF8));
}

TEST(CommandLine, AnEmptyWordAndQuotesArriveAsTheyWereSent)
{
    EXPECT_EQ(Platform::wordsOfCommandLine(L"\"C:\\a b\\x.exe\" \"\" \"a \\\"b\\\"\" M\u00FCh"),
              (std::vector<std::string>{"C:\\a b\\x.exe", "", "a \"b\"", "Müh"}));
}
