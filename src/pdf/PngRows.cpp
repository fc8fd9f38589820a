#include "pdf/PngRows.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace {

constexpr unsigned char kFromLeft = 1;
constexpr unsigned char kFromAbove = 2;

// How far the differences are from nothing: the usual guess at how well they compress.
int weightOf(const std::vector<unsigned char>& differences)
{
    return std::accumulate(differences.begin() + 1, differences.end(), 0,
                           [](int sum, int value) { return sum + std::min(value, 256 - value); });
}

}  // namespace

PngRows::PngRows(int bytesPerPixel, std::size_t bytesPerRow, const PdfBytes& target)
    : bytes(target),
      step(static_cast<std::size_t>(bytesPerPixel)),
      previous(bytesPerRow),
      fromLeft(bytesPerRow + 1),
      fromAbove(bytesPerRow + 1)
{
    fromLeft[0] = kFromLeft;
    fromAbove[0] = kFromAbove;
}

void PngRows::send(const unsigned char* row)
{
    for (std::size_t i = 0; i < previous.size(); ++i) {
        const int left = i < step ? 0 : row[i - step];
        fromLeft[i + 1] = static_cast<unsigned char>(row[i] - left);
        fromAbove[i + 1] = static_cast<unsigned char>(row[i] - previous[i]);
        previous[i] = row[i];
    }
    const auto& simplest = weightOf(fromLeft) < weightOf(fromAbove) ? fromLeft : fromAbove;
    bytes(simplest.data(), simplest.size());
}
