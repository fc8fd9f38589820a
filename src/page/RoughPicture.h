#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <vector>

// What a picture roughly looks like at some size, made of what is at hand: of what was shown of it
// at the size before, and elsewhere of a small copy. That takes a small part of the time in which
// all pixels of a large picture are scaled. Rectangles are in pixels of the picture at its size.
class RoughPicture
{
public:
    RoughPicture() = default;
    // Makes the small copy, and keeps nothing else of the picture. The format is that of what is
    // made: Format_RGB32 or, with transparency, Format_ARGB32_Premultiplied.
    RoughPicture(const QImage& picture, QSize shownSize, QImage::Format format);

    // This is shown of the picture at its present size, and helps when it gets another one.
    void keep(QRect place, const QImage& image);
    // What is kept is kept at this size, unless the picture becomes less than half as large: there
    // is little of it then.
    void resize(QSize shownSize);
    // From now on only what lies at this place is asked for, or nothing that needs what is kept.
    void keepWithin(QRect place);
    void forget() { kept.clear(); }

    // Fills the image, which has that format, with what lies at the place, which has its size.
    void make(QRect place, QImage& image) const;

private:
    struct Kept
    {
        QRect place;
        QImage image;
    };

    QImage smallCopy;
    QSize size;
    std::vector<Kept> kept;
};
