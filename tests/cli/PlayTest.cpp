// Taps on standard input, answers on standard output.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

const std::string kBook = "PRODUCT 900, \"Zoo\"\n"
                          "OID 1001\nBOX cow 1 1 5 5\nOID 1002\nBOX dog 1 9 5 5\n"
                          "OID 1003\nBOX sun 9 9 5 5\n"
                          "SCRIPT\nsub cow\ncount = count + 1\nsay \"Moo\"\nend sub\n"
                          "sub dog\nsay adam \"Wuff\" \"Wau\"\nend sub\n"
                          "sub sun\ngoto sun\nend sub\n";

std::string played(const std::vector<std::string>& words, const std::string& taps)
{
    std::vector<std::string> all = {"play"};
    all.insert(all.end(), words.begin(), words.end());
    return resultOf(runProgram(PLINKETT_BIN_DIR "/plinkett-cli", all, {}, "", taps));
}

// A WAV file that sounds for so many milliseconds.
std::string wav(size_t milliseconds)
{
    const auto number = [](size_t value, size_t size) {
        std::string bytes;
        for (size_t i = 0; i < size; ++i) {
            bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
        }
        return bytes;
    };
    const std::string format = number(1, 2) + number(1, 2) + number(1000, 4) + number(1000, 4) +
                               number(1, 2) + number(8, 2);
    return "RIFF" + number(36 + milliseconds, 4) + "WAVEfmt " + number(16, 4) + format + "data" +
           number(milliseconds, 4) + std::string(milliseconds, '\x80');
}

// Answers in JSON without what only the project knows: texts and the names of variables.
std::string withoutNames(const std::string& answers)
{
    return std::regex_replace(answers, std::regex(R"re("says":.*"plays"|"variables":\{[^}]*\})re"),
                              "...");
}

std::string playedBook(const std::string& taps, const std::vector<std::string>& options = {})
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    std::vector<std::string> words = {folder.file("book.oidpro")};
    words.insert(words.end(), options.begin(), options.end());
    const std::string result = played(words, taps);
    EXPECT_EQ(folder.listing(), "book.oidpro");
    return result;
}

}  // namespace

TEST(Play, TellsWhatAnAreaSaysAndWhichVariablesChange)
{
    EXPECT_EQ(playedBook("cow\n"), "status 0\n"
                                   "cow (1001)\n"
                                   "  says \"Moo\"\n"
                                   "  count = 1\n"
                                   "  until the first sound: 5 steps, 0.35 s\n"
                                   "  until rest: 6 steps, 0.62 s\n");
}

TEST(Play, TakesCodesForAreas)
{
    EXPECT_EQ(playedBook("1001\r\n\n7\n"), "status 0\n"
                                           "1001\n"
                                           "  says \"Moo\"\n"
                                           "  count = 1\n"
                                           "  until the first sound: 5 steps, 0.35 s\n"
                                           "  until rest: 6 steps, 0.62 s\n"
                                           "7\n"
                                           "  the code 7 has no script\n"
                                           "  until rest: 0 steps, 0.00 s\n");
}

TEST(Play, TellsWhatATextWasChosenOf)
{
    EXPECT_EQ(playedBook("dog\nreplay\n", {"--seed", "7"}),
              "status 0\n"
              "dog (1002)\n"
              "  says one of \"Wuff\", \"Wau\": \"Wau\"\n"
              "  until the first sound: 1 step, 0.07 s\n"
              "  until rest: 2 steps, 0.34 s\n"
              "replay (3944)\n"
              "  says one of \"Wuff\", \"Wau\": \"Wau\"\n"
              "  until the first sound: 0 steps, 0.00 s\n"
              "  until rest: 0 steps, 0.20 s\n");
}

TEST(Play, ChoosesAlikeWithTheSameSeedOnly)
{
    std::string taps;
    for (int i = 0; i < 30; ++i) {
        taps += "dog\n";
    }
    const std::string first = playedBook(taps, {"--seed", "1"});
    EXPECT_EQ(playedBook(taps, {"--seed", "1"}), first);
    EXPECT_NE(playedBook(taps, {"--seed", "2"}), first);
}

TEST(Play, StartsWaitsAndStops)
{
    EXPECT_EQ(playedBook("cow\nstart\nwait \t2.5\nstop\n"),
              "status 0\n"
              "cow (1001)\n"
              "  says \"Moo\"\n"
              "  count = 1\n"
              "  until the first sound: 5 steps, 0.35 s\n"
              "  until rest: 6 steps, 0.62 s\n"
              "start\n"
              "  says \"Zoo. Start.\"\n"
              "  count = 0\n"
              "  until the first sound: 0 steps, 0.00 s\n"
              "  until rest: 0 steps, 0.73 s\n"
              "wait \t2.5\n"
              "  until rest: 0 steps, 2.50 s\n"
              "stop (3945)\n"
              "  until rest: 0 steps, 0.00 s\n");
}

TEST(Play, StopsWhatHasNoEnd)
{
    EXPECT_EQ(playedBook("sun\n"), "status 0\n"
                                   "sun (1003)\n"
                                   "  stopped: line 9: no end after 100000 steps\n"
                                   "  until rest: 100000 steps, 7000.00 s\n");
}

TEST(Play, TakesAnAreaWithTheNameOfACommandBehindTap)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), "PRODUCT 900, \"Zoo\"\nOID 1001\nBOX start 1 1 5 5\n"
                                          "SCRIPT\nsub start\nx = 1\nend sub\n");
    EXPECT_EQ(played({folder.file("book.oidpro")}, "tap start\n"),
              "status 0\n"
              "tap start (1001)\n"
              "  x = 1\n"
              "  until rest: 3 steps, 0.21 s\n");
}

