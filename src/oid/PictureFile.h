#pragma once

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QString>

// The file of a picture, read alike for the window and for print images: a photo upright, as its
// camera noted, and whatever suffix the file has. Only images of pixels are pictures: a drawing
// such as SVG may name other files, which would be read with it.
class PictureFile
{
public:
    explicit PictureFile(const QString& path);

    // False when decoding it would drive the machine out of memory, or take more than any scanner
    // or camera makes.
    bool fitsMemory() const;

    // True for a JPEG, and for one whose pixels are upright as they are stored. Asked before read.
    bool isJpeg() const;
    bool isUprightJpeg() const;
    // What makes the stored pixels upright.
    QImageIOHandler::Transformations toUpright() const { return reader.transformation(); }
    // Of the upright picture, in pixels, as the file's header tells; not valid when it does not.
    QSize size() const;

    // In pixels; empty when it is no picture. Asked before read.
    QSize uprightSize() const;

    // The null image when it is no picture or does not fit. Decoders are lenient: damaged files may
    // give a picture, too.
    QImage read();
    // The same with its longer side at most so many pixels, which is far faster where the decoder
    // can leave out what is too fine.
    QImage readSmall(int longestSide);
    // The upright pixels of a part of the stored ones, both sides divided by so much.
    QImage readPart(const QRect& stored, int reduction);

private:
    std::uint64_t bytesToDecode() const;

    QFile file;
    QImageReader reader;
};

// For a message on a file that gave no picture: "Can't read the image 'zoo.jpg'", or what else it
// is.
std::string whyNoPicture(const std::string& path);

// What shines through a picture is the paper. Without transparency the picture itself.
QImage onWhitePaper(const QImage& image);

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
