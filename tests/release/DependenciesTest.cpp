#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

// Security updates change versions from one week to the next.
std::string withoutVersions(const std::string& table)
{
    return std::regex_replace(table, std::regex("\\| ([a-z0-9.+-]+) \\| [0-9][^|]* \\|"),
                              "| $1 | VERSION |");
}

}  // namespace

TEST(Dependencies, AreThoseThatTheProgramsLinkAndStart)
{
    const ProgramRun run =
        runProgram(PLINKETT_SOURCE_DIR "/tools/dev/dependencies", {PLINKETT_BUILD_FOLDER});
    ASSERT_EQ(run.status, 0) << resultOf(run);
    EXPECT_EQ(withoutVersions(run.out),
              withoutVersions(readFile(PLINKETT_SOURCE_DIR "/docs/dependencies.md")))
        << "tools/dev/dependencies >docs/dependencies.md";
}

// What the about box and --version name, by the same words.
TEST(Dependencies, AreNamedWithTheirLicencesByTheProgram)
{
    const std::string version = runProgram(PLINKETT_BIN_DIR "/plinkett-cli", {"--version"}).out;
    const std::string table = readFile(PLINKETT_SOURCE_DIR "/docs/dependencies.md");
    const std::regex row(
        "\\| (lib[A-Za-z0-9]+)[.0-9-]*\\.so\\S* \\| (\\S+) \\| \\S+ \\| ([^|]+) \\|");
    int libraries = 0;
    for (std::sregex_iterator found(table.begin(), table.end(), row), end; found != end; ++found) {
        const std::string package = (*found)[2];
        const bool isRuntime = package == "libc6" || package == "libgcc-s1" ||
                               package == "libgomp1" || package == "libstdc++6";
        if (!isRuntime) {
            const std::string name = (*found)[1];
            const std::string line = "  " + (name.rfind("libQt5", 0) == 0 ? "Qt" : name) + ": " +
                                     (*found)[3].str() + "\n";
            EXPECT_NE(version.find(line), std::string::npos) << line << version;
            ++libraries;
        }
    }
    EXPECT_GT(libraries, 8);
}
