#include "base/TextHelpers.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Pair;

using Options = std::map<std::string, std::string>;

TEST(CommandLineOptions, StartWithTheDefaultsThatHaveAValue)
{
    EXPECT_THAT(parseCommandLineOptions({{"-o", "out"}, {"-v", ""}}, {"tool"}),
                ElementsAre(Pair("-o", "out"), Pair("executable_path", "tool")));
}

TEST(CommandLineOptions, TakeTheNextArgumentAsValue)
{
    EXPECT_THAT(
        parseCommandLineOptions({{"-o", "out"}}, {"tool", "-o", "-x", "book.oidpro"}),
        ElementsAre(Pair("", "book.oidpro"), Pair("-o", "-x"), Pair("executable_path", "tool")));
}

TEST(CommandLineOptions, AKeyAtTheEndIsEmpty)
{
    EXPECT_THAT(parseCommandLineOptions({{"-o", "out"}}, {"tool", "-o"}),
                ElementsAre(Pair("-o", ""), Pair("executable_path", "tool")));
}

TEST(CommandLineOptions, AnOptionMayStandInThePlaceOfTheProgram)
{
    EXPECT_THAT(parseCommandLineOptions({{"-o", ""}}, {"-o", "x", "book"}),
                ElementsAre(Pair("", "book"), Pair("-o", "x")));
}

TEST(CommandLineOptions, ASecondFreeArgumentIsReported)
{
    testing::internal::CaptureStderr();
    const Options options = parseCommandLineOptions({}, {"tool", "a", "b", "c"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Error: Command argument b can't be parsed!\n"
              "Error: Command argument c can't be parsed!\n");
    EXPECT_THAT(options, ElementsAre(Pair("", "a"), Pair("executable_path", "tool"),
                                     Pair("parse_error", "1")));
}

TEST(CommandLineOptions, TheProcessKnowsItsOwnProgram)
{
    const std::vector<std::string> words = commandLineArguments();
    ASSERT_FALSE(words.empty());
    EXPECT_THAT(words[0], testing::HasSubstr("base_tests"));
}
