// What comes of taps, at once and step by step.
#include "play/PlayedBook.h"

#include "tests/play/Books.h"

#include <gmock/gmock.h>

using play::PlayedBook;
using Pause = PlayedBook::Pause;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr uint16_t kCow = 1001;
constexpr uint16_t kGate = 1002;
constexpr uint16_t kSun = 1003;

// Line by line, from 1.
const char* const kZoo = "' a zoo\n"
                         "sub cow\n"
                         "  count = count + 1\n"
                         "  if count == 1\n"
                         "    say \"Moo\"\n"
                         "  else\n"
                         "    say adam \"Muh\" \"Moooh\"\n"
                         "  end if\n"
                         "  goto gate\n"
                         "end sub\n"
                         "sub gate\n"
                         "  say eve \"Creak\"\n"
                         "end sub\n"
                         "sub sun\n"
                         "  goto sun\n"
                         "end sub\n";

play::Book zoo()
{
    return bookWith(kZoo, {"cow", "gate", "sun"});
}

play::Book bookOfOneArea(const std::string& statements)
{
    return bookWith("sub cow\n" + statements + "end sub\n", {"cow"});
}

play::Outcome tapped(PlayedBook& played, uint16_t code)
{
    played.tap(code);
    played.runToRest();
    return played.outcome();
}

// "Moo" or "Muh|Moooh", one for each sound.
std::vector<std::string> said(const play::Outcome& outcome, const play::Book& book)
{
    std::vector<std::string> all;
    for (const play::Heard& heard : outcome.heard) {
        std::string& texts = all.emplace_back();
        for (const uint16_t media : heard.sound.choices) {
            texts += (texts.empty() ? "" : "|") + book.texts.at(media).text;
        }
    }
    return all;
}

std::vector<std::string> incidentsOf(const play::Outcome& outcome)
{
    std::vector<std::string> words;
    for (const play::Incident& incident : outcome.incidents) {
        words.push_back(wordsOf(incident));
    }
    return words;
}

std::vector<std::string> branchesOf(const play::Outcome& outcome)
{
    std::vector<std::string> words;
    for (const play::Branch& branch : outcome.branches) {
        words.push_back(std::to_string(branch.line) + ":" + std::to_string(branch.value));
    }
    return words;
}

bool everyLine(int)
{
    return true;
}

// Goes on until the pen rests and names each pause: "line 3", "Moo", "waits".
std::vector<std::string> pausesOf(PlayedBook& played, const PlayedBook::IsBreakpoint& breakpoint)
{
    std::vector<std::string> pauses;
    for (Pause pause = played.run(breakpoint); pause != Pause::atRest;
         pause = played.run(breakpoint)) {
        if (pause == Pause::line) {
            pauses.push_back("line " + std::to_string(played.line()));
        } else if (pause == Pause::newSound) {
            pauses.push_back(played.book().texts.at(played.sounding()->media()).text);
        } else {
            pauses.emplace_back("waits");
            played.soundEnded();
        }
    }
    return pauses;
}

}  // namespace

// --- Outcomes ------------------------------------------------------------------------------------

TEST(PlayedBook, TellsWhatATapSaysAndInWhichLine)
{
    PlayedBook played(zoo());
    const play::Outcome outcome = tapped(played, kCow);
    EXPECT_EQ(outcome.code, kCow);
    EXPECT_THAT(said(outcome, played.book()), ElementsAre("Moo", "Creak"));
    EXPECT_EQ(outcome.heard.at(0).line, 5);
    EXPECT_EQ(outcome.heard.at(1).line, 12);
}

TEST(PlayedBook, TellsWhatASoundWasChosenOf)
{
    PlayedBook played(zoo());
    tapped(played, kCow);
    EXPECT_THAT(said(tapped(played, kCow), played.book()), ElementsAre("Muh|Moooh", "Creak"));
}

