#pragma once

#include <array>
#include <cstdint>
#include <vector>

// One square tile of pixels that holds the dot pattern of one OID. The tile repeats without end in
// both directions, so that an area is covered by asking for the pixels of the page.
class oidPixels
{
public:
    // Draws the pattern of a raw code into a tile of size x size pixels, rounded up to a multiple
    // of 4; a size below 1 gives a tile without pixels.
    // Intended: dots of an earlier pattern stay. Callers that want a clean tile use a fresh object.
    void create(std::uint32_t code, int size, bool plainChecksum);
    // The same with dots of another edge, in pixels.
    void create(std::uint32_t code, int size, bool plainChecksum, int edgeOfDot);
    // What size becomes, and the edge of the dots that a tile of that size has unless told
    // otherwise; a larger one may touch its neighbours.
    static int edgeOf(int size);
    static int standardDot(int size);

    // True when the pixel at (x mod width, y mod height) is a dot; always false without pixels.
    bool at(int x, int y) const
    {
        if (width <= 0 || height <= 0) {
            return false;
        }
        return pixels[static_cast<std::size_t>(wrap(y, height)) * static_cast<unsigned>(width) +
                      static_cast<unsigned>(wrap(x, width))] != 0;
    }

    // Makes one pixel a dot; outside the tile nothing happens.
    void set_pixel(int x, int y);
    // Turns sixteenths of the tile into pixels.
    void makeAbsoluteCoordinates(int& x, int& y) const;
    // One square dot at a grid point (in sixteenths), moved by (dx, dy) pixels.
    void set_pixels(int gx, int gy, int dx, int dy);
    void set_frame(int gx, int gy);
    // The frame dot that tells which way is up: moved right by one sixteenth of the tile.
    void set_frame_marker(int gx, int gy);
    // The dot of one base-4 digit, moved diagonally from its grid point.
    void set_point(int value, int gx, int gy);

    // Two bits over a 16-bit code; the high one is inverted unless checksumPlain.
    int calculateChecksum(std::uint32_t code) const;
    // The eight base-4 digits of the code, least significant first, then the checksum.
    std::array<int, 9> create_field(std::uint32_t code) const;

    int width = 0;                     // pixels
    int height = 0;                    // pixels, equal to width
    std::vector<std::uint8_t> pixels;  // row by row, 1 is a dot
    bool checksumPlain = false;        // print images use false
    int spareSize = 5;                 // set by create, read by nothing
    int dotSize = 0;                   // edge of a dot in pixels

private:
    static int wrap(int value, int size)
    {
        const int rest = value % size;
        return rest < 0 ? rest + size : rest;
    }
};
