#include "oid/PictureFile.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>

#include <algorithm>

#include "base/PlatformMachine.h"

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

}  // namespace

PictureFile::PictureFile(const QString& path) : reader(path)
{
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
}

// Half of what there is: decoders need room besides, and other programs run too.
bool PictureFile::fitsMemory() const
{
    const QSize size = reader.size();
    if (!size.isValid()) {
        return true;  // the decoder will tell
    }
    const std::uint64_t pixels =
        static_cast<std::uint64_t>(size.width()) * static_cast<std::uint64_t>(size.height());
    return pixels * sizeof(QRgb) <= Platform::availableMemory() / 2;
}

bool PictureFile::isJpeg() const
{
    return reader.format() == "jpeg";
}

bool PictureFile::isUprightJpeg() const
{
    return isJpeg() && reader.transformation() == QImageIOHandler::TransformationNone;
}

QSize PictureFile::size() const
{
    const QSize stored = reader.size();
    const bool turned = (toUpright() & QImageIOHandler::TransformationRotate90) != 0;
    return turned ? stored.transposed() : stored;
}

QSize PictureFile::uprightSize() const
{
    const bool liesOnItsSide =
        reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    return liesOnItsSide ? reader.size().transposed() : reader.size();
}

QImage PictureFile::read()
{
    return fitsMemory() ? reader.read() : QImage();
}

QImage PictureFile::readSmall(int longestSide)
{
    const QSize whole = reader.size();
    if (std::max(whole.width(), whole.height()) > longestSide) {
        reader.setScaledSize(
            whole.scaled(longestSide, longestSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    return read();
}

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

QByteArray PictureCopy::file() const
{
    if (!asItCame.isEmpty()) {
        return asItCame;
    }
    // JPEG knows no transparency and would make it black.
    QByteArray compressed;
    QBuffer buffer(&compressed);
    buffer.open(QIODevice::WriteOnly);
    return QImageWriter(&buffer, "jpg").write(onWhitePaper(picture)) ? compressed : QByteArray();
}

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
