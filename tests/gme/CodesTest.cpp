// Which code a script gets.
#include "gme/Codes.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"

#include <gtest/gtest.h>

namespace {

uint16_t firstCode(uint32_t productId, const gme::GivenCodes& given = {})
{
    return gme::CodeSequence(productId, given).take().value_or(0);
}

// A game of many labels that jump from one to the next.
std::string chainOf(int labels)
{
    std::string scripts;
    for (int i = 1; i <= labels; ++i) {
        const std::string next = std::to_string(i % labels + 1);
        scripts += "  asm" + std::to_string(i) + ": J(asm" + next + ")\n";
    }
    return yamlWithScripts(scripts);
}

}  // namespace

TEST(CodeSequence, StartsWhereTheProductSays)
{
    EXPECT_EQ(firstCode(950), 2663);
    EXPECT_EQ(firstCode(0), 1000);
    EXPECT_EQ(firstCode(4294967295U), 1905);  // the product of the formula wraps
}

TEST(CodeSequence, GoesOnAt1000Behind14999AndEndsBeforeItsStart)
{
    gme::CodeSequence sequence(950, {});
    std::vector<uint16_t> codes;
    while (const std::optional<uint16_t> code = sequence.take()) {
        codes.push_back(*code);
    }
    ASSERT_EQ(codes.size(), 14000U);
    EXPECT_EQ(codes[14999 - 2663], 14999);
    EXPECT_EQ(codes[14999 - 2663 + 1], 1000);
    EXPECT_EQ(codes.back(), 2662);
    EXPECT_EQ(sequence.take(), std::nullopt);
}

TEST(CodeSequence, LeavesOutWhatIsGiven)
{
    gme::GivenCodes given;
    given.names["area without script"] = {2663, 1};
    given.replay = gme::GivenCode{2664, {}};
    given.stop = gme::GivenCode{2665, {}};
    given.names["beyond the pen"] = {65535, 1};
    EXPECT_EQ(firstCode(950, given), 2666);
}

TEST(NumericName, IsADecimalHexadecimalOrOctalNumber)
{
    EXPECT_EQ(gme::numericName("12"), 12);
    EXPECT_EQ(gme::numericName("007"), 7);
    EXPECT_EQ(gme::numericName("0x1F"), 31);
    EXPECT_EQ(gme::numericName("0Xff"), 255);
    EXPECT_EQ(gme::numericName("0o17"), 15);
    EXPECT_EQ(gme::numericName("0O17"), 15);
    EXPECT_EQ(gme::numericName("-1"), 65535);
    EXPECT_EQ(gme::numericName("((12))"), 12);
    EXPECT_EQ(gme::numericName("(-0x10)"), 65520);
    EXPECT_EQ(gme::numericName("65537"), 1);
    EXPECT_EQ(gme::numericName("99999999999999999999"), 65535);
}

TEST(NumericName, IsNothingElse)
{
    for (const char* name : {"", "-", "()", "+5", "1.5", "1e3", "0x", "0xG", "0o8", "5a", "-(12)",
                             "(12", "asm1", "٣"}) {
        EXPECT_EQ(gme::numericName(name), std::nullopt) << name;
    }
}

TEST(Codes, ReplayAndStopComeFirstThenTheNamesInTheOrderOfTheirText)
{
    const Assembled result = assemble("product-id: 950\n"
                                      "scripts:\n"
                                      "  asm2: C\n"
                                      "  asm10: C\n"
                                      "  asm1: C\n");
    EXPECT_EQ(result.codes, "replay: 2663\n"
                            "scriptcodes:\n"
                            "  asm1: 2665\n"
                            "  asm10: 2666\n"
                            "  asm2: 2667\n"
                            "stop: 2664\n");
}

