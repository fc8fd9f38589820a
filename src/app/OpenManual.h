#pragma once

#include <QString>

struct Diagnostic;

// Shows the manual in the reader's browser, at one of its places: "areas" is a page, "areas-draw" a
// place of it. False when the manual is not installed, or nothing shows it.
bool openManual(const QString& place);

// The place that tells more about a problem of the book.
QString placeInManual(const Diagnostic& problem);
