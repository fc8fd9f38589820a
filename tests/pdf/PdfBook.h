#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <string>
#include <vector>

#include "oid/OidTable.h"
#include "pdf/BookPdf.h"
#include "tests/helpers/RunProgram.h"
#include "tests/oid/PrintProjects.h"

// A book in a folder of its own that becomes a PDF, which other programs then read.
class PdfBook : public PrintedBook
{
public:
    using PrintedBook::PrintedBook;

    // Symbols come only when they are asked for.
    bool makePdf(PdfOptions options = {}, const PrintJobProgress& progress = {})
    {
        if (options.symbols == PdfOptions::Symbols::whenNeeded) {
            options.symbols = PdfOptions::Symbols::never;
        }
        return makePdfWithSymbols(options, progress);
    }

    bool makePdfWithSymbols(const PdfOptions& options = {}, const PrintJobProgress& progress = {})
    {
        CapturedMessages captured;
        mi_printf = CapturedMessages::print;
        const bool written = ::makePdf(project, pdfFile(), options, progress);
        messages = captured.take();
        return written;
    }

    void setNumber(const std::string& area, int oid) { project.oids[area] = Oid::tableEntry(oid); }

    std::string pdfFile() const { return folder.file("book.pdf"); }

    // What another program says of the PDF, which is its last operand. {pdf} stands for its path.
    std::string ask(const std::string& program, std::vector<std::string> words) const
    {
        for (std::string& word : words) {
            if (word == "{pdf}") {
                word = pdfFile();
            }
        }
        const ProgramRun run = runProgram("/usr/bin/" + program, words, {}, folder.path());
        EXPECT_EQ(run.status, 0) << program << ": " << run.err;
        return run.out;
    }

    // The page as another program draws it at a resolution, in grey.
    QImage drawn(int dpi, int page = 1) const
    {
        const std::string file = folder.file("drawn.pgm");
        ask("mutool", {"draw", "-q", "-r", std::to_string(dpi), "-c", "gray", "-A", "0", "-o", file,
                       "{pdf}", std::to_string(page)});
        return QImage(QString::fromStdString(file)).convertToFormat(QImage::Format_Grayscale8);
    }

    // The images of the file as they come out of it: "image-000.jpg" and so on.
    std::string imageFile(int number, const char* suffix) const
    {
        char name[32];
        std::snprintf(name, sizeof name, "image-%03d.%s", number, suffix);
        ask("pdfimages", {"-all", "{pdf}", folder.file("image")});
        return folder.file(name);
    }

    // A mask of the file: black where it prints.
    QImage mask(int number) const
    {
        ask("pdfimages", {"{pdf}", folder.file("mask")});
        char name[32];
        std::snprintf(name, sizeof name, "mask-%03d.pbm", number);
        return QImage(QString::fromStdString(folder.file(name)))
            .convertToFormat(QImage::Format_Grayscale8);
    }
};

inline QImage plainPicture(int width, int height, QRgb colour = qRgb(255, 255, 255))
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// The dots of a print image on white paper, with the same colours as those above.
inline QImage blackOf(const QImage& page)
{
    return page.convertToFormat(QImage::Format_Grayscale8);
}
