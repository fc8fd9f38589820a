#pragma once

#include <QImage>

#include <optional>

#include "oid/OidProject.h"
#include "pdf/PdfOptions.h"

// What an author sees of a PDF before it is made.

// A square centimetre of a page: each pixel is one of the printer's.
class PagePreview
{
public:
    // Page n of the project, which has it and outlives the preview, with its picture, upright;
    // paper where that is null. The middle is a point of the page in percent of the picture's
    // width; without one it is that of the first area, else of the page.
    PagePreview(const Oid::OidProject& project, int n, const QImage& picture,
                const std::optional<Oid::PNT>& middle = {});

    // The null image when such a page cannot be printed. Says nothing.
    QImage draw(const PdfOptions& options) const;

private:
    Oid::PNT middleOf(const Oid::POLY& area) const;

    const Oid::OidProject& project;
    int number;
    QImage picture;
    std::optional<Oid::PNT> middle;
};

// How many sheets of paper the pages take, symbols not counted. Pages that cannot be printed count
// as none. Says nothing.
int countSheets(const Oid::OidProject& project, const PdfOptions& options);
// The edge of the largest dots that touch each other on none of the pages, in pixels of the
// printer; at least 1. Says nothing.
int largestDotOf(const Oid::OidProject& project, const PdfOptions& options);
