#include "app/ScreenFit.h"

#include <QScreen>
#include <QWidget>

void fitOntoScreen(QWidget& window)
{
    const QSize space = window.screen()->availableSize();
    const QSize fitting = window.size().boundedTo(space);
    if (fitting != window.size()) {
        window.resize(fitting);
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}
