// What of a book taps have reached.
#include "play/Coverage.h"

#include "tests/play/Books.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

play::Book zoo()
{
    return bookWith("sub cow   # the cow\n"
                    "  if count == 1\n"
                    "    say \"Moo\"   ' loud\n"
                    "  else\n"
                    "    say \"Muh\"\n"
                    "  end if\n"
                    "  count = count + 1\n"
                    "end sub\n"
                    "sub dog\n"
                    "  select count\n"
                    "  case 1\n"
                    "    if count\n"
                    "      goto cow\n"
                    "    end if\n"
                    "  default\n"
                    "    say \"Woof\"\n"
                    "  end select\n"
                    "end sub\n",
                    {"cow", "dog"});
}

play::Coverage coverageAfter(const std::vector<uint16_t>& taps)
{
    play::PlayedBook played(zoo());
    play::Reached reached;
    for (const uint16_t code : taps) {
        played.tap(code);
        played.runToRest();
        reached.add(played.outcome());
    }
    return coverageOf(played.book(), reached);
}

std::string shown(const play::Coverage::Part& part)
{
    return std::to_string(part.reached) + "/" + std::to_string(part.all);
}

}  // namespace

TEST(Coverage, IsNothingWithoutTaps)
{
    const play::Coverage coverage = coverageAfter({});
    EXPECT_EQ(shown(coverage.lines), "0/9");
    EXPECT_EQ(shown(coverage.branches), "0/6");
    EXPECT_EQ(shown(coverage.areas), "0/2");
    EXPECT_THAT(coverage.missing,
                ElementsAre("line 2: not run: if count == 1", "line 3: not run: say \"Moo\"",
                            "line 5: not run: say \"Muh\"", "line 7: not run: count = count + 1",
                            "line 11: not run: case 1", "line 12: not run: if count",
                            "line 13: not run: goto cow", "line 15: not run: default",
                            "line 16: not run: say \"Woof\"", "area cow: not touched",
                            "area dog: not touched"));
}

TEST(Coverage, TellsBranchesThatWereNotTaken)
{
    EXPECT_THAT(coverageAfter({1001, 1001}).missing,
                ElementsAre("line 11: not run: case 1", "line 12: not run: if count",
                            "line 13: not run: goto cow", "line 15: not run: default",
                            "line 16: not run: say \"Woof\"", "area dog: not touched"));
    EXPECT_THAT(coverageAfter({1002}).missing,
                ElementsAre("line 2: not run: if count == 1", "line 3: not run: say \"Moo\"",
                            "line 5: not run: say \"Muh\"", "line 7: not run: count = count + 1",
                            "line 11: never chosen: case 1", "line 12: not run: if count",
                            "line 13: not run: goto cow", "area cow: not touched"));
}

TEST(Coverage, IsWholeWhenAllWasReached)
{
    // An `if` inside the case of 1 cannot be false.
    const play::Coverage coverage = coverageAfter({1002, 1001, 1002, 1002});
    EXPECT_EQ(shown(coverage.lines), "9/9");
    EXPECT_EQ(shown(coverage.branches), "5/6");
    EXPECT_EQ(shown(coverage.areas), "2/2");
    EXPECT_THAT(coverage.missing, ElementsAre("line 12: never false: if count"));
}

TEST(Coverage, TakesAConditionThatIsNeitherTrueNorFalseForNoBranch)
{
    play::PlayedBook played(bookWith("sub cow\nif 7\nsay Moo\nend if\nend sub\n", {"cow"}));
    played.tap(1001);
    played.runToRest();
    play::Reached reached;
    reached.add(played.outcome());
    EXPECT_THAT(coverageOf(played.book(), reached).missing,
                ElementsAre("line 2: never true: if 7", "line 2: never false: if 7",
                            "line 3: not run: say Moo"));
}

TEST(Statement, IsShownWithoutItsComment)
{
    EXPECT_EQ(statementOf(zoo(), 1), "sub cow");
    EXPECT_EQ(statementOf(zoo(), 3), "say \"Moo\"");
    EXPECT_EQ(statementOf(zoo(), 0), "sub cow");
    EXPECT_EQ(statementOf(zoo(), 99), "");
}
