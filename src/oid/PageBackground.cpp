#include "oid/PageBackground.h"

#include <QPainter>

#include <algorithm>
#include <cstdint>

#include "base/PlatformFiles.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"

namespace {

// Collects what Qt's decoders warn about on this thread while it lives.
class DecoderWarnings
{
public:
    DecoderWarnings() : previous(qInstallMessageHandler(collect)), outer(current)
    {
        forward = previous;
        current = this;
    }
    ~DecoderWarnings()
    {
        current = outer;
        qInstallMessageHandler(previous);
    }
    DecoderWarnings(const DecoderWarnings&) = delete;
    DecoderWarnings& operator=(const DecoderWarnings&) = delete;

    // Other warnings, on odd headers or colour profiles, leave the pixels alone.
    bool tellOfDamage() const
    {
        return text.contains(QLatin1String("Corrupt JPEG data")) ||
               text.contains(QLatin1String("Premature end"));
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (current != nullptr) {
            current->text += message + QLatin1Char('\n');
        } else if (forward != nullptr) {
            forward(type, context, message);
        }
    }

    static thread_local DecoderWarnings* current;
    static QtMessageHandler forward;

    QtMessageHandler previous;
    DecoderWarnings* outer;
    QString text;
};

thread_local DecoderWarnings* DecoderWarnings::current = nullptr;
QtMessageHandler DecoderWarnings::forward = nullptr;

// Beyond it the painter draws nothing: it counts pixels in 16 bits.
constexpr int kPainterRange = 32767;

// An image of a tile that only has memory for the rows of one band, of which it must not be touched
// outside. So the painter works with the coordinates of the page: moved to the band's own it would
// round differently. The address of the tile's first pixel is computed as a number, because no
// array reaches there.
QImage tileWithOneBand(QRgb* rows, int firstRow, const QRect& tile, int pageWidth)
{
    const std::int64_t bytesPerRow = std::int64_t{pageWidth} * sizeof(QRgb);
    const std::int64_t offset = (tile.top() - std::int64_t{firstRow}) * bytesPerRow +
                                tile.left() * std::int64_t{sizeof(QRgb)};
    const std::uintptr_t origin =
        reinterpret_cast<std::uintptr_t>(rows) + static_cast<std::uintptr_t>(offset);
    return QImage(reinterpret_cast<uchar*>(origin), tile.width(), tile.height(),
                  static_cast<int>(bytesPerRow), QImage::Format_RGB32);
}

}  // namespace

bool readBackground(const std::string& path, QImage& image)
{
    const std::string native = Platform::nativePath(path);
    const DecoderWarnings warnings;
    PictureFile file(QString::fromStdString(native));
    if (!file.fitsMemory()) {
        mi_printf("Error: The image '%s' is too large for the memory\n", native.c_str());
        return false;
    }
    image = file.read();
    if (image.isNull()) {
        mi_printf("Error: %s\n", whyNoPicture(path).c_str());
        return false;
    }
    if (warnings.tellOfDamage()) {
        mi_printf("Error: The image '%s' is damaged\n", native.c_str());
        return false;
    }
    return true;
}

QRect pictureOnPage(const QSize& picture, const PageGeometry& page, double& percentPerPixel)
{
    const double factor = std::min(static_cast<double>(page.height) / picture.height(),
                                   static_cast<double>(page.width) / picture.width());
    const double width = picture.width() * factor;
    const double height = picture.height() * factor;
    percentPerPixel = 100 / width;
    return {0, 0, static_cast<int>(width), static_cast<int>(height)};
}

bool PageBackground::load(const std::string& path)
{
    return readBackground(path, picture);
}

void PageBackground::fitInto(const PageGeometry& page)
{
    pageWidth = page.width;
    pageHeight = page.height;
    target = pictureOnPage(picture.size(), page, percent);
}

void PageBackground::drawRows(QRgb* rows, int firstRow, int rowCount) const
{
    std::fill_n(rows, static_cast<std::size_t>(pageWidth) * static_cast<std::size_t>(rowCount),
                qRgb(255, 255, 255));
    if (std::max(pageWidth, pageHeight) <= kPainterRange) {
        drawTile(rows, firstRow, rowCount, QRect(0, 0, pageWidth, pageHeight));
        return;
    }
    const int top = firstRow / kTileEdge * kTileEdge;
    for (int left = 0; left < pageWidth; left += kTileEdge) {
        const QRect tile(left, top, kTileEdge, kTileEdge);
        drawTile(rows, firstRow, rowCount, tile.intersected(QRect(0, 0, pageWidth, pageHeight)));
    }
}

void PageBackground::drawTile(QRgb* rows, int firstRow, int rowCount, const QRect& tile) const
{
    QImage canvas = tileWithOneBand(rows, firstRow, tile, pageWidth);
    QPainter painter(&canvas);
    painter.setClipRect(0, firstRow - tile.top(), tile.width(), rowCount);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(-tile.topLeft());
    painter.drawImage(target, picture);
}
