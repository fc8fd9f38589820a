#include "gme/Yaml.h"

#include <gtest/gtest.h>

using gme::ScalarType;
using gme::YamlNode;

namespace {

YamlNode plain(const std::string& text)
{
    YamlNode node;
    node.text = text;
    return node;
}

YamlNode inQuotes(const std::string& text)
{
    YamlNode node = plain(text);
    node.kind = YamlNode::Kind::Quoted;
    return node;
}

// The number as text, or what is wrong.
std::string wholeNumber(const YamlNode& node, uint32_t largest)
{
    uint32_t number = 0;
    std::string problem;
    return gme::readWholeNumber(node, largest, number, problem) ? std::to_string(number) : problem;
}

}  // namespace

TEST(YamlScalar, NothingTildeAndNullAreNull)
{
    EXPECT_EQ(gme::scalarType(plain("")), ScalarType::Null);
    for (const char* word : {"~", "null", "Null", "NULL"}) {
        EXPECT_TRUE(gme::isNullWord(word)) << word;
    }
    EXPECT_FALSE(gme::isNullWord("nUll"));
}

TEST(YamlScalar, TruthWordsComeInThreeSpellings)
{
    for (const char* word : {"true", "True", "TRUE", "false", "yes", "No", "ON", "off", "y", "N"}) {
        EXPECT_EQ(gme::scalarType(plain(word)), ScalarType::Truth) << word;
    }
    EXPECT_EQ(gme::scalarType(plain("tRUE")), ScalarType::Text);
}

TEST(YamlScalar, NumbersAreWhatReadsWhollyAsANumber)
{
    for (const char* number : {"0", "007", "-5", "+5", "1.", "1.50", "1e3", "1E-3", "2.5e+10",
                               "0x1F", "0xabc", "0o17"}) {
        EXPECT_TRUE(gme::looksLikeNumber(number)) << number;
    }
    for (const char* text : {"", "-", ".5", "1.5.2", "1e", "1e+", "0x", "0xG", "0o8", "0X1F", "1_0",
                             "1 2", "-0x1", "5a"}) {
        EXPECT_FALSE(gme::looksLikeNumber(text)) << text;
    }
}

TEST(YamlScalar, QuotedScalarsAreAlwaysText)
{
    for (const char* text : {"", "5", "true", "null"}) {
        EXPECT_EQ(gme::scalarType(inQuotes(text)), ScalarType::Text) << text;
    }
}

TEST(YamlScalar, WholeNumbersAreDecimalDigitsWithinARange)
{
    EXPECT_EQ(wholeNumber(plain("0"), 65535), "0");
    EXPECT_EQ(wholeNumber(plain("007"), 65535), "7");
    EXPECT_EQ(wholeNumber(plain("65535"), 65535), "65535");
    EXPECT_EQ(wholeNumber(plain("4294967295"), UINT32_MAX), "4294967295");
    EXPECT_EQ(wholeNumber(plain("65536"), 65535), "\"65536\" is out of range: 0 to 65535");
    EXPECT_EQ(wholeNumber(plain("-1"), 65535), "\"-1\" is out of range: 0 to 65535");
    EXPECT_EQ(wholeNumber(plain("99999999999999999999999999"), UINT32_MAX),
              "\"99999999999999999999999999\" is out of range: 0 to 4294967295");
}

TEST(YamlScalar, EverythingElseIsNoWholeNumber)
{
    for (const std::string text : {"", "1.5", "1e3", "0x1F", "yes", "lion", "+5"}) {
        EXPECT_EQ(wholeNumber(plain(text), 65535), "\"" + text + "\" is no whole number");
    }
    EXPECT_EQ(wholeNumber(inQuotes("5"), 65535), "\"5\" is no whole number");
    YamlNode list;
    list.kind = YamlNode::Kind::List;
    EXPECT_EQ(wholeNumber(list, 65535), "\"[...]\" is no whole number");
}
