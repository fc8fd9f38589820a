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

    // The keys open the dock and go into it, to its focus proxy, or close it; the tool tip is
    // completed with them.
    void add(QDockWidget* dock, Qt::DockWidgetArea area, QToolBar& bar, const char* actionName,
             const QString& icon, const QString& toolTip, const QKeySequence& keys);
    // Opens one of them, if it is not, and goes into it.
    void open(QDockWidget& dock);
    // Whether the tab of the docks is shown, so that they can be opened and closed.
    void enableActions(bool enable);
    // Takes over where they were and which were open. The settings outlive the window.
    void keepSettingsIn(QSettings& settings);
    // Keeps there where they are.
    void save();

signals:
    // A dock that had the focus was closed.
    void focusLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry
    {
        QDockWidget* dock;
        QAction* action;  // checked: the author wants it open
    };
    void update();
    void toggle(const Entry& entry);

    std::vector<Entry> docks;
    QSettings* settings = nullptr;
    bool byKey = false;  // an action is being triggered by its keys
};
