#include "page/PagePanning.h"

#include "page/PageScrollArea.h"
#include "page/PolyEditorWidget.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

PagePanning::PagePanning(PageScrollArea* panned) : QObject(panned), area(panned)
{
    area->installEventFilter(this);
    area->viewport()->installEventFilter(this);
    area->page()->installEventFilter(this);
}

bool PagePanning::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return move(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
        return spacePress(static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
        return spaceRelease(watched, static_cast<QKeyEvent&>(*event));
    case QEvent::FocusOut:
    case QEvent::Hide:
        letGo();
        return false;
    default:
        return false;
    }
}

bool PagePanning::press(const QMouseEvent& event)
{
    if (held != Qt::NoButton) {
        return true;
    }
    const bool alone = event.buttons() == event.button();
    const bool takesHold =
        event.button() == Qt::MiddleButton || (space && event.button() == Qt::LeftButton);
    if (!alone || !takesHold) {
        return false;
    }
    held = event.button();
    tapped = false;
    last = event.globalPos();
    showHand();
    return true;
}

bool PagePanning::move(const QMouseEvent& event)
{
    if (held == Qt::NoButton) {
        return space;
    }
    area->pan(event.globalPos() - last);
    last = event.globalPos();
    return true;
}

bool PagePanning::release(const QMouseEvent& event)
{
    if (held == Qt::NoButton) {
        return false;
    }
    if (event.button() == held) {
        held = Qt::NoButton;
        showHand();
    }
    return true;
}

bool PagePanning::spacePress(const QKeyEvent& event)
{
    const bool plain = event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier;
    if (!plain || passing) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        space = true;
        tapped = held == Qt::NoButton;
        showHand();
    }
    return true;
}

bool PagePanning::spaceRelease(QObject* watched, const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Space || !space) {
        return false;
    }
    if (event.isAutoRepeat()) {
        return true;
    }
    space = false;
    showHand();
    if (tapped && watched == area->page()) {
        QKeyEvent tap(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
        passing = true;
        QCoreApplication::sendEvent(watched, &tap);
        passing = false;
    }
    return true;
}

void PagePanning::letGo()
{
    space = false;
    held = Qt::NoButton;
    showHand();
}

void PagePanning::showHand()
{
    PolyEditorWidget& page = *area->page();
    const bool shown = space || held != Qt::NoButton;
    if (shown && !handIsShown) {
        toolCursor = page.cursor();
    }
    if (shown) {
        page.setCursor(held != Qt::NoButton ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    } else if (handIsShown) {
        page.setCursor(toolCursor);
    }
    handIsShown = shown;
}
