// What comes out of the project: print images, the game file, and its way onto the pen.
#include "app/MainWindow.h"

#include "app/WorkProgress.h"
#include "base/FileSystem.h"
#include "build/BuildDriver.h"
#include "build/PenCopy.h"
#include "oid/PrintImage.h"
#include "ui_MainWindow.h"

#include <QStatusBar>

void MainWindow::on_btCreateImage_clicked()
{
    ProjectDataWasChanged(true);
    FileSystem::setCurrentDirectory(FileSystem::getDirectoryOfPath(project.projectPath));
    const int count = static_cast<int>(project.pictures.size());
    std::vector<int> made;
    ui->statusbar->clearMessage();
    WorkProgress progress(*this, tr("Creating the print images..."), tr("Cancel"));
    bool goOn = true;
    for (int i = 0; i < count && goOn; ++i) {
        const bool written = makeImage(i, project, [&](int percent) {
            goOn = progress.tell(100 * i + percent, 100 * count);
            return goOn;
        });
        if (written) {
            made.push_back(i);
        }
    }
    tellOfPrintImages(made);
}

void MainWindow::tellOfPrintImages(const std::vector<int>& made)
{
    constexpr int kLeastDpi = 600;
    QStringList coarse;
    for (const int i : made) {
        if (project.pictures[static_cast<size_t>(i)].dpi < kLeastDpi) {
            const std::string path = project.pathImageOutput(i);
            coarse << QString::fromStdString(FileSystem::getFilenameOfPath(path));
        }
    }
    const QString text =
        coarse.isEmpty() ? tr("Print images made: %1 of %2")
                         : tr("Print images made: %1 of %2. Less than 600 DPI, too coarse for the "
                              "dots: %3");
    const QString counted = text.arg(made.size()).arg(project.pictures.size());
    ui->statusbar->showMessage(coarse.isEmpty() ? counted : counted.arg(coarse.join(", ")));
}

void MainWindow::on_btBuild_clicked()
{
    ui->txConsole->clear();
    ProjectDataWasChanged(true);
    printIntoConsole();
    mi_printf = KVQtStdoutWidget::redirectPrintf;
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
