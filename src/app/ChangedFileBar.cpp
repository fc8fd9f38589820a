#include "app/ChangedFileBar.h"

#include "base/PlatformFiles.h"
#include "document/SavedFile.h"

#include <QFileInfo>
#include <QPushButton>

static QFileInfo infoOn(const SavedFile& file)
{
    return QFileInfo(QString::fromStdString(Platform::nativePath(file.path())));
}

ChangedFileBar::ChangedFileBar(const SavedFile& projectFile, QWidget* parent)
    : NoticeBar("changedFileBar", parent), file(projectFile)
{
    const QPushButton* const open =
        addButton("btOpenOther", tr("Open the other"),
                  tr("Shows what the file holds now; your unsaved work is kept and offered"),
                  Qt::ALT | Qt::SHIFT | Qt::Key_O);
    connect(open, &QPushButton::clicked, this, &ChangedFileBar::otherAsked);
    constexpr int kPause = 200;  // ms
    pause.setInterval(kPause);
    pause.setSingleShot(true);
    connect(&pause, &QTimer::timeout, this, &ChangedFileBar::look);
    const auto lookSoon = [this] { pause.start(); };
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, lookSoon);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, lookSoon);
}

void ChangedFileBar::follow()
{
    hide();
    changed = {};
    const QStringList before = watcher.files() + watcher.directories();
    if (!before.isEmpty()) {
        watcher.removePaths(before);
    }
    if (!file.path().empty()) {
        watch();
    }
}

// The folder, too: a file that is written whole is another one in the old one's place.
void ChangedFileBar::watch()
{
    const QFileInfo info = infoOn(file);
    if (info.isFile() && !watcher.files().contains(info.filePath())) {
        watcher.addPath(info.filePath());
    }
    if (watcher.directories().isEmpty()) {
        watcher.addPath(info.absolutePath());
    }
}

void ChangedFileBar::look()
{
    watch();
    const QFileInfo info = infoOn(file);
    if (info.lastModified() == changed && info.size() == size) {
        return;  // something else in the folder has changed
    }
    changed = info.lastModified();
    size = info.size();
    if (!file.wasChanged()) {
        hide();
    } else if (isHidden()) {
        tell(tr("Another window or program has changed the project file since this window opened "
                "or saved it."));
    }
}
