#include <gtest/gtest.h>

#include <thread>

#include "tests/editor/core/Editing.h"
#include "ttbasic/ttbasic.h"

using namespace KVTextEditor;

namespace {

// A text with the rules of the script language, coloured.
class Script : public Editing
{
public:
    explicit Script(const std::string& text) : Editing(text)
    {
        set_new_editor_rules(editor);
        set_script_rules(editor, ttbasic::keywords(), ttbasic::voiceOptions());
        colour();
    }

    void colour() { editor.colorize(write_cell_color, 0, -1); }
    std::string line(int i) const { return roles(static_cast<const TextBuffer&>(buffer).line(i)); }
};

std::string scriptRoles(const std::string& text)
{
    return Script(text).line(0);
}

std::string newEditorRoles(const std::string& text)
{
    Editing editing(text);
    set_new_editor_rules(editing.editor);
    editing.editor.colorize(write_cell_color, 0, -1);
    return roles(editing.buffer.line(0));
}

int writerCalls = 0;

void countingWriter(Cell& cell, COLORINDEX role)
{
    ++writerCalls;
    cell.color = role;
}

std::thread::id writingThread;

void noteThread(Cell& cell, COLORINDEX role)
{
    writingThread = std::this_thread::get_id();
    cell.color = role;
}

}  // namespace

TEST(Colouring, AnApostropheInAStringBelongsToItAndTheNextOneOpensAComment)
{
    EXPECT_EQ(scriptRoles("say \"it's\" 'note"), "4441222222133333");
}

TEST(Colouring, AKeywordIsAWholeWord)
{
    EXPECT_EQ(scriptRoles("pitch=3"), "6666611");
    EXPECT_EQ(scriptRoles("xpitch"), "111111");
    EXPECT_EQ(scriptRoles("endiffer"), "11111111");
    EXPECT_EQ(scriptRoles("if(x"), "4411");
    EXPECT_EQ(scriptRoles("2if"), "111");
    EXPECT_EQ(scriptRoles("_if if_"), "1111111");
}

TEST(Colouring, KeywordsAreCaseSensitive)
{
    EXPECT_EQ(scriptRoles("Say say"), "1111444");
}

TEST(Colouring, TheLongerOfTwoKeywordsWins)
{
    EXPECT_EQ(newEditorRoles("#ifdef #if"), "4444441444");
    EXPECT_EQ(scriptRoles("endsub end"), "4444441444");
}

TEST(Colouring, AStringWithoutItsEndRunsToTheEndOfTheLine)
{
    EXPECT_EQ(scriptRoles("a \"say b"), "11222222");
}

TEST(Colouring, AStringMayCloseAtOnce)
{
    EXPECT_EQ(scriptRoles("\"\"x"), "221");
    EXPECT_EQ(scriptRoles("x\""), "12");
}

TEST(Colouring, ACommentNeedsNothingBeforeIt)
{
    EXPECT_EQ(scriptRoles("x#y \"z"), "133333");
}

TEST(Colouring, ANewEditorHasTheDemonstrationRules)
{
    EXPECT_EQ(newEditorRoles("int foo; // bar"), "444166611333333");
    EXPECT_EQ(newEditorRoles("'a' \"b\" /c"), "2221222111");
}

TEST(Colouring, TheWordsOfANewEditorStayColouredInTheScriptEditor)
{
    EXPECT_EQ(scriptRoles("while foo"), "444441666");
}

TEST(Colouring, ClearingTheTableForgetsEarlierWords)
{
    Script script("while say");
    script.editor.keywords_update_hashtable(true);
    script.buffer.tabs_insert(4);
    script.colour();
    EXPECT_EQ(script.line(0), "111111444");
}

TEST(Colouring, AWordOfBothClassesIsOfTheSecond)
{
    Script script("say");
    script.editor.keywords_class2.insert(u"say");
    script.editor.keywords_update_hashtable(false);
    script.buffer.tabs_insert(4);
    script.colour();
    EXPECT_EQ(script.line(0), "666");
}

TEST(Colouring, EmptyKeywordsAndOpenersDoNoHarm)
{
    Script script("say x");
    script.editor.keywords_class1.insert(u"");
    script.editor.keywords_update_hashtable(false);
    script.buffer.tabs_insert(4);
    script.colour();
    EXPECT_EQ(script.line(0), "44411");
    script.editor.line_comments.insert(u"");
    script.buffer.tabs_insert(4);
    script.colour();
    EXPECT_EQ(script.line(0), "33333");
}

TEST(Colouring, WithoutAnyRulesEverythingIsPlain)
{
    Editing editing("say \"x\"");
    editing.editor.colorize(write_cell_color, 0, -1);
    EXPECT_EQ(roles(editing.buffer.line(0)), "1111111");
}

