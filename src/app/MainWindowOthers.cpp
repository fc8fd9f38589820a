// Other windows and programs that work on the same project.
#include "app/MainWindow.h"

#include "app/ChangedFileBar.h"
#include "app/Recovery.h"
#include "base/PlatformFiles.h"
#include "qtsync/WhyButton.h"

#include <QFileInfo>
#include <QPushButton>

void MainWindow::noticeOthers()
{
    changedFileBar = new ChangedFileBar(savedFile);
    addNotice(changedFileBar);
    connect(changedFileBar, &ChangedFileBar::otherAsked, this, &MainWindow::openOther);
}

// Called whenever the author comes back to this window, and before a save.
void MainWindow::followOtherWindows()
{
    const bool knew = document.isOutdated();
    document.followOthers();
    if (document.isOutdated() && !knew) {
        tell(tr("%1: another window has moved pages and saved that. Open the book again.")
                 .arg(QFileInfo(QString::fromStdString(project.projectPath)).fileName()));
    }
}

// One that moved pages makes the save fail, which says more.
bool MainWindow::othersWouldLose()
{
    followOtherWindows();
    return !document.isOutdated() && savedFile.wouldBeLost(project);
}

MainWindow::OtherFile MainWindow::askAboutOther()
{
    QMessageBox box(
        QMessageBox::Question, tr("Save project"),
        tr("Another window or program has changed the project file since this window opened or "
           "saved it."),
        QMessageBox::Cancel, this);
    box.setInformativeText(
        QString::fromStdString(Platform::nativePath(project.projectPath)) + "\n\n" +
        tr("Overwriting loses what the file holds now. When you open that, your unsaved work is "
           "kept and offered."));
    QPushButton* const saveAs = box.addButton(tr("Save &as..."), QMessageBox::AcceptRole);
    const QPushButton* const open = box.addButton(tr("Open the o&ther"), QMessageBox::ActionRole);
    const QPushButton* const overwrite =
        box.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    box.setDefaultButton(saveAs);
    new WhyButton(box, "files-two-windows");
    box.exec();
    return box.clickedButton() == saveAs      ? OtherFile::saveAs
           : box.clickedButton() == open      ? OtherFile::open
           : box.clickedButton() == overwrite ? OtherFile::overwrite
                                              : OtherFile::leave;
}

void MainWindow::openOther()
{
    if (!recovery->keepNow()) {
        warn(tr("Your unsaved work cannot be kept. Save it under another name first."),
             "questions-not-kept");
        return;
    }
    openProject(QString::fromStdString(Platform::nativePath(project.projectPath)));
}
