#pragma once

#include "document/BookWatch.h"

class Document;
class KVQtHighlightEditCtrl;

// The book of the window, with the script that stands in the editor. Both outlive what looks.
BookSource bookSourceOf(Document& document, KVQtHighlightEditCtrl& editor);