TEST(Colouring, RulesMayUseCharactersBeyondLatin1)
{
    Editing editing("");
    editing.buffer.set_text(u"\u2018a\u2019 \u0416 \u2116b");
    editing.editor.string_delimiters = {{u'\u2018', u'\u2019'}};
    editing.editor.keywords_class1 = {u"\u0416"};
    editing.editor.line_comments = {u"\u2116"};
    editing.editor.keywords_update_hashtable(true);
    editing.editor.colorize(write_cell_color, 0, -1);
    EXPECT_EQ(roles(editing.buffer.line(0)), "22214133");
}

TEST(Colouring, TabsAndTheirFillersTakeTheRoleOfTheirRun)
{
    EXPECT_EQ(scriptRoles("say\t\"a\tb\""), "4441222222");
}

TEST(Colouring, OnlyChangedLinesAreColouredAgain)
{
    Script script("say a\nsay b");
    EXPECT_FALSE(script.editor.is_dirty());
    script.editor.keywords_class1.erase(u"say");
    script.editor.keywords_update_hashtable(true);
    script.colour();
    EXPECT_EQ(script.line(0), "44411");
    script.editor.selection.set(1, 5);
    script.press(u'c');
    EXPECT_TRUE(script.editor.is_dirty());
    script.colour();
    EXPECT_EQ(script.line(0), "44411");
    EXPECT_EQ(script.line(1), "111111");
}

TEST(Colouring, AnEditedLineIsColouredAgainAsAWhole)
{
    Script script("|say \"a\"");
    script.press(u'#');
    script.colour();
    EXPECT_EQ(script.line(0), "33333333");
    script.press(8);
    script.colour();
    EXPECT_EQ(script.line(0), "4441222");
}

TEST(Colouring, LinesOutsideTheRangeStayChanged)
{
    Script script("say\nsay\nsay");
    script.buffer.set_text(u"end\nend\nend");
    script.editor.colorize(write_cell_color, 1, 1);
    EXPECT_EQ(script.line(0) + script.line(1) + script.line(2), "111444111");
    EXPECT_TRUE(script.editor.is_dirty());
    script.editor.colorize(write_cell_color, -5, 0);
    script.editor.colorize(write_cell_color, 9, 99);
    EXPECT_EQ(script.line(0) + script.line(1) + script.line(2), "444444444");
    EXPECT_FALSE(script.editor.is_dirty());
}

TEST(Colouring, ATextWithoutLinesIsColouredToo)
{
    Script script("a");
    script.buffer.erase_lines(0, -1);
    script.colour();
    EXPECT_FALSE(script.editor.is_dirty());
}

TEST(Colouring, EveryChangeOfARoleGoesThroughTheWriter)
{
    Script script("x");
    script.buffer.set_text(u"say x");
    writerCalls = 0;
    script.editor.colorize(countingWriter, 0, -1);
    EXPECT_EQ(writerCalls, 3);
    script.editor.colorize(countingWriter, 0, -1);
    EXPECT_EQ(writerCalls, 3);
}

TEST(Colouring, AOneLinePassOfALargeTextRunsInTheCallersThread)
{
    Script script(std::string(5000, '\n') + "|");
    script.type(u"say");
    script.editor.colorize(noteThread, 0, -1);
    EXPECT_EQ(script.line(5000), "444");
    EXPECT_EQ(writingThread, std::this_thread::get_id());
}

TEST(Colouring, ARunOfCellsGetsOneRole)
{
    Script script("abc\ndef\nghi");
    script.editor.colorize({0, 1}, {2, 2}, kStringRole, write_cell_color);
    EXPECT_EQ(script.line(0) + " " + script.line(1) + " " + script.line(2), "122 222 221");
}

TEST(Colouring, ARunThatBeginsBehindItsLineTakesTheLastCell)
{
    Script script("abc\n\nghi");
    script.editor.colorize({0, 9}, {9, 9}, kStringRole, write_cell_color);
    EXPECT_EQ(script.line(0) + " " + script.line(1) + " " + script.line(2), "112  222");
}

TEST(Colouring, ALargeTextIsColouredByTheWorkersLikeASmallOne)
{
    std::string text;
    for (int i = 0; i < 5000; ++i) {
        text += i % 2 == 0 ? "say \"a\"\n" : "pitch 'x\n";
    }
    const Script script(text);
    for (int i = 0; i < 5000; ++i) {
        ASSERT_EQ(script.line(i), i % 2 == 0 ? "4441222" : "66666133") << "line " << i;
    }
}
