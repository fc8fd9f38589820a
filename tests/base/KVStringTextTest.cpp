#include "base/KVString.h"

#include "tests/helpers/PrintKVString.h"

#include <gtest/gtest.h>

#include <climits>

TEST(KVStringText, IsPutTogetherFromStringsAndCharacters)
{
    const KVString cow("cow");
    EXPECT_EQ(cow + KVString("shed"), "cowshed");
    EXPECT_EQ(cow + "shed", "cowshed");
    EXPECT_EQ("the " + cow, "the cow");
    EXPECT_EQ(cow + 's', "cows");
    EXPECT_EQ('a' + cow, "acow");
    EXPECT_EQ(cow, "cow");
}

TEST(KVStringText, Grows)
{
    KVString text;
    text += "cow";
    text += 's';
    text += KVString(" and goats");
    text += static_cast<const char*>(nullptr);
    EXPECT_EQ(text, "cows and goats");
}

TEST(KVStringText, IsAssigned)
{
    KVString text("cow");
    text = 'x';
    EXPECT_EQ(text, "x");
    text = "goat";
    EXPECT_EQ(text, "goat");
    EXPECT_EQ(text.GetLength(), 4);
}

TEST(KVStringText, KeepsZeroBytesOfAStandardString)
{
    const std::string bytes("a\0b", 3);
    EXPECT_EQ(KVString(bytes).GetLength(), 3);
    EXPECT_EQ(KVString(bytes).ToStdString(), bytes);
}

TEST(KVStringText, IsComparedByItsBytes)
{
    EXPECT_EQ(KVString("cow").Compare("cow"), 0);
    EXPECT_LT(KVString("cow").Compare("cows"), 0);
    EXPECT_GT(KVString("goat").Compare("cow"), 0);
    EXPECT_LT(KVString("Cow").Compare("cow"), 0);
    EXPECT_LT(KVString("z").Compare("\xC3\xA4"), 0);
    EXPECT_TRUE(KVString("cow") < KVString("goat"));
    EXPECT_TRUE(KVString("cow") != "Cow");
    EXPECT_TRUE("cow" != KVString("Cow"));
    EXPECT_TRUE("cow" == KVString("cow"));
    EXPECT_TRUE(KVString("cow") != KVString());
    EXPECT_TRUE(KVString("") == KVString());
}

TEST(KVStringText, IsComparedWithoutRegardToCase)
{
    EXPECT_EQ(KVString("COW").CompareNoCase("cow"), 0);
    EXPECT_LT(KVString("COW").CompareNoCase("goat"), 0);
    EXPECT_EQ(KVString().CompareNoCase(""), 0);
}

TEST(KVStringText, ACharacterOutsideTheTextIsZero)
{
    const KVString cow("cow");
    EXPECT_EQ(cow[0], 'c');
    EXPECT_EQ(cow.GetAt(2), 'w');
    EXPECT_EQ(cow[3], '\0');
    EXPECT_EQ(cow[-1], '\0');
    EXPECT_EQ(KVString()[0], '\0');
}

TEST(KVStringText, PiecesAreCutOut)
{
    const KVString text("cowshed");
    EXPECT_EQ(text.Left(3), "cow");
    EXPECT_EQ(text.Right(4), "shed");
    EXPECT_EQ(text.Mid(3), "shed");
    EXPECT_EQ(text.Mid(1, 2), "ow");
}

TEST(KVStringText, PiecesOutsideTheTextAreCutAtItsEnds)
{
    const KVString text("cow");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(INT_MAX), "cow");
    EXPECT_EQ(text.Right(-1), "");
    EXPECT_EQ(text.Right(INT_MAX), "cow");
    EXPECT_EQ(text.Mid(-5), "cow");
    EXPECT_EQ(text.Mid(5), "");
    EXPECT_EQ(text.Mid(INT_MIN, INT_MAX), "cow");
    EXPECT_EQ(text.Mid(1, INT_MAX), "ow");
    EXPECT_EQ(text.Mid(1, -1), "");
    EXPECT_EQ(KVString().Mid(0, 1), "");
}

