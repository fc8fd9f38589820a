#pragma once

#include <QString>

// Shows the manual in the reader's browser, at one of its places: "areas" is a page, "areas-draw" a
// place of it. False when the manual is not installed, or nothing shows it.
bool openManual(const QString& place);

// What to tell the reader then.
QString whyNoManual();
