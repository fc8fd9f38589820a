#include "app/ToolBarFit.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QToolBar>

static int widthWith(QToolBar& bar, Qt::ToolButtonStyle style)
{
    bar.setToolButtonStyle(style);
    bar.layout()->invalidate();
    return bar.sizeHint().width();
}

ToolBarFit::ToolBarFit(QMainWindow* fitted) : QObject(fitted), window(fitted)
{
    window->installEventFilter(this);
    for (QToolBar* const bar : window->findChildren<QToolBar*>()) {
        bar->installEventFilter(this);
    }
}

bool ToolBarFit::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
        if (watched == window) {
            fit();
        }
        break;
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        widths.clear();
        fitSoon();
        break;
    default:
        break;
    }
    return false;
}

// Once for all that comes at a time.
void ToolBarFit::fitSoon()
{
    if (!isPlanned) {
        isPlanned = true;
        QMetaObject::invokeMethod(this, &ToolBarFit::fit, Qt::QueuedConnection);
    }
}

void ToolBarFit::measure()
{
    for (QToolBar* const bar : window->findChildren<QToolBar*>()) {
        const Qt::ToolButtonStyle shown = bar->toolButtonStyle();
        Widths of{bar, widthWith(*bar, Qt::ToolButtonTextBesideIcon),
                  widthWith(*bar, Qt::ToolButtonIconOnly)};
        bar->setToolButtonStyle(shown);
        widths.push_back(of);
    }
}

void ToolBarFit::fit()
{
    isPlanned = false;
    if (widths.empty()) {
        measure();
    }
    int all = 0;
    for (const Widths& of : widths) {
        all += of.bar->orientation() == Qt::Horizontal ? of.withText : 0;
    }
    for (auto of = widths.rbegin(); of != widths.rend(); ++of) {
        const bool hasRoom = all <= window->width() || of->bar->orientation() == Qt::Vertical;
        of->bar->setToolButtonStyle(hasRoom ? Qt::ToolButtonTextBesideIcon
                                            : Qt::ToolButtonIconOnly);
        all -= hasRoom ? 0 : of->withText - of->withIcons;
    }
}
