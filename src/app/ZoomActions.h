#pragma once

#include <QObject>

class PageScrollArea;
class QAction;
class QLabel;
class QStatusBar;
class QToolBar;

// The buttons and keys that zoom the page, and the zoom in the status bar; there while the page is
// shown.
class ZoomActions : public QObject
{
    Q_OBJECT

public:
    // Lives as long as the area; puts its actions at the end of the bar.
    ZoomActions(PageScrollArea* zoomed, QToolBar& bar, QStatusBar& status);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* add(QToolBar& bar, const char* name, const QString& icon, const QString& text,
                 const QString& toolTip);
    void update();

    PageScrollArea* const area;
    QAction* in = nullptr;
    QAction* out = nullptr;
    QAction* fit = nullptr;
    QLabel* const label;
};
