#include "publish/PenCopy.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "base/PlatformEject.h"
#include "base/PrintFunction.h"
#include "oid/OidProject.h"
#include "oid/OutputLock.h"
#include "publish/BuildDriver.h"
#include "publish/YamlFile.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/programs/RecordingRunner.h"

namespace fs = std::filesystem;

namespace {

// What ejecting a pen comes to, and which were ejected so far.
std::string whyNotEjected;
std::vector<std::string> ejected;

}  // namespace

// Linked in place of that of the system.
std::string Platform::ejectVolume(const std::string& root)
{
    ejected.push_back(root);
    return whyNotEjected;
}

namespace {

// A built game "900-Zoo.gme", and folders that stand for the volumes "first" and "second".
class CopyingToThePen : public testing::Test
{
protected:
    CopyingToThePen()
    {
        whyNotEjected.clear();
        ejected.clear();
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
    EXPECT_EQ(runner.shown(), "Copy to Pen...\ndone.\nThe pen can be unplugged.\nCopied to " +
                                  folder.file("second/900-Zoo.gme") + "\n");
    EXPECT_EQ(readFile(folder.file("second/900-Zoo.gme")), game);
    EXPECT_EQ(contentOf("first"), "");
}

TEST_F(CopyingToThePen, OnlyThePenIsEjectedWhenTheGameIsThere)
{
    markAsPen("second");
    EXPECT_EQ(copy(), PenCopy::done);
    EXPECT_EQ(ejected, std::vector<std::string>{folder.file("second")});
}

TEST_F(CopyingToThePen, WhyItCannotBeUnpluggedIsTold)
{
    markAsPen("second");
    whyNotEjected = "target is busy";
    EXPECT_EQ(copy(), PenCopy::stillInUse);
    EXPECT_EQ(runner.shown(),
              "Copy to Pen...\ndone.\nEject the pen before you unplug it: target is busy\n"
              "Copied to " +
                  folder.file("second/900-Zoo.gme") + "\n");
    EXPECT_EQ(readFile(folder.file("second/900-Zoo.gme")), game);
}

TEST_F(CopyingToThePen, AfterAFailureNothingIsEjected)
{
    markAsPen("first");
    fs::remove(folder.file("900-Zoo.gme"));
    EXPECT_EQ(copy(), PenCopy::failed);
    EXPECT_TRUE(ejected.empty());
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

// A game file with nothing but its header.
std::string gameOfId(unsigned id)
{
    std::string header(0x200, '\0');
    header[0x14] = static_cast<char>(id & 0xFFU);
    header[0x15] = static_cast<char>(id >> 8);
    return header;
}

}  // namespace

TEST_F(CopyingToThePen, OtherGamesOfItsNumberOnThePenAreNamed)
{
    markAsPen("first");
    writeFile(folder.file("900-Zoo.gme"), gameOfId(900));
    writeFile(folder.file("first/900-Zoo.gme"), gameOfId(900));
    writeFile(folder.file("first/900-Tierpark.GME"), gameOfId(900));
    writeFile(folder.file("first/old.gme"), gameOfId(900));
    writeFile(folder.file("first/901-Farm.gme"), gameOfId(901));
    writeFile(folder.file("first/short.gme"), "900");
    writeFile(folder.file("first/900.txt"), gameOfId(900));
    EXPECT_EQ(copy(), PenCopy::done);
    EXPECT_EQ(runner.shown(),
              "Copy to Pen...\n"
              "done.\n"
              "The pen can be unplugged.\n"
              "Copied to " +
                  folder.file("first/900-Zoo.gme") +
                  "\n"
                  "Warning: Another game on the pen has the number 900, too: 900-Tierpark.GME\n"
                  "Warning: Another game on the pen has the number 900, too: old.gme\n");
}

// --- How old the game is -------------------------------------------------------------------------

namespace {

constexpr char kChanged[] = "Warning: The game is of 2024-05-31 14:05; the script, the areas or "
                            "the speech have changed since then\n";

// A book with one area that was built on a day in May.
class CopyingAGameOfMay : public CopyingToThePen
{
protected:
    CopyingAGameOfMay()
    {
        markAsPen("first");
        project.pictures.resize(1);
        project.pictures[0].polys.resize(1);
        project.pictures[0].polys[0].name = "lion";
        project.compiler.source = "sub lion\nx = rnd\nsay \"Roar\"\nend sub\n";
        build(false);
        fs::create_directory(folder.file("900-audio"));
        for (const auto& text : project.compiler.talkTexts) {
            addOld("900-audio/" + text.first + ".ogg", "2024-05-31 14:05:20");
        }
        setTime(folder.file("900-Zoo.yaml"), "2024-05-31 14:05:10");
        setTime(folder.file("900-Zoo.gme"), "2024-05-31 14:05:40");
    }

    void build(bool debugMode)
    {
        const std::string source = project.compiler.source;
        project.compiler = ttbasic();
        project.compiler.source = source;
        project.redirectPrintf(printNothing);
        compileProject(project, debugMode);
        makeYAML(project);
        project.redirectPrintf(nullptr);
    }

    void addOld(const std::string& name, const char* time)
    {
        writeFile(folder.file(name), "x");
        setTime(folder.file(name), time);
    }

