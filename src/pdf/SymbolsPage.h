#pragma once

#include <functional>
#include <string>
#include <vector>

#include "oid/OidProject.h"
#include "oid/PageGeometry.h"
#include "pdf/BoxDots.h"
#include "pdf/PageDrawing.h"
#include "pdf/PdfOptions.h"
#include "pdf/PenCodes.h"

// The pages of symbols at the end of a book: what the pen knows beside the areas (START, REPLAY,
// STOP), and a legend of all areas, each in a clear box that can be cut out and stuck anywhere.
class SymbolsPages
{
public:
    SymbolsPages(const Oid::OidProject& project, const PdfOptions& options);

    // Whether the book has no area that tells the pen which book it is.
    static bool areNeeded(const Oid::OidProject& project);

    // Takes in the areas of a picture. False, with a message, when the picture cannot be read.
    bool addPicture(int n);
    // Ready to be drawn. False, with a message, when there can be no such page.
    bool prepare();

    int count() const;
    // Page i. Progress is told of the percent of its dots. The pages must outlive the file.
    PdfPage draw(PdfWriter& file, int i, const std::function<void(int)>& progress) const;

private:
    enum class Sign { start, replay, stop, none };
    struct Symbol
    {
        std::string name;
        int oid = 0;
        Sign sign = Sign::none;
        PdfImage piece;  // of the picture; without pixels when there is none
    };

    void addSymbol(const std::string& name, int oid, Sign sign);
    bool checkDots() const;
    QPointF placeOf(int i) const;  // of a symbol on its page
    int pageOf(int i) const;
    std::vector<DottedBox> boxesOn(int page) const;
    void drawSymbol(PdfWriter& file, PageDrawing& drawing, int i) const;

    const Oid::OidProject& project;
    const PdfOptions& options;
    int dpi;
    PenCodes penCodes;
    PageGeometry geometry;
    std::vector<Symbol> symbols;
    std::size_t signs = 0;  // how many of them stand in the first row, alone
};
