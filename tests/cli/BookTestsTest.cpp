// plinkett-cli test: book tests that are run, and the tests of the sample book.
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

const char* const kBook = "PRODUCT 900, \"Zoo\"\n"
                          "OID 1001\nBOX cow 1 1 5 5\nOID 1002\nBOX dog 1 9 5 5\n"
                          "OID 1003\nBOX sun 9 9 5 5\n"
                          "SCRIPT\n"
                          "sub cow\n"
                          "  count = count + 20000   # cows are big\n"
                          "  say \"Moo\"\n"
                          "end sub\n"
                          "sub dog\n"
                          "  if count\n"
                          "    say \"Woof\"\n"
                          "  end if\n"
                          "end sub\n"
                          "sub sun\n"
                          "  x = x / y\n"
                          "end sub\n";

class BookTests : public testing::Test
{
protected:
    BookTests() { writeFile(folder.file("zoo.oidpro"), kBook); }

    void write(const std::string& name, const std::string& text) const
    {
        writeFile(folder.file(name), text);
    }
    // The words behind "test zoo.oidpro", in the folder of the book.
    std::string test(std::vector<std::string> words = {}) const
    {
        words.insert(words.begin(), {"test", "zoo.oidpro"});
        return resultOf(cli(words, {}, folder.path()));
    }

    const TemporaryFolder folder;
};

}  // namespace

TEST_F(BookTests, BesideTheProjectAreAllRunInTheirOrder)
{
    write("b.booktest", "tap cow\nexpect say Moo\n");
    write("a.booktest", "tap dog\nexpect silence\ntap cow\n");
    write("c.txt", "rubbish");
    EXPECT_EQ(test(), "status 0\n"
                      "a.booktest: 2 taps, 1 expectation: all as expected\n"
                      "b.booktest: 1 tap, 1 expectation: all as expected\n");
    EXPECT_EQ(folder.listing(), "a.booktest b.booktest c.txt zoo.oidpro");
}

TEST_F(BookTests, AreRunAsTheyAreNamed)
{
    write("a.booktest", "tap cow\n");
    write("other.txt", "tap cow\nexpect count == 20000\n");
    EXPECT_EQ(test({"other.txt"}), "status 0\n"
                                   "other.txt: 1 tap, 1 expectation: all as expected\n");
}

TEST_F(BookTests, BeginEachWithAFreshBook)
{
    write("a.booktest", "tap cow\nexpect count == 20000\n");
    EXPECT_EQ(test({"a.booktest", "a.booktest"}),
              "status 0\n"
              "a.booktest: 1 tap, 1 expectation: all as expected\n"
              "a.booktest: 1 tap, 1 expectation: all as expected\n");
}

TEST_F(BookTests, TellFileAndLineOfWhatIsNotAsExpected)
{
    write("a.booktest", "tap cow\nexpect say \"Muh\"\nexpect silence\nexpect count == 1\n");
    write("b.booktest", "tap dog\n");
    EXPECT_EQ(test(), "status 1\n"
                      "a.booktest:2: expected say \"Muh\", but \"Moo\" was said\n"
                      "a.booktest:4: expected count == 1, but count is 20000\n"
                      "a.booktest: 1 tap, 3 expectations: 2 lines failed\n"
                      "b.booktest: 1 tap, 0 expectations: all as expected\n");
}

TEST_F(BookTests, WithMistakesAreNotRun)
{
    write("a.booktest", "tap cwo\ntap cow\nexpect sielnce\n");
    EXPECT_EQ(test(), "status 1\n"
                      "a.booktest:1: there is no area 'cwo'\n"
                      "a.booktest:3: what is expected? say \"TEXT\", say one of \"TEXT\" \"TEXT\", "
                      "silence, within 20 steps, rest within 20 steps, or a variable: count == 3\n"
                      "a.booktest: not run\n");
}

TEST_F(BookTests, ThatAreNotThereAreAnError)
{
    EXPECT_EQ(test(), "status 1\n"
                      "stderr: Error: There is no file *.booktest beside 'zoo.oidpro'\n");
    EXPECT_EQ(test({"no.booktest"}), "status 1\n"
                                     "stderr: Error: Can't open file 'no.booktest'\n");
}

TEST_F(BookTests, NeedABookThatCanBeBuilt)
{
    write("zoo.oidpro", "PRODUCT 900, \"Zoo\"\nSCRIPT\nfoo\n");
    EXPECT_EQ(test(), "status 1\n"
                      "stderr: !!! Error: Line 1 Failed to parse command: foo\n"
                      "!!! Error: Line 1 Syntax Error\n");
}

TEST_F(BookTests, ListWhatTheyDoNotReach)
{
    write("a.booktest", "tap dog\ntap sun\nexpect silence\n");
    EXPECT_EQ(test({"--coverage"}),
              "status 1\n"
              "a.booktest:2: expected no division by zero, but there was one in line 11 of the "
              "script\n"
              "a.booktest: 2 taps, 1 expectation: 1 line failed\n"
              "The tests reach 2 of 5 lines, 1 of 2 branches, 2 of 3 areas.\n"
              "line 2: not run: count = count + 20000\n"
              "line 3: not run: say \"Moo\"\n"
              "line 6: never true: if count\n"
              "line 7: not run: say \"Woof\"\n"
              "area cow: not touched\n");
}

TEST_F(BookTests, MayBeRandomTaps)
{
    EXPECT_EQ(
        test({"--explore", "200", "--seed", "5"}),
        "status 1\n"
        "Random taps: 200, on 3 of 3 areas.\n"
        "line 11: division by zero (tap 3, on sun): x = x / y\n"
        "line 6: the value of the condition is 20000, so neither branch is run (tap 8, on "
        "dog): if count\n"
        "line 2: a value runs over 65535 and goes on from 0 (tap 20, on cow): count = count + "
        "20000\n"
        "area dog: nothing is ever said\n"
        "area sun: nothing is ever said\n");
}

TEST_F(BookTests, TakeNumbersOnly)
{
    EXPECT_EQ(test({"--explore", "many"}),
              "status 2\nstderr: plinkett-cli: N must be a number from 0 on, not 'many'\n"
              "Try 'plinkett-cli --help'.\n");
    EXPECT_EQ(test({"--seed", "-1"}),
              "status 2\nstderr: plinkett-cli: N must be a number from 0 on, not '-1'\n"
              "Try 'plinkett-cli --help'.\n");
}

TEST(SampleBook, DoesWhatItsTestsExpectAndTheyReachAllOfIt)
{
    const std::string farm = PLINKETT_SOURCE_DIR "/examples/farm/farm";
    EXPECT_EQ(resultOf(cli({"test", farm + ".oidpro", "--coverage", "--explore", "20000"})),
              "status 0\n" + farm +
                  ".booktest: 144 taps, 160 expectations: all as expected\n"
                  "The tests reach 63 of 63 lines, 25 of 25 branches, 18 of 18 areas.\n"
                  "Random taps: 20000, on 18 of 18 areas.\n");
}
