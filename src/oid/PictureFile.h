#pragma once

#include <QImageReader>

// The file of a picture, read alike for the window and for print images: a photo upright, as its
// camera noted, and whatever suffix the file has.
class PictureFile
{
public:
    explicit PictureFile(const QString& path);

    // False when decoding it would drive the machine out of memory.
    bool fitsMemory() const;

    // True for a JPEG whose pixels are upright as they are stored. Asked before read.
    bool isUprightJpeg() const;

    // The null image when it is no picture or does not fit. Decoders are lenient: damaged files may
    // give a picture, too.
    QImage read();

private:
    QImageReader reader;
};
