#pragma once

#include "document/Document.h"

#include <QSize>

// An area that tells the pen which book it is: its number is the product's.
struct StartSymbol
{
    AreaId area = AreaId::none;
    bool isNew = false;
    bool covers = false;  // it lies over other areas, as nothing of the page was free
};

// Selects the start symbol of the current page. Where there is none, one is made as one step of the
// history: a box of 20 mm, where the paper is known, in a free corner, or else in any free place.
// It is named as what has the product's number already, or "START". picture is the size of the
// page's picture; when that is not known it is taken to be as the paper. No area without a page.
StartSymbol giveStartSymbol(Document& document, QSize picture);
