#include "oid/StripCompressor.h"

#include <libdeflate.h>

#include <utility>

namespace {

// Scaled photos hold little that repeats, so higher levels save a few percent of the file and cost
// a multiple of the time.
constexpr int kCompressionLevel = 1;
constexpr std::size_t kSamples = 3;  // red, green, blue

// Each byte of a minus the same byte of b, all four at once.
QRgb bytewiseDifference(QRgb a, QRgb b)
{
    constexpr QRgb kHighBits = 0x80808080;
    return ((a | kHighBits) - (b & ~kHighBits)) ^ ((a ^ ~b) & kHighBits);
}

unsigned char* putDifferences(const QRgb* row, int width, unsigned char* out)
{
    QRgb left = 0;
    for (int x = 0; x < width; ++x, out += kSamples) {
        const QRgb difference = bytewiseDifference(row[x], left);
        left = row[x];
        out[0] = static_cast<unsigned char>(difference >> 16);
        out[1] = static_cast<unsigned char>(difference >> 8);
        out[2] = static_cast<unsigned char>(difference);
    }
    return out;
}

void reserve(Strip& strip, std::size_t capacity)
{
    if (strip.capacity < capacity) {
        // Left as it comes: what is never written to costs no memory.
        strip.bytes.reset(new unsigned char[capacity]);
        strip.capacity = capacity;
    }
}

}  // namespace

StripCompressor::StripCompressor() : deflate(libdeflate_alloc_compressor(kCompressionLevel)) {}

StripCompressor::~StripCompressor()
{
    libdeflate_free_compressor(deflate);
}

StripCompressor::StripCompressor(StripCompressor&& other) noexcept
    : differences(std::move(other.differences)), deflate(std::exchange(other.deflate, nullptr))
{}

bool StripCompressor::compress(const QRgb* rows, int width, int rowCount, Strip& strip)
{
    if (deflate == nullptr) {
        return false;
    }
    const std::size_t size =
        static_cast<std::size_t>(width) * static_cast<std::size_t>(rowCount) * kSamples;
    differences.resize(size);
    unsigned char* out = differences.data();
    for (int row = 0; row < rowCount; ++row, rows += width) {
        out = putDifferences(rows, width, out);
    }
    reserve(strip, libdeflate_zlib_compress_bound(deflate, size));
    strip.size = libdeflate_zlib_compress(deflate, differences.data(), size, strip.bytes.get(),
                                          strip.capacity);
    return strip.size != 0;
}
