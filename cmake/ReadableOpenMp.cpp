// OpenMP's runtime on std::thread, as far as our programs use it: `parallel for` with one loop in
// each region, static or dynamic, and `critical`.
#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr int kThreads = 4;  // where nobody says how many

// The threads of a parallel region, and its dynamic loop.
class Team
{
public:
    explicit Team(int threads) : size(threads) {}

    void begin(long start, long endOfLoop, long wantedStep, long wantedChunk)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!hasBegun) {
            hasBegun = true;
            next = start;
            end = endOfLoop;
            step = wantedStep;
            chunk = wantedChunk;
        }
    }

    // The next indices from *first up to, but not with, *last; false when there are none.
    bool take(long* first, long* last)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (next >= end) {
            return false;
        }
        *first = next;
        *last = next = std::min(next + step * chunk, end);
        return true;
    }

    const int size;

private:
    std::mutex mutex;
    bool hasBegun = false;
    long next = 0;
    long end = 0;
    long step = 1;
    long chunk = 1;
};

thread_local Team* team = nullptr;
thread_local int number = 0;

void workIn(Team& itsTeam, int itsNumber, void (*work)(void*), void* data)
{
    Team* const outerTeam = std::exchange(team, &itsTeam);
    const int outerNumber = std::exchange(number, itsNumber);
    work(data);
    team = outerTeam;
    number = outerNumber;
}

std::mutex& critical()
{
    static std::mutex mutex;
    return mutex;
}

}  // namespace

// NOLINTBEGIN(readability-identifier-naming): the compiler calls them by these names.
extern "C" {

int omp_get_max_threads()
{
    return kThreads;
}

int omp_get_num_threads()
{
    return team == nullptr ? 1 : team->size;
}

int omp_get_thread_num()
{
    return number;
}

void GOMP_parallel(void (*work)(void*), void* data, unsigned threads, unsigned /*flags*/)
{
    Team own(threads == 0 ? kThreads : static_cast<int>(threads));
    std::vector<std::thread> others;
    for (int i = 1; i < own.size; ++i) {
        others.emplace_back([&own, i, work, data] { workIn(own, i, work, data); });
    }
    workIn(own, 0, work, data);
    for (std::thread& other : others) {
        other.join();
    }
}

bool GOMP_loop_nonmonotonic_dynamic_start(long start, long end, long step, long chunk, long* first,
                                          long* last)
{
    team->begin(start, end, step, chunk);
    return team->take(first, last);
}

bool GOMP_loop_nonmonotonic_dynamic_next(long* first, long* last)
{
    return team->take(first, last);
}

void GOMP_loop_end_nowait() {}

void GOMP_critical_name_start(void** /*name*/)
{
    critical().lock();
}

void GOMP_critical_name_end(void** /*name*/)
{
    critical().unlock();
}

}  // extern "C"
// NOLINTEND(readability-identifier-naming)
