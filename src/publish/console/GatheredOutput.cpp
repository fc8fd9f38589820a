#include "publish/console/GatheredOutput.h"

#include <algorithm>

void GatheredOutput::add(const QByteArray& chunk)
{
    bytes.append(chunk.constData(), int(qstrnlen(chunk.constData(), uint(chunk.size()))));
    if (bytes.size() > 2 * kMostBytes) {
        keepTheEnd();
    }
}

int GatheredOutput::pause() const
{
    if (!sinceShown.isValid()) {
        return 0;
    }
    return int(std::max<qint64>(0, cost - sinceShown.elapsed()));
}

// The last kMostLines lines, and at most kMostBytes.
void GatheredOutput::keepTheEnd()
{
    const char* const end = bytes.constEnd();
    const char* const earliest = end - std::min(bytes.size(), kMostBytes);
    const char* start = end;
    for (int lines = 0; start != earliest; --start) {
        lines += start[-1] == '\n' ? 1 : 0;
        if (lines > kMostLines) {
            break;
        }
    }
    bytes.remove(0, int(start - bytes.constBegin()));
}

static QByteArray withLongLinesBroken(const QByteArray& text, int longest)
{
    QByteArray broken;
    broken.reserve(text.size() + text.size() / longest);
    int column = 0;
    for (const char c : text) {
        if (c == '\n') {
            column = 0;
        } else if (++column > longest) {
            broken += '\n';
            column = 1;
        }
        broken += c;
    }
    return broken;
}

QByteArray GatheredOutput::take()
{
    keepTheEnd();
    showing.start();
    QByteArray taken = withLongLinesBroken(bytes, kLongestPiece);
    bytes.clear();
    return taken;
}

void GatheredOutput::shown()
{
    cost = showing.elapsed();
    sinceShown.start();
}
