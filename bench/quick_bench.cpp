// What quick answers bring and what they cost: the steps of a tap and the size of the game file on
// generated books of the kind of the sample book, and the time that the optimiser takes for large
// ones. Ends with 1 when a limit is broken:  quick_bench [BOOKS]   (1000 by default)
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <random>

#include "bench/GeneratedBook.h"
#include "gme/GameFile.h"
#include "oid/OidProject.h"
#include "pen/Pen.h"
#include "publish/DescribeGame.h"
#include "quick/Quick.h"

namespace {

constexpr double kLeastGain = 6;   // how many times fewer steps
constexpr double kMostTime = 300;  // ms for as many steps as a game can have
constexpr double kMostGrowth =
    1.5;  // of the time that a step takes, from a small book to the largest
constexpr size_t kMostSteps = 13000;
constexpr int kTaps = 300;
constexpr int kRounds = 5;

struct Book
{
    gme::Game plain;
    std::set<uint16_t> inner;
    std::vector<uint16_t> areas;  // without the sign that starts the book

    gme::Game quickGame() const { return quick::optimise(plain, inner); }
};

Book bookOf(const GeneratedBook& generated)
{
    Oid::OidProject project;
    project.productId = 900;
    project.productName = "Farm";
    project.compiler.source = generated.script;
    Oid::PICTURE& page = project.pictures.emplace_back();
    for (const std::string& area : generated.areas) {
        page.polys.emplace_back().name = area;
    }
    const DiagnosticSink sink = [](const Diagnostic& finding) {
        std::fputs(consoleLine(finding).c_str(), stderr);
    };
    const gme::Description description = describeGame(project, sink).value();
    gme::MediaLookup silence;
    Book book;
    book.plain = gme::compileGame(description, silence, sink).value();
    book.inner = quick::innerCodes(book.plain, description);
    for (const std::string& area : generated.areas) {
        if (area != "power") {
            book.areas.push_back(description.codes.names.at(area).code);
        }
    }
    return book;
}

// Counts what a reader waits for.
class Counter : public pen::PenListener
{
public:
    explicit Counter(const gme::Game& game) : pen(pen::gameForPen(game), {}, *this) {}

    void tap(uint16_t code)
    {
        begin = pen.steps();
        isSilent = true;
        pen.tap(code);
        pen.runToRest();
        all += pen.steps() - begin;
        untilSound += isSilent ? pen.steps() - begin : 0;
    }
    void soundStarted(const pen::Sound& /*sound*/) override
    {
        untilSound += isSilent ? pen.steps() - begin : 0;
        isSilent = false;
    }

    uint64_t all = 0;
    uint64_t untilSound = 0;  // to rest where there is none

private:
    uint64_t begin = 0;
    bool isSilent = true;
    pen::Pen pen;
};

bool isFine(const char* what, double value, const char* side, double limit, bool isKept)
{
    std::printf("%-44s %8.2f, %s %.2f%s\n", what, value, side, limit, isKept ? "" : "  BROKEN");
    return isKept;
}

struct Sums
{
    uint64_t steps = 0;
    uint64_t stepsUntilSound = 0;
    uint64_t bytes = 0;
};

// The same taps on the same book, with one game of it or the other.
void play(const Book& book, const gme::Game& game, uint64_t seed, Sums& sums)
{
    Counter counter(game);
    std::mt19937_64 random(seed);
    for (int tap = 0; tap < kTaps; ++tap) {
        counter.tap(book.areas[random() % book.areas.size()]);
    }
    sums.steps += counter.all;
    sums.stepsUntilSound += counter.untilSound;
    sums.bytes += gme::layOut(game).size;
}

void printRow(const char* what, uint64_t plain, uint64_t quickNow, double count)
{
    const auto before = static_cast<double>(plain);
    const auto now = static_cast<double>(quickNow);
    std::printf("%-32s %10.2f %10.2f %9.2f\n", what, before / count, now / count, before / now);
}

bool measureBooks(int books)
{
    Sums plain;
    Sums now;
    int larger = 0;
    for (int i = 0; i < books; ++i) {
        const auto seed = static_cast<uint64_t>(i);
        const Book book = bookOf(generatedBook(seed, 1));
        const gme::Game quickGame = book.quickGame();
        play(book, book.plain, seed, plain);
        play(book, quickGame, seed, now);
        larger += gme::layOut(quickGame).size > gme::layOut(book.plain).size ? 1 : 0;
    }
    std::printf("%d generated books, %d taps on each\n%-32s %10s %10s %9s\n", books, kTaps,
                "mean of", "plain", "quick", "times");
    printRow("steps until the first sound", plain.stepsUntilSound, now.stepsUntilSound,
             double(kTaps) * books);
    printRow("steps until rest", plain.steps, now.steps, double(kTaps) * books);
    printRow("bytes of the game but its audio", plain.bytes, now.bytes, books);
    const double gain = double(plain.stepsUntilSound) / double(now.stepsUntilSound);
    const bool isLittle = isFine("times fewer steps until the first sound", gain, "at least",
                                 kLeastGain, gain >= kLeastGain);
    const bool isSmall = isFine("books with a larger game file", larger, "at most", 0, larger == 0);
    return isLittle && isSmall;
}

// Milliseconds of this process, the best of several rounds.
double timeOf(const Book& book)
{
    double best = 1e9;
    for (int i = 0; i < kRounds; ++i) {
        const std::clock_t start = std::clock();
        book.quickGame();
        best = std::min(best, 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

// A book of so many steps or a page more.
Book largeBook(size_t steps)
{
    size_t pages = 1;
    Book book = bookOf(generatedBook(1, pages));
    while (book.plain.scripts.size() < steps) {
        pages = std::max(pages + 1, pages * steps / book.plain.scripts.size());
        book = bookOf(generatedBook(1, pages));
    }
    return book;
}

bool measureTime()
{
    std::printf("\n%12s %12s %16s\n", "steps", "ms", "us for a step");
    double time = 0;
    std::vector<double> ofAStep;
    for (const size_t part : {16U, 8U, 4U, 2U, 1U}) {
        const Book book = largeBook(kMostSteps / part);
        const auto steps = static_cast<double>(book.plain.scripts.size());
        time = timeOf(book);
        ofAStep.push_back(1000 * time / steps);
        std::printf("%12.0f %12.1f %16.2f\n", steps, time, ofAStep.back());
    }
    const double growth = ofAStep.back() / ofAStep.front();
    const bool isQuick =
        isFine("ms for the largest book", time, "at most", kMostTime, time <= kMostTime);
    const bool isLinear = isFine("growth of the time for a step", growth, "at most", kMostGrowth,
                                 growth <= kMostGrowth);
    return isQuick && isLinear;
}

}  // namespace

int main(int argc, char** argv)
{
    const int books = argc > 1 ? std::atoi(argv[1]) : 1000;
    const bool isLittle = measureBooks(books);
    const bool isFast = measureTime();
    return isLittle && isFast ? 0 : 1;
}
