// Subs of hundreds of cases, and books of them.
#include "gme/GameFile.h"
#include "quick/Quick.h"
#include "tests/play/Books.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/NoticedPen.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// Says another of so many texts at each tap.
std::string select(const std::string& sub, int cases)
{
    std::string text =
        "sub " + sub + "\n" + sub + "count = " + sub + "count + 1\nselect " + sub + "count\n";
    for (int i = 1; i <= cases; ++i) {
        const std::string number = std::to_string(i);
        text += "case " + number + "\nsay max " + sub + " " + number + "\n";
    }
    return text + "end select\nend sub\n";
}

const char* const kOrdinarySubs = "voice max lang de sex m\n"
                                  "sub cow\n"
                                  "if count > 3 & count != 5\n"
                                  "say max Moo\n"
                                  "else\n"
                                  "say max Muh\n"
                                  "count = count + 1\n"
                                  "end if\n"
                                  "end sub\n"
                                  "sub star\n"
                                  "if (count / 2 * 2 < count) | (count <= 0)\n"
                                  "say max One\n"
                                  "else\n"
                                  "say max Two\n"
                                  "end if\n"
                                  "goto cow\n"
                                  "end sub\n";

// The steps until the first sound and until rest, of taps on the area.
std::string stepsOf(const Compiled& book, const std::string& area)
{
    const gme::Game game = quick::optimise(book.game, book.inner);
    EXPECT_LE(gme::layOut(game).size, gme::layOut(book.game).size);
    NoticedPen pen(pen::gameForPen(game), {}, {});
    std::string text;
    for (int tap = 0; tap < 8; ++tap) {
        pen.tap(book.areas.at(area), SIZE_MAX);
        text += std::to_string(pen.firstSound) + "/" + std::to_string(pen.steps()) + " ";
    }
    return text;
}

}  // namespace

namespace {

// Twelve branches that only calculate, one behind the other.
std::string sum(const std::string& sub)
{
    std::string text = "sub " + sub + "\n";
    for (int i = 0; i < 12; ++i) {
        const std::string number = std::to_string(i);
        text += "if bit" + number + " == 1\ntotal = total + " + number + " * zoocount\nelse\n";
        text += "total = total - hencount + bit" + number + "\nend if\n";
    }
    return text + "say max " + sub + "\nif total > 1000\nsay max Many\nend if\nend sub\n";
}

// Variables that the sum asks for change with each tap.
std::string bits(const std::string& sub)
{
    std::string text = "sub " + sub + "\nbits = bits + 1237\n";
    for (int i = 0; i < 12; ++i) {
        const std::string number = std::to_string(i);
        text += "bit" + number + " = bits / " + std::to_string(1 << i) + " & 1\n";
    }
    return text + "if bit3\ngoto zoo\nend if\nend sub\n";
}

}  // namespace

TEST(LargeBooks, AreTheSameGames)
{
    const std::string script = "voice max lang de sex m\n" + select("zoo", 150) +
                               "sub hen\nhencount = hencount + 3\nzoocount = zoocount + 17\n"
                               "goto zoo\nend sub\n" +
                               sum("cow") + bits("ant");
    const Compiled book = compiled(projectWith(script, {"zoo", "hen", "cow", "ant"}));
    const gme::Game game = quick::optimise(book.game, book.inner);
    NoticedPen before(pen::gameForPen(book.game), noticedIn(book.game, book.game), {});
    NoticedPen now(pen::gameForPen(game), noticedIn(game, book.game), {});
    std::mt19937_64 random(20);
    const std::vector<std::string> areas = {"zoo", "zoo", "hen", "cow", "ant"};
    for (int tap = 0; tap < 600; ++tap) {
        const std::string& area = areas[random() % areas.size()];
        const size_t sounds = random() % 4 == 0 ? 1 : SIZE_MAX;
        before.tap(book.areas.at(area), sounds);
        now.tap(book.areas.at(area), sounds);
        ASSERT_EQ(before.text, now.text) << "tap " << tap << " on " << area;
        ASSERT_EQ(before.cutOff, now.cutOff) << "tap " << tap << " on " << area;
    }
}

// A script asks for 32 of them at once.
TEST(LargeBooks, EachOfAThousandCasesIsSaidAfterAStepForThirtyTwoOfThem)
{
    constexpr int kCases = 1000;
    const Compiled book =
        compiled(projectWith("voice max lang de sex m\n" + select("zoo", kCases), {"zoo"}));
    const gme::Game game = quick::optimise(book.game, book.inner);
    NoticedPen pen(pen::gameForPen(game), {}, {});
    for (unsigned tap = 0; tap < kCases; ++tap) {
        pen.tap(book.areas.at("zoo"), SIZE_MAX);
        ASSERT_EQ(pen.firstSound, 1 + tap / 32) << tap;
    }
}

// A script is made for what follows each of the sounds, and some ask for the cases.
TEST(LargeBooks, AThousandCasesNeedLittleMoreThanAThousandScripts)
{
    constexpr int kCases = 1000;
    const Compiled book =
        compiled(projectWith("voice max lang de sex m\n" + select("zoo", kCases), {"zoo"}));
    EXPECT_GT(book.game.scripts.size(), 5 * kCases);
    EXPECT_LT(quick::optimise(book.game, book.inner).scripts.size(), kCases + kCases / 16);
}

TEST(LargeBooks, OneHugeSelectDoesNotMakeTheOtherSubsSlower)
{
    const Compiled without =
        compiled(projectWith(kOrdinarySubs + select("hen", 3), {"cow", "star", "hen"}));
    const Compiled with = compiled(projectWith(
        kOrdinarySubs + select("hen", 3) + select("zoo", 300), {"cow", "star", "hen", "zoo"}));
    for (const char* const area : {"cow", "star", "hen"}) {
        EXPECT_EQ(stepsOf(with, area), stepsOf(without, area)) << area;
    }
}
