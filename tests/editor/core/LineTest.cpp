#include <gtest/gtest.h>

#include "editor/core/CaseChange.h"
#include "tests/editor/core/Editing.h"

using namespace KVTextEditor;

namespace {

char16_t dotted(char16_t)
{
    return u'.';
}

const Cell kX{u'x', kStringRole};

}  // namespace

TEST(Line, AllocTakesExactlyTheCellsAskedForAndNeverShrinks)
{
    TextLine line = lineOf(u"abc");
    EXPECT_EQ(line.capacity(), 3);
    line.alloc(10);
    EXPECT_EQ(line.capacity(), 10);
    line.alloc(2);
    EXPECT_EQ(line.capacity(), 10);
    EXPECT_EQ(cells(line), "abc");
}

TEST(Line, ACopyTakesTextRolesAndFlagsButNoSpareCells)
{
    TextLine line;
    line.alloc(20);
    line.overwrite(0, &kX, 1);
    line.bookmark = true;
    const TextLine copy = line;
    EXPECT_EQ(copy.capacity(), 1);
    EXPECT_EQ(roles(copy), "2");
    EXPECT_TRUE(copy.bookmark);
    EXPECT_TRUE(copy.changed);
}

TEST(Line, AssigningALineToItselfKeepsIt)
{
    TextLine line = lineOf(u"abc");
    const TextLine& same = line;
    line = same;
    EXPECT_EQ(cells(line), "abc");
}

TEST(Line, ClearGivesTheCellsBackAndEmptyKeepsThem)
{
    TextLine line = lineOf(u"abc");
    line.empty();
    EXPECT_EQ(line.length(), 0);
    EXPECT_EQ(line.capacity(), 3);
    EXPECT_FALSE(line.changed);
    line.clear();
    EXPECT_EQ(line.capacity(), 0);
}

TEST(Line, SetTakesTheGivenNumberOfCharactersAndMarksTheLineChanged)
{
    TextLine line;
    line.set(u"abcdef", 3);
    EXPECT_EQ(cells(line), "abc");
    EXPECT_EQ(roles(line), "111");
    EXPECT_TRUE(line.changed);
}

TEST(Line, SettingAnEmptyTextLeavesTheLineUnchanged)
{
    TextLine line = lineOf(u"abc");
    line.set(u"abc", 0);
    EXPECT_EQ(line.length(), 0);
    EXPECT_FALSE(line.changed);
}

TEST(Line, AGapBehindTheEndFillsTheLineUpWithBlanksFirst)
{
    TextLine line = lineOf(u"ab");
    line.insert_gap(5, 2);
    line.overwrite(5, &kX, 1);
    EXPECT_EQ(cells(line), "ab   x_");
}

TEST(Line, AGapMovesTheCellsBehindIt)
{
    TextLine line = lineOf(u"abc");
    line.insert(1, &kX, 1);
    EXPECT_EQ(cells(line), "axbc");
    EXPECT_EQ(roles(line), "1211");
}

TEST(Line, AnEmptyOrNegativeGapDoesNothing)
{
    TextLine line = lineOf(u"ab");
    line.insert_gap(5, 0);
    line.insert_gap(-1, 2);
    line.insert_gap(1, -2);
    EXPECT_EQ(cells(line), "ab");
}

TEST(Line, OverwriteReplacesCellsWithTheirRolesAndGrowsTheLine)
{
    TextLine line = lineOf(u"abc");
    const Cell two[] = {kX, kX};
    line.overwrite(2, two, 2);
    EXPECT_EQ(cells(line), "abxx");
    EXPECT_EQ(roles(line), "1122");
}

TEST(Line, CellsThatALineGrowsByArePlainFillersNeverOldContent)
{
    TextLine line = lineOf(u"abcdef");
    line.erase(1, -1);
    line.overwrite(4, &kX, 1);
    EXPECT_EQ(cells(line), "a___x");
    EXPECT_EQ(roles(line), "11112");
}

TEST(Line, OverwriteAtANegativePositionDoesNothing)
{
    TextLine line = lineOf(u"ab");
    line.changed = false;
    line.overwrite(-1, &kX, 1);
    EXPECT_EQ(cells(line), "ab");
    EXPECT_FALSE(line.changed);
}

TEST(Line, EraseMovesTheRestDownAndSaysThatItRemovedSomething)
{
    TextLine line = lineOf(u"abcdef");
    EXPECT_TRUE(line.erase(1, 2));
    EXPECT_EQ(cells(line), "adef");
    EXPECT_TRUE(line.erase(2, -1));
    EXPECT_EQ(cells(line), "ad");
    EXPECT_TRUE(line.erase(1, 100));
    EXPECT_EQ(cells(line), "a");
}

