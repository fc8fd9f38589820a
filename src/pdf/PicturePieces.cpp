#include "pdf/PicturePieces.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "base/PlatformFiles.h"
#include "oid/PageBackground.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"

namespace {

constexpr int kMostPixels = 2500000;  // of a strip that holds several parts
constexpr int kLargestReduction = 8;  // that the decoder of JPEG files knows

QString qtPath(const std::string& path)
{
    return QString::fromStdString(Platform::nativePath(path));
}

QImage small(const QImage& piece, int longestSide)
{
    return onWhitePaper(std::max(piece.width(), piece.height()) <= longestSide
                            ? piece
                            : piece.scaled(longestSide, longestSide, Qt::KeepAspectRatio,
                                           Qt::SmoothTransformation));
}

// How the pixels of a file lie in the upright picture.
struct Orientation
{
    QRect toStored(QRect part) const
    {
        if (isTurned()) {
            part = QRect(part.top(), stored.height() - part.left() - part.width(), part.height(),
                         part.width());
        }
        return mirrored(part);
    }
    QRect toUpright(const QRect& part) const
    {
        const QRect seen = mirrored(part);
        return isTurned() ? QRect(stored.height() - seen.top() - seen.height(), seen.left(),
                                  seen.height(), seen.width())
                          : seen;
    }
    bool isTurned() const { return (change & QImageIOHandler::TransformationRotate90) != 0; }
    QRect mirrored(QRect part) const
    {
        if ((change & QImageIOHandler::TransformationMirror) != 0) {
            part.moveLeft(stored.width() - part.left() - part.width());
        }
        if ((change & QImageIOHandler::TransformationFlip) != 0) {
            part.moveTop(stored.height() - part.top() - part.height());
        }
        return part;
    }

    QSize stored;
    QImageIOHandler::Transformations change;
};

class StripReader
{
public:
    StripReader(const std::string& file, int side) : path(file), longestSide(side)
    {
        const PictureFile picture(qtPath(path));
        orientation.change = picture.toUpright();
        orientation.stored = orientation.isTurned() ? picture.size().transposed() : picture.size();
    }

    bool read(const std::vector<QRect>& parts, std::vector<QImage>& pieces)
    {
        for (const QRect& part : parts) {
            const QRect whole =
                part.intersected(orientation.toUpright(QRect(QPoint(0, 0), orientation.stored)));
            stored.push_back(orientation.toStored(whole));
        }
        std::vector<std::size_t> order(parts.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
            return std::make_pair(reductionOf(one), stored[one].top()) <
                   std::make_pair(reductionOf(other), stored[other].top());
        });
        for (auto next = order.begin(); next != order.end();) {
            const auto first = next;
            const QRect strip = stripFrom(next, order.end());
            if (!readStrip(strip, {first, next}, pieces)) {
                return false;
            }
        }
        return true;
    }

private:
    // By which the part can be read smaller without losing what is shown.
    int reductionOf(std::size_t part) const
    {
        const QSize size = stored[part].size();
        const int longer = std::max(size.width(), size.height());
        const int shorter = std::min(size.width(), size.height());
        int reduction = 1;
        while (reduction < kLargestReduction && longer / (2 * reduction) > longestSide &&
               shorter / (4 * reduction) > 0) {
            reduction *= 2;
        }
        return reduction;
    }

    // What holds the next parts, as many as are read together.
    template <class Iterator>
    QRect stripFrom(Iterator& next, Iterator end) const
    {
        const int reduction = reductionOf(*next);
        QRect strip = stored[*next++];
        for (; next != end && reductionOf(*next) == reduction; ++next) {
            const QRect both = strip.united(stored[*next]);
            const std::int64_t pixels = std::int64_t{both.width()} * both.height();
            if (pixels > std::int64_t{kMostPixels} * reduction * reduction) {
                break;
            }
            strip = both;
        }
        return strip;
    }

    bool readStrip(const QRect& strip, const std::vector<std::size_t>& parts,
                   std::vector<QImage>& pieces) const
    {
        if (strip.isEmpty()) {
            return true;
        }
        const int reduction = reductionOf(parts.front());
        const QRect clip = wholeBlocks(strip, reduction);
        const QImage image = PictureFile(qtPath(path)).readPart(clip, reduction);
        if (image.isNull()) {
            mi_printf("Error: %s\n", whyNoPicture(path).c_str());
            return false;
        }
        const QPoint corner = orientation.toUpright(clip).topLeft();
        for (const std::size_t part : parts) {
            if (stored[part].isEmpty()) {
                continue;
            }
            const QRect shown = orientation.toUpright(stored[part]).translated(-corner);
            const QRect reduced(shown.topLeft() / reduction, shown.size() / reduction);
            pieces[part] = small(image.copy(reduced.intersected(image.rect())), longestSide);
        }
        return true;
    }

    // The decoder reduces only blocks of so many pixels; what is left at the picture's edge is not
    // seen in so large a part.
    QRect wholeBlocks(const QRect& strip, int reduction) const
    {
        const int left = strip.left() / reduction * reduction;
        const int top = strip.top() / reduction * reduction;
        const auto end = [reduction](int border, int size) {
            return std::min((border + reduction - 1) / reduction, size / reduction) * reduction;
        };
        return {left, top, end(strip.left() + strip.width(), orientation.stored.width()) - left,
                end(strip.top() + strip.height(), orientation.stored.height()) - top};
    }

    const std::string& path;
    int longestSide;
    Orientation orientation;
    std::vector<QRect> stored;  // the parts
};

bool readFromWhole(const std::string& path, const std::vector<QRect>& parts, int longestSide,
                   std::vector<QImage>& pieces)
{
    QImage picture;
    if (!readBackground(path, picture)) {
        return false;
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const QRect part = parts[i].intersected(picture.rect());
        if (!part.isEmpty()) {
            pieces[i] = small(picture.copy(part), longestSide);
        }
    }
    return true;
}

}  // namespace

bool readPieces(const std::string& path, const std::vector<QRect>& parts, int longestSide,
                std::vector<QImage>& pieces)
{
    pieces.assign(parts.size(), QImage());
    const PictureFile picture(qtPath(path));
    return picture.isJpeg() && picture.size().isValid()
               ? StripReader(path, longestSide).read(parts, pieces)
               : readFromWhole(path, parts, longestSide, pieces);
}
