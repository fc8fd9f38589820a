// Games in memory: from a description or from text, without any file and without audio.
#include "gme/Game.h"

#include "base/FileSystem.h"
#include "gme/DescriptionReader.h"
#include "gme/GameFile.h"
#include "tests/gme/GameFolder.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <memory>

namespace {

const gme::MediaLookup kNoAudio;

gme::Description describedGame()
{
    gme::Description description;
    description.productId = 900;
    description.comment.text = "Zoo";
    description.welcome = {{"hello", {}}};
    description.init.text = "$x := 5";
    description.scripts["lion"].lines = {{"$x == 5 ? $x += 2  P(roar)", {}}, {"C", {}}};
    description.codes.names["lion"].code = 1001;
    return description;
}

std::string shown(const Diagnostic& finding)
{
    return std::string(severityName(finding.severity)) + " " + finding.kind + " " +
           std::to_string(finding.line) + ":" + std::to_string(finding.column) + "+" +
           std::to_string(finding.length) + " [" + finding.subject + "] " + finding.text + "\n";
}

// All findings, one line each.
template <class Source>
std::string findingsOf(const Source& source)
{
    std::vector<Diagnostic> findings;
    gme::compileGame(source, kNoAudio, collectInto(findings));
    std::string text;
    for (const Diagnostic& finding : findings) {
        text += shown(finding);
    }
    return text;
}

struct CloseFile
{
    void operator()(FILE* file) const { fclose(file); }
};

// The bytes of the game file, or why there are none.
std::string writtenBytes(const gme::Game& game)
{
    const TemporaryFolder folder;
    std::string problem;
    {
        const std::unique_ptr<FILE, CloseFile> file(FileSystem::myfopen(folder.file("game"), "wb"));
        if (!gme::writeGame(game, file.get(), problem)) {
            return problem;
        }
    }
    return readFile(folder.file("game"));
}

}  // namespace

TEST(CompiledGame, NeedsNeitherFilesNorAudio)
{
    const std::optional<gme::Game> game =
        gme::compileGame(describedGame(), kNoAudio, [](const Diagnostic&) { FAIL(); });

    ASSERT_TRUE(game.has_value());
    EXPECT_EQ(game->comment, "Zoo");
    EXPECT_EQ(game->codes.scripts.at("lion"), 1001);
    EXPECT_EQ(game->scripts.at(1001).size(), 2U);
    EXPECT_EQ(game->registers.initialTable(), std::vector<uint16_t>{5});
    EXPECT_EQ(game->media.indexOf("hello"), 0);
    EXPECT_EQ(game->media.indexOf("roar"), 1);
    EXPECT_EQ(game->media.files().size(), 2U);
    EXPECT_EQ(game->media.files()[1].path, "");
}

TEST(CompiledGame, IsTheSameFromADescriptionAndFromText)
{
    const std::string yaml = "product-id: 900\n"
                             "comment: Zoo\n"
                             "welcome: moo\n"
                             "init: $x := 5\n"
                             "scripts:\n"
                             "  lion:\n"
                             "  - $x == 5 ? $x += 2  P(roar)\n"
                             "  - C\n"
                             "scriptcodes:\n"
                             "  lion: 1001\n";
    const GameFolder folder;
    const std::string assembled = folder.assemble(yaml).game;
    gme::Description description = describedGame();
    description.welcome[0].text = "moo";
    const gme::MediaLookup media = gme::mediaIn(folder.file(""));
    const DiagnosticSink sink = [](const Diagnostic&) { FAIL(); };

    EXPECT_TRUE(writtenBytes(*gme::compileGame(description, media, sink)) == assembled);
    EXPECT_TRUE(writtenBytes(*gme::compileGame(yaml, media, sink)) == assembled);
}

TEST(CompiledGame, CanDoWithTheAudioThatIsThere)
{
    const GameFolder folder;
    gme::MediaLookup media = gme::mediaIn(folder.file(""));
    media.isLenient = true;

    const std::optional<gme::Game> game =
        gme::compileGame(describedGame(), media, [](const Diagnostic&) { FAIL(); });

    ASSERT_TRUE(game.has_value());
    EXPECT_EQ(game->media.files()[0].path, "");
    EXPECT_EQ(game->media.files()[1].path, folder.file("roar.ogg"));
    EXPECT_EQ(game->media.files()[1].size, 9U);
}

TEST(CompiledGame, IsNotWrittenWithoutItsAudio)
{
    const std::optional<gme::Game> game =
        gme::compileGame(describedGame(), kNoAudio, [](const Diagnostic&) { FAIL(); });

    EXPECT_EQ(writtenBytes(*game), "would be incomplete: it was made without its audio");
}

