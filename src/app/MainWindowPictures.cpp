// The pages: going from one to the next, bringing in their pictures.
#include "app/MainWindow.h"

#include "app/FileDialogs.h"
#include "app/PagesDock.h"
#include "app/SideDocks.h"
#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "document/NewPage.h"
#include "oid/PictureFile.h"
#include "page/PageScrollArea.h"
#include "ui_MainWindow.h"

#include <QMessageBox>
#include <QScrollBar>

bool MainWindow::formWasEdited() const
{
    return ui->txProjectName->isModified() || ui->txProjectId->value() != project.productId ||
           ui->codeEditor->text().toStdString() != project.compiler.source;
}

void MainWindow::keepEdits()
{
    if (formWasEdited()) {
        ProjectDataWasChanged(true);
    }
}

void MainWindow::showPicture(int index)
{
    keepEdits();
    document.select(index, document.selectedIndex());
    showTopOfPicture();
    ui->polyArea->repaint();
    ProjectDataWasChanged(false);
    showSelectedArea();
}

// A page is read from its top.
void MainWindow::showTopOfPicture()
{
    pictureScroll->verticalScrollBar()->setValue(0);
}

void MainWindow::on_btNextPicture_clicked()
{
    const int next = document.currentPage() + 1;
    const int count = static_cast<int>(project.pictures.size());
    if (next < count) {
        showPicture(next);
        return;
    }
    const std::optional<PictureCopy> chosen = choosePicture(count);
    if (!chosen) {
        return;
    }
    if (keepPicture(newPage(*chosen))) {
        showPicture(count);
    }
}

// Next does not wrap, so that there is a way to append; Previous does.
void MainWindow::on_btPreviousPicture_clicked()
{
    const int count = static_cast<int>(project.pictures.size());
    if (count == 0) {
        on_btNextPicture_clicked();
        return;
    }
    const int current = document.currentPage();
    showPicture(current > 0 ? current - 1 : count - 1);
}

void MainWindow::on_btLoadImage_clicked()
{
    if (project.pictures.empty()) {
        on_btNextPicture_clicked();
        return;
    }
    const int page = document.currentPage();
    const std::optional<PictureCopy> chosen = choosePicture(page);
    if (chosen && keepPicture(edit::ReplacePicture{page, chosen->file()})) {
        ui->polyArea->repaint();
    }
}

std::optional<PictureCopy> MainWindow::choosePicture(int n)
{
    if (project.projectPath.empty()) {
        warn(tr("Save the project first: its pictures are kept beside the project file."),
             "questions-save-first");
        return std::nullopt;
    }
    const QString path = askForPicture(this);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    keepEdits();  // the copy is named by the id; and the paper fields belong to the old picture
    PictureCopy picture(path);
    if (picture.image().isNull()) {
        warn(tr("Can't load that picture."), "questions-picture");
        return std::nullopt;
    }
    if (FileSystem::doesFileExist(project.pathImageSource(n)) &&
        askToOverwrite(project.pathImageSource(n), QMessageBox::Yes | QMessageBox::No) !=
            QMessageBox::Yes) {
        return std::nullopt;
    }
    return picture;
}

int MainWindow::askToOverwrite(const std::string& path, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Question, tr("Overwrite Picture"),
                    tr("Do you want to overwrite the picture in the cache?"), buttons, this);
    box.setInformativeText(QString::fromStdString(Platform::nativePath(path)));
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec();
}

bool MainWindow::keepPicture(const Edit& edit)
{
    const bool kept = document.apply(edit);
    if (!kept) {
        warnWithPictureProblem(tr("The picture could not be kept beside the project file."));
    }
    return kept;
}

void MainWindow::warnOfPictures()
{
    warnWithPictureProblem(tr("The pictures could not be brought to their pages."));
}

void MainWindow::warnWithPictureProblem(const QString& what)
{
    const FileProblem& problem = document.problem();
    const QString details =
        QString::fromStdString(problem.file) + "\n" + QString::fromStdString(problem.cause);
    warn(problem.file.empty() ? what : what + "\n\n" + details, "questions-picture-files");
}

void MainWindow::takeFilesAlong()
{
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    if (project.pictures.size() > 1) {
        buttons |= QMessageBox::YesToAll | QMessageBox::NoToAll;
    }
    int answer = QMessageBox::NoButton;
    const CompanionFiles::Outcome outcome =
        companions.follow(project, [&](const std::string& path) {
            if (answer != QMessageBox::YesToAll && answer != QMessageBox::NoToAll) {
                answer = askToOverwrite(path, buttons);
            }
            return answer == QMessageBox::Yes || answer == QMessageBox::YesToAll;
        });
    if (outcome.copied) {
        ui->polyArea->loadedPath.clear();
        ui->polyArea->repaint();
    }
    if (!outcome.failed.empty()) {
        warnOfMissingCopies(outcome.failed);
    }
}

void MainWindow::warnOfMissingCopies(const std::vector<std::string>& paths)
{
    QStringList shown;
    for (const std::string& path : paths) {
        shown << QString::fromStdString(path);
    }
    warn(tr("These files could not be copied along. The old ones are still where they were.") +
             "\n\n" + shown.join('\n'),
         "questions-not-copied");
}

void MainWindow::on_btDeletePicture_clicked()
{
    if (QMessageBox::question(this, tr("Delete Picture"),
                              tr("Do you really want to delete this picture?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    const bool hasPage = document.pageAt(document.currentPage()) != PageId::none;
    // Intended: the pictures' files are named by number, so none can go. Not translated, either.
    warn("This is not implemented, yet. You must edit the project file and also RENAME the source "
         "images!",
         "questions-removed-page",
         hasPage ? tr("Pages are removed in the list of the pages, which opens now: Delete removes "
                      "this one, and Undo brings it back.")
                 : QString());
    if (hasPage) {
        showHowToRemovePage();
    }
}

// There the picture goes along with its page.
void MainWindow::showHowToRemovePage()
{
    docks->open(*pages);
    tell(tr("Delete removes page %1, and Undo brings it back.").arg(document.currentPage() + 1));
}
