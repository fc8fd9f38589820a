#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

// What the parts of editor_bench share: timing, and the script that they edit.
namespace EditorBench {

constexpr int kKeys = 61;

inline double microseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
}

// The median time of one call in microseconds, after one call to warm up.
inline double medianMicroseconds(int times, const std::function<void()>& work)
{
    work();
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
        taken.push_back(microseconds(work));
    }
    std::nth_element(taken.begin(), taken.begin() + times / 2, taken.end());
    return taken[times / 2];
}

// A row of the table: what, how much, and the limit where there is one.
inline void printRow(const std::string& what, double value, const char* unit, double limit = 0)
{
    if (limit > 0) {
        std::printf("| %s | %.3g %s | %g %s |\n", what.c_str(), value, unit, limit, unit);
    } else {
        std::printf("| %s | %.3g %s | |\n", what.c_str(), value, unit);
    }
}

inline void printHeader(const char* title)
{
    std::printf("\n### %s\n\n| what | measured | limit |\n|---|---|---|\n", title);
}

// Lines of 27 characters on average, a tenth of them with a tab, as a script has them.
std::u16string scriptOfLines(int lines);

// The measurements, one function per file.
void measureCore();
void measureWidget();
// Prints how many bytes a process takes for the text in the "editor", or else in its peer.
void measureMemoryOf(const std::string& editor);

}  // namespace EditorBench
