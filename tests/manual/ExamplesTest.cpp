// What stands in the manual as an example can be typed in and works.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "speech/Engines.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/Sound.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/manual/ManualPages.h"
#include "tests/ttbasic/Compile.h"

namespace fs = std::filesystem;

namespace {

// Statements that stand alone are inside a sub; voices are not.
std::string wholeScript(const std::string& example)
{
    const bool isWhole =
        example.find("end sub") != std::string::npos || example.rfind("voice", 0) == 0;
    return isWhole ? example : "sub cow\n" + example + "end sub\n";
}

std::vector<std::string> wordsOf(const std::string& text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// A folder as the reader of the manual has it: the sample book, on small paper so that printing
// takes no time, and the game that was built of it. The speech program is a stand-in.
class ReadersFolder
{
public:
    ReadersFolder()
    {
        fs::copy(PLINKETT_SOURCE_DIR "/examples/farm", folder.path(), fs::copy_options::recursive);
        std::istringstream project(readFile(folder.file("farm.oidpro")));
        std::string small;
        for (std::string line; std::getline(project, line);) {
            const bool isPaper = line.rfind("PAPER", 0) == 0;
            const bool isDpi = line.rfind("DPI", 0) == 0;
            small += (isPaper ? "PAPER 60.0 42.0\r" : isDpi ? "DPI   600\r" : line) + "\n";
        }
        writeFile(folder.file("farm.oidpro"), small);
        fs::create_directory(folder.file("recordings"));
    }

    // Makes what some of the commands begin with.
    void makeAll() const
    {
        for (const char* const needed :
             {"print farm.oidpro", "build farm.oidpro", "test-page --field B3 --profile office",
              "test-page --field B3 --profile buero"}) {
            const ProgramRun run = plinkett(wordsOf(needed));
            EXPECT_EQ(run.status, 0) << needed << "\n" << resultOf(run);
        }
        for (const auto& audio : fs::directory_iterator(folder.file("901-audio"))) {
            if (audio.path().extension() == ".ogg") {
                writeTone(audio.path().string());
            }
        }
    }

    std::string file(const std::string& name) const { return folder.file(name); }

    ProgramRun plinkett(const std::vector<std::string>& words) const
    {
        return runProgram(PLINKETT_BIN_DIR "/plinkett-cli", words,
                          {"PATH=" + tools.path() + ":/usr/bin:/bin",
                           "TIPTOITOOL=", "XDG_DATA_HOME=" + settings.path(),
                           "XDG_CONFIG_HOME=" + settings.path()},
                          folder.path());
    }

private:
    TemporaryFolder folder;
    TemporaryFolder settings;
    TemporaryFolder tools;
    FakeProgram speech{tools.path(), "Text2Speech.exe", "write 9 speech\n"};
    FakeProgram sound{tools.path(), "ffmpeg.exe", "write -1 sound\n"};
};

// A pen is not plugged in, and areas are small on small paper, which --strict tells.
int expectedStatus(const std::string& command)
{
    return command.rfind("copy", 0) == 0 || command.find("--strict") != std::string::npos ? 1 : 0;
}

}  // namespace

TEST(ManualExamples, EveryScriptCompiles)
{
    const std::vector<Example> scripts = examplesOf("script");
    for (const Example& example : scripts) {
        EXPECT_EQ(compile(wholeScript(example.text)).messages, "") << example.place;
    }
    EXPECT_GT(scripts.size(), 30U);
}

TEST(ManualExamples, TheSpeechProgramsAreThoseOfTheSettingsFile)
{
    const TemporaryFolder folder;
    const std::vector<Example> files = examplesOf("ini");
    for (const Example& example : files) {
        writeFile(folder.file("engines.ini"), example.text);
        const Engines engines({folder.file("engines.ini")});
        EXPECT_EQ(engines.problem(), "") << example.place;
        EXPECT_EQ(engines.programs(),
                  (std::map<std::string, std::string>{{"de", "/opt/piper/piper"}, {"en", "flite"}}))
            << example.place;
    }
    EXPECT_EQ(files.size(), manualLanguages().size());
}

TEST(ManualExamples, EveryExampleIsOfAKindThatIsTried)
{
    for (const std::string& language : manualLanguages()) {
        for (const ManualPage& page : manualPages(language)) {
            for (const Example& example : page.examples) {
                EXPECT_THAT(example.kind,
                            testing::AnyOf("script", "console", "booktest", "ini", "text"))
                    << example.place;
            }
        }
    }
}

TEST(ManualExamples, EveryCommandDoesItsWork)
{
    const ReadersFolder reader;
    reader.makeAll();
    std::set<std::string> commands;  // once each: both languages have nearly the same
    for (const Example& example : examplesOf("console")) {
        std::istringstream lines(example.text);
        for (std::string line; std::getline(lines, line);) {
            const std::string prompt = "$ plinkett-cli ";
            ASSERT_EQ(line.rfind(prompt, 0), 0U) << example.place << ": " << line;
            const std::string command = line.substr(prompt.size());
            if (!commands.insert(command).second) {
                continue;
            }
            const ProgramRun run = reader.plinkett(wordsOf(command));
            EXPECT_EQ(run.status, expectedStatus(command)) << example.place << ": " << line << "\n"
                                                           << resultOf(run);
        }
    }
    EXPECT_GT(commands.size(), 40U);
}

TEST(ManualExamples, EveryBookTestPassesWithTheSampleBook)
{
    const ReadersFolder reader;
    const std::vector<Example> tests = examplesOf("booktest");
    for (const Example& example : tests) {
        writeFile(reader.file("example.booktest"), example.text);
        const ProgramRun run = reader.plinkett({"test", "farm.oidpro", "example.booktest"});
        EXPECT_EQ(run.status, 0) << example.place << "\n" << resultOf(run);
    }
    EXPECT_EQ(tests.size(), manualLanguages().size());
}

TEST(ManualExamples, TheAnswersOfPlayAreThoseOfTheSampleBook)
{
    const ProgramRun run = runProgram(PLINKETT_BIN_DIR "/plinkett-cli",
                                      {"play", PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"},
                                      {}, "", "start\nfrog\n");
    std::size_t count = 0;
    for (const Example& example : examplesOf("text")) {
        if (example.text.rfind("start\n", 0) == 0) {
            EXPECT_EQ(run.out, example.text) << example.place;
            ++count;
        }
    }
    EXPECT_EQ(count, manualLanguages().size());
}
