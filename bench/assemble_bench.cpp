// The assembler on games of a few hundred steps and of nearly as many as a game can have: time must
// grow with the number of steps, not with its square. Reading and writing files is included.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "gme/Assembler.h"
#include "gme/Yaml.h"

namespace {

int silent(const char*, ...)
{
    return 0;
}

// As the compiler writes it: every line of the script as a comment, then its steps; conditions of
// nested branches, arithmetic on the stack, and a sub of its own every hundred steps.
std::string descriptionOf(std::int64_t steps)
{
    std::string yaml = "product-id: 900\r\n"
                       "comment:    \"bench\"\r\n"
                       "init:  $_stk1 := 0  $_stk2 := 0  $_zero := 0  $rnd := 5\r\n"
                       "scripts:\r\n";
    for (std::int64_t step = 1; step < steps; ++step) {
        const std::string next = "asm" + std::to_string(step + 1);
        if (step % 100 == 1) {
            yaml += "        # sub area" + std::to_string(step) + "\r\n    area" +
                    std::to_string(step) + ":\r\n        - J(asm" + std::to_string(step) +
                    ")    $rnd += 3\r\n";
        }
        yaml += "    asm" + std::to_string(step) + ":\r\n        # n = n + 1\r\n";
        if (step % 4 == 0) {
            yaml += "        - $ifexp1 == 1 ? $_stk1 < $_stk2 ? J(" + next +
                    ")  $_stk1 := 1\r\n        - $_zero == 0 ?     J(" + next +
                    ")  $_stk1 := 0\r\n";
        } else {
            yaml +=
                "        - J(" + next + ")    $_stk1 += $v" + std::to_string(step % 50) + "\r\n";
        }
    }
    return yaml + "    asm" + std::to_string(steps) + ":\r\n        - $rnd += 1 # end sub \r\n";
}

void assemble(benchmark::State& state)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "plinkett-assemble-bench";
    std::filesystem::create_directories(folder);
    gme::AssembleOptions options;
    options.yamlFile = (folder / "book.yaml").u8string();
    std::ofstream(options.yamlFile, std::ios::binary) << descriptionOf(state.range(0));
    for (auto _ : state) {
        if (!gme::assemble(options, silent)) {
            state.SkipWithError("the game cannot be assembled");
            break;
        }
    }
    state.counters["steps"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                 benchmark::Counter::kIsIterationInvariantRate);
    std::filesystem::remove_all(folder);
}

// The description alone, from its bytes to the tree of its values.
void readYaml(benchmark::State& state)
{
    const std::string source = descriptionOf(20000);
    for (auto _ : state) {
        gme::Messages messages("book.yaml", printWith(silent));
        gme::YamlNode root;
        if (!gme::readYaml(source, root, messages)) {
            state.SkipWithError("the description cannot be read");
            break;
        }
        benchmark::DoNotOptimize(root);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * source.size()));
    state.counters["bytes"] = static_cast<double>(source.size());
}

}  // namespace

BENCHMARK(assemble)->Arg(1200)->Arg(12000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(readYaml)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_MAIN();
