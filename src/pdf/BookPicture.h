#pragma once

#include <QImage>
#include <QImageIOHandler>
#include <QSize>

#include <functional>
#include <string>

#include "pdf/PdfWriter.h"

// How the ink of a picture is treated.
struct PictureInk
{
    bool noBlack = false;  // its black is made of cyan, magenta and yellow
    int lighten = 0;       // percent towards white
};

// The picture file of a page as an image of a PDF.
class BookPicture
{
public:
    // Reads what the file's header tells. False, with a message, when there is no such file, or it
    // is no picture, damaged or too large for the memory.
    bool load(const std::string& path, int page);

    // Of the upright picture, in pixels.
    QSize size() const { return uprightSize; }
    // What makes the image upright. A JPEG is kept as it is stored, anything else is upright.
    QImageIOHandler::Transformations toUpright(const PictureInk& ink) const;
    // A JPEG lends its very bytes, unless its black has to go; anything else is written without
    // loss.
    PdfImage image(const PictureInk& ink) const;

private:
    bool keepsItsBytes(const PictureInk& ink) const;
    PdfImage asJpeg(const PictureInk& ink) const;
    PdfImage asPixels(const PictureInk& ink) const;
    bool readWholePicture();

    std::string file;
    QSize uprightSize;
    QImageIOHandler::Transformations transformation;
    int components = 0;  // of a JPEG that a PDF can carry; else 0
    bool plainRgb = false;
};

// A picture in memory as an image of a PDF: as a JPEG, unless its black has to go.
PdfImage imageOf(const QImage& picture, const PictureInk& ink);
