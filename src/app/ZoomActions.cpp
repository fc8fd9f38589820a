#include "app/ZoomActions.h"

#include "page/PageScrollArea.h"
#include "qtsync/ToolTip.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>

ZoomActions::ZoomActions(PageScrollArea* zoomed, QToolBar& bar, QStatusBar& status)
    : QObject(zoomed), area(zoomed), label(new QLabel)
{
    bar.addSeparator();
    in = add(
        bar, "actionZoomIn", "zoom-in", tr("Zoom in"),
        tr("Shows the page larger, for small areas; Ctrl and the wheel do it around the mouse"));
    out =
        add(bar, "actionZoomOut", "zoom-out", tr("Zoom out"),
            tr("Shows the page smaller, to see more of it at once; Ctrl and the wheel do it, too"));
    fit = add(bar, "actionZoomFit", "zoom-fit", tr("Fit"),
              tr("Shows the page as wide as the window, however it was zoomed"));
    // The plus is typed with Shift on some keyboards and without on others.
    in->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
    out->setShortcut(QKeySequence("Ctrl+-"));
    fit->setShortcut(QKeySequence("Ctrl+0"));
    for (QAction* const action : {in, out, fit}) {
        tellKeyOf(*action);
    }
    connect(in, &QAction::triggered, area, &PageScrollArea::zoomIn);
    connect(out, &QAction::triggered, area, &PageScrollArea::zoomOut);
    connect(fit, &QAction::triggered, area, &PageScrollArea::fit);

    label->setObjectName("lbZoom");
    status.addPermanentWidget(label);
    connect(area, &PageScrollArea::zoomChanged, this, &ZoomActions::update);
    area->installEventFilter(this);
    update();
}

QAction* ZoomActions::add(QToolBar& bar, const char* name, const QString& icon, const QString& text,
                          const QString& toolTip)
{
    QAction* const action = new QAction(QIcon(":/icons/" + icon + ".svg"), text, this);
    action->setObjectName(name);
    action->setToolTip(toolTip);
    action->setPriority(QAction::LowPriority);  // its icon says it
    bar.addAction(action);
    return action;
}

// Elsewhere the keys are others', such as those for the letters of the script.
bool ZoomActions::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        update();
    }
    return false;
}

void ZoomActions::update()
{
    const bool shown = area->isVisible();
    in->setEnabled(shown && area->zoom() < PageScrollArea::kMostZoom);
    out->setEnabled(shown && area->zoom() > PageScrollArea::kLeastZoom);
    fit->setEnabled(shown);
    label->setVisible(shown);
    label->setText(tr("Zoom: %1 %").arg(qRound(area->zoom() * 100)));
}
