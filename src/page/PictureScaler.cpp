#include "page/PictureScaler.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

constexpr int kWeightBits = 15;
constexpr qint64 kWeights = 1 << kWeightBits;  // of all pixels that make one, together
constexpr int kChannels = 4;

// The pixels of a line from which a part of the scaled line is made.
struct Sources
{
    struct Run
    {
        int first = 0;   // pixel of the picture
        int weight = 0;  // index of its weight; those of the pixels behind it follow
        int count = 0;
    };
    std::vector<Run> runs;
    std::vector<quint16> weights;

    int begin() const { return runs.front().first; }
    int end() const { return runs.back().first + runs.back().count; }
};

// Each pixel lies between the middles of two pixels of the picture.
void addEnlarged(Sources& sources, int i, int original, int scaled)
{
    const qint64 middle = (2 * qint64(i) + 1) * original * kWeights / (2 * qint64(scaled));
    const qint64 place = std::clamp<qint64>(middle - kWeights / 2, 0, (original - 1) * kWeights);
    const auto share = static_cast<quint16>(place % kWeights);
    sources.runs.push_back({static_cast<int>(place / kWeights),
                            static_cast<int>(sources.weights.size()), share > 0 ? 2 : 1});
    sources.weights.push_back(static_cast<quint16>(kWeights - share));
    if (share > 0) {
        sources.weights.push_back(share);
    }
}

// Each pixel covers a stretch of the picture's pixels. Lengths are in parts of a pixel, of which
// one has as many as the scaled line has pixels.
void addReduced(Sources& sources, int i, int original, int scaled)
{
    const qint64 begin = qint64(i) * original;
    const qint64 end = begin + original;
    const auto weightUpTo = [&](qint64 place) { return (place - begin) * kWeights / original; };
    const int first = static_cast<int>(begin / scaled);
    const int last = static_cast<int>((end - 1) / scaled);
    sources.runs.push_back({first, static_cast<int>(sources.weights.size()), last - first + 1});
    for (int pixel = first; pixel <= last; ++pixel) {
        const qint64 from = std::max(begin, qint64(pixel) * scaled);
        const qint64 to = std::min(end, (qint64(pixel) + 1) * scaled);
        sources.weights.push_back(static_cast<quint16>(weightUpTo(to) - weightUpTo(from)));
    }
}

Sources sourcesOf(int from, int count, int original, int scaled)
{
    Sources sources;
    for (int i = from; i < from + count; ++i) {
        if (scaled >= original) {
            addEnlarged(sources, i, original, scaled);
        } else {
            addReduced(sources, i, original, scaled);
        }
    }
    return sources;
}

// The lines of a run as one, each value with eight bits behind the point.
void mixLines(const QImage& picture, QPoint origin, const Sources& rows, const Sources::Run& run,
              std::vector<quint32>& sums, std::vector<quint16>& line)
{
    std::fill(sums.begin(), sums.end(), 0U);
    const std::size_t count = sums.size();
    for (int i = 0; i < run.count; ++i) {
        const uchar* const values = picture.constScanLine(run.first + i - origin.y()) +
                                    std::ptrdiff_t{origin.x()} * kChannels;
        // NOLINTNEXTLINE(bugprone-misplaced-widening-cast): a few thousand at most
        const quint16 weight = rows.weights[static_cast<std::size_t>(run.weight + i)];
        for (std::size_t k = 0; k < count; ++k) {
            sums[k] += static_cast<quint32>(values[k]) * weight;
        }
    }
    for (std::size_t k = 0; k < count; ++k) {
        line[k] = static_cast<quint16>(sums[k] >> (kWeightBits - 8));
    }
}

void mixPixels(const std::vector<quint16>& line, const Sources& columns, uchar* target)
{
    for (const Sources::Run& run : columns.runs) {
        constexpr quint32 kHalf = 1U << (kWeightBits + 7);
        quint32 sums[kChannels] = {kHalf, kHalf, kHalf, kHalf};
        const quint16* values = line.data() + (run.first - columns.begin()) * kChannels;
        const quint16* const weights = columns.weights.data() + run.weight;
        for (int i = 0; i < run.count; ++i, values += kChannels) {
            for (int channel = 0; channel < kChannels; ++channel) {
                sums[channel] += static_cast<quint32>(values[channel]) * weights[i];
            }
        }
        for (const quint32 sum : sums) {
            *target++ = static_cast<uchar>(sum >> (kWeightBits + 8));
        }
    }
}

}  // namespace

PictureScaler::PictureScaler(QImage original, QSize scaledSize)
    : picture(std::move(original)), scaled(scaledSize)
{}

QImage::Format PictureScaler::format() const
{
    return picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

qint64 PictureScaler::workFor(QRect part) const
{
    constexpr double kMaking = 8;  // of one pixel
    const double perColumn = double(picture.width()) / scaled.width();
    const double perRow = std::max(2.0, double(picture.height()) / scaled.height());
    return std::llround(double(part.width()) * part.height() * (perColumn * perRow + kMaking));
}

void PictureScaler::make(QRect part, QImage& image, QPoint origin) const
{
    const Sources columns = sourcesOf(part.x(), part.width(), picture.width(), scaled.width());
    const Sources rows = sourcesOf(part.y(), part.height(), picture.height(), scaled.height());
    QPoint begin(columns.begin(), 0);
    QImage source = picture;
    QPoint sourceOrigin;
    if (picture.format() != format()) {
        sourceOrigin = {columns.begin(), rows.begin()};
        const QSize needed(columns.end() - columns.begin(), rows.end() - rows.begin());
        source = picture.copy({sourceOrigin, needed}).convertToFormat(format());
        begin.setX(0);
    }
    const auto values = static_cast<std::size_t>(columns.end() - columns.begin()) * kChannels;
    std::vector<quint32> sums(values);
    std::vector<quint16> line(values);
    for (int y = 0; y < part.height(); ++y) {
        const Sources::Run& run = rows.runs[static_cast<std::size_t>(y)];
        mixLines(source, {begin.x(), sourceOrigin.y()}, rows, run, sums, line);
        uchar* const target = image.scanLine(part.y() + y - origin.y());
        mixPixels(line, columns, target + (part.x() - origin.x()) * kChannels);
    }
}