TEST(Play, NamesWhatItDoesNotKnowAndGoesOn)
{
    EXPECT_EQ(playedBook("cwo\nwait long\ntap dog2\n70000\nwait 1.2.3\nwait .\nwait 1\n"),
              "status 1\nwait 1\n  until rest: 0 steps, 1.00 s\n"
              "stderr: Error: line 1: there is no area 'cwo'\n"
              "Error: line 2: 'long' is no number of seconds\n"
              "Error: line 3: there is no area 'dog2'\n"
              "Error: line 4: there is no area '70000'\n"
              "Error: line 5: '1.2.3' is no number of seconds\n"
              "Error: line 6: '.' is no number of seconds\n");
}

TEST(Play, AnswersInJsonOneObjectALine)
{
    EXPECT_EQ(
        playedBook("cow\ndog\nsun\nwait 1\n7\n", {"--json"}),
        "status 0\n"
        R"({"tap":"cow","code":1001,"says":[["Moo"]],"plays":[[1]],"chose":[0],)"
        R"("variables":{"count":1},"steps":6,"seconds":0.62,"stepsToSound":5,"secondsToSound":0.35})"
        "\n"
        R"({"tap":"dog","code":1002,"says":[["Wuff","Wau"]],"plays":[[3,2]],"chose":[0],)"
        R"("variables":{},"steps":2,"seconds":0.407,"stepsToSound":1,"secondsToSound":0.07})"
        "\n"
        R"({"tap":"sun","code":1003,"says":[],"plays":[],"chose":[],"variables":{},)"
        R"("steps":100000,"seconds":7000,"stopped":"line 9: no end after 100000 steps"})"
        "\n"
        R"({"tap":"wait 1","code":null,"says":[],"plays":[],"chose":[],"variables":{},)"
        R"("steps":0,"seconds":1})"
        "\n"
        R"({"tap":"7","code":7,"says":[],"plays":[],"chose":[],"variables":{},)"
        R"("steps":0,"seconds":0,"problems":["the code 7 has no script"]})"
        "\n");
}

TEST(Play, PrintsNothingButAnswersOnStandardOutput)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), "PRODUCT 900, \"Zoo\"\nOID 1001\nBOX cow 1 1 5 5\n"
                                          "SCRIPT\nsub dog\nend sub\n");
    EXPECT_EQ(played({folder.file("book.oidpro"), "--json"}, ""),
              "status 0\n"
              "stderr: !!! Warning: Used OID 'dog' in script, but not in the image\n"
              "!!! Warning: Used OID 'cow' in image, but not in the script\n");
}

TEST(Play, PlaysAGameFileByItsNumbers)
{
    const TemporaryFolder folder;
    writeFile(folder.file("roar.ogg"), "OggS");
    writeFile(folder.file("a.yaml"), "product-id: 900\nscripts:\n  1001: $x := 3 P(roar)\n");
    cli({"assemble", folder.file("a.yaml")});
    EXPECT_EQ(played({folder.file("a.gme")}, "1001\ncow\n"),
              "status 1\n1001\n  plays 0\n  $0 = 3\n  until the first sound: 1 step, 0.07 s\n"
              "  until rest: 1 step, 1.07 s\n"
              "stderr: Error: line 2: 'cow' is no code\n");
}

TEST(Play, HearsTheSameOfTheProjectAndOfItsGameFile)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    std::filesystem::create_directory(folder.file("900-audio"));
    size_t milliseconds = 700;
    for (const char* name :
         {"_welcome_message_text", "say_adam_Moo", "say_adam_Wuff", "say_adam_Wau"}) {
        writeFile(folder.file("900-audio/" + std::string(name) + ".wav"), wav(milliseconds += 111));
    }
    EXPECT_EQ(cli({"yaml", folder.file("book.oidpro"), "-o", folder.file("900.yaml")}).status, 0);
    EXPECT_EQ(cli({"assemble", folder.file("900.yaml")}).status, 0);
    const std::string taps = "start\n1001\n1002\n1002\n1002\n1002\nreplay\n1001\n900\n1007\n";
    const std::string ofProject =
        withoutNames(played({folder.file("book.oidpro"), "--json", "--seed", "9"}, taps));
    EXPECT_EQ(withoutNames(played({folder.file("900.gme"), "--json", "--seed", "9"}, taps)),
              ofProject);
    EXPECT_THAT(ofProject, testing::HasSubstr("\"steps\":6,\"seconds\":1.342,"));
}

TEST(Play, RefusesWhatIsNoGame)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a.gme"), "rubbish");
    EXPECT_EQ(played({folder.file("a.gme")}, "1\n"),
              "status 1\nstderr: Error: The game file '" + folder.file("a.gme") +
                  "' cannot be played: the header reaches beyond the end of the file\n");
    EXPECT_EQ(played({"no/such.oidpro"}, "1\n"),
              "status 1\nstderr: Error: Can't open file 'no/such.oidpro'\n");
}

TEST(Play, TheSeedIsANumber)
{
    EXPECT_EQ(played({"a.gme", "--seed", "-1"}, ""),
              "status 2\nstderr: plinkett-cli: N must be a number from 0 on, not '-1'\n"
              "Try 'plinkett-cli --help'.\n");
}
