#include "base/KVString.h"

#include "tests/helpers/Locales.h"
#include "tests/helpers/PrintKVString.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace {

std::string science(double value, int digits)
{
    return KVStringNamespace::KVStringMaker::FromNumberScience(value, digits).ToStdString();
}

}  // namespace

TEST(FromNumberScience, ShowsNoMoreDigitsThanAskedFor)
{
    EXPECT_EQ(science(297.01, 7), "297.01");
    EXPECT_EQ(science(3.14159265, 7), "3.141593");
    EXPECT_EQ(science(3.14159265, 3), "3.14");
    EXPECT_EQ(science(2.0 / 3, 10), "0.6666666667");
    EXPECT_EQ(science(-1234567.891, 8), "-1234567.9");
}

TEST(FromNumberScience, ShowsNoTrailingZeros)
{
    EXPECT_EQ(science(1, 7), "1");
    EXPECT_EQ(science(0.5, 7), "0.5");
    EXPECT_EQ(science(100, 7), "100");
    EXPECT_EQ(science(9.99999999, 7), "10");
    EXPECT_EQ(science(2.5e20, 7), "2.5e+20");
}

TEST(FromNumberScience, IsPlainWhileTheExponentIsBelowTheDigits)
{
    EXPECT_EQ(science(1234567, 7), "1234567");
    EXPECT_EQ(science(9999999, 7), "9999999");
    EXPECT_EQ(science(10000000, 7), "1e+07");
    EXPECT_EQ(science(9999999.9, 7), "1e+07");
    EXPECT_EQ(science(12345678, 7), "1.234568e+07");
    EXPECT_EQ(science(10000000, 8), "10000000");
}

TEST(FromNumberScience, IsPlainWhileTheExponentIsAboveMinusFive)
{
    EXPECT_EQ(science(0.0001, 7), "0.0001");
    EXPECT_EQ(science(0.00012345, 7), "0.00012345");
    EXPECT_EQ(science(0.00001, 7), "1e-05");
    EXPECT_EQ(science(0.00009999999999, 7), "0.0001");
    EXPECT_EQ(science(1.5e-7, 7), "1.5e-07");
}

TEST(FromNumberScience, HasExponentsOfAtLeastTwoDigits)
{
    EXPECT_EQ(science(1e9, 7), "1e+09");
    EXPECT_EQ(science(1e99, 7), "1e+99");
    EXPECT_EQ(science(-1e100, 7), "-1e+100");
    EXPECT_EQ(science(1e-300, 7), "1e-300");
    EXPECT_EQ(science(std::numeric_limits<double>::max(), 7), "1.797693e+308");
    EXPECT_EQ(science(std::numeric_limits<double>::denorm_min(), 7), "4.940656e-324");
}

TEST(FromNumberScience, KnowsZeroInfinityAndNotANumber)
{
    EXPECT_EQ(science(0, 7), "0");
    EXPECT_EQ(science(-0.0, 7), "0");
    EXPECT_EQ(science(std::numeric_limits<double>::infinity(), 7), "inf");
    EXPECT_EQ(science(-std::numeric_limits<double>::infinity(), 7), "-inf");
    EXPECT_EQ(science(std::numeric_limits<double>::quiet_NaN(), 7), "nan");
    EXPECT_EQ(science(-std::numeric_limits<double>::quiet_NaN(), 7), "nan");
}

TEST(FromNumberScience, ShowsAtLeastOneDigit)
{
    EXPECT_EQ(science(7.4, 1), "7");
    EXPECT_EQ(science(7.4, 0), "7");
    EXPECT_EQ(science(74, INT_MIN), "7e+01");
}

TEST(FromNumberScience, TakesAnyNumberOfDigits)
{
    EXPECT_EQ(science(0.5, INT_MAX), "0.5");
    EXPECT_EQ(science(1e22, 30), "10000000000000000000000");
    EXPECT_EQ(science(std::numeric_limits<double>::denorm_min(), INT_MAX).size(), 757U);
}

TEST(FromNumberScience, HasAPointWhateverTheLocale)
{
    const GermanLocale german("UTF-8");
    EXPECT_EQ(science(297.01, 7), "297.01");
    EXPECT_EQ(science(1.5e-7, 7), "1.5e-07");
}

// --- Format ---

TEST(KVStringFormat, FormatsLikePrintf)
{
    KVString text("old");
    text.Format("%d %s, %5.1f %c%%", 2, "cows", 1.25, 'x');
    EXPECT_EQ(text, "2 cows,   1.2 x%");
    EXPECT_EQ(text.GetLength(), 16);
}

TEST(KVStringFormat, MakesRoomForTwoBytesMoreThanTheText)
{
    KVString text;
    text.Format("%s", "twelve bytes");
    EXPECT_EQ(text.GetCapacity(), 16U);
    KVString longer;
    longer.Format("%s", "thirteen byte");
    EXPECT_EQ(longer.GetCapacity(), 512U);
}

TEST(KVStringFormat, TakesLongTexts)
{
    KVString text;
    text.Format("%s|%s", std::string(100000, 'x').c_str(), "end");
    EXPECT_EQ(text.GetLength(), 100004);
    EXPECT_EQ(text.Right(5), "x|end");
}

TEST(KVStringFormat, NullIsTheEmptyFormat)
{
    KVString text("old");
    text.Format(nullptr);
    EXPECT_EQ(text, "");
}

TEST(KVStringFormat, TheStringMayBeItsOwnArgument)
{
    KVString text("cow");
    text.Format("%s and %s", text.c_str(), text.c_str());
    EXPECT_EQ(text, "cow and cow");
    text.Format("%600s", text.c_str());
    EXPECT_EQ(text.Right(12), " cow and cow");
}

TEST(KVStringFormat, WritesNumbersWithAPointWhateverTheLocale)
{
    const GermanLocale german("UTF-8");
    KVString text;
    text.Format("%.2f %g %s", 1.5, 0.25, "1,5");
    EXPECT_EQ(text, "1.50 0.25 1,5");
}

TEST(KVStringFormat, WritesWideTextInTheLocalesCode)
{
    const GermanLocale german("ISO-8859-1");
    KVString text;
    text.Format("%ls", L"K\u00FChe");
    EXPECT_EQ(text, "K\xFChe");
}

TEST(KVStringFormat, IsEmptyWhenTheLocaleCannotHoldTheText)
{
    const GermanLocale german("ISO-8859-1");
    KVString text("old");
    text.Format("%ls", L"\u20AC");
    EXPECT_EQ(text, "");
}
