#pragma once

#include <gtest/gtest.h>

#include <QImage>

#include <string>

#include "oid/OidProject.h"
#include "oid/PrintImage.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/oid/Builders.h"
#include "tests/oid/PlainPrintImage.h"
#include "tests/oid/TiffImage.h"

// A book with one picture in a folder of its own, printed by the tests.
class PrintedBook
{
public:
    // The paper is measured in mm.
    PrintedBook(double paperWidth, double paperHeight, int dpi, std::vector<Oid::POLY> areas = {})
    {
        project.projectPath = folder.file("book.oidpro");
        project.pictures.push_back(picture(std::move(areas)));
        project.pictures[0].paperWidth = paperWidth;
        project.pictures[0].paperHeight = paperHeight;
        project.pictures[0].dpi = dpi;
    }
    ~PrintedBook() { mi_printf = printToStandardOutput; }
    PrintedBook(const PrintedBook&) = delete;
    PrintedBook& operator=(const PrintedBook&) = delete;

    // A file is an image by its content, so these need not be JPEG.
    void setBackground(const QImage& image, const char* format = "PNG")
    {
        ASSERT_TRUE(image.save(QString::fromStdString(backgroundFile()), format));
    }

    // True when a print image was written; what the author saw is in messages then.
    bool print(const PrintProgress& progress = {})
    {
        CapturedMessages captured;
        mi_printf = CapturedMessages::print;
        const bool written = makeImage(0, project, progress);
        messages = captured.take();
        return written;
    }

    QImage printed() const { return readTiff(printFile()); }
    // Empty when the book is printed pixel for pixel as the slow way prints it.
    std::string differenceToPlainWay()
    {
        Oid::OidProject twin = twinOf(project);
        const QImage expected = plainPrintImage(0, twin);
        return print() ? firstDifference(printed(), expected) : "nothing was printed: " + messages;
    }

    std::string backgroundFile() const { return folder.file("900-bkgnd0.jpg"); }
    std::string printFile() const { return folder.file("900-print0.tiff"); }

    const TemporaryFolder folder;
    Oid::OidProject project;
    std::string messages;
};

// A picture with hard edges and soft gradients.
inline QImage colourfulPicture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int stripe = (x / 3 + y / 5) % 2 * 120;
            image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, 100 + stripe));
        }
    }
    return image;
}
