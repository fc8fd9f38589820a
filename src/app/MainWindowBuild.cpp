// What comes out of the project: print images, the game file, and its way onto the pen.
#include "app/MainWindow.h"

#include "app/WorkProgress.h"
#include "base/FileSystem.h"
#include "oid/PrintImage.h"
#include "publish/BuildDriver.h"
#include "publish/PenCopy.h"
#include "ui_MainWindow.h"

void MainWindow::on_btCreateImage_clicked()
{
    ProjectDataWasChanged(true);
    FileSystem::setCurrentDirectory(FileSystem::getDirectoryOfPath(project.projectPath));
    const int count = static_cast<int>(project.pictures.size());
    WorkProgress progress(*this, tr("Creating the print images..."), tr("Cancel"));
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
    const bool debugMode = ui->chDebugMode->checkState() == Qt::Checked;
    BuildOptions options;
    options.createSoundFiles = [this] { return createSoundFiles(); };
    buildGame(project, debugMode, *ui->txConsole, options);
}

SpeechOutcome MainWindow::createSoundFiles()
{
    KVQtStdoutWidget& console = *ui->txConsole;
    WorkProgress progress(*this, tr("Making the speech..."), tr("Cancel"));
    console.setWhileWaiting([&] {
        if (!progress.stayAlive()) {
            console.stopExecution();
        }
    });
    const SpeechOutcome outcome = ::createSoundFiles(
        project, console, [&](int done, int total) { return progress.tell(done, total); });
    console.setWhileWaiting({});
    return outcome;
}

void MainWindow::on_btCopyToPen_clicked()
{
    copyGmeToTipToi();
}

void MainWindow::copyGmeToTipToi()
{
    copyGmeToPen(project, *ui->txConsole);
}
