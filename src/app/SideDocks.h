#pragma once

#include <QObject>

#include <vector>

class QAction;
class QDockWidget;
class QMainWindow;
class QSettings;
class QToolBar;

// Docks that are there while one tab of the window is shown. Each has an action at the end of the
// tool bar that opens and closes it.
class SideDocks : public QObject
{
    Q_OBJECT

public:
    // On small screens docks are closed until the author opens them.
    explicit SideDocks(QMainWindow* window);

    void add(QDockWidget* dock, Qt::DockWidgetArea area, QToolBar& bar, const char* actionName,
             const QString& icon, const QString& toolTip);
    // Whether their tab is shown.
    void setShown(bool shown);
    // Takes over where they were and which were open, and keeps that when the window goes. The
    // settings outlive the window.
    void keepSettingsIn(QSettings& settings);
    void save();

protected:
    bool eventFilter(QObject* dock, QEvent* event) override;

private:
    struct Entry
    {
        QDockWidget* dock;
        QAction* action;  // checked: the author wants it open
    };
    void update();

    QMainWindow* window;
    std::vector<Entry> docks;
    QSettings* settings = nullptr;
    bool shown = true;
};
