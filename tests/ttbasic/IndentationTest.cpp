#include "ttbasic/Indentation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

using testing::ElementsAre;

namespace {

LineOfScript linesOf(const std::string& script)
{
    std::vector<std::string> lines;
    std::istringstream text(script);
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return [lines](int index) { return lines[static_cast<std::size_t>(index)]; };
}

// Of the last line.
std::string below(const std::string& script)
{
    return indentationBelow(linesOf(script),
                            static_cast<int>(std::count(script.begin(), script.end(), '\n')));
}

std::string ofEnd(const std::string& script)
{
    return indentationOfEnd(linesOf(script),
                            static_cast<int>(std::count(script.begin(), script.end(), '\n')));
}

}  // namespace

TEST(Indentation, DepthsFollowTheBlocks)
{
    EXPECT_THAT(depthsOf(outlineOf("# a cow\n"
                                   "sub cow\n"
                                   "if a == 1 # yes\n"
                                   "\n"
                                   "say x\n"
                                   "# still inside\n"
                                   "else\n"
                                   "select b\n"
                                   "# the first\n"
                                   "case 1\n"
                                   "say y\n"
                                   "end select\n"
                                   "end if\n"
                                   "end sub\n"
                                   "# the end")),
                ElementsAre(0, 0, 1, -1, 2, 2, 1, 2, 3, 2, 3, 2, 1, 0, 0));
}

TEST(Indentation, BelowWhatOpensABlockOneStepMore)
{
    EXPECT_EQ(below("sub cow"), "  ");
    EXPECT_EQ(below("sub cow # it's a cow"), "  ");
    EXPECT_EQ(below("sub cow\n  IF x"), "    ");
    EXPECT_EQ(below("\tif x"), "\t\t");
    EXPECT_EQ(below("sub cow\n    if x"), "        ");
    EXPECT_EQ(below("  case 1"), "    ");
    EXPECT_EQ(below("  else"), "    ");
}

TEST(Indentation, BelowAllElseAsItIs)
{
    EXPECT_EQ(below("  say x"), "  ");
    EXPECT_EQ(below("  select x"), "  ");
    EXPECT_EQ(below("  # if x"), "  ");
}

TEST(Indentation, AnEndStandsBelowItsBeginning)
{
    EXPECT_EQ(ofEnd("sub cow\n  if x\n    say y\n    end if"), "  ");
    EXPECT_EQ(ofEnd("sub cow\n  if x\n    else"), "  ");
    EXPECT_EQ(ofEnd("  sub cow\n  x = 1\n      end sub"), "  ");
    EXPECT_EQ(ofEnd("sub cow\n if x\n  if y\n  endif\n  end if"), " ");
    EXPECT_EQ(ofEnd("sub cow\n  select x\n  case 1\n    if y\n    end if\n    case 2"), "  ");
    EXPECT_EQ(ofEnd("sub cow\n  select x\n  case 1\n    say y\n    end select"), "  ");
}

TEST(Indentation, AnEndOfNothingStaysWhereItIs)
{
    EXPECT_EQ(ofEnd("sub cow\n   end if"), "   ");
    EXPECT_EQ(ofEnd("sub cow\nend sub\n   end if"), "   ");
    EXPECT_EQ(ofEnd("if x\n   say y"), "   ");
}
