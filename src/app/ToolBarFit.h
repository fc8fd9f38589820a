#pragma once

#include <QObject>

#include <vector>

class QMainWindow;
class QToolBar;

// Lets every tool of the window be seen: where its tool bars have no room for text beside the
// icons, they show icons alone, the last bar first. The tool tips and the names for screen readers
// stay.
class ToolBarFit : public QObject
{
    Q_OBJECT

public:
    // The window owns it.
    explicit ToolBarFit(QMainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Widths
    {
        QToolBar* bar;
        int withText;
        int withIcons;
    };
    void fitSoon();
    void fit();
    void measure();

    QMainWindow* window;
    std::vector<Widths> widths;  // of all bars; empty until they are measured
    bool isPlanned = false;
};
