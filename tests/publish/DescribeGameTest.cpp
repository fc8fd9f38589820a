#include "publish/DescribeGame.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "gme/DescriptionReader.h"
#include "gme/Game.h"
#include "oid/OidProject.h"
#include "publish/BuildDriver.h"
#include "publish/YamlFile.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Oid::OidProject projectWith(const std::string& script, const std::vector<std::string>& areas)
{
    Oid::OidProject project;
    project.productId = 950;
    project.productName = "Zoo";
    project.compiler.source = script;
    Oid::PICTURE& picture = project.pictures.emplace_back();
    for (const std::string& name : areas) {
        picture.polys.emplace_back().name = name;
    }
    return project;
}

const char* const kLion = "' a lion\n"
                          "sub lion\n"
                          "  say \"Roar\"\n"
                          "  if a < 3 & b\n"
                          "    goto den\n"
                          "  else\n"
                          "    a = (a + 1) * 2\n"
                          "  end if\n"
                          "end sub\n"
                          "sub den\n"
                          "  select a\n"
                          "  case 1\n"
                          "    say eve \"One\" \"Eins\"\n"
                          "  default\n"
                          "    b = 0\n"
                          "  end select\n"
                          "end sub\n";

// All that a description says but where it stands.
std::string said(const gme::Description& description)
{
    std::string text = std::to_string(description.productId) + "\n" + description.comment.text +
                       "\n" + description.language.text + "\n" + description.mediaPath.text + "\n" +
                       description.init.text + "\n";
    for (const gme::SourceLine& list : description.welcome) {
        text += "welcome " + list.text + "\n";
    }
    for (const auto& [name, script] : description.scripts) {
        text += "script " + name + (script.isOpen ? " open" : "") + "\n";
        for (const gme::SourceLine& line : script.lines) {
            text += "  " + line.text + "\n";
        }
    }
    for (const auto& [name, given] : description.codes.names) {
        text += "code " + name + " " + std::to_string(given.code) + "\n";
    }
    return text + (description.codes.replay || description.codes.stop ? "special" : "");
}

// The description that goes through the YAML file of a build.
std::string saidByFile(Oid::OidProject& project, bool debugMode)
{
    const TemporaryFolder folder;
    project.projectPath = folder.file("zoo.oidpro");
    const CapturedMessages messages;
    project.redirectPrintf(CapturedMessages::print);
    EXPECT_TRUE(compileProject(project, debugMode));
    EXPECT_TRUE(makeYAML(project));
    project.redirectPrintf(nullptr);
    std::vector<Diagnostic> problems;
    const auto description =
        gme::readDescription(readFile(folder.file("950-Zoo.yaml")), {}, collectInto(problems));
    EXPECT_THAT(problems, IsEmpty());
    return description ? said(*description) : "";
}

std::vector<std::string> kindsOf(const std::vector<Diagnostic>& found)
{
    std::vector<std::string> kinds;
    for (const Diagnostic& one : found) {
        kinds.push_back(one.kind);
    }
    return kinds;
}

TEST(DescribeGame, SaysWhatTheYamlFileSays)
{
    for (const bool debugMode : {false, true}) {
        Oid::OidProject project = projectWith(kLion, {"lion", "den", "tree", "lion"});
        project.oids["den"].oid = 2345;
        std::vector<Diagnostic> found;
        const auto description = describeGame(project, collectInto(found), debugMode);
        ASSERT_TRUE(description.has_value());
        EXPECT_EQ(said(*description), saidByFile(project, debugMode));
        EXPECT_THAT(kindsOf(found), ElementsAre("sub-missing"));
        EXPECT_EQ(found[0].subject, "tree");
        EXPECT_EQ(found[0].area, 3);
    }
}

TEST(DescribeGame, LeavesTheProjectAsItIsAndPrintsNothing)
{
    Oid::OidProject project = projectWith(kLion, {"lion", "den"});
    CapturedMessages messages;
    project.redirectPrintf(CapturedMessages::print);
    ASSERT_TRUE(describeGame(project, [](const Diagnostic&) {}).has_value());
    project.compiler.source = "foo\n";
    ASSERT_FALSE(describeGame(project, [](const Diagnostic&) {}).has_value());
    EXPECT_EQ(messages.text(), "");
    EXPECT_TRUE(project.oids.empty());
    EXPECT_EQ(project.compiler.code, "");
    EXPECT_TRUE(project.compiler.talkTexts.empty());
    project.redirectPrintf(nullptr);
}

TEST(DescribeGame, GivesNewAreasTheNumbersOfABuild)
{
    Oid::OidProject project = projectWith("sub cow\nend sub\n", {"cow", "cat", "dog"});
    project.oids["cat"].oid = 1500;
    const auto description = describeGame(project, [](const Diagnostic&) {});
    ASSERT_TRUE(description.has_value());
    EXPECT_EQ(description->codes.names.at("cow").code, 1501);
    EXPECT_EQ(description->codes.names.at("cat").code, 1500);
    EXPECT_EQ(description->codes.names.at("dog").code, 1502);
}

TEST(DescribeGame, KnowsTheStatementOfEachCommand)
{
    const auto description =
        describeGame(projectWith(kLion, {"lion", "den"}), [](const Diagnostic&) {});
    ASSERT_TRUE(description.has_value());
    EXPECT_EQ(description->file, "");
    EXPECT_EQ(description->scripts.at("lion").place.line, 2);
    EXPECT_EQ(description->scripts.at("lion").place.column, 5);
    EXPECT_EQ(description->scripts.at("lion").place.length, 4);
    EXPECT_EQ(description->scripts.at("lion").lines.at(0).place.line, 3);
    EXPECT_EQ(description->scripts.at("lion").lines.at(0).place.column, 3);
    EXPECT_EQ(description->scripts.at("den").place.line, 10);
}

