#include "app/ScreenFit.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

// The free space of the screen, less what the title bar takes of it. How high that is on this
// desktop is not known before a window is shown; the style's is about as high.
static QSize roomFor(const QWidget& window)
{
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return window.screen()->availableSize() - QSize(0, titleBar);
}

void fitOntoScreen(QWidget& window)
{
    const QSize fitting = window.size().boundedTo(roomFor(window));
    if (fitting != window.size()) {
        window.resize(fitting);
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}

void shrinkOntoScreen(QWidget& dialog)
{
    dialog.resize(dialog.size().boundedTo(roomFor(dialog)));
}
