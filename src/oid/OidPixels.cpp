#include "oid/OidPixels.h"

namespace {

constexpr int kGridUnits = 16;  // a tile is 16 grid units wide
constexpr int kCellUnits = 4;   // and has 4 x 4 cells of 4 units
constexpr int kCells = 4;
constexpr int kChecksumDigit = 8;

}  // namespace

// Rounded up to a multiple of 4; 0 for sizes below 1.
int oidPixels::edgeOf(int size)
{
    constexpr int kLargest = 0x7ffffffc;  // the largest multiple of 4 that an int holds
    if (size < 1) {
        return 0;
    }
    return size > kLargest ? kLargest : (size + 3) / 4 * 4;
}

int oidPixels::standardDot(int size)
{
    return edgeOf(size) / kGridUnits;
}

void oidPixels::create(std::uint32_t code, int size, bool plainChecksum)
{
    create(code, size, plainChecksum, standardDot(size));
}

void oidPixels::create(std::uint32_t code, int size, bool plainChecksum, int edgeOfDot)
{
    const int edge = edgeOf(size);
    width = height = edge;
    checksumPlain = plainChecksum;
    spareSize = width >= 32 ? width / kGridUnits : 1;
    dotSize = edgeOfDot;
    // Intended: resizing clears only the pixels that are new.
    pixels.resize(static_cast<std::size_t>(edge) * static_cast<std::size_t>(edge));

    const std::array<int, 9> field = create_field(code);
    for (int row = 0; row < kCells; ++row) {
        for (int column = 0; column < kCells; ++column) {
            const int gx = column * kCellUnits;
            const int gy = row * kCellUnits;
            if (row == 2 && column == 0) {
                set_frame_marker(gx, gy);
            } else if (row == 0 || column == 0) {
                set_frame(gx, gy);
            } else {
                const int digit = kChecksumDigit + 4 - 3 * row - column;
                set_point(field[static_cast<std::size_t>(digit)], gx, gy);
            }
        }
    }
}

void oidPixels::set_pixel(int x, int y)
{
    if (x < 0 || y < 0 || x >= width || y >= height) {
        return;
    }
    pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x)] = 1;
}

void oidPixels::makeAbsoluteCoordinates(int& x, int& y) const
{
    x = static_cast<int>(static_cast<std::int64_t>(x) * width / kGridUnits);
    y = static_cast<int>(static_cast<std::int64_t>(y) * height / kGridUnits);
}

void oidPixels::set_pixels(int gx, int gy, int dx, int dy)
{
    makeAbsoluteCoordinates(gx, gy);
    for (int y = 0; y < dotSize; ++y) {
        for (int x = 0; x < dotSize; ++x) {
            set_pixel(gx + dx + x, gy + dy + y);
        }
    }
}

void oidPixels::set_frame(int gx, int gy)
{
    set_pixels(gx, gy, 0, 0);
}

void oidPixels::set_frame_marker(int gx, int gy)
{
    set_pixels(gx, gy, width / kGridUnits, 0);
}

void oidPixels::set_point(int value, int gx, int gy)
{
    const int offset = width < 96 ? 2 : width / 32;  // pixels
    switch (value) {
    case 0:
        return set_pixels(gx, gy, offset, offset);
    case 1:
        return set_pixels(gx, gy, -offset, offset);
    case 2:
        return set_pixels(gx, gy, -offset, -offset);
    case 3:
        return set_pixels(gx, gy, offset, -offset);
    default:
        return;
    }
}

int oidPixels::calculateChecksum(std::uint32_t code) const
{
    const std::uint32_t high = ((code >> 2) ^ (code >> 8) ^ (code >> 12) ^ (code >> 14)) & 1;
    const std::uint32_t low = (code ^ (code >> 4) ^ (code >> 6) ^ (code >> 10)) & 1;
    const auto checksum = static_cast<int>(high << 1 | low);
    return checksumPlain ? checksum : checksum ^ 2;
}

std::array<int, 9> oidPixels::create_field(std::uint32_t code) const
{
    std::array<int, 9> field{};
    for (std::size_t digit = 0; digit < kChecksumDigit; ++digit) {
        field[digit] = static_cast<int>(code >> (2 * digit) & 3);
    }
    field[kChecksumDigit] = calculateChecksum(code);
    return field;
}
