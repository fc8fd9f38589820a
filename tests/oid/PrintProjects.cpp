#include <gtest/gtest.h>

#include "tests/oid/PlainPrintImage.h"
#include "tests/oid/PrintProjects.h"

std::string PrintedBook::differenceToPlainWay()
{
    Oid::OidProject twin = twinOf(project);
    const QImage expected = plainPrintImage(0, twin);
    return print() ? firstDifference(printed(), expected) : "nothing was printed: " + messages;
}

QImage colourfulPicture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int stripe = (x / 3 + y / 5) % 2 * 120;
            image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, 100 + stripe));
        }
    }
    return image;
}
