#pragma once

#include "oid/OidProject.h"

#include <QPoint>

#include <algorithm>

// Where a page lies in its widget: all that lies between points of the picture, in percent of its
// width for x and for y, and pixels of the widget.
struct PageView
{
    int width = 1;         // of the whole picture in pixels, at least 1
    QPoint origin;         // pixel of its top left corner
    int pictureWidth = 1;  // of the picture itself, in its own pixels, at least 1

    Oid::PNT toPercent(QPoint pixel) const
    {
        const QPoint inside = pixel - origin;
        return {inside.x() * 100.0 / width, inside.y() * 100.0 / width};
    }
    QPoint toPixel(const Oid::PNT& point) const
    {
        return origin + QPoint(pixels(point.x), pixels(point.y));
    }

    // In percent: so long is this on the screen, and one pixel of the picture.
    double percentOf(double pixels) const { return pixels * 100 / width; }
    double picturePixel() const { return 100.0 / pictureWidth; }

private:
    // Truncates toward zero; areas far outside the picture stay within what a painter can take.
    int pixels(double percent) const
    {
        constexpr double kFarOutside = 1e6;
        return static_cast<int>(std::clamp(percent * 0.01 * width, -kFarOutside, kFarOutside));
    }
};
