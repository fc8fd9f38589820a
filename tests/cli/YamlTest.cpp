#include <gmock/gmock.h>

#include <filesystem>
#include <thread>

#include <unistd.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

const std::string kBook = "PRODUCT 17, \"Zoo\"\r\n"
                          "OID 1234\r\nBOX lion 1.5 2.5 10 10\r\n"
                          "SCRIPT\r\nsub lion\r\nsay \"Roar\"\r\nend sub\r\n";
const std::string kBrokenBook = kBook + "foo\r\n";

}  // namespace

TEST(Yaml, TheDescriptionLiesBesideTheProject)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    EXPECT_EQ(resultOf(cli({"yaml", folder.file("book.oidpro")})), "status 0\n");
    EXPECT_EQ(folder.listing(), "17-Zoo.yaml book.oidpro");
    const std::string yaml = readFile(folder.file("17-Zoo.yaml"));
    EXPECT_THAT(yaml, StartsWith("\xEF\xBB\xBF# --- Product ---\r\nproduct-id: 17\r\n"));
    EXPECT_THAT(yaml, testing::EndsWith("scriptcodes:\r\n    lion:                1234\r\n"));
}

TEST(Yaml, ARelativeProjectPathWorksFromItsOwnFolder)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    EXPECT_EQ(resultOf(cli({"yaml", "book.oidpro"}, {}, folder.path())), "status 0\n");
    EXPECT_EQ(folder.listing(), "17-Zoo.yaml book.oidpro");
}

TEST(Yaml, AnotherPlaceMayBeNamed)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    EXPECT_EQ(resultOf(cli({"yaml", "-o", folder.file("x.yaml"), folder.file("book.oidpro")})),
              "status 0\n");
    EXPECT_EQ(folder.listing(), "book.oidpro x.yaml");
}

TEST(Yaml, TheSampleBookHasAnAreaThatSwitchesItOn)
{
    const TemporaryFolder folder;
    const std::string book = PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro";
    EXPECT_EQ(resultOf(cli({"yaml", "-o", folder.file("x.yaml"), book})), "status 0\n");
    const std::string yaml = readFile(folder.file("x.yaml"));
    EXPECT_THAT(yaml, HasSubstr("product-id: 901\r\n"));
    EXPECT_THAT(yaml, HasSubstr("\r\nscriptcodes:\r\n    power:                901\r\n"));
}

TEST(Yaml, TwoRunsAndEveryLocaleGiveTheSameBytes)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    const std::string first = folder.file("1.yaml");
    const std::string second = folder.file("2.yaml");
    cli({"yaml", folder.file("book.oidpro"), "-o", first}, {"LC_ALL=C"});
    cli({"yaml", folder.file("book.oidpro"), "-o", second}, {"LC_ALL=C.UTF-8"});
    EXPECT_EQ(readFile(first), readFile(second));
}

TEST(Yaml, DebugModeLetsThePenSayTheLines)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    cli({"yaml", folder.file("book.oidpro")});
    EXPECT_THAT(readFile(folder.file("17-Zoo.yaml")), testing::Not(HasSubstr("say_adam_line_2")));
    cli({"yaml", folder.file("book.oidpro"), "--debug"});
    EXPECT_THAT(readFile(folder.file("17-Zoo.yaml")), HasSubstr("say_adam_line_2"));
}

TEST(Yaml, NothingIsWrittenAfterAFailedCompilation)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBrokenBook);
    writeFile(folder.file("old.yaml"), "old");
    EXPECT_EQ(resultOf(cli({"yaml", folder.file("book.oidpro"), "-o", folder.file("old.yaml")})),
              "status 1\n"
              "!!! Error: Line 4 Failed to parse command: foo\n"
              "!!! Error: Line 4 Syntax Error\n"
              "Stopped build process.\n");
    EXPECT_EQ(readFile(folder.file("old.yaml")), "old");
    EXPECT_EQ(folder.listing(), "book.oidpro old.yaml");
}

TEST(Yaml, AFileThatCannotBeWrittenIsReported)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    const std::string path = folder.file("no/such/folder.yaml");
    EXPECT_EQ(resultOf(cli({"yaml", folder.file("book.oidpro"), "-o", path})),
              "status 1\nError: Can't open file '" + path + "'\n");
}

TEST(Yaml, AMissingProjectIsReported)
{
    EXPECT_EQ(resultOf(cli({"yaml", "no/such.oidpro"})),
              "status 1\nError: Can't open file 'no/such.oidpro'\n");
}

TEST(Yaml, ABookThatIsBeingBuiltIsWaitedFor)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kBook);
    const std::string process = std::to_string(getpid());
    writeFile(folder.file("17-build.lock"), process + "\ncli_tests\n");
    std::thread build([&] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        std::filesystem::remove(folder.file("17-build.lock"));
    });
    EXPECT_EQ(resultOf(cli({"yaml", folder.file("book.oidpro")})),
              "status 0\nWaiting: cli_tests (process " + process + ") makes the same files\n");
    build.join();
    EXPECT_EQ(folder.listing(), "17-Zoo.yaml book.oidpro");
}
