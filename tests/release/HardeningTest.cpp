#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace {

bool has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

std::vector<std::string> linesWith(const std::string& text, const std::regex& pattern)
{
    std::vector<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_search(line, pattern)) {
            found.push_back(line);
        }
    }
    return found;
}

void expectInEach(const std::vector<std::string>& flags, const std::vector<std::string>& lines)
{
    for (const std::string& line : lines) {
        for (const std::string& flag : flags) {
            EXPECT_TRUE(has(line, flag)) << flag << " is missing: " << line;
        }
    }
}

std::string readElf(const std::string& file)
{
    return runProgram("readelf", {"--wide", "--file-header", "--segments", "--dynamic", file},
                      {"LC_ALL=C"})
        .out;
}

}  // namespace

TEST(ReleasePreset, BuildsEveryFileAndProgramWithProtection)
{
    const TemporaryFolder folder;
    const ProgramRun run =
        runProgram(PLINKETT_CMAKE, {"--preset", "release", "-B", folder.file("release")}, {},
                   PLINKETT_SOURCE_DIR);
    ASSERT_EQ(run.status, 0) << resultOf(run);

    const auto compiled = linesWith(readFile(folder.file("release/compile_commands.json")),
                                    std::regex("\"command\": .*"));
    EXPECT_GT(compiled.size(), 100U);
    expectInEach({"-D_FORTIFY_SOURCE=2", "-fstack-protector-strong", "-fPIE"}, compiled);

    const std::string rules = readFile(folder.file("release/build.ninja"));
    const auto linked = linesWith(rules, std::regex("  LINK_FLAGS = .*"));
    const auto programs = linesWith(rules, std::regex("build \\S+: CXX_EXECUTABLE_LINKER.*"));
    EXPECT_GE(programs.size(), 3U);
    EXPECT_EQ(linked.size(), programs.size());
    expectInEach({"-pie", "-Wl,-z,relro", "-Wl,-z,now"}, linked);
}

// A program with the flags of the release.
TEST(Protection, LetsAProgramLieElsewhereEachTime)
{
    EXPECT_TRUE(has(readElf(PLINKETT_OVERFLOWING), "DYN (Position-Independent Executable file)"));
}

TEST(Protection, MakesTheTablesOfTheLoaderReadOnlyBeforeAnythingRuns)
{
    const std::string told = readElf(PLINKETT_OVERFLOWING);
    EXPECT_TRUE(has(told, "GNU_RELRO")) << told;
    EXPECT_TRUE(has(told, "BIND_NOW")) << told;
}

TEST(Protection, EndsAProgramThatWritesBehindABuffer)
{
    EXPECT_EQ(runProgram(PLINKETT_OVERFLOWING, {"short"}).status, 0);
    const ProgramRun run = runProgram(
        "sh", {"-c", R"("$0" "$1"; echo status $?)", PLINKETT_OVERFLOWING, std::string(500, 'x')});
    EXPECT_TRUE(has(run.out, "status 134")) << resultOf(run);  // aborted
    EXPECT_TRUE(has(run.err, "buffer overflow detected")) << resultOf(run);
}
