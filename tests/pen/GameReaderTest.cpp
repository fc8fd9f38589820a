// Game files that are read back, whole and damaged.
#include "pen/GameReader.h"

#include "tests/gme/GameFolder.h"
#include "tests/pen/EventLog.h"

#include <gtest/gtest.h>
#include <random>

namespace {

std::string someGame()
{
    static const std::string game =
        assemble("product-id: 900\nwelcome: roar\ninit: $x := 3\nscripts:\n"
                 "  1:\n  - $x == 3? $x += 1 P(roar, moo) J(3)\n  - P(moo)\n  3: $y := $x J($y)\n")
            .game;
    return game;
}

std::string problemOf(const std::string& bytes)
{
    std::string problem;
    return pen::readGame(bytes, problem) ? "none" : problem;
}

std::string with32(std::string bytes, size_t at, uint32_t number)
{
    for (size_t i = 0; i < 4; ++i) {
        bytes[at + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
    }
    return bytes;
}

uint32_t get32(const std::string& bytes, size_t at)
{
    uint32_t number = 0;
    for (size_t i = 0; i < 4; ++i) {
        number |= uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
    }
    return number;
}

// What can be read has to play, too.
void readAndPlay(const std::string& bytes)
{
    std::string problem;
    const std::optional<pen::PenGame> game = pen::readGame(bytes, problem);
    EXPECT_NE(game.has_value(), !problem.empty());
    if (!game) {
        return;
    }
    pen::PenOptions options;
    options.mostSteps = 20;
    EventLog log;
    pen::Pen pen(*game, options, log);
    pen.start();
    for (const auto& entry : game->scripts) {
        pen.tap(entry.first);
        pen.runToRest();
    }
}

}  // namespace

TEST(GameReader, ReadsWhatTheAssemblerWrote)
{
    std::string problem;
    const std::optional<pen::PenGame> game = pen::readGame(someGame(), problem);
    ASSERT_TRUE(game.has_value()) << problem;
    EXPECT_EQ(game->productId, 900U);
    EXPECT_EQ(game->registers, (std::vector<uint16_t>{3, 0}));
    EXPECT_EQ(game->welcome, (std::vector<std::vector<uint16_t>>{{1}}));
    EXPECT_EQ(game->soundSeconds.size(), 2U);
    EXPECT_EQ(game->scripts.at(1).size(), 2U);
    EXPECT_EQ(game->scripts.at(1)[0].playList, (std::vector<uint16_t>{1, 0}));
    EXPECT_NE(game->replayCode, game->stopCode);
    EXPECT_TRUE(game->isIntact);
}

TEST(GameReader, SeesAWrongChecksumAndPlaysAllTheSame)
{
    std::string bytes = someGame();
    bytes.back() = static_cast<char>(bytes.back() ^ 1);
    std::string problem;
    const std::optional<pen::PenGame> game = pen::readGame(bytes, problem);
    ASSERT_TRUE(game.has_value());
    EXPECT_FALSE(game->isIntact);
}

TEST(GameReader, RefusesOffsetsBeyondTheEnd)
{
    const std::string game = someGame();
    const std::vector<std::pair<size_t, std::string>> parts = {{0x00, "the table of scripts"},
                                                               {0x0C, "the timer script"},
                                                               {0x10, "the table of games"},
                                                               {0x18, "the table of registers"},
                                                               {0x94, "the special codes"}};
    for (const auto& [at, name] : parts) {
        EXPECT_EQ(problemOf(with32(game, at, 0xFFFFFFFE)),
                  name + " reaches beyond the end of the file");
    }
    EXPECT_EQ(problemOf(with32(game, 0x208, 0xFFFFFF00)),
              "the script of code 1 reaches beyond the end of the file");
    EXPECT_EQ(problemOf(with32(game, get32(game, 0x04) + 4, 0xFFFFFF00)),
              "sound 0 reaches beyond the end of the file");
    EXPECT_EQ(problemOf(game.substr(0, 0x80)), "the header reaches beyond the end of the file");
}

TEST(GameReader, RefusesWhatIsNoGameFile)
{
    EXPECT_EQ(problemOf(""), "the header reaches beyond the end of the file");
    EXPECT_EQ(problemOf(std::string(5000, 'x')), "it is no game file for the pen");
}

TEST(GameReader, RefusesATableOfScriptsInDisorder)
{
    EXPECT_EQ(problemOf(with32(someGame(), 0x200, 0)),
              "the table of scripts goes from code 1 to 0");
    EXPECT_EQ(problemOf(with32(someGame(), 0x200, 70000)),
              "the table of scripts goes from code 1 to 70000");
}

TEST(GameReader, RefusesScriptsThatLieInEachOther)
{
    // Code after code names the same script, which must not make more of the file than is in it.
    std::string bytes = someGame();
    const uint32_t first = get32(bytes, 0x208);
    bytes = with32(bytes, 0x200, 3000);
    for (size_t i = 0; i < 3000; ++i) {
        bytes.insert(0x208, with32("    ", 0, first + 3000 * 4));
    }
    EXPECT_NE(problemOf(bytes), "none");
}

TEST(GameReader, RefusesSoundsThatAreNotThere)
{
    const std::string game = someGame();
    std::string bytes = game;
    const size_t list = get32(game, get32(game, 0x71) + 2);
    bytes[list + 2] = 2;
    EXPECT_EQ(problemOf(bytes), "the welcome plays sound 2, but there are 2");
}

TEST(GameReader, SaysThatAFileCannotBeOpened)
{
    std::string problem;
    EXPECT_FALSE(pen::readGameFile("no/such.gme", problem).has_value());
    EXPECT_EQ(problem, "Can't open file 'no/such.gme'");
}

TEST(GameReader, NamesTheFileThatCannotBePlayed)
{
    const TemporaryFolder folder;
    writeFile(folder.file("x.gme"), std::string(5000, 'x'));
    std::string problem;
    EXPECT_FALSE(pen::readGameFile(folder.file("x.gme"), problem).has_value());
    EXPECT_EQ(problem, "The game file '" + folder.file("x.gme") +
                           "' cannot be played: it is no game file for the pen");
}

TEST(DamagedGame, IsSurvivedWhateverByteIsChanged)
{
    const std::string game = someGame();
    for (size_t at = 0; at < game.size(); ++at) {
        for (const int flip : {0x01, 0x10, 0x80, 0xFF}) {
            std::string bytes = game;
            bytes[at] = static_cast<char>(bytes[at] ^ flip);
            readAndPlay(bytes);
        }
    }
}

TEST(DamagedGame, IsSurvivedWhereverItIsCut)
{
    const std::string game = someGame();
    for (size_t size = 0; size < game.size(); ++size) {
        readAndPlay(game.substr(0, size));
    }
}

TEST(DamagedGame, IsSurvivedWithManyBytesChanged)
{
    const std::string game = someGame();
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) {
        std::string bytes = game;
        for (int changes = 0; changes < 1 + i % 10; ++changes) {
            // The header's many zeros are left out most of the time.
            const size_t from = random() % 8 == 0 ? 0 : 0x200;
            bytes[from + random() % (bytes.size() - from)] = static_cast<char>(random());
        }
        readAndPlay(bytes);
    }
}
