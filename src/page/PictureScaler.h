#pragma once

#include <QImage>

// A picture scaled to another size, of which any part can be made by itself: a pixel is the same
// whatever part it is made with. Smaller pictures are averages of all their pixels, larger ones
// lead from one pixel to the next.
class PictureScaler
{
public:
    PictureScaler() = default;
    // Keeps the picture, but makes no copy of it. The size is not empty.
    PictureScaler(QImage original, QSize scaledSize);

    QSize size() const { return scaled; }
    // What images of parts have: Format_RGB32, with transparency Format_ARGB32_Premultiplied.
    QImage::Format format() const;

    // So much work is it to make a part, compared with others: about the time in which so many
    // pixels of the picture are read.
    qint64 workFor(QRect part) const;
    // Makes the part, which lies within the scaled picture, in an image of that format, whose pixel
    // (0, 0) is this one of the scaled picture.
    void make(QRect part, QImage& image, QPoint origin) const;

private:
    QImage picture;
    QSize scaled;
};
