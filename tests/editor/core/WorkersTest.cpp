#include "editor/core/Workers.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

using namespace KVTextEditor;

namespace {

std::string shares(int n)
{
    std::string shown;
    for (int worker = 0; worker < kWorkers; ++worker) {
        const WorkShare share = shareOfWorker(n, worker);
        shown += std::to_string(share.first) + "-" + std::to_string(share.end) + " ";
    }
    return shown;
}

}  // namespace

TEST(Workers, EachTakesAContiguousShareAndTheFirstOnesTheRest)
{
    EXPECT_EQ(shares(10), "0-3 3-6 6-8 8-10 ");
    EXPECT_EQ(shares(8), "0-2 2-4 4-6 6-8 ");
    EXPECT_EQ(shares(2), "0-1 1-2 2-2 2-2 ");
    EXPECT_EQ(shares(0), "0-0 0-0 0-0 0-0 ");
}

TEST(Workers, DoEveryItemOnceAndHandTheResultsBack)
{
    for (int round = 1; round <= 50; ++round) {
        std::vector<int> done(1000 + round, 0);
        shareOut(static_cast<int>(done.size()), [&](int i) { done[i] += round; });
        ASSERT_EQ(done, std::vector<int>(done.size(), round));
    }
}

TEST(Workers, TheItemsOfAShareAreDoneByOneThreadInOrder)
{
    std::vector<std::thread::id> by(100);
    shareOut(100, [&](int i) { by[i] = std::this_thread::get_id(); });
    for (int worker = 0; worker < kWorkers; ++worker) {
        const WorkShare share = shareOfWorker(100, worker);
        for (int i = share.first; i < share.end; ++i) {
            ASSERT_EQ(by[i], by[share.first]);
        }
    }
}
