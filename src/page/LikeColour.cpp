#include "page/LikeColour.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace LikeColour {

namespace {

// A row of any picture as plain colours; the row of a converted copy where they are kept otherwise.
class Rows
{
public:
    explicit Rows(const QImage& rowsOf) : picture(rowsOf) {}

    const QRgb* row(int y)
    {
        if (picture.format() == QImage::Format_RGB32) {
            return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        }
        converted = picture.copy(0, y, picture.width(), 1).convertToFormat(QImage::Format_RGB32);
        return reinterpret_cast<const QRgb*>(converted.constScanLine(0));
    }

private:
    const QImage& picture;
    QImage converted;
};

// Of a stretch of pixels that becomes one, so many are looked at.
constexpr int kSamples = 3;

int sample(int target, int i, int original, int scaled)
{
    return static_cast<int>((qint64(target) * kSamples + i) * original /
                            (qint64(scaled) * kSamples));
}

struct Sum
{
    void add(QRgb colour)
    {
        red += qRed(colour);
        green += qGreen(colour);
        blue += qBlue(colour);
    }
    QRgb mean() const
    {
        constexpr int kCount = kSamples * kSamples;
        return qRgb(red / kCount, green / kCount, blue / kCount);
    }

    int red = 0;
    int green = 0;
    int blue = 0;
};

bool isLike(QRgb a, QRgb b, int tolerance)
{
    return std::abs(qRed(a) - qRed(b)) <= tolerance &&
           std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

// Fills spans of rows from spots that are still to be looked at.
class Filling
{
public:
    Filling(const QImage& filled, QPoint spot, int colourTolerance)
        : picture(filled), colour(filled.pixel(spot)), tolerance(colourTolerance)
    {
        mask.size = picture.size();
        mask.inside.resize(static_cast<std::size_t>(picture.width()) *
                           static_cast<std::size_t>(picture.height()));
        spots.push_back(spot);
        while (!spots.empty()) {
            const QPoint next = spots.back();
            spots.pop_back();
            fillFrom(next);
        }
    }

    Mask mask;

private:
    bool isFree(int x, int y) const
    {
        const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        return !mask.at(x, y) && isLike(row[x], colour, tolerance);
    }

    void fillFrom(QPoint spot)
    {
        const int y = spot.y();
        if (!isFree(spot.x(), y)) {
            return;
        }
        int left = spot.x();
        int right = spot.x();
        while (left > 0 && isFree(left - 1, y)) {
            --left;
        }
        while (right + 1 < picture.width() && isFree(right + 1, y)) {
            ++right;
        }
        const auto row = mask.inside.begin() + std::ptrdiff_t{y} * picture.width();
        std::fill(row + left, row + right + 1, static_cast<unsigned char>(1));
        lookAt(left, right, y - 1);
        lookAt(left, right, y + 1);
    }

    // The first of each run of free pixels beside the span.
    void lookAt(int left, int right, int y)
    {
        if (y < 0 || y >= picture.height()) {
            return;
        }
        bool before = false;
        for (int x = left; x <= right; ++x) {
            const bool free = isFree(x, y);
            if (free && !before) {
                spots.emplace_back(x, y);
            }
            before = free;
        }
    }

    const QImage& picture;
    const QRgb colour;
    const int tolerance;
    std::vector<QPoint> spots;
};

// How far a point lies from a stretch of a line.
double distance(QPoint point, QPoint from, QPoint to)
{
    const QPointF way = to - from;
    const QPointF there = point - from;
    const double length = QPointF::dotProduct(way, way);
    const double part =
        length > 0 ? std::clamp(QPointF::dotProduct(way, there) / length, 0.0, 1.0) : 0;
    const QPointF beside = there - part * way;
    return std::hypot(beside.x(), beside.y());
}

// Which points of the line are needed so that none lies farther from it than the reach.
std::vector<QPoint> simplified(const std::vector<QPoint>& closed, double reach)
{
    const auto farther = [&](QPoint a, QPoint b) {
        return (a - closed.front()).manhattanLength() < (b - closed.front()).manhattanLength();
    };
    const std::size_t count = closed.size();
    const auto across = static_cast<std::size_t>(
        std::max_element(closed.begin(), closed.end(), farther) - closed.begin());
    std::vector<bool> needed(count + 1);
    needed[0] = needed[across] = true;
    std::vector<std::pair<std::size_t, std::size_t>> stretches = {{0, across}, {across, count}};
    while (!stretches.empty()) {
        const auto [begin, end] = stretches.back();
        stretches.pop_back();
        double farthest = 0;
        std::size_t place = begin;
        for (std::size_t i = begin + 1; i < end; ++i) {
            const double far = distance(closed[i], closed[begin], closed[end % count]);
            if (far > farthest) {
                farthest = far;
                place = i;
            }
        }
        if (farthest > reach) {
            needed[place] = true;
            stretches.emplace_back(begin, place);
            stretches.emplace_back(place, end);
        }
    }
    std::vector<QPoint> points;
    for (std::size_t i = 0; i < count; ++i) {
        if (needed[i]) {
            points.push_back(closed[i]);
        }
    }
    return points;
}

}  // namespace

QImage workingCopy(const QImage& picture)
{
    const double pixels = double(picture.width()) * picture.height();
    const double factor = std::min(1.0, std::sqrt(kMostPixels / std::max(1.0, pixels)));
    if (factor == 1) {
        return picture.convertToFormat(QImage::Format_RGB32);
    }
    const QSize size(std::max(1, static_cast<int>(picture.width() * factor)),
                     std::max(1, static_cast<int>(picture.height() * factor)));
    QImage copy(size, QImage::Format_RGB32);
    Rows source(picture);
    std::vector<Sum> sums(static_cast<std::size_t>(size.width()));
    for (int y = 0; y < size.height(); ++y) {
        std::fill(sums.begin(), sums.end(), Sum());
        for (int i = 0; i < kSamples; ++i) {
            const QRgb* const row = source.row(sample(y, i, picture.height(), size.height()));
            for (int x = 0; x < size.width(); ++x) {
                for (int j = 0; j < kSamples; ++j) {
                    sums[static_cast<std::size_t>(x)].add(
                        row[sample(x, j, picture.width(), size.width())]);
                }
            }
        }
        auto* const target = reinterpret_cast<QRgb*>(copy.scanLine(y));
        std::transform(sums.begin(), sums.end(), target, [](const Sum& sum) { return sum.mean(); });
    }
    return copy;
}

Mask flood(const QImage& picture, QPoint spot, int tolerance)
{
    return std::move(Filling(picture, spot, tolerance).mask);
}

// Walks with the mask on its right. Pixels that touch at a corner only do not hang together.
std::vector<QPoint> outline(const Mask& mask)
{
    const auto first = std::find(mask.inside.begin(), mask.inside.end(), 1) - mask.inside.begin();
    const int width = mask.size.width();
    const QPoint start(static_cast<int>(first % width), static_cast<int>(first / width));
    const QPoint ways[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};          // clockwise
    const QPoint rightAhead[] = {{0, 0}, {-1, 0}, {-1, -1}, {0, -1}};  // pixels at the corner
    std::vector<QPoint> corners = {start};
    QPoint at = start;
    int way = 0;
    while (true) {
        at += ways[way];
        const QPoint right = at + rightAhead[way];
        const QPoint left = at + rightAhead[(way + 3) % 4];
        int turn = 0;
        if (!mask.at(right.x(), right.y())) {
            turn = 1;
        } else if (mask.at(left.x(), left.y())) {
            turn = 3;
        }
        way = (way + turn) % 4;
        if (at == start) {
            return corners;
        }
        if (turn != 0) {
            corners.push_back(at);
        }
    }
}

std::vector<QPoint> simplified(const std::vector<QPoint>& closed)
{
    // The edge of a slanted line goes by steps: its corners are up to a pixel's diagonal apart.
    double reach = std::sqrt(2.0);
    std::vector<QPoint> points = simplified(closed, reach);
    while (points.size() > kMostCorners) {
        reach *= 1.5;
        points = simplified(closed, reach);
    }
    while (points.size() < 3) {  // a shape as thin as a pixel
        reach /= 2;
        points = simplified(closed, reach);
    }
    return points;
}

}  // namespace LikeColour
