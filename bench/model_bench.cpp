// The project model at the sizes of large books and far beyond: loading, saving, numbering and
// checking must grow with the number of areas, not with its square.

#include <benchmark/benchmark.h>

#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <string>

#include "oid/OidProject.h"

namespace {

// Makes the words, as any console does, and shows them nowhere.
int silent(const char* format, ...)
{
    char words[1024];
    va_list arguments;
    va_start(arguments, format);
    const int length = vsnprintf(words, sizeof words, format, arguments);
    va_end(arguments);
    benchmark::DoNotOptimize(words);
    return length;
}

// As many rectangles, each with a name of its own, on pages of a thousand, and a sub for every
// second one.
Oid::OidProject bookWith(std::int64_t areas)
{
    Oid::OidProject project;
    project.redirectPrintf(silent);
    for (std::int64_t i = 0; i < areas; ++i) {
        if (i % 1000 == 0) {
            project.pictures.emplace_back();
        }
        Oid::POLY area;
        area.name = "area" + std::to_string(i);
        const double x = static_cast<double>(i % 97);
        const double y = static_cast<double>(i % 61);
        area.points = {{x, y}, {x + 1.25, y}, {x + 1.25, y + 2.5}, {x, y + 2.5}};
        project.pictures.back().polys.push_back(std::move(area));
        if (i % 2 == 0) {
            project.compiler.source += "sub area" + std::to_string(i) + "\nend sub\n";
        }
    }
    return project;
}

std::string benchFile()
{
    return (std::filesystem::temp_directory_path() / "plinkett-bench.oidpro").string();
}

void load(benchmark::State& state)
{
    Oid::OidProject book = bookWith(state.range(0));
    book.updateUsedOIDs();
    if (!book.save(benchFile())) {
        state.SkipWithError("cannot save");
        return;
    }
    Oid::OidProject project;
    for (auto _ : state) {
        project.open(benchFile());
    }
    std::filesystem::remove(benchFile());
}

// Includes the wait until the bytes are on the disk.
void save(benchmark::State& state)
{
    Oid::OidProject book = bookWith(state.range(0));
    book.updateUsedOIDs();
    for (auto _ : state) {
        book.save(benchFile());
    }
    std::filesystem::remove(benchFile());
}

// Every area is new.
void numberNewAreas(benchmark::State& state)
{
    Oid::OidProject book = bookWith(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        book.oids.clear();
        state.ResumeTiming();
        book.updateUsedOIDs();
    }
}

// No area is new, as in most builds.
void updateUsedOIDs(benchmark::State& state)
{
    Oid::OidProject book = bookWith(state.range(0));
    book.updateUsedOIDs();
    for (auto _ : state) {
        book.updateUsedOIDs();
    }
}

void checkSanity(benchmark::State& state)
{
    Oid::OidProject book = bookWith(state.range(0));
    book.updateUsedOIDs();
    book.compiler.parse(false);
    for (auto _ : state) {
        benchmark::DoNotOptimize(book.checkSanity());
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(load)->Apply(sizes);
BENCHMARK(save)->Apply(sizes);
BENCHMARK(numberNewAreas)->Apply(sizes);
BENCHMARK(updateUsedOIDs)->Apply(sizes);
BENCHMARK(checkSanity)->Apply(sizes);

BENCHMARK_MAIN();
