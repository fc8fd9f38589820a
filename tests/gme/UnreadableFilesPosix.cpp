// Files that are there but cannot be read.
#include "gme/CodesFile.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// Counts as a file of 0 bytes, and every attempt to read it fails.
constexpr const char* kUnreadable = "/proc/self/mem";

}  // namespace

TEST(UnreadableFiles, AnAudioFileThatCannotBeReadLeavesNoGameBehind)
{
    const GameFolder folder;
    fs::create_symlink(kUnreadable, folder.file("broken.ogg"));

    const Assembled result = folder.assemble(yamlWithLine("P(broken)"));

    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.messages, "Error: 900-case.gme: the game file is incomplete: the audio file " +
                                   folder.file("broken.ogg") + " cannot be read\n");
    EXPECT_EQ(folder.listing(), "900-case.yaml broken.ogg moo.ogg roar.ogg");
}

TEST(UnreadableFiles, AYamlFileThatCannotBeReadIsReported)
{
    const TemporaryFolder folder;
    fs::create_symlink(kUnreadable, folder.file("zoo.yaml"));
    EXPECT_EQ(assembleFile(folder.file("zoo.yaml")).messages,
              "Error: zoo.yaml: the file cannot be read\n");
}

TEST(UnreadableFiles, ACodesFileThatCannotBeReadIsReported)
{
    const GameFolder folder;
    fs::create_symlink(kUnreadable, folder.file("900-case.codes.yaml"));
    CapturedMessages captured;
    gme::Messages messages("900-case.codes.yaml", printWith(CapturedMessages::print));
    gme::CodesFile codesFile(folder.file("900-case.codes.yaml"));

    EXPECT_FALSE(codesFile.read(messages));

    EXPECT_EQ(captured.text(), "Error: 900-case.codes.yaml: the file cannot be read\n");
}