    // What copying says besides that it is done.
    std::string warnings(const std::string& script)
    {
        copyGmeToPen(project, script, runner, {folder.file("first")});
        std::string said = runner.shown();
        const std::string done = "done.\nThe pen can be unplugged.\nCopied to " +
                                 folder.file("first/900-Zoo.gme") + "\n";
        EXPECT_EQ(said.find("Copy to Pen...\n"), 0U);
        EXPECT_EQ(said.find(done) + done.size(), said.size());
        return said.substr(15, said.size() - 15 - done.size());
    }
    std::string warnings() { return warnings(project.compiler.source); }
};

}  // namespace

TEST_F(CopyingAGameOfMay, NothingIsSaidOfOneThatIsStillRight)
{
    EXPECT_EQ(warnings(), "");
}

TEST_F(CopyingAGameOfMay, SavingOrPrintingTheBookDoesNotMakeTheGameOld)
{
    project.save(folder.file("zoo.oidpro"));
    project.pictures[0].dpi = 600;
    project.pictures[0].polys[0].points.push_back({1, 1});
    EXPECT_EQ(warnings(), "");
}

TEST_F(CopyingAGameOfMay, AGameInDebugModeIsRightToo)
{
    build(true);
    for (const auto& text : project.compiler.talkTexts) {
        addOld("900-audio/" + text.first + ".ogg", "2024-05-31 14:05:20");
    }
    setTime(folder.file("900-Zoo.yaml"), "2024-05-31 14:05:10");
    EXPECT_EQ(warnings(), "");
}

TEST_F(CopyingAGameOfMay, ANewerScriptIsTold)
{
    EXPECT_EQ(warnings("sub lion\nsay \"Roar\"\nend sub\n"), kChanged);
}

TEST_F(CopyingAGameOfMay, AScriptThatHasErrorsNowIsTold)
{
    EXPECT_EQ(warnings("foo\n"), kChanged);
}

TEST_F(CopyingAGameOfMay, AnAreaWithAnotherNumberIsTold)
{
    project.oids["lion"].oid = 1234;
    EXPECT_EQ(warnings(), kChanged);
}

TEST_F(CopyingAGameOfMay, ANewerAudioFileIsTold)
{
    addOld("900-audio/say_adam_Roar.ogg", "2024-06-01 10:00:00");
    EXPECT_EQ(warnings(), kChanged);
}

TEST_F(CopyingAGameOfMay, AMissingAudioFileIsTold)
{
    fs::remove(folder.file("900-audio/say_adam_Roar.ogg"));
    EXPECT_EQ(warnings(), kChanged);
}

TEST_F(CopyingAGameOfMay, ABuildThatFailedAfterItIsTold)
{
    build(false);
    EXPECT_EQ(warnings(), kChanged);
}

TEST_F(CopyingAGameOfMay, WithoutADescriptionTheProjectFileTells)
{
    fs::remove(folder.file("900-Zoo.yaml"));
    addOld("zoo.oidpro", "2024-05-31 14:05:39");
    EXPECT_EQ(warnings(), "");
}

TEST_F(CopyingAGameOfMay, WithoutADescriptionANewerProjectFileIsTold)
{
    fs::remove(folder.file("900-Zoo.yaml"));
    addOld("zoo.oidpro", "2024-05-31 14:05:41");
    EXPECT_EQ(warnings(), kChanged);
}

TEST_F(CopyingAGameOfMay, TheCompilersAreHeardAgainAfterwards)
{
    const PrintFunction before = ttbasic::myprintf;
    warnings("foo\n");
    EXPECT_EQ(ttbasic::myprintf, before);
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

TEST_F(CopyingToThePen, AGameThatIsBeingMadeIsNotCopied)
{
    markAsPen("first");
    OutputLock build(project, kBuildLock);
    ASSERT_TRUE(build.take([](const char* /*line*/) {}));
    EXPECT_EQ(copy(), PenCopy::failed);
    const std::string shown = runner.shown();
    EXPECT_EQ(shown.find("Copy to Pen...\nError: publish_tests (process "), 0U) << shown;
    EXPECT_EQ(shown.substr(shown.find(") makes")),
              ") makes the same files. Try again when it is done. (" +
                  folder.file("900-build.lock") + ")\nfailed.\n");
    EXPECT_EQ(contentOf("first"), "tiptoi.ico ");
}

TEST_F(CopyingToThePen, AGameOutsideOfTheProjectsFolderStaysThere)
{
    markAsPen("first");
    fs::create_directory(folder.file("zoo"));
    project.projectPath = folder.path() + "\\zoo\\zoo.oidpro";
    fs::create_symlink("../900-Zoo.gme", folder.file("zoo/900-Zoo.gme"));

    EXPECT_EQ(copy(), PenCopy::failed);

    EXPECT_EQ(runner.shown(), "Copy to Pen...\nError: '" + folder.file("zoo/900-Zoo.gme") +
                                  "' leads to '" + folder.file("900-Zoo.gme") +
                                  "', outside of the project's folder. It is not copied.\n"
                                  "failed.\n");
    EXPECT_EQ(contentOf("first"), "tiptoi.ico ");
}

TEST_F(CopyingToThePen, NothingIsWrittenOutsideOfThePen)
{
    markAsPen("first");
    fs::create_symlink("../precious", folder.file("first/900-Zoo.gme"));

    EXPECT_EQ(copy(), PenCopy::failed);

    EXPECT_EQ(runner.shown(), "Copy to Pen...\nError: '" + folder.file("first/900-Zoo.gme") +
                                  "' leads to '" + folder.file("precious") +
                                  "', outside of the pen. It is not written.\nfailed.\n");
    EXPECT_FALSE(fs::exists(folder.file("precious")));
}
