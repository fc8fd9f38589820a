#pragma once

#include <QRgb>

#include <cstddef>
#include <memory>
#include <vector>

// A strip of a TIFF as it stands in the file.
struct Strip
{
    std::unique_ptr<unsigned char[]> bytes;
    std::size_t size = 0;
    std::size_t capacity = 0;
};

// Turns rows of the page into strips: red, green and blue of each pixel as the difference from the
// pixel on its left (TIFF's horizontal predictor), then Deflate. One for each thread. The same rows
// may become some bytes longer or shorter: which repetitions ISA-L finds depends, now and then, on
// the address of its state (seen with version 2.30).
class StripCompressor
{
public:
    StripCompressor();

    // The strip's memory is used again when it is large enough. False when there is no memory.
    bool compress(const QRgb* rows, int width, int rowCount, Strip& strip);

private:
    std::vector<unsigned char> differences;
    std::vector<unsigned char> tables;  // of the compressor
};
