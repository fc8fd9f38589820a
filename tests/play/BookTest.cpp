// What a book knows of a project: areas, texts, variables, lines of the script.
#include "play/Book.h"

#include "tests/gme/GameFolder.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/play/Books.h"

#include <filesystem>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

const char* const kCow = "voice max lang de\n"
                         "sub cow\n"
                         "  Count = count + 1\n"
                         "  select Count\n"
                         "  case 2\n"
                         "    say max \"Muh\" \"Muuh\"\n"
                         "  end select\n"
                         "end sub\n";

std::vector<std::string> textsIn(const play::Book& book)
{
    std::vector<std::string> texts;
    for (const play::Text& text : book.texts) {
        texts.push_back(text.voice + ": " + text.text);
    }
    return texts;
}

}  // namespace

TEST(Book, NamesTheCodesOfTheAreas)
{
    EXPECT_THAT(bookWith(kCow, {"cow", "dog"}).areas,
                ElementsAre(Pair("cow", 1001), Pair("dog", 1002)));
}

TEST(Book, TakesAnAreasNameOrANumberForACode)
{
    const play::Book book = bookWith("sub 7up\nend sub\n", {"cow", "1234x", "12"});
    EXPECT_EQ(codeOf(book, "cow"), 1001);
    EXPECT_EQ(codeOf(book, "12"), 1003);
    EXPECT_EQ(codeOf(book, "13"), 13);
    EXPECT_EQ(codeOf(book, "65535"), 65535);
    for (const char* wrong : {"", "Cow", "65536", "-1", " 1", "1 ", "123456789012345"}) {
        EXPECT_EQ(codeOf(book, wrong), std::nullopt) << wrong;
    }
}

TEST(Book, KnowsWhatIsSaidAndByWhom)
{
    const play::Book book = bookWith(kCow, {"cow"});
    EXPECT_THAT(textsIn(book), ElementsAre("max: Zoo. Start.", "max: Muh", "max: Muuh"));
    EXPECT_EQ(book.voices.at("max").language, "de");
}

TEST(Book, TellsTheAuthorsVariablesFromTheCompilers)
{
    const play::Book book = bookWith(kCow, {"cow"});
    EXPECT_THAT(book.variables, ElementsAre("Count", "count"));
    EXPECT_EQ(book.registers.count("_stk1"), 1U);
}

TEST(Book, KnowsVariablesThatNoLineReads)
{
    const play::Book book = bookWith("sub cow\nselect zzz\ncase 1\nend select\nend sub\n", {"cow"});
    EXPECT_THAT(book.variables, ElementsAre("zzz"));
    EXPECT_LT(book.registers.at("zzz"), book.game.registers.size());
}

TEST(Book, NeedsNoAudio)
{
    EXPECT_THAT(bookWith(kCow, {"cow"}).texts.at(1).audioFile, IsEmpty());
}

TEST(Book, FindsAudioBesideTheProject)
{
    const TemporaryFolder folder;
    Oid::OidProject project = projectWith(kCow, {"cow"});
    project.projectPath = folder.file("zoo.oidpro");
    std::filesystem::create_directory(folder.file("900-audio"));
    writeFile(folder.file("900-audio/say_max_Muh.ogg"), "OggS");
    const std::optional<play::Book> book = play::bookOf(project, [](const Diagnostic&) {});
    ASSERT_TRUE(book);
    EXPECT_EQ(book->texts.at(1).audioFile, folder.file("900-audio/say_max_Muh.ogg"));
    EXPECT_EQ(book->texts.at(2).audioFile, "");
}

// A build makes Ogg files by way of WAV files, and may be stopped in between.
TEST(Book, TakesTheFileOfTheBuildWhereATextHasSeveralAndSaysSo)
{
    const TemporaryFolder folder;
    Oid::OidProject project = projectWith(kCow, {"cow"});
    project.projectPath = folder.file("zoo.oidpro");
    std::filesystem::create_directory(folder.file("900-audio"));
    for (const char* ending : {".wav", ".ogg", ".mp3"}) {
        writeFile(folder.file("900-audio/say_max_Muh") + ending, "OggS");
    }
    std::string told;
    const std::optional<play::Book> book =
        play::bookOf(project, [&told](const Diagnostic& finding) { told += consoleLine(finding); });
    ASSERT_TRUE(book);
    EXPECT_EQ(book->texts.at(1).audioFile, folder.file("900-audio/say_max_Muh.ogg"));
    EXPECT_EQ(told, "Warning: more than one audio file for say_max_Muh of script asm8: "
                    "900-audio/say_max_Muh.wav, 900-audio/say_max_Muh.ogg and "
                    "900-audio/say_max_Muh.mp3; taken is 900-audio/say_max_Muh.ogg\n");
}

TEST(Book, GivesATextWithoutAudioTheTimeThatSpeakingTakes)
{
    play::Book book = bookWith("sub cow\nsay \"fifteen letters\"\nend sub\n", {"cow"});
    measureSounds(book);
    EXPECT_DOUBLE_EQ(book.game.soundSeconds.at(1), 1.0);
}

TEST(Book, OfAScriptWithMistakesIsNone)
{
    std::vector<Diagnostic> found;
    const Oid::OidProject project = projectWith("sub cow\nfoo\nend sub\n", {"cow"});
    EXPECT_FALSE(play::bookOf(project, collectInto(found)));
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found[0].text, "Failed to parse command: foo");
    EXPECT_EQ(found[0].line, 2);
}

TEST(Book, LeavesTheProjectAlone)
{
    Oid::OidProject project = projectWith(kCow, {"cow"});
    project.oids.clear();
    EXPECT_TRUE(play::bookOf(project, [](const Diagnostic&) {}));
    EXPECT_TRUE(project.oids.empty());
    EXPECT_TRUE(project.compiler.code.empty());
}

TEST(Book, OfAGameFileNamesVariablesByTheirRegisters)
{
    const TemporaryFolder folder;
    writeFile(folder.file("x.gme"), assemble("product-id: 900\ninit: $x := 3 $y := 4\n"
                                             "scripts:\n  1: $x += $y P(roar)\n")
                                        .game);
    std::string problem;
    const std::optional<play::Book> book = play::bookOfGameFile(folder.file("x.gme"), problem);
    ASSERT_TRUE(book) << problem;
    EXPECT_THAT(book->variables, ElementsAre("$0", "$1"));
    EXPECT_THAT(book->areas, IsEmpty());
    EXPECT_THAT(book->texts, IsEmpty());
}

TEST(Book, OfNoGameFileIsNone)
{
    std::string problem;
    EXPECT_FALSE(play::bookOfGameFile("no/such.gme", problem));
    EXPECT_EQ(problem, "Can't open file 'no/such.gme'");
}
