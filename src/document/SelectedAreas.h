#pragma once

#include "document/Document.h"

// What is done to all selected areas of a document at once, each as one step of the history. All
// return false, and change nothing, when there is nothing to be done.

// In percent of the picture's width: so far does a copy lie to the right of and below its original.
constexpr double kCopyShift = 2;

// Nothing is selected then.
bool removeSelectedAreas(Document& document);

// Copies of them, beside them, with names counted up. The copies are selected then.
bool duplicateSelectedAreas(Document& document);

// Brings areas onto the current page, behind those that are there, and selects them. Where a copy
// lies at its place already, all come beside it. When countUp is set, names that the page has are
// counted up: areas that had one name have one name again, which no other area has.
bool pasteAreas(Document& document, std::vector<Oid::POLY> areas, bool countUp);

// By one place toward the begin of the page's list (forward) or its end; the first in the list wins
// where areas overlap.
bool reorderSelectedAreas(Document& document, bool forward);

// The area is selected among others as the last one, which the fields show.
void selectAllAreas(Document& document);