TEST(KVStringText, TextsAndCharactersAreFound)
{
    const KVString text("cow, Cow, cow");
    EXPECT_EQ(text.Find("cow"), 0);
    EXPECT_EQ(text.Find("cow", 1), 10);
    EXPECT_EQ(text.Find("goat"), -1);
    EXPECT_EQ(text.Find(','), 3);
    EXPECT_EQ(text.Find(',', 4), 8);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.FindNoCase("COW", 1), 5);
    EXPECT_EQ(text.FindNoCase("goat"), -1);
    EXPECT_EQ(text.ReverseFind("cow"), 10);
    EXPECT_EQ(text.ReverseFind(','), 8);
    EXPECT_EQ(text.ReverseFind("goat"), -1);
    EXPECT_EQ(text.ReverseFind('x'), -1);
}

TEST(KVStringText, ASearchOutsideTheTextBeginsAtItsEnds)
{
    const KVString text("cow");
    EXPECT_EQ(text.Find("cow", -5), 0);
    EXPECT_EQ(text.Find("cow", 5), -1);
    EXPECT_EQ(text.Find('c', INT_MIN), 0);
    EXPECT_EQ(KVString().Find("x"), -1);
    EXPECT_EQ(KVString().ReverseFind('x'), -1);
}

TEST(KVStringText, AnEmptyTextIsFoundWhereTheSearchBegins)
{
    EXPECT_EQ(KVString("cow").Find("", 2), 2);
    EXPECT_EQ(KVString("cow").Find("", 9), 3);
    EXPECT_EQ(KVString("cow").ReverseFind(""), 3);
}

TEST(KVStringText, BeginningAndEndAreRecognised)
{
    const KVString text("cowshed");
    EXPECT_TRUE(text.StartsWith("cow"));
    EXPECT_TRUE(text.StartsWith(""));
    EXPECT_FALSE(text.StartsWith("shed"));
    EXPECT_FALSE(text.StartsWith("cowshed."));
    EXPECT_TRUE(text.EndsWith("shed"));
    EXPECT_TRUE(text.EndsWith(""));
    EXPECT_FALSE(text.EndsWith("cow"));
    EXPECT_FALSE(text.EndsWith(".cowshed"));
}

TEST(KVStringText, EveryOccurrenceIsReplaced)
{
    KVString text("a cow, a goat");
    EXPECT_EQ(text.Replace("a ", "the "), 2);
    EXPECT_EQ(text, "the cow, the goat");
    EXPECT_EQ(text.Replace("pig", "hen"), 0);
    EXPECT_EQ(text.Replace("", "hen"), 0);
    EXPECT_EQ(text, "the cow, the goat");
    EXPECT_EQ(text.Replace("the ", ""), 2);
    EXPECT_EQ(text, "cow, goat");
}

TEST(KVStringText, AReplacementIsNotReplacedAgain)
{
    KVString text("aaa");
    EXPECT_EQ(text.Replace("a", "aa"), 3);
    EXPECT_EQ(text, "aaaaaa");
}

TEST(KVStringText, TextsAreInsertedAndDeleted)
{
    KVString text("cow");
    text.Insert(3, "s");
    text.Insert(0, "two ");
    EXPECT_EQ(text, "two cows");
    text.Insert(-7, "<");
    text.Insert(99, ">");
    EXPECT_EQ(text, "<two cows>");
    text.Delete(0);
    text.Delete(3, 1);
    EXPECT_EQ(text, "twocows>");
    text.Delete(7, INT_MAX);
    text.Delete(99, 3);
    text.Delete(1, -3);
    EXPECT_EQ(text, "twocows");
}

TEST(KVStringText, AStringCanBeInsertedIntoItself)
{
    KVString text("ab");
    text.Insert(1, text);
    EXPECT_EQ(text, "aabb");
}

TEST(KVStringText, WhiteSpaceIsTrimmed)
{
    EXPECT_EQ(KVString(" \t\r\n\v\fcow ").TrimLeft(), "cow ");
    EXPECT_EQ(KVString(" cow \t\r\n\v\f").TrimRight(), " cow");
    EXPECT_EQ(KVString(" a cow ").Trim(), "a cow");
    EXPECT_EQ(KVString(" \n ").Trim(), "");
    EXPECT_EQ(KVString().Trim(), "");
}

