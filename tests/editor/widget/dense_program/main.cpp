// Draws an editor on a screen whose pixels are so many device pixels (QT_SCALE_FACTOR) and says
// "ok", or what is wrong with the picture.
//   dense_program 1.5
#include "tests/editor/widget/EditorWindow.h"

#include <QApplication>
#include <QScreen>

#include <cstdio>

namespace {

constexpr int kColumns = 40;

QRect devicePixels(const EditorWindow& window, int column, qreal ratio)
{
    const QRect place = window.cell(0, column);
    const QPoint from(qRound(place.left() * ratio), qRound(place.top() * ratio));
    const QPoint to(qRound((place.right() + 1) * ratio), qRound((place.bottom() + 1) * ratio));
    return {from, to - QPoint(1, 1)};
}

bool hasInk(const QImage& picture, const QRect& place)
{
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if (qGray(picture.pixel(x, y)) < 100) {
                return true;
            }
        }
    }
    return false;
}

// A picture of less pixels that has been enlarged has no line that differs from both neighbours.
bool isSharp(const QImage& picture, const QRect& place)
{
    int differing = 0;
    for (int y = place.top() + 1; y < place.bottom(); ++y) {
        const auto row = [&](int at) { return picture.copy(place.left(), at, place.width(), 1); };
        differing += row(y) != row(y - 1) && row(y) != row(y + 1) ? 1 : 0;
    }
    return differing > place.height() / 4;
}

// What the window shows, without asking it to paint anything.
QImage onScreen(const EditorWindow& window)
{
    QCoreApplication::processEvents();
    const QWidget& shown = *window.control.window();
    return shown.screen()->grabWindow(shown.winId()).toImage();
}

// Whether the rows that change with a selection are repainted to their edges.
bool repaintsWhatChanges(EditorWindow& window)
{
    for (const int key : {Qt::Key_End, Qt::Key_Down, Qt::Key_Down, Qt::Key_Home, Qt::Key_Up}) {
        window.key(key, Qt::ShiftModifier);
        const QImage shown = onScreen(window);
        window.surface.update();
        if (onScreen(window) != shown) {
            return false;
        }
    }
    return true;
}

const char* fault(EditorWindow& window, qreal ratio)
{
    window.surface.clearFocus();
    const QImage picture = window.surface.grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (picture.size() != (QSizeF(window.surface.size()) * ratio).toSize()) {
        return "the picture has too few pixels";
    }
    const QRect first = devicePixels(window, 0, ratio);
    for (int column = 0; column < kColumns; column += 2) {
        const QRect place = devicePixels(window, column, ratio);
        if (picture.copy(place) != picture.copy(first)) {
            return "equal characters look different";
        }
    }
    if (!hasInk(picture, devicePixels(window, kColumns - 1, ratio)) ||
        hasInk(picture, devicePixels(window, kColumns, ratio))) {
        return "the text is not where the caret is";
    }
    if (!isSharp(picture, first)) {
        return "the characters are not sharp";
    }
    return repaintsWhatChanges(window) ? "ok" : "something that has changed is not painted again";
}

}  // namespace

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    EditorWindow window("|" + QString(kColumns, '&') + "\nsecond\nthird\nfourth");
    std::puts(fault(window, QApplication::arguments().value(1).toDouble()));
    return 0;
}
