// What comes out of the project: print images, the game file, and its way onto the pen.
#include "app/MainWindow.h"

#include "base/FileSystem.h"
#include "build/BuildDriver.h"
#include "build/PenCopy.h"
#include "oid/PrintImage.h"
#include "ui_MainWindow.h"

#include <QProgressDialog>

namespace {

// A progress dialog that keeps the window painted while it is told how far the work is.
class Progress
{
public:
    Progress(QWidget* parent, const QString& text, const QString& cancel)
        : dialog(text, cancel, 0, 0, parent)
    {
        dialog.setWindowModality(Qt::WindowModal);
        dialog.setMinimumDuration(500);
        dialog.setAutoReset(false);
    }

    // False once the author has cancelled.
    bool tell(int done, int total)
    {
        dialog.setMaximum(total);
        dialog.setValue(done);  // handles pending events
        return !dialog.wasCanceled();
    }

private:
    QProgressDialog dialog;
};

}  // namespace

void MainWindow::on_btCreateImage_clicked()
{
    ProjectDataWasChanged(true);
    FileSystem::setCurrentDirectory(FileSystem::getDirectoryOfPath(project.projectPath));
    const int count = static_cast<int>(project.pictures.size());
    Progress progress(this, tr("Creating the print images..."), tr("Cancel"));
    bool goOn = true;
    for (int i = 0; i < count && goOn; ++i) {
        makeImage(i, project, [&](int percent) {
            goOn = progress.tell(100 * i + percent, 100 * count);
            return goOn;
        });
    }
}

void MainWindow::on_btBuild_clicked()
{
    ui->txConsole->clear();
    ProjectDataWasChanged(true);
    printIntoConsole();
    mi_printf = KVQtStdoutWidget::redirectPrintf;
    const bool debugMode = ui->chDebugMode->checkState() == Qt::Checked;
    Progress progress(this, tr("Making the speech..."), tr("Cancel"));
    BuildOptions options;
    options.speechProgress = [&](int done, int total) { return progress.tell(done, total); };
    buildGame(project, debugMode, *ui->txConsole, options);
}

void MainWindow::on_btCopyToPen_clicked()
{
    copyGmeToTipToi();
}

void MainWindow::copyGmeToTipToi()
{
    copyGmeToPen(project, *ui->txConsole);
}
