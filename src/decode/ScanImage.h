#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A picture of paper in grey: each pixel is the brightest of its three colours. So coloured grounds
// are light, and only black is dark, as to the pen.
struct ScanImage
{
    // Reads a picture file; where its resolution is not given (0) and the file does not tell it,
    // 1200 dots per inch are taken. Pictures of 1800 and more are made smaller on the way.
    // False, with a message, when it is no picture, damaged or too large for the memory.
    bool read(const std::string& path, int givenDpi);

    std::uint8_t at(int x, int y) const
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }

    int width = 0;  // of what was kept
    int height = 0;
    int reduced = 1;  // so many pixels of the file became one
    int dpi = 0;      // of the file
    std::vector<std::uint8_t> pixels;
};
