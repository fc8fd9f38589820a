#pragma once

#include <QMetaType>

#include <vector>

#include "document/Edit.h"

// What an edit, an undo, a redo or a new project changed.
struct Change
{
    enum What : unsigned {
        pages = 1,        // which there are
        paper = 2,        // of a page, or its resolution
        pictureFile = 4,  // of a page
        areas = 8,        // which there are, and their order
        corners = 16,
        names = 32,
        numbers = 64,
        selection = 128,   // or the current page
        history = 256,     // what can be undone and redone, or whether all is as in the file
        product = 512,     // its name or number
        everything = 1023  // another project
    };

    bool has(What one) const { return (what & one) != 0; }

    unsigned what = 0;
    int page = -1;  // -1: more than one, or all
    std::vector<AreaId>
        changed;  // the areas whose corners or names changed, and which came or went
};

Q_DECLARE_METATYPE(Change)
