#pragma once

#include <QProgressDialog>

// Shows how far a long work of the window is, and lets the author cancel it. The window stays
// painted meanwhile but takes no input, a dropped project file included.
class WorkProgress
{
public:
    WorkProgress(QWidget& worker, const QString& text, const QString& cancel);
    ~WorkProgress();
    WorkProgress(const WorkProgress&) = delete;
    WorkProgress& operator=(const WorkProgress&) = delete;

    // What is done beyond the total shows as all of it. Both false once the author has cancelled.
    bool tell(int done, int total);
    bool stayAlive();  // for a step that takes long: to be called a few times a second

private:
    QWidget& window;
    QProgressDialog dialog;
};
