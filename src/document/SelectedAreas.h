#pragma once

#include "document/Document.h"

// What is done to all selected areas of a document at once, each as one step of the history. All
// return false, and change nothing, when there is nothing to be done.

// Nothing is selected then.
bool removeSelectedAreas(Document& document);