TEST(PlayedBook, CountsStepsAndSecondsUntilEachSoundAndUntilRest)
{
    PlayedBook played(bookOfOneArea("say \"Moo\"\nsay \"Muh\"\n"));
    const play::Outcome outcome = tapped(played, kCow);
    EXPECT_EQ(outcome.heard.at(0).steps, 1U);
    EXPECT_DOUBLE_EQ(outcome.heard.at(0).seconds, 0.07);
    EXPECT_EQ(outcome.heard.at(1).steps, 2U);
    EXPECT_DOUBLE_EQ(outcome.heard.at(1).seconds, 1.14);
    EXPECT_EQ(outcome.steps, 3U);
    EXPECT_DOUBLE_EQ(outcome.seconds, 2.21);
}

TEST(PlayedBook, TellsTheVariablesThatHaveAnotherValueThanBefore)
{
    PlayedBook played(bookOfOneArea("a = a + 1\nb = 1\nb = 0\nc = c\n"));
    tapped(played, kCow);
    const play::Outcome outcome = tapped(played, kCow);
    ASSERT_EQ(outcome.variables.size(), 1U);
    EXPECT_EQ(outcome.variables.at("a").before, 1);
    EXPECT_EQ(outcome.variables.at("a").now, 2);
}

TEST(PlayedBook, TellsTheLinesThatWereRun)
{
    PlayedBook played(zoo());
    EXPECT_THAT(tapped(played, kCow).lines, ElementsAre(3, 4, 5, 9, 12, 13));
    EXPECT_THAT(tapped(played, kCow).lines, ElementsAre(3, 4, 7, 9, 12, 13));
}

TEST(PlayedBook, TellsEveryRoundOfALineThatJumpsToItself)
{
    pen::PenOptions options;
    options.mostSteps = 3;
    PlayedBook played(zoo(), options);
    EXPECT_THAT(tapped(played, kSun).lines, ElementsAre(15, 15, 15));
}

TEST(PlayedBook, TellsWhichWayBranchesWent)
{
    PlayedBook played(bookOfOneArea("if a\n"
                                    "if b\n"
                                    "end if\n"
                                    "end if\n"
                                    "select a\n"
                                    "case 1\n"
                                    "case 2\n"
                                    "default\n"
                                    "end select\n"
                                    "a = 1\n"));
    EXPECT_THAT(branchesOf(tapped(played, kCow)), ElementsAre("2:0", "7:0", "8:0", "9:1"));
    EXPECT_THAT(branchesOf(tapped(played, kCow)), ElementsAre("2:1", "3:0", "7:1", "8:0", "9:0"));
}

TEST(PlayedBook, PlaysTheWelcomeAtTheStart)
{
    PlayedBook played(zoo());
    tapped(played, kCow);
    played.start();
    played.runToRest();
    const play::Outcome outcome = played.outcome();
    EXPECT_EQ(outcome.code, std::nullopt);
    EXPECT_THAT(said(outcome, played.book()), ElementsAre("Zoo. Start."));
    EXPECT_EQ(outcome.heard.at(0).line, 0);
    EXPECT_EQ(outcome.variables.at("count").now, 0);
}

TEST(PlayedBook, RepeatsWhatWasSaidLast)
{
    PlayedBook played(zoo());
    tapped(played, kGate);
    const play::Outcome outcome = tapped(played, played.book().game.replayCode);
    EXPECT_THAT(said(outcome, played.book()), ElementsAre("Creak"));
    EXPECT_EQ(outcome.steps, 0U);
}

TEST(PlayedBook, LetsTimeGoBy)
{
    PlayedBook played(zoo());
    played.wait(2.5);
    EXPECT_DOUBLE_EQ(played.outcome().seconds, 2.5);
}

// --- Incidents -----------------------------------------------------------------------------------

TEST(PlayedBook, IsStoppedWhenThereIsNoEnd)
{
    pen::PenOptions options;
    options.mostSteps = 10;
    PlayedBook played(zoo(), options);
    const play::Outcome outcome = tapped(played, kSun);
    EXPECT_TRUE(outcome.wasStopped);
    EXPECT_THAT(incidentsOf(outcome), ElementsAre("line 15: no end after 10 steps"));
    EXPECT_FALSE(tapped(played, kGate).wasStopped);
}

