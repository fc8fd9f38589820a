#include "page/FocusFrame.h"

#include <QEvent>
#include <QPainter>

constexpr int kWidth = 2;  // of the line, in pixels

FocusFrame::FocusFrame(QWidget* watched, QWidget* around)
    : QWidget(around->parentWidget()), shown(watched), view(around)
{
    setObjectName("focusFrame");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    shown->installEventFilter(this);
    view->installEventFilter(this);
    setVisible(shown->hasFocus());
    fit();
}

bool FocusFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == view && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        fit();
    } else if (watched == shown && event->type() == QEvent::FocusIn) {
        raise();
        show();
    } else if (watched == shown && event->type() == QEvent::FocusOut) {
        hide();
    }
    return false;
}

// It is nothing but its line, so what lies inside is painted as without it.
void FocusFrame::fit()
{
    setGeometry(view->geometry());
    setMask(QRegion(rect()) - rect().adjusted(kWidth, kWidth, -kWidth, -kWidth));
}

void FocusFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
}
