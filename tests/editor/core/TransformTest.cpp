#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

using namespace KVTextEditor;

namespace {

std::string upper(Editing& editing)
{
    editing.editor.transform(editing.editor.selection, transform_to_upper);
    return cells(editing.buffer);
}

}  // namespace

TEST(Transform, AStreamWithinALine)
{
    Editing editing("abcd");
    EXPECT_EQ(upper(editing.select({0, 3}, {0, 1})), "aBCd");
}

TEST(Transform, AStreamOverLines)
{
    Editing editing("abc\ndef\nghi");
    EXPECT_EQ(upper(editing.select({0, 1}, {2, 1})), "aBC\nDEF\nGhi");
}

TEST(Transform, ABlock)
{
    Editing editing("abc\nd\nghi");
    EXPECT_EQ(upper(editing.selectBlock({2, 1}, {0, 3})), "aBC\nd\ngHI");
}

TEST(Transform, SetsDirtyOnlyWhenThereWasACell)
{
    Editing editing("abc");
    editing.editor.dirty = false;
    upper(editing.select({0, 3}, {0, 7}));
    EXPECT_FALSE(editing.editor.dirty);
    upper(editing.select({0, 0}, {0, 1}));
    EXPECT_TRUE(editing.editor.dirty);
}

TEST(Transform, ExpandsTheLinesAgainInWhichThereWasACell)
{
    Editing editing("\ta\n\tb");
    for (const int line : {0, 1}) {
        editing.select({line, 0}, {line, 1}).editor.delete_selected_range();
    }
    EXPECT_EQ(cells(editing.buffer), "___a\n___b");
    EXPECT_EQ(upper(editing.select({0, 3}, {1, 2})), "A\n___b");
}

TEST(Transform, BelowTheTextItCreatesNoLines)
{
    Editing editing("abc");
    EXPECT_EQ(upper(editing.select({0, 1}, {5, 2})), "aBC");
    EXPECT_EQ(upper(editing.selectBlock({4, 1}, {5, 2})), "aBC");
}

TEST(CaseChange, UsesTheSimpleMappingsOfUnicode)
{
    EXPECT_EQ(transform_to_upper(u'a'), u'A');
    EXPECT_EQ(transform_to_lower(u'Z'), u'z');
    EXPECT_EQ(transform_to_upper(u'\u00E4'), u'\u00C4');
    EXPECT_EQ(transform_to_upper(u'\u00FF'), u'\u0178');
    EXPECT_EQ(transform_to_upper(u'\u00B5'), u'\u039C');
    EXPECT_EQ(transform_to_upper(u'\u0131'), u'I');
    EXPECT_EQ(transform_to_lower(u'\u0416'), u'\u0436');
    EXPECT_EQ(transform_to_lower(u'\u212A'), u'k');
    EXPECT_EQ(transform_to_upper(u'\uFF5A'), u'\uFF3A');
}

TEST(CaseChange, TheDottedCapitalIBecomesAPlainI)
{
    EXPECT_EQ(transform_to_lower(u'\u0130'), u'i');
    EXPECT_EQ(transform_to_upper(u'\u0130'), u'\u0130');
}

TEST(CaseChange, WhatNeedsMoreThanOneUnitStays)
{
    EXPECT_EQ(transform_to_upper(u'\u00DF'), u'\u00DF');
    EXPECT_EQ(transform_to_upper(u'\uFB01'), u'\uFB01');
    EXPECT_EQ(transform_to_upper(0xD801), 0xD801);
    EXPECT_EQ(transform_to_lower(0xDC00), 0xDC00);
}

TEST(CaseChange, DigitsAndSignsStay)
{
    for (const char16_t c : {u'0', u'_', u'@', u'[', u'`', u'{', u'\u00D7', u'\u00F7'}) {
        EXPECT_EQ(transform_to_upper(c), c);
        EXPECT_EQ(transform_to_lower(c), c);
    }
}

TEST(CaseChange, AsManyCharactersChangeAsUnicodeHasMappings)
{
    int uppers = 0;
    int lowers = 0;
    for (int c = 0; c <= 0xFFFF; ++c) {
        const auto unit = static_cast<char16_t>(c);
        uppers += transform_to_upper(unit) != unit ? 1 : 0;
        lowers += transform_to_lower(unit) != unit ? 1 : 0;
    }
    EXPECT_EQ(uppers, 1190);
    EXPECT_EQ(lowers, 1173);
}
