#pragma once

#include <QCursor>
#include <QObject>
#include <QPoint>

class PageScrollArea;
class QKeyEvent;
class QMouseEvent;

// Takes hold of the page and moves it: with the middle button, or with the left one while the space
// bar is down. The page's tool hears nothing of that. A space bar that was only tapped is a key
// like any other.
class PagePanning : public QObject
{
public:
    // Lives as long as the area.
    explicit PagePanning(PageScrollArea* panned);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool spacePress(const QKeyEvent& event);
    bool spaceRelease(QObject* watched, const QKeyEvent& event);
    void letGo();
    void showHand();

    PageScrollArea* const area;
    Qt::MouseButton held = Qt::NoButton;  // with which the page is moved
    bool space = false;                   // is down
    bool tapped = false;                  // the space bar, so far
    bool passing = false;                 // a tap to the page
    bool handIsShown = false;
    QPoint last;  // of the mouse, on the screen
    QCursor toolCursor;
};
