#include "decode/DotWindow.h"

#include <algorithm>

namespace {

constexpr int kMeanRadius = 16;  // pixels; some dots, and much of the ground between them

}  // namespace

DotWindow::DotWindow(const ScanImage& scan, int zoom, int left, int top, int width, int height)
    : columns(std::max(0, std::min(width, scan.width * zoom - left))),
      rows(std::max(0, std::min(height, scan.height * zoom - top))),
      grey(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)),
      means(grey.size())
{
    takePixels(scan, zoom, left, top);
    if (scan.reduced > 1) {
        soften();
    }
    takeMeans();
}

void DotWindow::takePixels(const ScanImage& scan, int zoom, int left, int top)
{
    float* pixel = grey.data();
    for (int y = 0; y < rows; ++y) {
        if (zoom == 1) {
            for (int x = 0; x < columns; ++x) {
                *pixel++ = scan.at(left + x, top + y);
            }
            continue;
        }
        // Between the centres of pixels, so that a dot of one pixel becomes a round spot.
        const float v = (static_cast<float>(top + y) + 0.5F) / static_cast<float>(zoom) - 0.5F;
        const int y0 = std::clamp(static_cast<int>(v), 0, scan.height - 1);
        const int y1 = std::min(y0 + 1, scan.height - 1);
        const float fy = std::clamp(v - static_cast<float>(y0), 0.0F, 1.0F);
        for (int x = 0; x < columns; ++x) {
            const float u = (static_cast<float>(left + x) + 0.5F) / static_cast<float>(zoom) - 0.5F;
            const int x0 = std::clamp(static_cast<int>(u), 0, scan.width - 1);
            const int x1 = std::min(x0 + 1, scan.width - 1);
            const float fx = std::clamp(u - static_cast<float>(x0), 0.0F, 1.0F);
            const float upper = (1 - fx) * scan.at(x0, y0) + fx * scan.at(x1, y0);
            const float lower = (1 - fx) * scan.at(x0, y1) + fx * scan.at(x1, y1);
            *pixel++ = (1 - fy) * upper + fy * lower;
        }
    }
}

// A fine dot that fell into one pixel when the scan was made smaller is much darker than one that
// fell between four. Softened, they are more alike.
void DotWindow::soften()
{
    const auto pass = [this](int dx, int dy) {
        std::vector<float> soft(grey.size());
        for (int y = 0; y < rows; ++y) {
            for (int x = 0; x < columns; ++x) {
                const float before = at(std::max(x - dx, 0), std::max(y - dy, 0));
                const float behind = at(std::min(x + dx, columns - 1), std::min(y + dy, rows - 1));
                soft[index(x, y)] = (before + 2 * at(x, y) + behind) / 4;
            }
        }
        grey.swap(soft);
    };
    pass(1, 0);
    pass(0, 1);
}

// Sums of columns, moved down row by row, and a sum of those, moved right.
void DotWindow::takeMeans()
{
    std::vector<float> sums(static_cast<std::size_t>(columns));
    const auto addRow = [&](int y, float sign) {
        for (int x = 0; x < columns; ++x) {
            sums[static_cast<std::size_t>(x)] += sign * at(x, y);
        }
    };
    for (int y = 0; y < std::min(kMeanRadius, rows); ++y) {
        addRow(y, 1);
    }
    for (int y = 0; y < rows; ++y) {
        if (y + kMeanRadius < rows) {
            addRow(y + kMeanRadius, 1);
        }
        if (y - kMeanRadius - 1 >= 0) {
            addRow(y - kMeanRadius - 1, -1);
        }
        const int high = std::min(y + kMeanRadius, rows - 1) - std::max(y - kMeanRadius, 0) + 1;
        float sum = 0;
        for (int x = 0; x < std::min(kMeanRadius, columns); ++x) {
            sum += sums[static_cast<std::size_t>(x)];
        }
        for (int x = 0; x < columns; ++x) {
            if (x + kMeanRadius < columns) {
                sum += sums[static_cast<std::size_t>(x) + kMeanRadius];
            }
            if (x - kMeanRadius - 1 >= 0) {
                sum -= sums[static_cast<std::size_t>(x - kMeanRadius - 1)];
            }
            const int wide =
                std::min(x + kMeanRadius, columns - 1) - std::max(x - kMeanRadius, 0) + 1;
            means[index(x, y)] = sum / static_cast<float>(wide * high);
        }
    }
}
