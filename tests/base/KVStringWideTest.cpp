#include "base/KVString.h"

#include "tests/helpers/Locales.h"
#include "tests/helpers/PrintKVString.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kCowUtf8 = "K\xC3\xBChe";  // "Kühe"

}  // namespace

TEST(KVStringWide, AStringWithoutBufferGivesTheSameEmptyTextEachTime)
{
    const KVString text;
    EXPECT_STREQ(text.to_wchar_ptr(), L"");
    EXPECT_EQ(text.to_wchar_ptr(), text.to_wchar_ptr());
}

TEST(KVStringWide, EachCallGivesAFreshArray)
{
    const KVString text("cow");
    const wchar_t* const first = text.to_wchar_ptr();
    const wchar_t* const second = text.to_wchar_ptr();
    EXPECT_NE(first, second);
    EXPECT_STREQ(second, L"cow");
}

TEST(KVStringWide, FollowsTheTextWhenItChanges)
{
    KVString text("cow");
    EXPECT_STREQ(text.to_wchar_ptr(), L"cow");
    text += "s";
    EXPECT_STREQ(text.to_wchar_ptr(), L"cows");
    text.Empty();
    EXPECT_STREQ(text.to_wchar_ptr(), L"");
}

TEST(KVStringWide, EndsAtTheFirstZeroByte)
{
    EXPECT_STREQ(KVString(std::string("cow\0shed", 8)).to_wchar_ptr(), L"cow");
}

TEST(KVStringWide, BytesAreReadAsUtf8InEveryLocale)
{
    const std::wstring cow = L"K\u00FChe";
    const PlainLocale plain;
    EXPECT_EQ(KVString(kCowUtf8).to_wchar_ptr(), cow);
    const GermanLocale german("ISO-8859-1");
    EXPECT_EQ(KVString(kCowUtf8).to_wchar_ptr(), cow);
    const GermanLocale germanUtf8("UTF-8");
    EXPECT_EQ(KVString(kCowUtf8).to_wchar_ptr(), cow);
}

TEST(KVStringWide, BytesThatAreNoUtf8AreReadInTheLocalesCode)
{
    const GermanLocale german("ISO-8859-15");
    EXPECT_STREQ(KVString("5 \xA4").to_wchar_ptr(), L"5 \u20AC");
}

TEST(KVStringWide, BytesThatAreNeitherAreReadAsLatin1)
{
    const PlainLocale plain;
    EXPECT_STREQ(KVString("K\xFChe \xC0").to_wchar_ptr(), L"K\u00FChe \u00C0");
    const GermanLocale germanUtf8("UTF-8");
    EXPECT_STREQ(KVString("K\xFChe \xC0").to_wchar_ptr(), L"K\u00FChe \u00C0");
    EXPECT_STREQ(KVString("\xE0\x80\x80").to_wchar_ptr(), L"\u00E0\u0080\u0080");
}

TEST(KVStringWide, AWideTextIsStoredInTheLocalesCode)
{
    const GermanLocale german("ISO-8859-1");
    EXPECT_STREQ(KVString(L"K\u00FChe").c_str(), "K\xFChe");
    const GermanLocale germanUtf8("UTF-8");
    EXPECT_STREQ(KVString(L"K\u00FChe").c_str(), kCowUtf8);
}

TEST(KVStringWide, ATextThatTheLocaleCannotHoldIsStoredAsUtf8)
{
    const PlainLocale plain;
    EXPECT_STREQ(KVString(L"K\u00FChe").c_str(), kCowUtf8);
    const GermanLocale german("ISO-8859-1");
    EXPECT_STREQ(KVString(L"5 \u20AC, K\u00FChe").c_str(), "5 \xE2\x82\xAC, K\xC3\xBChe");
}

// Bytes of Latin-1 that look like UTF-8 would come back as another text.
TEST(KVStringWide, ATextWhoseLocalBytesLookLikeUtf8IsStoredAsUtf8)
{
    const GermanLocale german("ISO-8859-1");
    const QString misleading = QString::fromUtf8("\xC3\x83\xC2\xA4");
    EXPECT_STREQ(KVString(misleading).c_str(), "\xC3\x83\xC2\xA4");
    EXPECT_EQ(QString(KVString(misleading)), misleading);
}

TEST(KVStringWide, EveryQStringComesBackInEveryLocale)
{
    const QString texts[] = {
        "",
        "cow",
        QString::fromUtf8("K\xC3\xBChe, \xE2\x82\xAC 5"),
        QString::fromUtf8("\xF0\x9F\x90\x84 and \xF4\x8F\xBF\xBF"),
        QString("half ") + QChar(0xD83D) + " pair",
        QString("other half ") + QChar(0xDC04),
        QString(QChar(0xDC04)) + QChar(0xD83D),
    };
    const auto expectAllBack = [&texts](const char* locale) {
        for (const QString& text : texts) {
            EXPECT_EQ(QString(KVString(text)), text) << locale << ": " << text.toStdString();
        }
    };
    expectAllBack("as started");
    const PlainLocale plain;
    expectAllBack("C");
    const GermanLocale german("ISO-8859-1");
    expectAllBack("ISO-8859-1");
    const GermanLocale germanUtf8("UTF-8");
    expectAllBack("UTF-8");
}

TEST(KVStringWide, ACharacterBeyondSixteenBitsIsOneCodePoint)
{
    const KVString cow(QString::fromUtf8("\xF0\x9F\x90\x84"));
    EXPECT_STREQ(cow.c_str(), "\xF0\x9F\x90\x84");
    EXPECT_STREQ(cow.to_wchar_ptr(), L"\U0001F404");
}

// The wide form is a text that ends with a zero.
TEST(KVStringWide, AQStringEndsAtItsFirstZero)
{
    EXPECT_EQ(KVString(QString("cow") + QChar(0) + "shed"), "cow");
}

TEST(KVStringWide, DebugOutputShowsTheText)
{
    QString output;
    QDebug(&output).nospace() << KVString(kCowUtf8);
    EXPECT_EQ(output, QString::fromUtf8("\"K\xC3\xBChe\""));
}