TEST(CompiledGame, KeepsTheCodesOfAnEarlierBuild)
{
    gme::Description description = describedGame();
    description.scripts["asm1"].lines = {{"C", {}}};
    gme::GivenCodes kept;
    kept.names["asm1"].code = 5000;

    const std::optional<gme::Game> game = gme::compileGame(
        description, kNoAudio, [](const Diagnostic&) { FAIL(); }, kept);

    EXPECT_EQ(game->codes.scripts.at("asm1"), 5000);
}

TEST(CompiledGame, FindsInADescriptionWhatAFileCouldNotHold)
{
    gme::Description open = describedGame();
    open.scripts["asm1"].isOpen = true;
    open.scripts["asm1"].place = {7, 0, 0};
    EXPECT_EQ(findingsOf(open), "Error script-open 7:0+0 [asm1] script asm1 has no lines (is its "
                                "sub closed?)\n");

    gme::Description empty = describedGame();
    empty.scripts.clear();
    EXPECT_EQ(findingsOf(empty), "Error scripts-missing 0:0+0 [] scripts has no entry: the script "
                                 "of the project has no sub\n");

    gme::Description broken = describedGame();
    broken.comment.text = "Zo\xFC";
    EXPECT_EQ(findingsOf(broken),
              "Error text-encoding 0:0+0 [] comment: the text is not valid UTF-8\n");

    gme::Description endless = describedGame();
    endless.welcome.resize(65536);
    EXPECT_EQ(findingsOf(endless),
              "Error welcome-long 0:0+0 [] welcome has more than 65535 play lists\n");
}

TEST(GameDiagnostics, MarkTheWordToBlame)
{
    EXPECT_EQ(
        findingsOf(yamlWithLine("$ü := 70000  J(lion)")),
        "Warning number-large 4:12+5 [a] script a: the number \"70000\" is above 65535 and is "
        "taken modulo 65536\n"
        "Error jump-undefined 4:21+4 [a] script a: the jump to lion leads nowhere, there is no "
        "such script\n");
    EXPECT_EQ(findingsOf(yamlWithLine("C $x = 5")),
              "Error line-syntax 4:10+0 [a] script a: syntax error in column 6: an assignment "
              "expected before \"= 5\"\n");
    EXPECT_EQ(findingsOf(yamlWith("scriptcodes:\n  b: 70000\n")),
              "Error code-number 3:6+5 [b] area b: the code \"70000\" is out of range: 0 to "
              "65535\n");
}

TEST(GameDiagnostics, MarkAQuotedLineAsAWholeAndABlockTextWhereItBegins)
{
    EXPECT_EQ(
        findingsOf(yamlWithLine("'J(lion)'")),
        "Error jump-undefined 4:5+9 [a] script a: the jump to lion leads nowhere, there is no "
        "such script\n");
    EXPECT_EQ(
        findingsOf(yamlWithLine(">\n    J(lion)")),
        "Error jump-undefined 4:5+0 [a] script a: the jump to lion leads nowhere, there is no "
        "such script\n");
}

TEST(GameDiagnostics, MarkWhereTheFormOfTheTextIsWrong)
{
    EXPECT_EQ(
        findingsOf(std::string("ü: x: y\n")),
        "Error yaml-syntax 1:6+0 [] a name without quotes cannot hold a colon before a blank: "
        "\"ü: x: y\"\n");
    EXPECT_EQ(findingsOf(std::string("a: 1\n# ü\x01\n")),
              "Error text-character 2:5+1 [] control character U+0001 is not allowed\n");
}

TEST(GameDiagnostics, NameTheFileByItsPath)
{
    std::vector<Diagnostic> findings;
    gme::readDescription("", "books/zoo.yaml", collectInto(findings));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].file, "books/zoo.yaml");
}

TEST(GameDiagnostics, HoldOneLineWhateverANameHolds)
{
    std::vector<Diagnostic> findings;
    gme::Messages("x.yaml", collectInto(findings)).error({}, "kind", "two\nlines\x7F");
    EXPECT_EQ(findings.at(0).text, "two?lines?");
}

TEST(GameDiagnostics, NotesArePrintedAsSentencesAboutTheFile)
{
    std::vector<Diagnostic> findings;
    gme::Messages("books/x.codes.yaml", collectInto(findings)).note("kind", "no longer holds cow");
    EXPECT_EQ(shown(findings.at(0)), "Hint kind 0:0+0 [] no longer holds cow\n");
    EXPECT_EQ(findings.at(0).printed, "x.codes.yaml no longer holds cow\n");
}
