#pragma once

#include <QMainWindow>

#include <vector>

class QAction;
class QDockWidget;
class QSettings;
class QToolBar;

// Docks around one widget of the window. Each has an action at the end of the tool bar that opens
// and closes it.
class SideDocks : public QMainWindow
{
    Q_OBJECT

public:
    // Takes the widget over. On small screens docks are closed until the author opens them.
    explicit SideDocks(QWidget* surrounded);

    void add(QDockWidget* dock, Qt::DockWidgetArea area, QToolBar& bar, const char* actionName,
             const QString& icon, const QString& toolTip);
    // Whether the tab of the docks is shown, so that they can be opened and closed.
    void enableActions(bool enable);
    // Takes over where they were and which were open. The settings outlive the window.
    void keepSettingsIn(QSettings& settings);
    // Keeps there where they are.
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

    std::vector<Entry> docks;
    QSettings* settings = nullptr;
};
