#pragma once

#include <QDateTime>
#include <QImage>
#include <QSize>

#include <map>
#include <mutex>
#include <string>

namespace hints {

// What a page's picture file shows, upright.
struct PagePicture
{
    QSize size;  // in pixels; empty when there is no picture
    // The whole picture in grey, its longer side at most kLongestSide. Null without a picture.
    QImage small;

    // Four pixels a millimetre on A4: an area that the pen finds has a thousand of them.
    static constexpr int kLongestSide = 1200;
};

// The picture files of a book, each decoded once, and once more when it has changed. Any thread may
// ask.
class PagePictures
{
public:
    PagePicture of(const std::string& path);

private:
    struct Known
    {
        QDateTime changed;
        qint64 bytes = 0;
        PagePicture picture;
    };

    std::mutex access;
    std::map<std::string, Known> known;  // by path
};

}  // namespace hints