TEST(Codes, NumbersForReplayAndStopAreTakenOutAlthoughTheyAreGiven)
{
    const Assembled result = assemble("product-id: 950\n"
                                      "replay: 5\n"
                                      "stop: 6\n"
                                      "scripts:\n"
                                      "  asm1: C\n");
    EXPECT_EQ(result.codes, "scriptcodes:\n"
                            "  asm1: 2665\n");
}

TEST(Codes, NumericNamesAreTheirOwnCodesWhateverElseIsSaid)
{
    const Assembled result = assemble("product-id: 950\n"
                                      "scripts:\n"
                                      "  2663: C\n"
                                      "scriptcodes:\n"
                                      "  2663: 5000\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.codes, "replay: 2663\n"
                            "scriptcodes: {}\n"
                            "stop: 2664\n");
    EXPECT_EQ(result.messages,
              "Warning: 900-case.yaml line 3: script 2663 has the code 2663, which "
              "is also the replay code\n");
}

TEST(Codes, NumericAndOtherNamesDoNotMix)
{
    EXPECT_EQ(
        assemble(yamlWithScripts("  12: C\n"
                                 "  lion: C\n"))
            .messages,
        "Error: 900-case.yaml line 3: the names of scripts are partly numbers (12) and partly "
        "not (lion)\n");
}

TEST(Codes, OfTwoScriptsWithOneCodeTheGreaterNameStays)
{
    const Assembled result = assemble(yamlWithScripts("  b: $x := 1\n"
                                                      "  a: junk P(missing)\n"
                                                      "  c: J(a)\n"
                                                      "scriptcodes:\n"
                                                      "  a: 1001\n"
                                                      "  b: 1001\n"
                                                      "  c: 1002\n"));
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.messages, "Warning: 900-case.yaml line 4: script a is lost: script b has the "
                               "same code 1001\n");
}

TEST(Codes, CodesThatThePenDoesNotReadAreToldButKept)
{
    const Assembled result = assemble(yamlWithScripts("  a: C\n"
                                                      "  b: C\n"
                                                      "  c: C\n"
                                                      "scriptcodes:\n"
                                                      "  a: 0\n"
                                                      "  b: 14999\n"
                                                      "  c: 15000\n"
                                                      "  area: 65535\n"
                                                      "replay: 20000\n"
                                                      "stop: 15001\n"));
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(
        result.messages,
        "Warning: 900-case.yaml line 10: area area has the code 65535, but the pen reads only "
        "codes below 15000\n"
        "Warning: 900-case.yaml: replay has the code 20000, but the pen reads only codes "
        "below 15000\n"
        "Warning: 900-case.yaml: stop has the code 15001, but the pen reads only codes below "
        "15000\n"
        "Warning: 900-case.yaml line 5: script c has the code 15000, but the pen reads only "
        "codes below 15000\n");
}

TEST(Codes, AScriptWithTheStopCodeIsTold)
{
    EXPECT_EQ(assemble(yamlWith("stop: 1001\n"
                                "scriptcodes:\n"
                                "  a: 1001\n"))
                  .messages,
              "Warning: 900-case.yaml line 6: script a has the code 1001, which is also the stop "
              "code\n");
}

TEST(Codes, ThereAre13998AutomaticOnes)
{
    EXPECT_TRUE(assemble(chainOf(13998)).ok);
    EXPECT_EQ(assemble(chainOf(13999)).messages,
              "Error: 900-case.yaml: the game has too many steps: the codes 1000 to 14999 are used "
              "up, and 1 is missing\n");
    EXPECT_EQ(assemble(chainOf(14010)).messages,
              "Error: 900-case.yaml: the game has too many steps: the codes 1000 to 14999 are used "
              "up, and 12 are missing\n");
}

TEST(Codes, AnAreaWithinTheRangeLeavesOneCodeLess)
{
    EXPECT_FALSE(assemble(chainOf(13998) + "scriptcodes:\n  area: 1000\n").ok);
    EXPECT_TRUE(assemble(chainOf(13998) + "scriptcodes:\n  area: 999\n").ok);
}