TEST(KVStringText, OnlyAsciiLettersChangeTheirCase)
{
    EXPECT_EQ(KVString("Cow 5 [`{ \xC3\xA4").MakeUpper(), "COW 5 [`{ \xC3\xA4");
    EXPECT_EQ(KVString("COW 5 @[ \xC3\x84").MakeLower(), "cow 5 @[ \xC3\x84");
    EXPECT_EQ(KVString().MakeUpper().MakeLower(), "");
}

TEST(KVStringText, LinesEndWithLineFeedsAndTheirCarriageReturns)
{
    const KVString text("first\nsecond\r\n\nlast\rone");
    const std::vector<KVString> lines = {"first", "second", "", "last\rone"};
    EXPECT_EQ(text.GetLines(), lines);
    EXPECT_EQ(text.GetLine(0), "first");
    EXPECT_EQ(text.GetLine(1), "second");
    EXPECT_EQ(text.GetLine(2), "");
    EXPECT_EQ(text.GetLine(3), "last\rone");
}

TEST(KVStringText, AFinalLineEndOpensNoFurtherLine)
{
    EXPECT_EQ(KVString("cow\n").GetLines(), std::vector<KVString>{"cow"});
    EXPECT_EQ(KVString("\r\n").GetLines(), std::vector<KVString>{""});
    EXPECT_EQ(KVString().GetLines(), std::vector<KVString>());
}

TEST(KVStringText, ALineOutsideTheTextIsEmpty)
{
    EXPECT_EQ(KVString("cow").GetLine(1), "");
    EXPECT_EQ(KVString("cow").GetLine(-1), "");
    EXPECT_EQ(KVString().GetLine(0), "");
}

TEST(KVStringText, PartsAreJoined)
{
    EXPECT_EQ(KVString::Join({"cow", "", "goat"}, ", "), "cow, , goat");
    EXPECT_EQ(KVString::Join({"cow"}, ", "), "cow");
    EXPECT_EQ(KVString::Join({}, ", "), "");
}

// --- paths ---

TEST(KVStringPaths, ArePulledApartAtTheBackslash)
{
    const KVString path("C:\\a\\book.v2.txt");
    EXPECT_EQ(path.Path_GetDirectory(), "C:\\a");
    EXPECT_EQ(path.Path_GetFileName(), "book.v2.txt");
    EXPECT_EQ(path.Path_GetFileExtension(), "txt");
    EXPECT_EQ(path.Path_TrimExtension(), "C:\\a\\book.v2");
    EXPECT_EQ(path.Path_GetFileNameWithoutExtension(), "book.v2");
}

TEST(KVStringPaths, APieceThatIsMissingIsEmpty)
{
    EXPECT_EQ(KVString("book.txt").Path_GetDirectory(), "");
    EXPECT_EQ(KVString("C:\\a\\").Path_GetFileName(), "");
    EXPECT_EQ(KVString("book").Path_GetFileExtension(), "");
    EXPECT_EQ(KVString("book.").Path_GetFileExtension(), "");
    EXPECT_EQ(KVString("book.").Path_TrimExtension(), "book");
    EXPECT_EQ(KVString().Path_GetFileNameWithoutExtension(), "");
}

TEST(KVStringPaths, ADotInAFoldersNameIsNoExtension)
{
    const KVString path("C:\\my.dir\\book");
    EXPECT_EQ(path.Path_GetFileExtension(), "");
    EXPECT_EQ(path.Path_TrimExtension(), "C:\\my.dir\\book");
    EXPECT_EQ(path.Path_GetFileNameWithoutExtension(), "book");
}

TEST(KVStringPaths, OnlyTheBackslashSeparates)
{
    EXPECT_EQ(KVString("a/b\\c/d").Path_GetDirectory(), "a/b");
    EXPECT_EQ(KVString("a/b").Path_GetFileName(), "a/b");
}

TEST(KVStringPaths, SlashesAreCorrected)
{
    const KVString path("a/b\\c/d");
    EXPECT_EQ(path.Path_CorrectSeparators(), "a\\b\\c\\d");
    EXPECT_EQ(path, "a/b\\c/d");
}