TEST(Line, ErasingNothingSaysSoAndLeavesTheLineUnchanged)
{
    TextLine line = lineOf(u"ab");
    line.changed = false;
    EXPECT_FALSE(line.erase(2, 1));
    EXPECT_FALSE(line.erase(0, 0));
    EXPECT_FALSE(line.erase(-1, 1));
    EXPECT_FALSE(line.erase(0, -2));
    EXPECT_EQ(cells(line), "ab");
    EXPECT_FALSE(line.changed);
}

TEST(Line, AppendKeepsTheRolesOfTheOtherLine)
{
    TextLine line = lineOf(u"ab");
    TextLine other;
    other.overwrite(0, &kX, 1);
    line.append(other);
    EXPECT_EQ(cells(line), "abx");
    EXPECT_EQ(roles(line), "112");
}

TEST(Line, ALineCanBeAppendedToItself)
{
    TextLine line = lineOf(u"ab");
    line.append(line);
    EXPECT_EQ(cells(line), "abab");
}

TEST(Line, TransformChangesTheCellsOfTheRangeAndMakesThemPlain)
{
    TextLine line;
    const Cell four[] = {kX, kX, kX, kX};
    line.overwrite(0, four, 4);
    EXPECT_TRUE(line.transform(1, 2, dotted));
    EXPECT_EQ(cells(line), "x..x");
    EXPECT_EQ(roles(line), "2112");
}

TEST(Line, TransformWithANegativeCountRunsToTheEndAndSkipsFillers)
{
    TextLine line = lineOf(u"a\tb");
    line.tabs_insert(4);
    EXPECT_TRUE(line.transform(1, -1, dotted));
    EXPECT_EQ(cells(line), "a.__.");
}

TEST(Line, TransformMarksTheLineEvenWhenThereIsNothingToTransform)
{
    TextLine line = lineOf(u"ab");
    line.changed = false;
    EXPECT_FALSE(line.transform(2, 5, dotted));
    EXPECT_TRUE(line.changed);
    EXPECT_FALSE(line.transform(0, -1, nullptr));
    EXPECT_EQ(cells(line), "ab");
}

TEST(Line, TransformReturnsTrueEvenWhenTheFunctionChangesNothing)
{
    TextLine line = lineOf(u"12");
    EXPECT_TRUE(line.transform(0, 1, transform_to_upper));
}

TEST(Line, SubstrGivesAtMostTheCellsThatThereAre)
{
    const TextLine line = lineOf(u"abcd");
    EXPECT_EQ(cells(line.substr(1, 2)), "bc");
    EXPECT_EQ(cells(line.substr(1, 100)), "bcd");
    EXPECT_EQ(cells(line.substr(2, -1)), "cd");
    EXPECT_EQ(cells(line.substr(4, 1)), "");
    EXPECT_EQ(cells(line.substr(-1, 2)), "");
}

TEST(Line, ReadingOutsideTheLineGivesOneSharedPlainFiller)
{
    const TextLine line = lineOf(u"ab");
    EXPECT_EQ(line.at(-1), Cell());
    EXPECT_EQ(&line.at(-1), &line.at(2));
    EXPECT_FALSE(line.is_filler_at(2));
}

TEST(Line, IsStringAtComparesExactlyAndNotPastTheEnd)
{
    const TextLine line = lineOf(u"abc");
    EXPECT_TRUE(line.is_string_at(u"bc", 1));
    EXPECT_FALSE(line.is_string_at(u"BC", 1));
    EXPECT_FALSE(line.is_string_at(u"cd", 2));
    EXPECT_FALSE(line.is_string_at(u"a", -1));
}

TEST(Line, AnEmptyTextIsFoundAtEveryPositionUpToTheEnd)
{
    const TextLine line = lineOf(u"ab");
    EXPECT_TRUE(line.is_string_at(u"", 0));
    EXPECT_TRUE(line.is_string_at(u"", 2));
    EXPECT_FALSE(line.is_string_at(u"", 3));
}

TEST(Line, BlockTypesTellTextBlanksOperatorsAndQuotesApart)
{
    const TextLine line = lineOf(u"_9\u00E4 +\u00B0'\"");
    const int expected[] = {2, 2, 2, 1, 4, 4, 5, 5};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(line.get_blocktype_at(i), expected[i]) << "column " << i;
    }
    EXPECT_EQ(line.get_blocktype_at(-1), 0);
    EXPECT_EQ(line.get_blocktype_at(8), 0);
}

TEST(Line, AMovedLineLeavesAnEmptyOneBehind)
{
    TextLine line = lineOf(u"abc");
    const TextLine moved = std::move(line);
    EXPECT_EQ(cells(moved), "abc");
    EXPECT_EQ(line.length(), 0);  // NOLINT(bugprone-use-after-move): that is the question
}

TEST(Line, ALineTooLongForItsLengthFailsAsABadArrayLength)
{
    TextLine line = lineOf(u"ab");
    EXPECT_THROW(line.insert_gap(2, 2147483647), std::bad_array_new_length);
    EXPECT_EQ(cells(line), "ab");
}
