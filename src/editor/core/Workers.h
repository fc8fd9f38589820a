#pragma once

#include <functional>

namespace KVTextEditor {

constexpr int kWorkers = 4;

// The items of one worker: first to end (exclusive).
struct WorkShare
{
    int first;
    int end;
};

// Contiguous shares in order: each worker has n / workers items, the first n % workers one more.
WorkShare shareOfWorker(int n, int worker, int workers = kWorkers);

// Calls work for the items 0 to n - 1 on kWorkers threads and returns when all are done. The calls
// must not depend on each other and must not throw.
void shareOut(int n, const std::function<void(int)>& work);

}  // namespace KVTextEditor
