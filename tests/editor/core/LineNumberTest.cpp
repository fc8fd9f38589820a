#include <gtest/gtest.h>

#include <clocale>

#include "tests/editor/core/Editing.h"

namespace {

// The number that the cell at a column belongs to.
std::string numberAt(const std::u16string& text, int column)
{
    const TextLine line = lineOf(text);
    int first = 0;
    int last = 0;
    if (!line.is_floating_point_number_at(column, first, last)) {
        return "none";
    }
    return cells(line.substr(first, last - first));
}

}  // namespace

TEST(LineNumber, ADigitGluedToAWordIsNoNumber)
{
    EXPECT_EQ(numberAt(u"x1", 1), "none");
}

TEST(LineNumber, EveryDigitOfANumberGivesTheWholeNumber)
{
    for (const int column : {4, 5, 6, 7, 8, 9}) {
        EXPECT_EQ(numberAt(u"a = 1.5e-3", column), "1.5e-3") << "column " << column;
    }
}

TEST(LineNumber, TheSignIsNoPartOfTheNumber)
{
    EXPECT_EQ(numberAt(u"-2", 1), "2");
    EXPECT_EQ(numberAt(u"-2", 0), "none");
    EXPECT_EQ(numberAt(u"1+2", 2), "2");
}

TEST(LineNumber, NumbersAreReadAsTheCLibraryReadsThem)
{
    EXPECT_EQ(numberAt(u"0x1F.8p-2", 0), "0x1F.8p-2");
    EXPECT_EQ(numberAt(u"inf", 0), "inf");
    EXPECT_EQ(numberAt(u"INFINITYx", 0), "INFINITY");
    EXPECT_EQ(numberAt(u"nan(a_1)", 0), "nan(a_1)");
    EXPECT_EQ(numberAt(u"nan(a-1)", 0), "nan");
    EXPECT_EQ(numberAt(u".5", 0), ".5");
    EXPECT_EQ(numberAt(u"5.", 0), "5.");
    EXPECT_EQ(numberAt(u"12", 1), "12");
}

TEST(LineNumber, WhatIsCutOffBehindANumberIsNoPartOfIt)
{
    EXPECT_EQ(numberAt(u"0xg", 0), "0");
    EXPECT_EQ(numberAt(u"1e", 0), "1");
    EXPECT_EQ(numberAt(u"1e+", 0), "1");
    EXPECT_EQ(numberAt(u"1.2.3", 0), "1.2");
    EXPECT_EQ(numberAt(u"0x.p1", 0), "0");
}

TEST(LineNumber, AZeroBeforeAnXIsNotTakenFromItsNeighbour)
{
    EXPECT_EQ(numberAt(u"10x1F", 1), "10");
    EXPECT_EQ(numberAt(u"10x1F", 0), "10");
}

TEST(LineNumber, ThePointIsTheDecimalSignInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(numberAt(u"1.5", 0), "1.5");
    EXPECT_EQ(numberAt(u"1,5", 0), "1");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(LineNumber, AFillerEndsANumber)
{
    TextLine line = lineOf(u"1\t2");
    line.tabs_insert(4);
    int first = 0;
    int last = 0;
    EXPECT_FALSE(line.is_floating_point_number_at(2, first, last));
    EXPECT_TRUE(line.is_floating_point_number_at(4, first, last));
    EXPECT_EQ(first, 4);
    EXPECT_EQ(last, 5);
}

TEST(LineNumber, ANumberNeverStartsAtAVerticalTabOrFormFeed)
{
    EXPECT_EQ(numberAt(u"\v1", 1), "none");
    EXPECT_EQ(numberAt(u"\v1", 0), "none");
    EXPECT_EQ(numberAt(u"\f1", 0), "none");
}

TEST(LineNumber, ThereIsNoNumberOutsideTheLine)
{
    EXPECT_EQ(numberAt(u"12", 2), "none");
    EXPECT_EQ(numberAt(u"12", -1), "none");
    EXPECT_EQ(numberAt(u"", 0), "none");
}

TEST(LineNumber, AMillionDigitsAreOneNumber)
{
    const TextLine line = lineOf(std::u16string(1000000, u'1'));
    int first = 0;
    int last = 0;
    EXPECT_TRUE(line.is_floating_point_number_at(999999, first, last));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 1000000);
}
