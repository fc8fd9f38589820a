#include "editor/core/Workers.h"

#include <algorithm>

namespace KVTextEditor {

WorkShare shareOfWorker(int n, int worker, int workers)
{
    const int each = n / workers;
    const int rest = n % workers;
    const int first = worker * each + std::min(worker, rest);
    return {first, first + each + (worker < rest ? 1 : 0)};
}

void shareOut(int n, const std::function<void(int)>& work)
{
#pragma omp parallel for num_threads(kWorkers) schedule(static)
    for (int worker = 0; worker < kWorkers; ++worker) {
        const WorkShare share = shareOfWorker(n, worker);
        for (int i = share.first; i < share.end; ++i) {
            work(i);
        }
    }
}

}  // namespace KVTextEditor
