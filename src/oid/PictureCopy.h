#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <string>

// A picture that comes into a project, which keeps a copy of it as JPEG.
class PictureCopy
{
public:
    // Reads the picture file.
    explicit PictureCopy(const QString& path);

    // Upright; the null image when it is no picture or cannot be read.
    const QImage& image() const { return picture; }
    // Writes the copy whole or not at all, in place of a file that is there. An upright JPEG is
    // kept byte for byte; anything else is compressed, upright and on white paper.
    bool keepAs(const std::string& path) const;

private:
    QImage picture;
    QByteArray asItCame;  // of an upright JPEG
};
