#include "oid/StripCompressor.h"

#include <QtEndian>

#include <isa-l/igzip_lib.h>

#include <limits>

namespace {

// Scaled photos hold little that repeats, so higher levels save a few percent of the file and cost
// a multiple of the time.
constexpr int kCompressionLevel = 1;
constexpr std::size_t kTables = ISAL_DEF_LVL1_DEFAULT;  // bytes
constexpr std::size_t kSamples = 3;                     // red, green, blue

// Each byte of a minus the same byte of b, all four at once.
QRgb bytewiseDifference(QRgb a, QRgb b)
{
    constexpr QRgb kHighBits = 0x80808080;
    return ((a | kHighBits) - (b & ~kHighBits)) ^ ((a ^ ~b) & kHighBits);
}

// Writes one byte more than it returns: a store of four bytes costs a third of three stores of one.
unsigned char* putDifferences(const QRgb* row, int width, unsigned char* out)
{
    QRgb left = 0;
    for (int x = 0; x < width; ++x, out += kSamples) {
        const QRgb difference = bytewiseDifference(row[x], left);
        left = row[x];
        qToBigEndian(difference << 8, out);
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

// What cannot be made smaller is stored, with a few bytes for each block.
std::size_t largestResult(std::size_t size)
{
    return size + size / 64 + 4096;
}

}  // namespace

StripCompressor::StripCompressor() : tables(kTables) {}

bool StripCompressor::compress(const QRgb* rows, int width, int rowCount, Strip& strip)
{
    const std::size_t size =
        static_cast<std::size_t>(width) * static_cast<std::size_t>(rowCount) * kSamples;
    if (size > std::numeric_limits<std::uint32_t>::max() / 2) {
        return false;
    }
    differences.resize(size + 1);
    unsigned char* out = differences.data();
    for (int row = 0; row < rowCount; ++row, rows += width) {
        out = putDifferences(rows, width, out);
    }
    reserve(strip, largestResult(size));

    isal_zstream deflate{};  // its init does not set all that it reads
    isal_deflate_stateless_init(&deflate);
    deflate.gzip_flag = IGZIP_ZLIB;
    deflate.end_of_stream = 1;
    deflate.level = kCompressionLevel;
    deflate.level_buf = tables.data();
    deflate.level_buf_size = static_cast<std::uint32_t>(tables.size());
    deflate.next_in = differences.data();
    deflate.avail_in = static_cast<std::uint32_t>(size);
    deflate.next_out = strip.bytes.get();
    deflate.avail_out = static_cast<std::uint32_t>(strip.capacity);
    const bool complete = isal_deflate_stateless(&deflate) == COMP_OK;
    strip.size = deflate.total_out;
    return complete;
}
