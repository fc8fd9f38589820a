#pragma once

#include <vector>

#include "pdf/PdfWriter.h"

// Sends rows of samples with the PNG filter under which each becomes simplest, so that they can be
// compressed well.
class PngRows
{
public:
    PngRows(int bytesPerPixel, std::size_t bytesPerRow, const PdfBytes& target);

    // The next row.
    void send(const unsigned char* row);

private:
    PdfBytes bytes;
    std::size_t step;
    std::vector<unsigned char> previous;
    std::vector<unsigned char> fromLeft;   // behind the number of its filter
    std::vector<unsigned char> fromAbove;  // the same
};
