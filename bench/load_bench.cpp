// How time and memory grow with the book: each command of plinkett-cli, and the window's open,
// edit, undo and save, on books of growing numbers of pages, areas, lines and texts. Prints tables;
// ends with 1 when something grows more than 1.2 times as much as the book, or fails.
//   load_bench [pages] [areas] [lines] [texts] [gestures]
// "refused": ended with a message and status 1.
#include "bench/LoadBook.h"
#include "bench/LoadWindow.h"
#include "bench/MeasuredProcess.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <map>

namespace {

constexpr double kMostGrowth = 1.2;  // times linear
// Shorter runs are the start of a program and chance.
constexpr double kLeastSeconds = 0.1;
constexpr double kShortRun = 0.3;  // seconds; the least of three runs counts
constexpr int kGestures = 100'000;
// The exit status of what is told: a script of 10,000 lines has more steps than a game file.
constexpr int kRefused = 1;

struct Series
{
    Growing what;
    const char* name;
    std::vector<int> sizes;
};

const Series kSeries[] = {
    {Growing::pages, "pages", {1, 10, 100, 1000}},
    {Growing::areas, "areas", {10, 100, 1000, 10'000, 100'000}},
    {Growing::lines, "lines", {100, 1000, 10'000, 100'000}},
    {Growing::texts, "texts", {10, 100, 1000, 10'000}},
};

struct Command
{
    QString name;
    QStringList arguments;
    QByteArray input;
};

// All that work on a book. In this order: a later one may read what an earlier one has written.
std::vector<Command> commandsOn(const LoadBook& book)
{
    const QString& project = book.project;
    const QString game = project + ".gme";
    return {
        {"check", {"check", project}, {}},
        {"check --hints", {"check", project, "--hints"}, {}},
        {"yaml", {"yaml", project}, {}},
        {"save", {"save", project, "-o", project + ".saved"}, {}},
        {"print", {"print", project}, {}},
        {"read", {"read", book.printImage}, {}},
        {"pdf", {"pdf", project}, {}},
        {"symbols", {"symbols", project}, {}},
        {"assemble", {"assemble", book.description, "-o", game}, {}},
        {"assemble --quick", {"assemble", book.description, "-o", game, "--quick"}, {}},
        {"build --plain", {"build", project, "--plain"}, {}},
        {"build --quick", {"build", project, "--quick"}, {}},
        {"play, 100 taps", {"play", project}, book.taps},
        {"test", {"test", project, book.bookTest}, {}},
        {"test --explore 1000", {"test", project, book.bookTest, "--explore", "1000"}, {}},
        {"speech list", {"speech", project, "list", "--json"}, {}},
        {"speech tidy --dry-run", {"speech", project, "tidy", "--dry-run"}, {}},
    };
}

Cost leastCost(const Command& command)
{
    const QString program = PLINKETT_BIN_DIR "/plinkett-cli";
    Cost least = costOf(program, command.arguments, command.input);
    for (int i = 0; i < 2 && least.seconds < kShortRun; ++i) {
        const Cost cost = costOf(program, command.arguments, command.input);
        least.seconds = std::min(least.seconds, cost.seconds);
    }
    return least;
}

// What one thing takes for each size.
class Row
{
public:
    void add(const Cost& cost) { costs.push_back(cost); }

    // False when it failed or grew too much.
    bool print(const QString& name, const std::vector<int>& sizes) const
    {
        std::printf("| %s |", qPrintable(name));
        bool good = true;
        for (const Cost& cost : costs) {
            good = good && (cost.status == 0 || cost.status == kRefused);
            std::printf(" %.3g s, %.0f MB%s |", cost.seconds, cost.bytes / 1e6,
                        cost.status == 0          ? ""
                        : cost.status == kRefused ? ", refused"
                                                  : ", FAILED");
        }
        const double growth = worstGrowth(sizes);
        std::printf(growth > 0 ? " %.2f |\n" : " |\n", growth);
        std::fflush(stdout);
        return good && growth <= kMostGrowth;
    }

private:
    // Of seconds and of memory, from one size to the next, in times of the book's growth.
    double worstGrowth(const std::vector<int>& sizes) const
    {
        double worst = 0;
        for (size_t i = 1; i < costs.size(); ++i) {
            const double linear = double(sizes[i]) / sizes[i - 1];
            if (costs[i - 1].seconds >= kLeastSeconds) {
                worst = std::max(worst, costs[i].seconds / costs[i - 1].seconds / linear);
            }
            if (costs[i - 1].bytes > 0) {
                worst = std::max(worst, costs[i].bytes / costs[i - 1].bytes / linear);
            }
        }
        return worst;
    }

    std::vector<Cost> costs;
};

bool measure(const Series& series)
{
    std::printf("\n| %s |", series.name);
    std::map<int, Row> commands;
    std::map<int, QString> names;
    std::vector<Row> window(kWindowActs.size());
    for (const int size : series.sizes) {
        std::printf(" %d |", size);
        std::fflush(stdout);
        const QTemporaryDir folder;
        const LoadBook book = makeLoadBook(series.what, size, folder.path());
        int number = 0;
        for (const Command& command : commandsOn(book)) {
            names[number] = command.name;
            commands[number++].add(leastCost(command));
        }
        const std::vector<Cost> costs = windowCosts(book.project);
        const std::vector<Cost> again = windowCosts(book.project);
        for (size_t i = 0; i < window.size(); ++i) {
            window[i].add(again[i].seconds < costs[i].seconds ? again[i] : costs[i]);
        }
    }
    std::printf(" most growth |\n|---|");
    for (size_t i = 0; i <= series.sizes.size(); ++i) {
        std::printf("---|");
    }
    std::printf("\n");
    bool good = true;
    for (const auto& [number, row] : commands) {
        good = row.print('`' + names[number] + '`', series.sizes) && good;
    }
    for (size_t i = 0; i < window.size(); ++i) {
        good = window[i].print(QString("window: ") + kWindowActs[i], series.sizes) && good;
    }
    return good;
}

bool isWanted(const char* name, int argc, char** argv)
{
    return argc == 1 ||
           std::any_of(argv + 1, argv + argc, [&](char* arg) { return !std::strcmp(arg, name); });
}

}  // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], kWindowOption) == 0) {
        return actInWindow(argv[2]);
    }
    try {
        bool good = true;
        for (const Series& series : kSeries) {
            if (isWanted(series.name, argc, argv)) {
                good = measure(series) && good;
            }
        }
        if (isWanted("gestures", argc, argv)) {
            good = measureGestureMemory(kGestures) && good;
        }
        return good ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
