#include "oid/PictureFile.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>
#include <iterator>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/PlatformMachine.h"

namespace {

const char* const kFormats[] = {"jpeg", "png", "bmp", "gif", "tiff", "webp", "ppm", "pgm", "pbm"};

// An A3 page scanned at 1200 DPI, 14031 x 19843 pixels, takes 1.04 GiB.
constexpr std::uint64_t kLargestImage = std::uint64_t{1200} << 20;  // bytes, decoded

// The one in which the file is, whatever its name; empty when none of those above.
QByteArray formatOf(QFile& file)
{
    const QByteArray format = QImageReader::imageFormat(&file);
    const auto isFormat = [&](const char* known) { return format == known; };
    const bool isPicture = std::any_of(std::begin(kFormats), std::end(kFormats), isFormat);
    return isPicture ? format : QByteArray();
}

}  // namespace

PictureFile::PictureFile(const QString& path)
{
    const QByteArray format = openInput(file, path.toStdString()) ? formatOf(file) : QByteArray();
    reader.setAutoDetectImageFormat(false);
    if (!format.isEmpty()) {
        reader.setFormat(format);
        reader.setDevice(&file);
        reader.setAutoTransform(true);
    }
}

// Of the image, and of its upright copy. Decoders give at least four bytes a pixel in our hands.
std::uint64_t PictureFile::bytesToDecode() const
{
    const QSize size = reader.size();
    const int depth = QImage(1, 1, reader.imageFormat()).depth();
    const auto bytes = static_cast<std::uint64_t>(std::max<int>(depth / 8, sizeof(QRgb)));
    const bool isUpright = reader.transformation() == QImageIOHandler::TransformationNone;
    return static_cast<std::uint64_t>(size.width()) * static_cast<std::uint64_t>(size.height()) *
           bytes * (isUpright ? 1 : 2);
}

// Half of what there is: decoders need room besides, and other programs run too.
bool PictureFile::fitsMemory() const
{
    if (!reader.size().isValid()) {
        return true;  // the decoder will tell
    }
    return bytesToDecode() <= std::min(Platform::availableMemory() / 2, kLargestImage);
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

QImage PictureFile::readPart(const QRect& stored, int reduction)
{
    reader.setClipRect(stored);
    reader.setScaledSize(stored.size() / reduction);
    return reader.read();
}

PictureCopy::PictureCopy(const QString& path)
{
    PictureFile file(path);
    const bool keepBytes = file.isUprightJpeg();
    picture = file.read();
    if (keepBytes && !picture.isNull()) {
        asItCame = readInput(path.toStdString()).value_or(QByteArray());
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

std::string whyNoPicture(const std::string& path)
{
    const std::string why = FileSystem::whyNoFile(path);
    return why.empty() ? "Can't read the image '" + Platform::nativePath(path) + "'" : why;
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
