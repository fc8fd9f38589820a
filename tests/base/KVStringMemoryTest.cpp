#include "base/KVString.h"

#include "tests/helpers/PrintKVString.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

size_t capacityAfterRequest(int bytes, size_t granularity = 512)
{
    KVString text;
    text.SetAllocSize(granularity);
    text.AllocateAtLeast(bytes);
    return text.GetCapacity();
}

}  // namespace

TEST(KVStringMemory, ANewStringIsEmptyAndHasNoRoom)
{
    const KVString text;
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetCapacity(), 0U);
    EXPECT_EQ(text.GetAllocSize(), 512U);
    EXPECT_STREQ(text.c_str(), "");
}

TEST(KVStringMemory, SmallRequestsGetSixteenBytes)
{
    EXPECT_EQ(capacityAfterRequest(-1), 16U);
    EXPECT_EQ(capacityAfterRequest(0), 16U);
    EXPECT_EQ(capacityAfterRequest(14), 16U);
}

TEST(KVStringMemory, LargerRequestsGoBeyondTheNextMultipleOfTheStep)
{
    EXPECT_EQ(capacityAfterRequest(15), 512U);
    EXPECT_EQ(capacityAfterRequest(510), 512U);
    EXPECT_EQ(capacityAfterRequest(511), 1024U);
    EXPECT_EQ(capacityAfterRequest(1022), 1024U);
    EXPECT_EQ(capacityAfterRequest(1023), 1536U);
}

TEST(KVStringMemory, TheStepCanBeSet)
{
    EXPECT_EQ(capacityAfterRequest(14, 10), 16U);
    EXPECT_EQ(capacityAfterRequest(15, 10), 20U);
    EXPECT_EQ(capacityAfterRequest(19, 10), 30U);
}

TEST(KVStringMemory, AStepOfZeroMeansTheUsualOne)
{
    KVString text;
    text.SetAllocSize(0);
    text.AllocateAtLeast(100);
    EXPECT_EQ(text.GetCapacity(), 512U);
    EXPECT_EQ(text.GetAllocSize(), 512U);
}

TEST(KVStringMemory, ARequestThatFitsChangesNothing)
{
    KVString text("cow");
    const char* const before = text.c_str();
    text.AllocateAtLeast(15);
    EXPECT_EQ(text.c_str(), before);
    EXPECT_EQ(text.GetCapacity(), 16U);
}

TEST(KVStringMemory, FifteenCharactersLieInSixteenBytesOnlyAfterASmallerRequest)
{
    KVString text;
    text.AllocateAtLeast(14);
    text = "123456789012345";
    EXPECT_EQ(text.GetCapacity(), 16U);
    EXPECT_EQ(text, "123456789012345");
    EXPECT_EQ(KVString("123456789012345").GetCapacity(), 512U);
}

TEST(KVStringMemory, TheTextSurvivesGrowing)
{
    KVString text("cow");
    text.AllocateAtLeast(5000);
    EXPECT_EQ(text, "cow");
    EXPECT_EQ(text.GetCapacity(), 5120U);
}

TEST(KVStringMemory, TheRoomOfAnEmptyStringBeginsWithAZero)
{
    KVString text;
    text.AllocateAtLeast(20);
    EXPECT_STREQ(text.c_str(), "");
}

TEST(KVStringMemory, EmptyingKeepsTheRoomUnlessItIsToBeFreed)
{
    KVString text("a text of more than sixteen bytes");
    text.Empty();
    EXPECT_STREQ(text.c_str(), "");
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_EQ(text.GetCapacity(), 512U);
    text.Empty(true);
    EXPECT_STREQ(text.c_str(), "");
    EXPECT_EQ(text.GetCapacity(), 0U);
}

TEST(KVStringMemory, EmptyingAStringWithoutRoomIsAllowed)
{
    KVString text;
    text.Empty();
    text.Empty(true);
    EXPECT_EQ(text, "");
}

TEST(KVStringMemory, TheLengthIsFoundAgainAfterWritingIntoTheBuffer)
{
    KVString text;
    strcpy(text.GetBuffer(20), "written");
    EXPECT_EQ(text.GetLength(), 0);
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 7);
    EXPECT_EQ(text, "written");
}

TEST(KVStringMemory, AWriterWhoFillsAllTheRoomLosesOnlyTheLastByte)
{
    KVString text;
    memset(text.GetBuffer(10), 'x', 16);
    text.ReleaseBuffer();
    EXPECT_EQ(text, "xxxxxxxxxxxxxxx");
}

TEST(KVStringMemory, ReleasingAStringWithoutRoomGivesLengthZero)
{
    KVString text;
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 0);
}

TEST(KVStringMemory, ACopyIsATextOfItsOwn)
{
    KVString text("cow");
    KVString copy(text);
    text += "s";
    EXPECT_EQ(copy, "cow");
    copy = text;
    EXPECT_EQ(copy, "cows");
    copy = KVString();
    EXPECT_EQ(copy, "");
    EXPECT_EQ(text, "cows");
}

TEST(KVStringMemory, AssigningAStringToItselfKeepsIt)
{
    KVString text("cow");
    KVString& same = text;
    text = same;
    EXPECT_EQ(text, "cow");
    text = std::move(same);
    EXPECT_EQ(text, "cow");
}

TEST(KVStringMemory, AssigningAnUnusedStringEmpties)
{
    const KVString unused;
    KVString text("cow");
    text = unused;
    EXPECT_EQ(text, "");
    EXPECT_EQ(KVString(unused).GetCapacity(), 0U);
}

TEST(KVStringMemory, MovingTakesTheArraysOverAndLeavesTheSourceEmpty)
{
    KVString source("cow");
    const char* const bytes = source.c_str();
    const wchar_t* const wide = source.to_wchar_ptr();
    const KVString target(std::move(source));
    EXPECT_EQ(target.c_str(), bytes);
    EXPECT_EQ(target, "cow");
    EXPECT_STREQ(wide, L"cow");
    EXPECT_EQ(source.GetLength(), 0);     // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(source.GetCapacity(), 0U);  // NOLINT(bugprone-use-after-move)
    source += "new";
    EXPECT_EQ(source, "new");
}

TEST(KVStringMemory, MovingOverATextReplacesIt)
{
    KVString source("cow");
    KVString target("a goat");
    target = std::move(source);
    EXPECT_EQ(target, "cow");
}

TEST(KVStringMemory, TheSharedNullStringIsEmptiedByEveryCall)
{
    KVString& null = KVString::Null();
    null = "somebody wrote a longer text into it";
    const size_t room = null.GetCapacity();
    EXPECT_EQ(&KVString::Null(), &null);
    EXPECT_EQ(null, "");
    EXPECT_EQ(null.GetCapacity(), room);
}

TEST(KVStringMemory, APartOfAStringCanBeAssignedToIt)
{
    KVString text("cowshed");
    text = text.c_str() + 3;
    EXPECT_EQ(text, "shed");
}

TEST(KVStringMemory, AStringCanBeAppendedToItselfWhileItGrows)
{
    KVString text("0123456789");
    text += text;
    EXPECT_EQ(text, "01234567890123456789");
    text += text.c_str() + 15;
    EXPECT_EQ(text, "0123456789012345678956789");
}

TEST(KVStringMemory, AMillionBytesAreAppendedOneByOne)
{
    KVString text;
    for (int i = 0; i < 1000000; ++i) {
        text += static_cast<char>('a' + i % 26);
    }
    EXPECT_EQ(text.GetLength(), 1000000);
    EXPECT_EQ(text.Mid(999974), "opqrstuvwxyzabcdefghijklmn");
}
