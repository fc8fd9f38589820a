// The code in pieces: what stands under which name, and the statement that it comes from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string shown(const ttbasic::Place& place)
{
    return std::to_string(place.line) + ":" + std::to_string(place.column);
}

// "name line:column" and, indented, its commands with theirs.
std::vector<std::string> stepsOf(const std::string& source)
{
    const Compiled compiled = compile(source);
    EXPECT_TRUE(compiled.ok) << compiled.messages;
    std::vector<std::string> texts;
    for (const ttbasic::Step& step : compiled.script.steps()) {
        texts.push_back(std::string(step.name) + " " + shown(step.place));
        for (const ttbasic::Command& command : step.commands) {
            texts.push_back("  " + shown(command.place) + " " + std::string(command.text));
        }
    }
    return texts;
}

TEST(Steps, OfNothingAreNone)
{
    EXPECT_THAT(stepsOf("# nothing\n"), IsEmpty());
    EXPECT_THAT(ttbasic().steps(), IsEmpty());
}

TEST(Steps, KnowTheStatementsThatTheyComeFrom)
{
    const std::string random = withRandomNumbers("{R}");
    EXPECT_THAT(stepsOf("' the cow\n"
                        "sub  cow\n"
                        "   say Moo # loudly\n"
                        "end sub\n"),
                ElementsAre("cow 2:6", "  3:4 J(asm1)    P(say_adam_Moo)", "asm1 3:4",
                            "  4:1 $rnd += " + random));
}

TEST(Steps, LeaveOutComments)
{
    EXPECT_THAT(stepsOf("sub cow\n"
                        "if 1\n"
                        "else\n"
                        "end if\n"
                        "end sub\n"),
                ElementsAre("cow 1:5", "  2:1 J(asm1)    $_stk1 := 1", "asm1 2:1",
                            "  2:1 J(asm2)    $ifexp1 := $_stk1", "asm2 2:1",
                            "  5:1 $rnd += " + withRandomNumbers("{R}")));
}

TEST(Steps, InFrontOfTheFirstSubHaveNoName)
{
    EXPECT_THAT(stepsOf("say Moo\n"),
                ElementsAre(" 0:0", "  1:1 J(asm1)    P(say_adam_Moo)", "asm1 1:1"));
}

TEST(Steps, HaveTheNameOfASubThatIsCalledLikeOne)
{
    EXPECT_THAT(stepsOf("sub asm1\nsay Moo\nend sub\n"),
                ElementsAre("asm1 1:5", "  2:1 J(asm1)    P(say_adam_Moo)", "asm1 2:1",
                            "  3:1 $rnd += " + withRandomNumbers("{R}")));
}

TEST(InitialValues, AreWhatTheDescriptionSays)
{
    Compiled compiled = compile("sub cow\nx = 1\nend sub\n");
    ttbasic same = compiled.script;
    const std::string values = compiled.script.initialValues();
    EXPECT_NE(same.yaml(900, "Zoo").find("\r\ninit:  " + values + "\r\n"), std::string::npos);
    EXPECT_EQ(values.substr(0, values.find("$rnd")), "$_stk1 := 0  $_zero := 0  ");
    EXPECT_EQ(values.substr(values.find("  $x")), "  $x := 0");
}

}  // namespace
