#pragma once

#include <QProgressDialog>
#include <QTimer>

// Presses "Cancel" in the first progress dialog that the window shows while this lives, and notes
// what it showed.
class ProgressCancel
{
public:
    explicit ProgressCancel(QWidget& window)
    {
        QObject::connect(&timer, &QTimer::timeout, [this, &window] {
            QProgressDialog* const progress = window.findChild<QProgressDialog*>();
            if (progress != nullptr && progress->isVisible()) {
                timer.stop();
                title = progress->windowTitle();
                steps = progress->maximum();
                done = true;
                progress->cancel();
            }
        });
        timer.start(10);
    }

    bool done = false;
    QString title;
    int steps = 0;

private:
    QTimer timer;
};
