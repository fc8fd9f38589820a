#pragma once

#include <QString>

#include <vector>

#include "pdf/PdfOptions.h"

class QSettings;

// How the author last printed, among the user's settings. What cannot be is not taken over.

// Without the pages, which belong to one book. Symbols alone are kept as those that are needed.
PdfOptions keptPdfOptions(const QSettings& settings);
void keepPdfOptions(QSettings& settings, const PdfOptions& options);

// A printer's test page.
struct PrinterTestOptions
{
    std::vector<int> resolutions;  // DPI, at least one, those that fit the page together
    QString language;              // of the pen, such as "de"; empty when it was never chosen
};
PrinterTestOptions keptPrinterTest(const QSettings& settings);
void keepPrinterTest(QSettings& settings, const PrinterTestOptions& options);
