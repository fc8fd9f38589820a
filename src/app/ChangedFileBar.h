#pragma once

#include "app/NoticeBar.h"

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QTimer>

class SavedFile;

// Tells as soon as another window or program has written the project file, and offers to open what
// it holds now.
class ChangedFileBar : public NoticeBar
{
    Q_OBJECT

public:
    // The file outlives the bar.
    explicit ChangedFileBar(const SavedFile& projectFile, QWidget* parent = nullptr);

    // The window has read or written it, or it is another file now.
    void follow();

signals:
    void otherAsked();

private:
    void watch();
    void look();

    const SavedFile& file;
    QFileSystemWatcher watcher;
    QTimer pause;       // until a program that writes is done
    QDateTime changed;  // the file, when it was looked at
    qint64 size = 0;    // and of how many bytes it was
};
