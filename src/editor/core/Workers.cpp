#include "editor/core/Workers.h"

#include <algorithm>
#include <atomic>

namespace KVTextEditor {

namespace {

// The OpenMP runtime is built without the thread sanitizer, which therefore cannot see that it
// orders what happens before, in and after a parallel region. The two atomics state that order in
// terms that the sanitizer knows, so that it checks the work itself without exceptions.
class SharedWork
{
public:
    SharedWork(int n, const std::function<void(int)>& task) : items(n), work(task)
    {
        handedOut.store(true, std::memory_order_release);
    }

    void runShare(int worker)
    {
        if (handedOut.load(std::memory_order_acquire)) {
            const WorkShare share = shareOfWorker(items, worker);
            for (int i = share.first; i < share.end; ++i) {
                work(i);
            }
        }
        finished.fetch_add(1, std::memory_order_release);
    }

    void collect() const { static_cast<void>(finished.load(std::memory_order_acquire)); }

private:
    const int items;
    const std::function<void(int)>& work;
    std::atomic<bool> handedOut{false};
    std::atomic<int> finished{0};
};

#if defined(__SANITIZE_THREAD__)
#define PLINKETT_FORK_JOIN __attribute__((no_sanitize_thread))
#else
#define PLINKETT_FORK_JOIN
#endif

// Only the handing over of the pointer is hidden from the sanitizer.
PLINKETT_FORK_JOIN void forkAndJoin(SharedWork* work)
{
#pragma omp parallel for num_threads(kWorkers) schedule(static)
    for (int worker = 0; worker < kWorkers; ++worker) {
        work->runShare(worker);
    }
}

}  // namespace

WorkShare shareOfWorker(int n, int worker, int workers)
{
    const int each = n / workers;
    const int rest = n % workers;
    const int first = worker * each + std::min(worker, rest);
    return {first, first + each + (worker < rest ? 1 : 0)};
}

void shareOut(int n, const std::function<void(int)>& work)
{
    SharedWork shared(n, work);
    forkAndJoin(&shared);
    shared.collect();
}

}  // namespace KVTextEditor
