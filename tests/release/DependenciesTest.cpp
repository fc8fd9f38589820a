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
