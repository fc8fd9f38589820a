#include "app/AreaClipboard.h"

#include "app/StorableName.h"

#include <QList>
#include <QString>

#include <cmath>

namespace {

constexpr char kFirstLine[] = "plinkett-areas 1";
constexpr char kPage[] = "page ";
constexpr char kArea[] = "area ";
constexpr char kEnd[] = "end";
// In percent of the picture's width: no page has anything farther away.
constexpr double kFarthest = 1e6;

QByteArray rest(const QByteArray& line, const char* begin)
{
    return line.mid(static_cast<int>(qstrlen(begin)));
}

bool readCorner(const QByteArray& line, Oid::PNT& corner)
{
    const QList<QByteArray> numbers = line.split(' ');
    if (numbers.size() != 2) {
        return false;
    }
    bool isX = false;
    bool isY = false;
    corner = {numbers[0].toDouble(&isX), numbers[1].toDouble(&isY)};
    return isX && isY && std::abs(corner.x) <= kFarthest && std::abs(corner.y) <= kFarthest;
}

bool readLine(const QByteArray& line, std::vector<Oid::POLY>& areas)
{
    if (line.startsWith(kArea)) {
        const QString name = StorableName::of(QString::fromUtf8(rest(line, kArea)));
        areas.emplace_back().name = name.toStdString();
        return !name.isEmpty();
    }
    Oid::PNT corner;
    if (areas.empty() || !readCorner(line, corner)) {
        return false;
    }
    areas.back().points.push_back(corner);
    return true;
}

}  // namespace

QByteArray AreaClipboard::toText() const
{
    QByteArray text = kFirstLine;
    text += '\n' + (kPage + page) + '\n';
    for (const Oid::POLY& area : areas) {
        text += (kArea + QByteArray::fromStdString(area.name)) + '\n';
        for (const Oid::PNT& corner : area.points) {
            text += QByteArray::number(corner.x, 'g', 17) + ' ' +
                    QByteArray::number(corner.y, 'g', 17) + '\n';
        }
    }
    return text + kEnd + '\n';
}

AreaClipboard AreaClipboard::fromText(const QByteArray& text, int& brokenLine)
{
    const QList<QByteArray> lines = text.split('\n');
    AreaClipboard read;
    const auto isGood = [&](int i) {
        if (i < 2) {
            return i == 0 ? lines[i] == kFirstLine : lines[i].startsWith(kPage);
        }
        return readLine(lines[i], read.areas);
    };
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 1 && lines[i] == kEnd) {
            read.page = rest(lines[1], kPage);
            brokenLine = 0;
            return read;
        }
        if (!isGood(i)) {
            brokenLine = i + 1;
            return {};
        }
    }
    brokenLine = lines.size();
    return {};
}
