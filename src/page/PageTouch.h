#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointF>
#include <QTimer>

class PageScrollArea;
class QTouchEvent;

// Fingers on the page: one is the mouse with its left button, and the right one when it stays where
// it is for long; two move the page and make it larger and smaller.
class PageTouch : public QObject
{
public:
    // Lives as long as the area.
    explicit PageTouch(PageScrollArea* touched);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Gesture { none, tap, drag, pinch, done };

    void touch(const QTouchEvent& event);
    void oneFinger(QPointF screen);
    void twoFingers(QPointF one, QPointF other);
    void end(QPointF screen, bool cancelled);
    void tap();
    void longPress();
    void mouse(QEvent::Type type, QPointF screen, Qt::MouseButton button, Qt::MouseButtons buttons);

    PageScrollArea* const area;
    QTimer holding;
    Gesture gesture = Gesture::none;
    QPointF begin;             // of one finger, on the screen
    double beginDistance = 1;  // of two, in pixels
    double beginZoom = 1;
    QPointF beginSpot;  // between them
    QElapsedTimer sinceTap;
    QPointF lastTap;  // on the screen
};
