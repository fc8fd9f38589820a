#include "app/WorkProgress.h"

#include <QCoreApplication>

#include <algorithm>

WorkProgress::WorkProgress(QWidget& worker, const QString& text, const QString& cancel)
    : window(worker), dialog(text, cancel, 0, 0, &worker)
{
    window.setAcceptDrops(false);
    dialog.setWindowTitle(worker.windowTitle());
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setMinimumDuration(500);  // short work shows no dialog
    dialog.setAutoReset(false);
}

WorkProgress::~WorkProgress()
{
    window.setAcceptDrops(true);
}

bool WorkProgress::tell(int done, int total)
{
    if (dialog.wasCanceled()) {
        return false;
    }
    dialog.setMaximum(total);
    dialog.setValue(std::min(done, total));  // handles pending events when the dialog is shown
    return !dialog.wasCanceled();
}

bool WorkProgress::stayAlive()
{
    // Only a dialog that is shown keeps clicks and keys from the window.
    QCoreApplication::processEvents(dialog.isVisible() ? QEventLoop::AllEvents
                                                       : QEventLoop::ExcludeUserInputEvents);
    return !dialog.wasCanceled();
}
