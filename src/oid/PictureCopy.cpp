#include "oid/PictureCopy.h"

#include <QFile>
#include <QImageWriter>
#include <QSaveFile>

#include <algorithm>

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"

namespace {

// The whole file; a null array when it cannot be read to its end.
QByteArray allBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? bytes : QByteArray();
}

// What shines through a picture is the paper. JPEG knows no transparency and would make it black.
QImage onWhitePaper(const QImage& image)
{
    if (!image.hasAlphaChannel()) {
        return image;
    }
    QImage paper = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < paper.height(); ++y) {
        QRgb* const row = reinterpret_cast<QRgb*>(paper.scanLine(y));
        std::transform(row, row + paper.width(), row, [](QRgb pixel) {
            const int white = 255 - qAlpha(pixel);
            return qRgb(qRed(pixel) + white, qGreen(pixel) + white, qBlue(pixel) + white);
        });
    }
    return paper;
}

}  // namespace

PictureCopy::PictureCopy(const QString& path)
{
    PictureFile file(path);
    const bool keepBytes = file.isUprightJpeg();
    picture = file.read();
    if (keepBytes && !picture.isNull()) {
        asItCame = allBytes(path);
        if (asItCame.isEmpty()) {
            picture = QImage();
        }
    }
}

bool PictureCopy::keepAs(const std::string& path) const
{
    QSaveFile file(QString::fromStdString(Platform::nativePath(path)));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const bool written = asItCame.isEmpty()
                             ? QImageWriter(&file, "jpg").write(onWhitePaper(picture))
                             : file.write(asItCame) == asItCame.size();
    return written && file.commit();
}
