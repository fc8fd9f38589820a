#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// A picture that comes into a project, which keeps a copy of it as JPEG.
class PictureCopy
{
public:
    // Reads the picture file.
    explicit PictureCopy(const QString& path);

    // Upright; the null image when it is no picture or cannot be read.
    const QImage& image() const { return picture; }
    // The file of the copy: an upright JPEG byte for byte; anything else is compressed, upright and
    // on white paper. Empty without a picture, or when it cannot be compressed.
    QByteArray file() const;

private:
    QImage picture;
    QByteArray asItCame;  // of an upright JPEG
};
