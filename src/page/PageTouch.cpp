#include "page/PageTouch.h"

#include "page/PageScrollArea.h"
#include "page/PolyEditorWidget.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTouchEvent>

#include <algorithm>

PageTouch::PageTouch(PageScrollArea* touched) : QObject(touched), area(touched)
{
    area->page()->setAttribute(Qt::WA_AcceptTouchEvents);
    area->page()->installEventFilter(this);
    holding.setSingleShot(true);
    connect(&holding, &QTimer::timeout, this, &PageTouch::longPress);
}

bool PageTouch::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        touch(static_cast<QTouchEvent&>(*event));
        event->accept();
        return true;
    case QEvent::TouchCancel:
        end(begin, true);
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        // Some systems make mouse events of touches, which are taken care of here.
        return static_cast<QMouseEvent&>(*event).source() == Qt::MouseEventSynthesizedBySystem;
    default:
        return false;
    }
}

void PageTouch::touch(const QTouchEvent& event)
{
    const QList<QTouchEvent::TouchPoint>& points = event.touchPoints();
    if (event.type() == QEvent::TouchBegin) {
        gesture = Gesture::none;
    }
    if (event.type() == QEvent::TouchEnd) {
        end(points.first().screenPos(), false);
    } else if (points.size() >= 2) {
        twoFingers(points[0].screenPos(), points[1].screenPos());
    } else {
        oneFinger(points.first().screenPos());
    }
}

void PageTouch::oneFinger(QPointF screen)
{
    if (gesture == Gesture::none) {
        gesture = Gesture::tap;
        begin = screen;
        holding.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    }
    const double distance = QLineF(begin, screen).length();
    if (gesture == Gesture::tap && distance >= QGuiApplication::styleHints()->startDragDistance()) {
        gesture = Gesture::drag;
        holding.stop();
        mouse(QEvent::MouseButtonPress, begin, Qt::LeftButton, Qt::LeftButton);
    }
    if (gesture == Gesture::drag) {
        mouse(QEvent::MouseMove, screen, Qt::NoButton, Qt::LeftButton);
    }
}

// A second finger that comes to one that drags is one too many.
void PageTouch::twoFingers(QPointF one, QPointF other)
{
    if (gesture == Gesture::drag || gesture == Gesture::done) {
        return;
    }
    const double distance = std::max(1.0, QLineF(one, other).length());
    const QPointF middle = (one + other) / 2 - QPointF(area->viewport()->mapToGlobal({0, 0}));
    if (gesture != Gesture::pinch) {
        gesture = Gesture::pinch;
        holding.stop();
        beginDistance = distance;
        beginZoom = area->zoom();
        beginSpot = area->spotAt(middle);
    }
    area->showSpot(beginZoom * distance / beginDistance, beginSpot, middle);
}

void PageTouch::end(QPointF screen, bool cancelled)
{
    holding.stop();
    if (gesture == Gesture::tap && !cancelled) {
        tap();
    } else if (gesture == Gesture::drag) {
        mouse(QEvent::MouseButtonRelease, screen, Qt::LeftButton, Qt::NoButton);
    }
    gesture = Gesture::none;
}

// A finger comes down the second time less exactly than a mouse.
void PageTouch::tap()
{
    constexpr double kSamePlace = 24;
    const bool second =
        sinceTap.isValid() && QLineF(begin, lastTap).length() < kSamePlace &&
        sinceTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval();
    mouse(second ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, begin, Qt::LeftButton,
          Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, begin, Qt::LeftButton, Qt::NoButton);
    lastTap = begin;
    if (second) {
        sinceTap.invalidate();  // a third one is a first one again
    } else {
        sinceTap.start();
    }
}

void PageTouch::longPress()
{
    gesture = Gesture::done;
    mouse(QEvent::MouseButtonPress, begin, Qt::RightButton, Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, begin, Qt::RightButton, Qt::NoButton);
    const QPoint screen = begin.toPoint();
    QContextMenuEvent menu(QContextMenuEvent::Mouse, area->page()->mapFromGlobal(screen), screen);
    QCoreApplication::sendEvent(area->page(), &menu);
}

void PageTouch::mouse(QEvent::Type type, QPointF screen, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    const QPointF place = screen - QPointF(area->page()->mapToGlobal({0, 0}));
    QMouseEvent event(type, place, screen, button, buttons, QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(area->page(), &event);
}
