// What playing a book costs: the bare pen, the pen with all that is told of a tap, and what a
// change of the book costs, on books that are as large as a book can be.

#include <benchmark/benchmark.h>

#include <string>

#include "oid/OidProject.h"
#include "play/PlayedBook.h"

namespace {

constexpr int kAreas = 250;  // of a large book: 13,000 steps together

// Subs of 52 steps each that lead from one to the next: what a reader touches says something after
// 45 of them; the last sub is the whole book's end. Without end they go around.
std::string scriptOf(bool hasEnd)
{
    std::string script;
    for (int i = 0; i < kAreas; ++i) {
        const std::string n = std::to_string(i);
        const bool isLast = i + 1 == kAreas;
        script += "sub area" + n +
                  "\n"
                  "  touched = touched + 1\n"
                  "  if (touched % 7 == 3) & (last != " +
                  n +
                  ")\n"
                  "    points = points + 2 * (touched - points)\n"
                  "  else\n"
                  "    points = points % 100\n"
                  "  end if\n"
                  "  v" +
                  n + " = (points + touched) * 3 / 2 - 1\n  last = " + n +
                  "\n"
                  "  select points\n"
                  "  case 1\n"
                  "    say \"One " +
                  n +
                  "\"\n"
                  "  default\n"
                  "    x = x | 1\n"
                  "  end select\n";
        script += isLast && hasEnd
                      ? "  say \"The end.\"\nend sub\n"
                      : "  goto area" + std::to_string(isLast ? 0 : i + 1) + "\nend sub\n";
    }
    return script;
}

Oid::OidProject projectWith(const std::string& script)
{
    Oid::OidProject project;
    project.compiler.source = script;
    Oid::PICTURE& page = project.pictures.emplace_back();
    for (int i = 0; i < kAreas; ++i) {
        page.polys.emplace_back().name = "area" + std::to_string(i);
    }
    return project;
}

play::Book bookOf(const Oid::OidProject& project)
{
    return play::bookOf(
               project,
               [](const Diagnostic& finding) { std::fputs(consoleLine(finding).c_str(), stderr); })
        .value();
}

void countSteps(benchmark::State& state, double steps)
{
    state.counters["steps"] = benchmark::Counter(steps, benchmark::Counter::kIsRate);
}

// Nobody listens.
void penSteps(benchmark::State& state)
{
    const play::Book book = bookOf(projectWith(scriptOf(false)));
    pen::PenListener nobody;
    pen::PenOptions options;
    options.mostSteps = 1000000;
    pen::Pen pen(book.game, options, nobody);
    for (auto _ : state) {
        pen.tap(book.areas.at("area0"));
        pen.runToRest();
    }
    countSteps(state, static_cast<double>(pen.steps()));
}

// With lines, branches, variables and all that goes wrong.
void playedSteps(benchmark::State& state)
{
    pen::PenOptions options;
    options.mostSteps = 1000000;
    play::PlayedBook played(bookOf(projectWith(scriptOf(false))), options);
    double steps = 0;
    for (auto _ : state) {
        played.tap(played.book().areas.at("area0"));
        played.runToRest();
        steps += static_cast<double>(played.outcome().steps);
    }
    countSteps(state, steps);
}

// A tap on the area, until rest, with its outcome: of the last sub, and through all of them.
void tap(benchmark::State& state)
{
    play::PlayedBook played(bookOf(projectWith(scriptOf(true))));
    const uint16_t code = played.book().areas.at("area" + std::to_string(state.range(0)));
    uint64_t steps = 0;
    for (auto _ : state) {
        played.tap(code);
        played.runToRest();
        steps = played.outcome().steps;
    }
    state.counters["stepsOfTheTap"] = static_cast<double>(steps);
    state.counters["stepsOfTheBook"] = static_cast<double>(played.book().game.scripts.size());
}

// What a change of the script costs before the next tap.
void makeBook(benchmark::State& state)
{
    const Oid::OidProject project = projectWith(scriptOf(true));
    for (auto _ : state) {
        benchmark::DoNotOptimize(bookOf(project));
    }
}

void takeOver(benchmark::State& state)
{
    const play::Book book = bookOf(projectWith(scriptOf(true)));
    play::PlayedBook played(book);
    for (auto _ : state) {
        played.takeOver(book);
    }
}

}  // namespace

BENCHMARK(penSteps)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(playedSteps)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(tap)->Arg(kAreas - 1)->Arg(0)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(makeBook)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(takeOver)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_MAIN();
