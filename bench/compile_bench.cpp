// The compiler at the sizes of large scripts and far beyond: ten times the lines may take at most
// twelve times the time, and 100,000 lines less than a second.

#include <benchmark/benchmark.h>

#include <cstdarg>
#include <cstdio>
#include <string>

#include "ttbasic/ttbasic.h"

namespace {

using std::to_string;

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

// What an author writes: subs of ten lines with voices, texts, conditions and jumps.
std::string everydayScript(std::int64_t lines)
{
    std::string text;
    for (std::int64_t i = 0; i < lines / 10; ++i) {
        const std::string n = to_string(i);
        text += "sub area" + n +
                " # touched\n"
                "  if count" +
                to_string(i % 50) + " < 3 & mode == " + to_string(i % 7) +
                "\n"
                "    say \"This is area number " +
                n +
                "\"\n"
                "    count = count + 1\n"
                "  else\n"
                "    say eve \"Once more\" \"area " +
                n +
                "\"\n"
                "    goto area" +
                to_string(i / 2) +
                "\n"
                "  end if\n"
                "\n"
                "end sub\n";
    }
    return text;
}

std::string selectScript(std::int64_t lines)
{
    std::string text = "select x\n";
    for (std::int64_t i = 0; i < lines / 2; ++i) {
        text += "case " + to_string(i) + "\ny = " + to_string(i) + "\n";
    }
    return text + "default\ny = 0\nend select\n";
}

// Blocks within blocks down to twenty, again and again.
std::string nestedScript(std::int64_t lines)
{
    std::string text;
    for (std::int64_t i = 0; i < lines / 40; ++i) {
        for (int depth = 0; depth < 20; ++depth) {
            text += "if x == " + to_string(depth) + "\n";
        }
        for (int depth = 0; depth < 20; ++depth) {
            text += "end if\n";
        }
    }
    return text;
}

std::string assignmentScript(std::int64_t lines)
{
    std::string text;
    for (std::int64_t i = 0; i < lines; ++i) {
        text += "v" + to_string(i) + " = (a + " + to_string(i) + ") * b - c / 2\n";
    }
    return text;
}

// As many languages as texts, for the sorted list of the description.
std::string voiceScript(std::int64_t lines)
{
    std::string text;
    for (std::int64_t i = 0; i < lines / 2; ++i) {
        const std::string n = to_string(i);
        text += "voice v" + n + " lang l" + n + "\nsay v" + n + " \"Hello " + n + "\"\n";
    }
    return text;
}

std::string longExpression(std::int64_t operands)
{
    std::string text = "x = 1";
    for (std::int64_t i = 0; i < operands; ++i) {
        text += i % 3 == 0 ? " + (b" : i % 3 == 1 ? " * c" : " < 7)";
    }
    return text + std::string(operands % 3 != 0 ? 1 : 0, ')') + "\n";
}

std::string parentheses(std::int64_t depth)
{
    const auto count = static_cast<size_t>(depth);
    return "x = " + std::string(count, '(') + "1" + std::string(count, ')') + "\n";
}

std::string wrongScript(std::int64_t lines)
{
    std::string text;
    for (std::int64_t i = 0; i < lines; ++i) {
        text += "foo" + to_string(i) + "\n";
    }
    return text;
}

using Script = std::string (*)(std::int64_t size);

void compileScripts(benchmark::State& state, Script script, bool compiles)
{
    ttbasic::redirectPrintfTo(silent);
    ttbasic compiler;
    compiler.source = script(state.range(0));
    compileScript(compiler, false);  // from now on the code has its memory, whatever its size
    for (auto _ : state) {
        if (compileScript(compiler, false) != compiles) {
            state.SkipWithError("the script did not compile as it should");
            return;
        }
    }
    state.counters["code_bytes"] = static_cast<double>(compiler.code.size());
}

void describeGame(benchmark::State& state, Script script)
{
    ttbasic compiler;
    compiler.source = script(state.range(0));
    compileScript(compiler, false);
    for (auto _ : state) {
        benchmark::DoNotOptimize(compiler.yaml(900, "Farm"));
    }
}

void sizes(benchmark::internal::Benchmark* bench)
{
    bench->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(compileScripts, everyday, everydayScript, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, select, selectScript, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, nested, nestedScript, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, assignments, assignmentScript, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, voices, voiceScript, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, longExpression, longExpression, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, parentheses, parentheses, true)->Apply(sizes);
BENCHMARK_CAPTURE(compileScripts, wrong, wrongScript, false)->Apply(sizes);
BENCHMARK_CAPTURE(describeGame, everyday, everydayScript)->Apply(sizes);
BENCHMARK_CAPTURE(describeGame, voices, voiceScript)->Apply(sizes);

}  // namespace

BENCHMARK_MAIN();
