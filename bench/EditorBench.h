#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

// What the parts of editor_bench share: measuring, and the script that they edit. window_bench
// measures in the same way.
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

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The median time of one call in microseconds, after one call to warm up.
inline double medianMicroseconds(int times, const std::function<void()>& work)
{
    work();
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
        taken.push_back(microseconds(work));
    }
    return median(taken);
}

// How many times longer than one work another takes: medians of calls in turns, so that what else
// the machine does touches both.
inline double timesLonger(int times, const std::function<void()>& other,
                          const std::function<void()>& one)
{
    other();
    one();
    std::vector<double> takenByOther;
    std::vector<double> takenByOne;
    for (int i = 0; i < times; ++i) {
        takenByOther.push_back(microseconds(other));
        takenByOne.push_back(microseconds(one));
    }
    return median(takenByOther) / median(takenByOne);
}

// The memory that this process has in RAM, in bytes; 0 where the system does not tell in this way.
inline double residentMemory()
{
    constexpr double kPageSize = 4096;
    double pages = 0;
    double residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    return residentPages * kPageSize;
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
