// What is said of a name, beside what compiler and assembler do with it.
#include "publish/SubNames.h"

#include <gtest/gtest.h>

#include <random>

#include "gme/Game.h"
#include "oid/OidProject.h"
#include "oid/OidTable.h"
#include "publish/BuildDriver.h"
#include "publish/YamlFile.h"
#include "tests/helpers/CapturedMessages.h"

namespace {

struct Game
{
    bool isMade = false;
    bool hasSub = false;  // of the name, bound to the area's number
    bool isWarned = false;
};

// Of a project whose one area and sub bear the name; with a further sub that jumps there if wanted.
Game gameWith(const std::string& name, bool withJump)
{
    Oid::OidProject project;
    project.productId = 950;
    project.productName = "Zoo";
    project.compiler.source = "sub " + name + "\nx = 1\nend sub\nsub other_one\n" +
                              (withJump ? "goto " + name + "\n" : "") + "end sub\n";
    project.pictures.emplace_back().polys.emplace_back().name = name;
    const CapturedMessages messages;
    project.redirectPrintf(CapturedMessages::print);
    Oid::numberAllAreas(project);
    Game game;
    if (compileProject(project, false)) {
        const std::string yaml = description(project, project.compiler);
        gme::MediaLookup media;
        media.isLenient = true;
        const auto made =
            gme::compileGame(yaml, media, [&](const Diagnostic&) { game.isWarned = true; });
        game.isMade = made.has_value();
        const auto number = static_cast<uint16_t>(project.oids[name].oid);
        game.hasSub = made && made->codes.scripts.count(name) != 0 &&
                      made->codes.scripts.at(name) == number && made->scripts.count(number) != 0 &&
                      !made->scripts.at(number).empty();
    }
    project.redirectPrintf(nullptr);
    return game;
}

bool works(const std::string& name, bool withJump)
{
    const Game game = gameWith(name, withJump);
    return game.isMade && game.hasSub;
}

SubNameProblem problemOf(const std::string& name)
{
    return problemOfSubName(name).problem;
}

void expectTruth(const std::string& name)
{
    SCOPED_TRACE("the name " + name);
    switch (problemOf(name)) {
    case SubNameProblem::none:
        EXPECT_TRUE(works(name, true));
        break;
    case SubNameProblem::jump:
        EXPECT_TRUE(works(name, false));
        // What begins with "$" is read as a variable that holds the code to jump to.
        EXPECT_TRUE(name.front() == '$' || !works(name, true));
        break;
    case SubNameProblem::label:
        break;  // whether it goes wrong is a matter of the other labels
    case SubNameProblem::character:
        // A quote gets as far as the assembler, but not into the project file.
        EXPECT_TRUE(name.find('"') != std::string::npos || !works(name, false));
        break;
    default:
        EXPECT_FALSE(works(name, false));
    }
}

}  // namespace

TEST(SubNames, LettersDigitsAndUnderscoresAreFine)
{
    for (const char* name : {"cow", "_", "Kuh_2", u8"Kälbchen", u8"корова", u8"牛", "null", "asm",
                             "asm1x", "if", "sub", "end"}) {
        EXPECT_EQ(problemOf(name), SubNameProblem::none) << name;
        expectTruth(name);
    }
}

TEST(SubNames, WhatIsToBlameIsNamed)
{
    EXPECT_EQ(problemOf(""), SubNameProblem::empty);
    EXPECT_EQ(problemOfSubName("my cow").problem, SubNameProblem::character);
    EXPECT_EQ(problemOfSubName("my cow").character, " ");
    EXPECT_EQ(problemOfSubName("cow#2").character, "#");
    EXPECT_EQ(problemOfSubName(u8"a\u2028b").character, u8"\u2028");
    EXPECT_EQ(problemOfSubName("a\xff").character, "\xff");
    EXPECT_EQ(problemOf("[cow]"), SubNameProblem::beginning);
    EXPECT_EQ(problemOfSubName("[cow]").character, "[");
    EXPECT_EQ(problemOf("17"), SubNameProblem::number);
    EXPECT_EQ(problemOf("asm12"), SubNameProblem::label);
    EXPECT_EQ(problemOf("2nd"), SubNameProblem::jump);
    EXPECT_EQ(problemOfSubName("2nd").character, "2");
    EXPECT_EQ(problemOfSubName(u8"Kuh–Kalb").character, u8"–");
}

TEST(SubNames, ALabelOfTheCompilerLosesTheSub)
{
    EXPECT_TRUE(gameWith("asm1", false).isWarned);
    EXPECT_FALSE(gameWith("asm", false).isWarned);
}

TEST(SubNames, AgreesWithCompilerAndAssemblerOnEveryCharacter)
{
    for (char c = 1; c < 0x7F && c > 0; ++c) {
        if (c == '\n' || c == '\r') {
            continue;  // no name of one line
        }
        expectTruth(std::string(1, c));
        expectTruth(std::string(1, c) + "a");
        expectTruth(std::string("a") + c);
        expectTruth(std::string("a") + c + "b");
    }
}

TEST(SubNames, AgreesWithCompilerAndAssemblerOnRandomNames)
{
    const std::string characters = "ab_0179.-:?!<>()[]{}%&*|@~^+/x";
    std::mt19937 random(3);
    for (int i = 0; i < 600; ++i) {
        std::string name;
        for (unsigned length = 1 + random() % 5; length > 0; --length) {
            name += characters[random() % characters.size()];
        }
        expectTruth(name);
    }
}
