#pragma once

#include <optional>
#include <vector>

// A printer's paper, upright, in mm.
struct PaperSize
{
    const char* name;
    double width;
    double height;
};

constexpr PaperSize kA4{"A4", 210, 297};
constexpr PaperSize kA3{"A3", 297, 420};
constexpr PaperSize kLetter{"Letter", 215.9, 279.4};

constexpr int kFewestPrinterDpi = 100;
constexpr int kMostPrinterDpi = 9600;
constexpr int kLargestMargin = 100;  // mm

// What belongs to a printer.
struct PrinterSettings
{
    int dpi = 0;           // 0: that of each picture
    int dotSize = 0;       // edge in pixels of the printer; 0: the standard dots
    bool noBlack = false;  // the picture's black is made of cyan, magenta and yellow
    int lighten = 0;       // percent of the picture's ink that is left out
};

// How a book becomes a PDF.
struct PdfOptions
{
    enum class Dots {
        everywhere,
        areas,  // no fill pattern outside of areas
        none
    };
    enum class Symbols {
        whenNeeded,  // when no area has the product's number
        always,
        never,
        alone  // without the pages of the book
    };

    PrinterSettings printer;
    std::vector<int> pages;     // by their index; empty: all
    bool lightenAreas = false;  // only inside of areas
    Dots dots = Dots::everywhere;
    bool outlines = false;         // areas with names and numbers
    bool cropMarks = false;        // in the margin
    std::optional<double> margin;  // mm around the page, or at the edge of a poster's sheet
    std::optional<PaperSize> poster;
    Symbols symbols = Symbols::whenNeeded;
};
