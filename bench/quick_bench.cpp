// What quick answers bring and what they cost: the steps of a tap and the size of the game file on
// generated books of the kind of the sample book, and the time that the optimiser takes for large
// ones. Ends with 1 when a limit is broken:  quick_bench [BOOKS]   (1000 by default)
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
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
// Of the time that a step takes, from a small book to the largest: what does not fit into the
// caches takes longer. Time that grows with the square of the steps would be ten times and more.
constexpr double kMostGrowth = 2.5;
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

// Each sub says another of so many texts at each tap.
Book bookOfSelects(size_t subs, size_t cases)
{
    GeneratedBook book;
    book.script = "voice anna lang en age 30 sex f\nsub power\nend sub\n";
    book.areas.emplace_back("power");
    for (size_t i = 0; i < subs; ++i) {
        const std::string name = "thing" + std::to_string(i) + "x";
        const std::string counter = name + "count";
        book.areas.push_back(name);
        book.script += "sub " + name + "\n" + counter + " = " + counter + " + 1\nselect " + counter;
        for (size_t number = 1; number <= cases; ++number) {
            const std::string text = std::to_string(number);
            book.script += "\ncase " + text + "\nsay anna \"" + text + " of " + name + "\"";
        }
        book.script += "\nend select\nend sub\n";
    }
    return bookOf(book);
}

// Each sub calculates a sum of twelve variables, each of which is chosen by another one: there are
// thousands of ways through it.
Book bookOfSums(size_t subs)
{
    GeneratedBook book;
    book.script = "sub power\nend sub\n";
    book.areas.emplace_back("power");
    for (size_t i = 0; i < subs; ++i) {
        const std::string name = "thing" + std::to_string(i) + "x";
        book.areas.push_back(name);
        book.script += "sub " + name + "\n";
        for (size_t variable = 0; variable < 12; ++variable) {
            const std::string number = std::to_string(variable);
            book.script += "if chosen" + number + " == " + number + "\nsum = sum + one" + number +
                           "\nelse\nsum = sum + other" + number + "\nend if\n";
        }
        book.script += "end sub\n";
    }
    return bookOf(book);
}

// Books from the smallest to the largest one.
bool measureTimes(const char* what, const std::vector<std::function<Book()>>& books)
{
    std::printf("\n%s\n%12s %12s %16s %12s\n", what, "steps", "ms", "us for a step", "growth");
    double time = 0;
    double growth = 0;
    double first = 0;  // us for a step
    for (const std::function<Book()>& make : books) {
        const Book book = make();
        const auto steps = static_cast<double>(book.plain.scripts.size());
        time = timeOf(book);
        const double ofAStep = 1000 * time / steps;
        first = first == 0 ? ofAStep : first;
        growth = ofAStep / first;
        std::printf("%12.0f %12.1f %16.2f %12.2f\n", steps, time, ofAStep, growth);
    }
    const bool isQuick =
        isFine("ms for the largest book", time, "at most", kMostTime, time <= kMostTime);
    const bool isLinear = isFine("growth of the time for a step", growth, "at most", kMostGrowth,
                                 growth <= kMostGrowth);
    return isQuick && isLinear;
}

bool measureTime()
{
    std::vector<std::function<Book()>> pages;
    for (const size_t part : {16U, 8U, 4U, 2U, 1U}) {
        pages.emplace_back([part] { return largeBook(kMostSteps / part); });
    }
    std::vector<std::function<Book()>> cases;
    for (const size_t count : {10U, 30U, 100U, 300U, 1000U, 2600U}) {
        cases.emplace_back([count] { return bookOfSelects(1, count); });
    }
    std::vector<std::function<Book()>> subs;
    for (const size_t count : {1U, 3U, 10U, 30U, 100U}) {
        subs.emplace_back([count] { return bookOfSelects(count, 20); });
    }
    std::vector<std::function<Book()>> sums;
    for (const size_t count : {10U, 30U, 90U}) {
        sums.emplace_back([count] { return bookOfSums(count); });
    }
    const bool isFineForPages = measureTimes("more and more pages", pages);
    const bool isFineForCases = measureTimes("one select of 10 to 2,600 cases", cases);
    const bool isFineForSubs = measureTimes("1 to 100 subs, a select of 20 cases in each", subs);
    const bool isFineForSums =
        measureTimes("10 to 90 subs of 12 branches that only calculate", sums);
    return isFineForPages && isFineForCases && isFineForSubs && isFineForSums;
}

}  // namespace

int main(int argc, char** argv)
{
    const int books = argc > 1 ? std::atoi(argv[1]) : 1000;
    const bool isLittle = measureBooks(books);
    const bool isFast = measureTime();
    return isLittle && isFast ? 0 : 1;
}
