// Any areas on a small page: the print image is that of the plain way, and the PDF can be made.
#include "fuzz/Fuzzing.h"

#include "oid/PrintImage.h"
#include "pdf/BookPdf.h"
#include "tests/oid/PlainPrintImage.h"

#include <QGuiApplication>

namespace {

constexpr int kPixels = 120;  // longer side of a page, at most

double anyPercent(fuzzing::Choices& choices)
{
    return choices.oneIn(4) ? choices.below(5) * 25 : (choices.below(4000) - 1000) / 20.0;
}

Oid::OidProject anyBook(fuzzing::Choices& choices)
{
    Oid::OidProject project;
    project.print = printNothing;
    project.projectPath = fuzzing::folder() + "/book.oidpro";
    Oid::PICTURE& page = project.pictures.emplace_back();
    page.dpi = choices.oneIn(2) ? 600 : 1200;
    page.paperWidth = (1 + choices.below(kPixels)) * 25.4 / page.dpi;
    page.paperHeight = (1 + choices.below(kPixels)) * 25.4 / page.dpi;
    for (int areas = choices.below(5); areas > 0; --areas) {
        Oid::POLY& area = page.polys.emplace_back();
        area.name = std::string(1, static_cast<char>('a' + choices.below(3)));
        for (int corners = choices.below(7); corners > 0; --corners) {
            const double x = anyPercent(choices);
            area.points.push_back({x, anyPercent(choices)});
        }
    }
    QImage picture(1 + choices.below(30), 1 + choices.below(30), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(x * 8, y * 8, choices.byte()));
        }
    }
    picture.save(QString::fromStdString(fuzzing::folder() + "/900-bkgnd0.jpg"), "PNG");
    return project;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int count = 1;
    static char name[] = "print";
    static char* words[] = {name, nullptr};
    static const bool kIsOffscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication kApplication(count, words);
    fuzzing::require(kIsOffscreen, "there is no screen");
    fuzzing::keepQuiet();
    fuzzing::Choices choices(data, size);
    Oid::OidProject project = anyBook(choices);
    Oid::OidProject twin = twinOf(project);
    const QImage expected = plainPrintImage(0, twin);
    if (expected.isNull()) {
        return 0;
    }
    fuzzing::require(makeImage(0, project), "there is a print image");
    const QImage printed(QString::fromStdString(fuzzing::folder() + "/900-print0.tiff"));
    fuzzing::requireEqual(firstDifference(printed, expected), "", "the print image");
    fuzzing::require(makePdf(project, fuzzing::folder() + "/book.pdf", {}), "there is a PDF");
    return 0;
}
