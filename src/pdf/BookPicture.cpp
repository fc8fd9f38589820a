#include "pdf/BookPicture.h"

#include <QBuffer>
#include <QImage>

#include <cstdlib>

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "oid/PageBackground.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"
#include "pdf/JpegFile.h"
#include "pdf/PngRows.h"

namespace {

constexpr int kCmyk = 4;
constexpr int kRgb = 3;

QString qtPath(const std::string& path)
{
    return QString::fromStdString(Platform::nativePath(path));
}

// What the samples of a picture mean when it is lightened: without ink stays without ink.
std::vector<double> decodeOf(int colours, bool inkIsLarge, int lighten)
{
    const double least = lighten / 100.0;
    std::vector<double> decode;
    for (int colour = 0; colour < colours; ++colour) {
        decode.push_back(inkIsLarge ? 0 : least);
        decode.push_back(inkIsLarge ? 1 - least : 1);
    }
    return decode;
}

void sendFile(const std::string& path, const PdfBytes& bytes)
{
    constexpr qint64 kPiece = 1 << 16;
    QFile file;
    if (openInput(file, path)) {
        while (!file.atEnd() && file.error() == QFileDevice::NoError) {
            const QByteArray piece = file.read(kPiece);
            bytes(reinterpret_cast<const unsigned char*>(piece.constData()),
                  static_cast<std::size_t>(piece.size()));
        }
    }
    if (!file.isOpen() || file.error() != QFileDevice::NoError) {
        throw PdfFailure("Error: Can't read the image '" + Platform::nativePath(path) + "'\n");
    }
}

void sendPixels(const QImage& picture, bool asCmy, const PdfBytes& bytes)
{
    const int samples = asCmy ? kCmyk : kRgb;
    PngRows rows(samples, static_cast<std::size_t>(picture.width()) * samples, bytes);
    std::vector<unsigned char> row(static_cast<std::size_t>(picture.width()) * samples);
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        unsigned char* sample = row.data();
        for (int x = 0; x < picture.width(); ++x, sample += samples) {
            const QRgb pixel = asCmy ? ~pixels[x] : pixels[x];
            sample[0] = static_cast<unsigned char>(qRed(pixel));
            sample[1] = static_cast<unsigned char>(qGreen(pixel));
            sample[2] = static_cast<unsigned char>(qBlue(pixel));
        }
        rows.send(row.data());
    }
}

}  // namespace

bool BookPicture::load(const std::string& path, int page)
{
    const std::string native = Platform::nativePath(path);
    file = path;
    if (!FileSystem::doesFileExist(path)) {
        mi_printf("Error: Page %d has no picture: there is no file '%s'\n", page, native.c_str());
        return false;
    }
    const PictureFile picture(qtPath(path));
    uprightSize = picture.size();
    transformation = picture.toUpright();
    components = 0;
    if (picture.isJpeg() && uprightSize.isValid()) {
        const std::optional<QByteArray> bytes = readInput(path);
        const auto facts = bytes ? readJpegFacts(*bytes) : std::optional<JpegFacts>();
        if (facts && !facts->complete) {
            mi_printf("Error: The image '%s' is damaged\n", native.c_str());
            return false;
        }
        components = facts ? facts->components : 0;
        plainRgb = facts && facts->plainRgb;
    }
    return components != 0 || readWholePicture();
}

// What is no JPEG, or a rare one, is read to its end: only then is known whether it is a picture.
bool BookPicture::readWholePicture()
{
    QImage picture;
    if (!readBackground(file, picture)) {
        return false;
    }
    uprightSize = picture.size();
    return true;
}

bool BookPicture::keepsItsBytes(const PictureInk& ink) const
{
    return components != 0 && !ink.noBlack;
}

QImageIOHandler::Transformations BookPicture::toUpright(const PictureInk& ink) const
{
    return keepsItsBytes(ink)
               ? transformation
               : QImageIOHandler::Transformations(QImageIOHandler::TransformationNone);
}

PdfImage BookPicture::image(const PictureInk& ink) const
{
    return keepsItsBytes(ink) ? asJpeg(ink) : asPixels(ink);
}

PdfImage BookPicture::asJpeg(const PictureInk& ink) const
{
    PdfImage image;
    const bool turned = (transformation & QImageIOHandler::TransformationRotate90) != 0;
    image.width = turned ? uprightSize.height() : uprightSize.width();
    image.height = turned ? uprightSize.width() : uprightSize.height();
    image.coding = PdfImage::Coding::jpeg;
    image.plainRgb = plainRgb;
    image.colours = components == kCmyk  ? PdfImage::Colours::cmyk
                    : components == kRgb ? PdfImage::Colours::rgb
                                         : PdfImage::Colours::grey;
    if (ink.lighten != 0 || components == kCmyk) {
        // JPEG files with four colours hold what is left of the light: no ink is 255.
        image.decode = decodeOf(components, false, ink.lighten);
        if (components == kCmyk) {
            for (double& value : image.decode) {
                value = 1 - value;
            }
        }
    }
    image.produce = [path = file](const PdfBytes& bytes) { sendFile(path, bytes); };
    return image;
}

PdfImage BookPicture::asPixels(const PictureInk& ink) const
{
    PdfImage image;
    image.width = uprightSize.width();
    image.height = uprightSize.height();
    image.colours = ink.noBlack ? PdfImage::Colours::cmyk : PdfImage::Colours::rgb;
    if (ink.lighten != 0) {
        image.decode = decodeOf(ink.noBlack ? kCmyk : kRgb, ink.noBlack, ink.lighten);
    }
    image.produce = [path = file, asCmy = ink.noBlack, size = uprightSize](const PdfBytes& bytes) {
        QImage picture;
        if (!readBackground(path, picture) || picture.size() != size) {
            throw PdfFailure();
        }
        sendPixels(onWhitePaper(picture).convertToFormat(QImage::Format_RGB32), asCmy, bytes);
    };
    return image;
}

PdfImage imageOf(const QImage& picture, const PictureInk& ink)
{
    PdfImage image;
    image.width = picture.width();
    image.height = picture.height();
    image.colours = ink.noBlack ? PdfImage::Colours::cmyk : PdfImage::Colours::rgb;
    if (ink.lighten != 0) {
        image.decode = decodeOf(ink.noBlack ? kCmyk : kRgb, ink.noBlack, ink.lighten);
    }
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    if (ink.noBlack) {
        image.produce = [pixels](const PdfBytes& bytes) { sendPixels(pixels, true, bytes); };
        return image;
    }
    constexpr int kQuality = 90;
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    pixels.save(&buffer, "JPEG", kQuality);
    image.coding = PdfImage::Coding::jpeg;
    image.produce = [jpeg](const PdfBytes& bytes) {
        bytes(reinterpret_cast<const unsigned char*>(jpeg.constData()),
              static_cast<std::size_t>(jpeg.size()));
    };
    return image;
}
