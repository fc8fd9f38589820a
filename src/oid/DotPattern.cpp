#include "oid/DotPattern.h"

#include <algorithm>

DotPattern::DotPattern(const oidPixels& tile) : size(tile.width)
{
    for (int y = 0; y < size; ++y) {
        firstRuns.push_back(runs.size());
        for (int x = 0; x < size; ++x) {
            if (!tile.at(x, y)) {
                continue;
            }
            const int from = x;
            while (x < size && tile.at(x, y)) {
                ++x;
            }
            runs.push_back({from, x});
        }
    }
    firstRuns.push_back(runs.size());
}

bool DotPattern::hasDots(int y) const
{
    if (size == 0) {
        return false;
    }
    const auto row = static_cast<std::size_t>(y % size);
    return firstRuns[row] != firstRuns[row + 1];
}

void DotPattern::print(QRgb* row, int y, int from, int to) const
{
    if (!hasDots(y)) {
        return;
    }
    const auto tileRow = static_cast<std::size_t>(y % size);
    const Run* const first = runs.data() + firstRuns[tileRow];
    const Run* const end = runs.data() + firstRuns[tileRow + 1];
    for (int tileLeft = from - from % size; tileLeft < to; tileLeft += size) {
        for (const Run* run = first; run != end; ++run) {
            const int left = std::max(tileLeft + run->from, from);
            const int right = std::min(tileLeft + run->to, to);
            for (int x = left; x < right; ++x) {
                row[x] = qRgb(0, 0, 0);
            }
        }
    }
}