TEST(PlayedBook, TellsOfACodeWithoutScript)
{
    PlayedBook played(zoo());
    EXPECT_THAT(incidentsOf(tapped(played, 7)), ElementsAre("the code 7 has no script"));
}

TEST(PlayedBook, TellsOfADivisionByZero)
{
    PlayedBook played(bookOfOneArea("a = 6 / b\na = 6 % b\n"));
    EXPECT_THAT(incidentsOf(tapped(played, kCow)),
                ElementsAre("line 2: division by zero", "line 3: division by zero"));
}

TEST(PlayedBook, TellsOfValuesThatDoNotFit)
{
    PlayedBook played(bookOfOneArea("a = 65535 + 1\nb = 2 - 3\nc = 65535 * 1\n"));
    EXPECT_THAT(incidentsOf(tapped(played, kCow)),
                ElementsAre("line 2: a value runs over 65535 and goes on from 0",
                            "line 3: a value falls below 0 and goes on from 65535"));
}

TEST(PlayedBook, IsSilentAboutTheChanceOfTheCompiler)
{
    PlayedBook played(zoo());
    for (int i = 0; i < 500; ++i) {
        ASSERT_THAT(incidentsOf(tapped(played, kGate)), IsEmpty());
    }
}

TEST(PlayedBook, IsSilentAboutValuesThatDoNotFitWhereTheScriptIsNotKnown)
{
    play::Book book = bookOfOneArea("a = 65535 + 1\n");
    book.origins.clear();
    PlayedBook played(book);
    EXPECT_THAT(incidentsOf(tapped(played, kCow)), IsEmpty());
}

TEST(PlayedBook, TellsOfAConditionThatRunsNeitherBranch)
{
    PlayedBook played(bookOfOneArea("if 7\nsay \"Moo\"\nelse\nsay \"Muh\"\nend if\n"));
    const play::Outcome outcome = tapped(played, kCow);
    EXPECT_THAT(incidentsOf(outcome),
                ElementsAre("line 2: the value of the condition is 7, so neither branch is run"));
    EXPECT_THAT(outcome.heard, IsEmpty());
}

// --- Step by step --------------------------------------------------------------------------------

TEST(PlayedBook, PausesWhereASoundBegins)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    EXPECT_EQ(played.run(), Pause::newSound);
    EXPECT_EQ(played.book().texts.at(played.sounding()->media()).text, "Moo");
    EXPECT_EQ(played.run(), Pause::sounding);
    played.soundEnded();
    EXPECT_EQ(played.sounding(), nullptr);
    EXPECT_EQ(played.run(), Pause::newSound);
    played.soundEnded();
    EXPECT_EQ(played.run(), Pause::atRest);
    EXPECT_THAT(said(played.outcome(), played.book()), ElementsAre("Moo", "Creak"));
}

TEST(PlayedBook, GoesThroughTheLinesOfTheScript)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    EXPECT_THAT(pausesOf(played, everyLine),
                ElementsAre("line 3", "line 4", "line 5", "Moo", "waits", "line 9", "line 12",
                            "Creak", "waits", "line 13"));
}

TEST(PlayedBook, HasRunNothingOfTheLineItPausesAt)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    EXPECT_EQ(played.run(everyLine), Pause::line);
    EXPECT_EQ(played.line(), 3);
    EXPECT_EQ(played.variable("count"), 0);
    EXPECT_EQ(played.run(everyLine), Pause::line);
    EXPECT_EQ(played.line(), 4);
    EXPECT_EQ(played.variable("count"), 1);
    EXPECT_THAT(played.outcome().lines, ElementsAre(3));
}

TEST(PlayedBook, PausesAtBreakpointsOnly)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    EXPECT_THAT(pausesOf(played, [](int line) { return line == 7 || line == 9; }),
                ElementsAre("Moo", "waits", "line 9", "Creak", "waits"));
}

