#include "base/KVString.h"

#include "tests/helpers/Locales.h"
#include "tests/helpers/PrintKVString.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kCowUtf8 = "K\xC3\xBChe";  // "Kühe"

bool isUtf8(const std::string& bytes)
{
    return KVString(bytes).DetectIsUTF_8();
}

}  // namespace

TEST(KVStringEncoding, SequencesOfTwoThreeAndFourBytesAreUtf8)
{
    EXPECT_TRUE(isUtf8("\xC2\x80"));
    EXPECT_TRUE(isUtf8("\xDF\xBF"));
    EXPECT_TRUE(isUtf8("\xE0\x80\x80"));
    EXPECT_TRUE(isUtf8("\xEF\xBF\xBF"));
    EXPECT_TRUE(isUtf8("\xF0\x80\x80\x80"));
    EXPECT_TRUE(isUtf8("\xF4\xBF\xBF\xBF"));
    EXPECT_TRUE(isUtf8("a \xC3\xA4 b \xE2\x82\xAC c \xF0\x9F\x90\x84"));
}

TEST(KVStringEncoding, PlainAsciiIsNotUtf8)
{
    EXPECT_FALSE(isUtf8(""));
    EXPECT_FALSE(isUtf8("cow"));
    EXPECT_FALSE(KVString().DetectIsUTF_8());
}

TEST(KVStringEncoding, ALoneByteThatBeginsNoSequenceIsNotUtf8)
{
    EXPECT_FALSE(isUtf8("\xC0"));
    EXPECT_FALSE(isUtf8("\xC1\x80"));
    EXPECT_FALSE(isUtf8("\xF5"));
    EXPECT_FALSE(isUtf8("\xF5\x80\x80\x80"));
    EXPECT_FALSE(isUtf8("\xFF"));
    EXPECT_FALSE(isUtf8("\x80"));
    EXPECT_FALSE(isUtf8("\xC3\xA4\xBF"));
}

TEST(KVStringEncoding, ASequenceThatBreaksOffIsNotUtf8)
{
    EXPECT_FALSE(isUtf8("\xC3"));
    EXPECT_FALSE(isUtf8("\xC3x"));
    EXPECT_FALSE(isUtf8("\xC3\xC3"));
    EXPECT_FALSE(isUtf8("\xE2\x82"));
    EXPECT_FALSE(isUtf8("\xE2\x82x"));
    EXPECT_FALSE(isUtf8("\xF0\x9F\x90"));
    EXPECT_FALSE(isUtf8("\xC3\xA4\xF0\x9F\x90 "));
}

TEST(KVStringEncoding, AZeroByteInsideTheTextIsNotUtf8)
{
    EXPECT_FALSE(isUtf8(std::string("\xC3\xA4\0x", 4)));
    EXPECT_FALSE(isUtf8(std::string("x\0\xC3\xA4", 4)));
}

TEST(KVStringEncoding, BytesAreKeptUnlessTheyAreToBeDetected)
{
    const GermanLocale german("ISO-8859-1");
    EXPECT_STREQ(KVString(kCowUtf8).c_str(), kCowUtf8);
    EXPECT_STREQ(KVString(kCowUtf8, KVString::KeepBytes).c_str(), kCowUtf8);
    EXPECT_STREQ(KVString(kCowUtf8, KVString::BoundedCopy).c_str(), kCowUtf8);
    EXPECT_STREQ(KVString(kCowUtf8, KVString::DetectUtf8).c_str(), "K\xFChe");
}

TEST(KVStringEncoding, TheModesHaveTheNumbersZeroToTwo)
{
    EXPECT_EQ(KVString::KeepBytes, 0);
    EXPECT_EQ(KVString::BoundedCopy, 1);
    EXPECT_EQ(KVString::DetectUtf8, 2);
}

TEST(KVStringEncoding, DetectedAsciiStaysAsItIs)
{
    EXPECT_STREQ(KVString("cow & 5 \x01", KVString::DetectUtf8).c_str(), "cow & 5 \x01");
}

TEST(KVStringEncoding, DetectedBytesThatAreNoUtf8StayUndecoded)
{
    EXPECT_STREQ(KVString("a\xC0", KVString::DetectUtf8).c_str(), "a\xC0");
    EXPECT_STREQ(KVString("a\xF5", KVString::DetectUtf8).c_str(), "a\xF5");
}

TEST(KVStringEncoding, OverlongOrTooLargeSequencesStayUndecoded)
{
    const GermanLocale german("ISO-8859-1");
    EXPECT_STREQ(KVString("\xE0\x80\x80", KVString::DetectUtf8).c_str(), "\xE0\x80\x80");
    EXPECT_STREQ(KVString("\xF4\x90\x80\x80", KVString::DetectUtf8).c_str(), "\xF4\x90\x80\x80");
}

TEST(KVStringEncoding, DecodedTextThatTheLocaleCannotHoldStaysUtf8)
{
    const GermanLocale german("ISO-8859-1");
    EXPECT_STREQ(KVString("5 \xE2\x82\xAC", KVString::DetectUtf8).c_str(), "5 \xE2\x82\xAC");
    const PlainLocale plain;
    EXPECT_STREQ(KVString(kCowUtf8, KVString::DetectUtf8).c_str(), kCowUtf8);
}

TEST(KVStringEncoding, NullEmptiesTheString)
{
    EXPECT_EQ(KVString(static_cast<const char*>(nullptr)), "");
    KVString text("cow");
    text.SetStringWithEncoding(nullptr, KVString::DetectUtf8);
    EXPECT_EQ(text, "");
    text = "cow";
    text = static_cast<const char*>(nullptr);
    EXPECT_EQ(text, "");
    EXPECT_EQ(KVString(static_cast<const wchar_t*>(nullptr)), "");
}

TEST(KVStringEncoding, SettingAStringReplacesTheOldOne)
{
    KVString text("a much longer text than before");
    text.SetStringWithEncoding("cow", KVString::BoundedCopy);
    EXPECT_EQ(text, "cow");
}
