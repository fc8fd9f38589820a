#pragma once

#include <vector>

#include "decode/ScanImage.h"

// A part of a scan at the scale of the search: a tile has about 48 pixels there.
class DotWindow
{
public:
    // The part from (left, top) on, in pixels of that scale, as far as the scan goes.
    DotWindow(const ScanImage& scan, int zoom, int left, int top, int width, int height);

    int width() const { return columns; }
    int height() const { return rows; }
    float at(int x, int y) const { return grey[index(x, y)]; }
    // The mean of the pixels around one.
    float meanAround(int x, int y) const { return means[index(x, y)]; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < columns && y < rows; }

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(x);
    }
    void takePixels(const ScanImage& scan, int zoom, int left, int top);
    void soften();
    void takeMeans();

    int columns;
    int rows;
    std::vector<float> grey;
    std::vector<float> means;
};
