#include "app/SideDocks.h"

#include "qtsync/ToolTip.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSettings>
#include <QToolBar>

static const char kPlaces[] = "docks/places";

static QString openKey(const QDockWidget& dock)
{
    return "docks/" + dock.objectName();
}

// Beside the docks a page still has to be wide enough.
static bool hasRoom(const QWidget& window)
{
    constexpr int kWideEnough = 1000;  // pixels
    return window.screen()->availableSize().width() >= kWideEnough;
}

SideDocks::SideDocks(QWidget* surrounded)
{
    setWindowFlags(Qt::Widget);  // it lies in another window
    setContextMenuPolicy(Qt::NoContextMenu);
    setDockOptions(QMainWindow::AllowTabbedDocks);
    setCentralWidget(surrounded);
}

void SideDocks::add(QDockWidget* dock, Qt::DockWidgetArea area, QToolBar& bar,
                    const char* actionName, const QString& icon, const QString& what,
                    const QKeySequence& keys)
{
    if (docks.empty()) {
        bar.addSeparator();
    }
    auto* const action = new QAction(QIcon(":/icons/" + icon + ".svg"), dock->windowTitle(), this);
    action->setObjectName(actionName);
    const QString toolTip = withKey(what, keys);
    action->setToolTip(toolTip);
    action->setShortcut(keys);
    action->installEventFilter(this);
    action->setCheckable(true);
    action->setChecked(hasRoom(*this));
    action->setPriority(QAction::LowPriority);  // its icon says it
    bar.addAction(action);
    addDockWidget(area, dock);
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    for (auto* const button :
         dock->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        button->setToolTip(toolTip);
    }
    dock->installEventFilter(this);
    docks.push_back({dock, action});
    const Entry entry = docks.back();
    connect(action, &QAction::toggled, this, [this, entry] { toggle(entry); });
    update();
}

void SideDocks::open(QDockWidget& dock)
{
    for (const Entry& entry : docks) {
        if (entry.dock == &dock) {
            entry.action->setChecked(true);
        }
    }
    dock.raise();
    dock.setFocus();
}

void SideDocks::enableActions(bool enable)
{
    for (const Entry& entry : docks) {
        entry.action->setEnabled(enable);
    }
}

void SideDocks::update()
{
    for (const Entry& entry : docks) {
        entry.dock->setVisible(entry.action->isChecked());
    }
}

// The mouse leaves the focus where it is.
void SideDocks::toggle(const Entry& entry)
{
    const bool hadFocus = entry.dock->isAncestorOf(QApplication::focusWidget());
    update();
    if (entry.action->isChecked()) {
        if (byKey) {
            entry.dock->raise();
            entry.dock->setFocus();
        }
    } else if (hadFocus) {
        emit focusLeft();
    }
}

bool SideDocks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Shortcut) {
        const QScopedValueRollback<bool> triggering(byKey, true);
        static_cast<QAction*>(watched)->trigger();
        return true;
    }
    if (event->type() != QEvent::Close) {
        return false;
    }
    for (const Entry& entry : docks) {
        if (entry.dock == watched) {
            entry.action->setChecked(false);
        }
    }
    return false;
}

void SideDocks::keepSettingsIn(QSettings& kept)
{
    settings = &kept;
    restoreState(kept.value(kPlaces).toByteArray());
    for (const Entry& entry : docks) {
        entry.action->setChecked(
            kept.value(openKey(*entry.dock), entry.action->isChecked()).toBool());
    }
    update();
}

void SideDocks::save()
{
    if (settings == nullptr) {
        return;
    }
    settings->setValue(kPlaces, saveState());
    for (const Entry& entry : docks) {
        settings->setValue(openKey(*entry.dock), entry.action->isChecked());
    }
}