TEST(PlayedBook, PausesAgainInEveryRound)
{
    PlayedBook played(zoo());
    played.tap(kSun);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(played.run(everyLine), Pause::line);
        EXPECT_EQ(played.line(), 15);
    }
}

TEST(PlayedBook, MayBeTappedWhileItPauses)
{
    PlayedBook played(zoo());
    played.tap(kSun);
    played.run(everyLine);
    played.tap(kGate);
    EXPECT_THAT(pausesOf(played, everyLine), ElementsAre("line 12", "Creak", "waits", "line 13"));
}

TEST(PlayedBook, CutsASoundOffWhenTheScriptOfTheNextTapSaysSomethingOrGoesOn)
{
    PlayedBook played(bookWith("sub cow\nsay \"Moo\"\nend sub\n"
                               "sub dog\ncount = 1\nend sub\n"
                               "sub cat\nend sub\n",
                               {"cow", "dog", "cat"}));
    played.tap(1001);
    played.run();
    played.tap(1003);
    EXPECT_EQ(played.run(), Pause::sounding);
    played.tap(1002);
    EXPECT_NE(played.sounding(), nullptr);
    EXPECT_EQ(played.run(), Pause::atRest);
    EXPECT_EQ(played.sounding(), nullptr);
}

TEST(PlayedBook, EndsEverythingWhenItIsStopped)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    played.run();
    played.stop();
    EXPECT_EQ(played.sounding(), nullptr);
    EXPECT_EQ(played.run(), Pause::atRest);
}

// --- Variables and changes -----------------------------------------------------------------------

TEST(PlayedBook, ShowsTheVariables)
{
    PlayedBook played(zoo());
    tapped(played, kCow);
    EXPECT_THAT(played.variables(), ElementsAre(Pair("count", 1)));
    EXPECT_EQ(played.variable("Count"), std::nullopt);
    EXPECT_EQ(played.variable("_stk1"), std::nullopt);
}

TEST(PlayedBook, LetsVariablesBeSet)
{
    PlayedBook played(zoo());
    EXPECT_TRUE(played.setVariable("count", 41));
    EXPECT_FALSE(played.setVariable("rnd", 1));
    EXPECT_THAT(played.outcome().variables, IsEmpty());
    EXPECT_EQ(tapped(played, kCow).variables.at("count").now, 42);
}

TEST(PlayedBook, KeepsVariablesByNameWhenTheBookChanges)
{
    PlayedBook played(bookWith("sub cow\na = 1\nb = 2\nc = 3\nend sub\n", {"cow"}));
    tapped(played, kCow);
    played.takeOver(bookWith("sub cow\naa = aa + 5\nc = c\na = a\nend sub\n", {"cow"}));
    EXPECT_THAT(played.variables(), ElementsAre(Pair("a", 1), Pair("aa", 0), Pair("c", 3)));
    EXPECT_THAT(played.outcome().variables, IsEmpty());
    EXPECT_EQ(tapped(played, kCow).variables.at("aa").now, 5);
}

TEST(PlayedBook, EndsWhatIsGoingOnWhenTheBookChanges)
{
    PlayedBook played(zoo());
    played.tap(kCow);
    played.run();
    played.takeOver(zoo());
    EXPECT_EQ(played.sounding(), nullptr);
    EXPECT_EQ(played.run(), Pause::atRest);
    EXPECT_THAT(tapped(played, played.book().game.replayCode).heard, IsEmpty());
}

TEST(PlayedBook, DoesNotRepeatItsChoicesWhenTheBookChanges)
{
    const play::Book book =
        bookOfOneArea("say adam \"1\" \"2\" \"3\" \"4\" \"5\" \"6\" \"7\" \"8\"\n");
    PlayedBook kept(book);
    PlayedBook changed(book);
    for (int i = 0; i < 10; ++i) {
        changed.takeOver(book);
        EXPECT_EQ(tapped(changed, kCow).heard.at(0).sound.chosen,
                  tapped(kept, kCow).heard.at(0).sound.chosen);
    }
}