TEST(DescribeGame, OfAScriptWithErrorsIsNone)
{
    std::vector<Diagnostic> found;
    EXPECT_FALSE(describeGame(projectWith("sub cow\nfoo\n", {"cow"}), collectInto(found)));
    EXPECT_THAT(kindsOf(found), ElementsAre("statement-unknown", "syntax"));
}

TEST(DescribeGame, RefusesWhatStandsInFrontOfTheFirstSub)
{
    std::vector<Diagnostic> found;
    EXPECT_FALSE(
        describeGame(projectWith("\n  x = 1\nsub cow\nend sub\n", {"cow"}), collectInto(found)));
    ASSERT_THAT(kindsOf(found), ElementsAre("statement-outside-sub"));
    EXPECT_EQ(found[0].line, 2);
    EXPECT_EQ(found[0].column, 3);
    EXPECT_EQ(consoleLine(found[0]),
              "Error: line 2: what stands in front of the first sub is never carried out\n");
}

TEST(DescribeGame, RefusesNumbersThatAreNoCodes)
{
    Oid::OidProject project = projectWith("sub cow\nend sub\n", {"cow", "cat"});
    project.oids["cow"].oid = 65536;
    project.oids["cat"].oid = -1;
    project.productId = -950;
    std::vector<Diagnostic> found;
    EXPECT_FALSE(describeGame(project, collectInto(found)));
    ASSERT_THAT(kindsOf(found), ElementsAre("sub-missing", "oid-unreadable", "product-id",
                                            "code-number", "code-number"));
    EXPECT_EQ(found[2].text, "the product id -950 is below 0");
    EXPECT_EQ(found[3].text, "area cow: the code 65536 is not in the range 0 to 65535");
    EXPECT_EQ(found[3].subject, "cow");
    EXPECT_EQ(found[4].text, "area cat: the code -1 is not in the range 0 to 65535");
    EXPECT_EQ(found[4].page, 1);
    EXPECT_EQ(found[4].area, 2);
}

TEST(DescribeGame, WarnsOfASubThatAStepTakesThePlaceOf)
{
    std::vector<Diagnostic> found;
    const auto description =
        describeGame(projectWith("sub asm1\nsay Moo\nend sub\n", {"asm1"}), collectInto(found));
    ASSERT_TRUE(description.has_value());
    ASSERT_THAT(kindsOf(found), ElementsAre("script-replaced"));
    EXPECT_EQ(found[0].severity, Severity::warning);
    EXPECT_EQ(found[0].text, "script asm1 replaces the one of line 1, which is lost");
    EXPECT_EQ(found[0].line, 2);
}

TEST(DescribeGame, LeadsToAGameWithoutAnyFile)
{
    std::vector<Diagnostic> found;
    const DiagnosticSink sink = collectInto(found);
    const auto description = describeGame(projectWith(kLion, {"lion", "den"}), sink);
    ASSERT_TRUE(description.has_value());
    const auto game = gme::compileGame(*description, gme::MediaLookup{{}, true}, sink);
    ASSERT_TRUE(game.has_value());
    EXPECT_THAT(found, IsEmpty());
    EXPECT_EQ(game->productId, 950U);
    EXPECT_EQ(game->codes.scripts.at("lion"), 1001);
    EXPECT_EQ(game->scripts.count(1002), 1U);
}

TEST(DescribeGame, OfAnOpenSubIsNoGame)
{
    std::vector<Diagnostic> found;
    const DiagnosticSink sink = collectInto(found);
    const auto description = describeGame(projectWith("sub cow\nsay Moo\n", {"cow"}), sink);
    ASSERT_TRUE(description.has_value());
    EXPECT_FALSE(gme::compileGame(*description, gme::MediaLookup{{}, true}, sink).has_value());
    ASSERT_THAT(kindsOf(found), ElementsAre("script-open"));
    EXPECT_EQ(found[0].line, 2);
}

TEST(DescribeBook, TellsWhatTheAudioSaysAndWhoSpeaksIt)
{
    const auto book = describeBook(projectWith(kLion, {"lion", "den"}), [](const Diagnostic&) {});
    ASSERT_TRUE(book.has_value());
    std::vector<std::string> texts;
    for (const auto& [name, text] : book->texts) {
        texts.push_back(name + ", " + text.voice + ": " + text.text);
    }
    EXPECT_THAT(texts,
                ElementsAre("_welcome_message_text, adam: Zoo. Start.", "say_adam_Roar, adam: Roar",
                            "say_eve_Eins, eve: Eins", "say_eve_One, eve: One"));
    EXPECT_EQ(book->voices.size(), 2U);
}

TEST(DescribeGame, CanBeDoneOnSeveralThreads)
{
    const Oid::OidProject project = projectWith(kLion, {"lion", "den"});
    const auto ignore = [](const Diagnostic&) {};
    const std::string alone = said(*describeGame(project, ignore));
    std::vector<std::string> together(4);
    std::vector<std::thread> threads;
    for (std::string& result : together) {
        threads.emplace_back([&] { result = said(*describeGame(project, ignore)); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(together, testing::Each(alone));
}

}  // namespace
