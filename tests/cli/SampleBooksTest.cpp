// The sample books are the first that an author sees: nothing is wrong with them, and their tests
// reach all of them.
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QImage>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <regex>

namespace fs = std::filesystem;

namespace {

const std::string kSamples = PLINKETT_SOURCE_DIR "/examples/";

class EverySampleBook : public testing::TestWithParam<const char*>
{
protected:
    std::string project() const { return kSamples + GetParam() + ".oidpro"; }
};

}  // namespace

TEST_P(EverySampleBook, HasNothingWrongAndNothingToHint)
{
    EXPECT_EQ(resultOf(cli({"check", "--hints", "--strict", project()})), "status 0\n");
}

TEST_P(EverySampleBook, DoesWhatItsTestsExpectAndTheyReachAllOfIt)
{
    const ProgramRun run = cli({"test", project(), "--coverage", "--explore", "5000"});
    EXPECT_EQ(run.status, 0);
    const std::regex all("\\S+\\.booktest: \\d+ taps, \\d+ expectations: all as expected\n"
                         "The tests reach (\\d+) of \\1 lines, (\\d+) of \\2 branches, "
                         "(\\d+) of \\3 areas\\.\n"
                         "Random taps: 5000, on \\3 of \\3 areas\\.\n");
    EXPECT_TRUE(std::regex_match(run.out, all)) << run.out;
}

INSTANTIATE_TEST_SUITE_P(, EverySampleBook,
                         testing::Values("farm/farm", "farm-de/bauernhof", "quiz/quiz",
                                         "quiz-de/quiz", "dictionary/dictionary",
                                         "dictionary-de/lexikon"),
                         [](const auto& book) {
                             std::string name = book.param;
                             name.resize(name.find('/'));
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

// Each has the number of no other: all may be on one pen.
TEST(SampleBooksTogether, HaveNumbersOfTheirOwn)
{
    std::vector<std::string> numbers;
    for (const fs::directory_entry& file : fs::recursive_directory_iterator(kSamples)) {
        if (file.path().extension() == ".oidpro") {
            const std::string text = readFile(file.path().string());
            numbers.push_back(text.substr(text.find("PRODUCT"), std::strlen("PRODUCT 901")));
        }
    }
    std::sort(numbers.begin(), numbers.end());
    EXPECT_EQ(numbers, (std::vector<std::string>{"PRODUCT 901", "PRODUCT 902", "PRODUCT 903",
                                                 "PRODUCT 911", "PRODUCT 912", "PRODUCT 913"}));
}

TEST(SampleBooksTogether, HavePicturesOfLessThanTwoMegabytes)
{
    std::uintmax_t bytes = 0;
    for (const fs::directory_entry& file : fs::recursive_directory_iterator(kSamples)) {
        bytes += file.path().extension() == ".jpg" ? file.file_size() : 0;
    }
    EXPECT_LT(bytes, 2'000'000U);
}

// Whoever changes a drawing draws the pages again. Fonts of another version may differ in a hair.
TEST(SampleBooksTogether, HaveThePicturesOfTheirDrawings)
{
    const TemporaryFolder drawn;
    const ProgramRun run = runProgram(PLINKETT_SOURCE_DIR "/tools/dev/draw-samples", {drawn.path()},
                                      {"PLINKETT_BIN=" PLINKETT_BIN_DIR});
    ASSERT_EQ(run.status, 0) << run.err;
    const auto small = [](const std::string& file) {
        return QImage(QString::fromStdString(file))
            .scaled(70, 50, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    for (const char* const name :
         {"quiz/902-bkgnd0.jpg", "quiz-de/912-bkgnd0.jpg", "dictionary/903-bkgnd0.jpg",
          "dictionary/903-bkgnd1.jpg", "dictionary-de/913-bkgnd0.jpg",
          "dictionary-de/913-bkgnd1.jpg"}) {
        const QImage ours = small(kSamples + name);
        const QImage fresh = small(drawn.file(name));
        ASSERT_EQ(ours.size(), fresh.size()) << name;
        int differing = 0;
        for (int y = 0; y < ours.height(); ++y) {
            for (int x = 0; x < ours.width(); ++x) {
                differing += std::abs(ours.pixelIndex(x, y) - fresh.pixelIndex(x, y)) > 16;
            }
        }
        EXPECT_LT(differing, 10) << name;
    }
}

// The recordings of both books are there, and a build speaks none of them anew.
TEST(SampleBooksTogether, RecordTheWordsOfTheDictionary)
{
    for (const char* const project :
         {"dictionary/dictionary.oidpro", "dictionary-de/lexikon.oidpro"}) {
        const std::string list = cli({"speech", kSamples + project, "list"}).out;
        const std::regex recorded("recorded [^\n]* (emma|hans): ");
        const auto count = [&list](const std::regex& what) {
            return std::distance(std::sregex_iterator(list.begin(), list.end(), what),
                                 std::sregex_iterator());
        };
        EXPECT_EQ(count(recorded), 43) << list;
        EXPECT_EQ(count(std::regex("[^\n]* (emma|hans): ")), 43) << list;
    }
}
