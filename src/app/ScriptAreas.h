#pragma once

#include "editor/assist/BookAreas.h"

class Document;
class RenameEverywhere;

// The document's areas for those who write the script. Both outlive what comes back; showPage
// brings the page of the document into view.
BookAreas areasForScript(Document& document, RenameEverywhere& rename,
                         std::function<void()> showPage);
