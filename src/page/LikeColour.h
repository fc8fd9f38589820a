#pragma once

#include <QImage>
#include <QPoint>

#include <vector>

// Finding the shape of like colour around a spot of a picture: flood fill by spans (Smith, "Tint
// Fill", 1979), its outline followed from pixel edge to pixel edge (crack following, Rosenfeld and
// Kak, "Digital Picture Processing", 1976), corners that hardly matter left out (Douglas and
// Peucker, 1973).
namespace LikeColour {

// Pixels that were found; one byte each, row by row.
struct Mask
{
    bool at(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < size.width() && y < size.height() &&
               inside[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width()) +
                      static_cast<std::size_t>(x)] != 0;
    }

    QSize size;
    std::vector<unsigned char> inside;
};

constexpr int kMostPixels = 1000000;
constexpr int kMostCorners = 400;

// The picture with no more pixels than kMostPixels, in Format_RGB32; each is the mean of a few
// pixels of the picture, so that the time is bounded.
QImage workingCopy(const QImage& picture);

// The pixels that hang together with the spot, which lies in the picture (Format_RGB32), side by
// side, and in no channel differ from it by more than the tolerance (0 to 255).
Mask flood(const QImage& picture, QPoint spot, int tolerance);

// The outer edge of the mask, which hangs together and is not empty: corners of pixels, clockwise.
// Holes are passed over.
std::vector<QPoint> outline(const Mask& mask);

// The closed line with fewer corners, at least three: it stays within a pixel's diagonal of what it
// was, unless that needs more corners than kMostCorners.
std::vector<QPoint> simplified(const std::vector<QPoint>& closed);

}  // namespace LikeColour
