#include "app/print/KeptOptions.h"

#include <QSettings>
#include <QStringList>

#include "pdf/TestPage.h"

namespace {

const PaperSize kPapers[] = {kA4, kA3, kLetter};

// A number from 0 on; nothing for anything else.
int numberIn(const QSettings& settings, const char* key, int most)
{
    const int value = settings.value(key).toInt();
    return value >= 0 && value <= most ? value : 0;
}

PrinterSettings printerIn(const QSettings& settings)
{
    PrinterSettings printer;
    const int dpi = numberIn(settings, "pdf/dpi", kMostPrinterDpi);
    printer.dpi = dpi >= kFewestPrinterDpi ? dpi : 0;
    printer.dotSize = numberIn(settings, "pdf/dotSize", kMostPrinterDpi);
    printer.noBlack = settings.value("pdf/noBlack").toBool();
    printer.lighten = numberIn(settings, "pdf/lighten", 100);
    return printer;
}

}  // namespace

PdfOptions keptPdfOptions(const QSettings& settings)
{
    PdfOptions options;
    options.printer = printerIn(settings);
    options.lightenAreas = settings.value("pdf/lightenAreas").toBool();
    options.dots = static_cast<PdfOptions::Dots>(
        numberIn(settings, "pdf/dots", static_cast<int>(PdfOptions::Dots::none)));
    options.outlines = settings.value("pdf/outlines").toBool();
    options.cropMarks = settings.value("pdf/cropMarks").toBool();
    if (settings.contains("pdf/margin")) {
        options.margin = numberIn(settings, "pdf/margin", kLargestMargin);
    }
    for (const PaperSize& paper : kPapers) {
        if (settings.value("pdf/poster").toString() == paper.name) {
            options.poster = paper;
        }
    }
    options.symbols = static_cast<PdfOptions::Symbols>(
        numberIn(settings, "pdf/symbols", static_cast<int>(PdfOptions::Symbols::never)));
    return options;
}

void keepPdfOptions(QSettings& settings, const PdfOptions& options)
{
    settings.setValue("pdf/dpi", options.printer.dpi);
    settings.setValue("pdf/dotSize", options.printer.dotSize);
    settings.setValue("pdf/noBlack", options.printer.noBlack);
    settings.setValue("pdf/lighten", options.printer.lighten);
    settings.setValue("pdf/lightenAreas", options.lightenAreas);
    settings.setValue("pdf/dots", static_cast<int>(options.dots));
    settings.setValue("pdf/outlines", options.outlines);
    settings.setValue("pdf/cropMarks", options.cropMarks);
    if (options.margin) {
        settings.setValue("pdf/margin", *options.margin);
    } else {
        settings.remove("pdf/margin");
    }
    settings.setValue("pdf/poster", options.poster ? options.poster->name : "");
    const bool alone = options.symbols == PdfOptions::Symbols::alone;
    settings.setValue("pdf/symbols",
                      static_cast<int>(alone ? PdfOptions::Symbols::whenNeeded : options.symbols));
}

PrinterTestOptions keptPrinterTest(const QSettings& settings)
{
    PrinterTestOptions options;
    for (const QString& text : settings.value("printerTest/resolutions").toStringList()) {
        const int dpi = text.toInt();
        if (dpi >= kFewestTestDpi && dpi <= kMostTestDpi) {
            options.resolutions.push_back(dpi);
        }
    }
    if (options.resolutions.empty() || !fitTestPage(options.resolutions)) {
        options.resolutions = usualTestResolutions();
    }
    options.language = settings.value("printerTest/language").toString();
    return options;
}

void keepPrinterTest(QSettings& settings, const PrinterTestOptions& options)
{
    QStringList resolutions;
    for (const int dpi : options.resolutions) {
        resolutions << QString::number(dpi);
    }
    settings.setValue("printerTest/resolutions", resolutions);
    settings.setValue("printerTest/language", options.language);
}
