#include "decode/DotFinder.h"

#include <algorithm>

namespace {

constexpr int kCell = 16;            // pixels; darkness is measured cell by cell
constexpr float kLeastDark = 10;     // grey levels below the ground
constexpr float kPartOfDark = 0.4F;  // of the way from the ground to the darkest
constexpr std::size_t kMostPixels = 80;

// How dark it gets around each place, below the mean of the surroundings.
class DarkestAround
{
public:
    explicit DarkestAround(const DotWindow& window)
        : columns((window.width() + kCell - 1) / kCell),
          rows((window.height() + kCell - 1) / kCell),
          own(static_cast<std::size_t>(columns * rows)),
          around(own.size())
    {
        for (int y = 0; y < window.height(); ++y) {
            for (int x = 0; x < window.width(); ++x) {
                float& darkest = own[cell(x / kCell, y / kCell)];
                darkest = std::max(darkest, window.meanAround(x, y) - window.at(x, y));
            }
        }
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                around[cell(x, y)] = ofNeighbours(x, y);
            }
        }
    }

    float at(int x, int y) const { return around[cell(x / kCell, y / kCell)]; }

private:
    std::size_t cell(int x, int y) const { return static_cast<std::size_t>(y) * columns + x; }

    float ofNeighbours(int x, int y) const
    {
        float darkest = 0;
        for (int j = std::max(y - 1, 0); j <= std::min(y + 1, rows - 1); ++j) {
            for (int i = std::max(x - 1, 0); i <= std::min(x + 1, columns - 1); ++i) {
                darkest = std::max(darkest, own[cell(i, j)]);
            }
        }
        return darkest;
    }

    int columns;
    int rows;
    std::vector<float> own;
    std::vector<float> around;
};

class SpotCollector
{
public:
    explicit SpotCollector(const DotWindow& dotWindow)
        : window(dotWindow),
          dark(static_cast<std::size_t>(window.width()) * static_cast<std::size_t>(window.height()))
    {
        const DarkestAround darkest(window);
        for (int y = 0; y < window.height(); ++y) {
            for (int x = 0; x < window.width(); ++x) {
                const float depth = window.meanAround(x, y) - window.at(x, y);
                dark[index(x, y)] = depth > kLeastDark && depth > kPartOfDark * darkest.at(x, y);
            }
        }
    }

    std::vector<QPointF> collect()
    {
        std::vector<QPointF> spots;
        for (int y = 0; y < window.height(); ++y) {
            for (int x = 0; x < window.width(); ++x) {
                if (dark[index(x, y)] != 0 && takeSpot(x, y)) {
                    spots.emplace_back(sumX / sum, sumY / sum);
                }
            }
        }
        return spots;
    }

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(window.width()) +
               static_cast<std::size_t>(x);
    }

    // Takes all dark pixels that hang together. False when they are more than a dot has.
    bool takeSpot(int startX, int startY)
    {
        sum = sumX = sumY = 0;
        std::size_t count = 0;
        waiting.assign(1, {startX, startY});
        dark[index(startX, startY)] = 0;
        while (!waiting.empty()) {
            const auto [x, y] = waiting.back();
            waiting.pop_back();
            ++count;
            const double weight = window.meanAround(x, y) - window.at(x, y);
            sum += weight;
            sumX += weight * x;
            sumY += weight * y;
            visit(x - 1, y);
            visit(x + 1, y);
            visit(x, y - 1);
            visit(x, y + 1);
        }
        return count <= kMostPixels;
    }

    void visit(int x, int y)
    {
        if (window.contains(x, y) && dark[index(x, y)] != 0) {
            dark[index(x, y)] = 0;
            waiting.emplace_back(x, y);
        }
    }

    const DotWindow& window;
    std::vector<char> dark;
    std::vector<std::pair<int, int>> waiting;
    double sum = 0;
    double sumX = 0;
    double sumY = 0;
};

}  // namespace

std::vector<QPointF> findDots(const DotWindow& window)
{
    return SpotCollector(window).collect();
}
