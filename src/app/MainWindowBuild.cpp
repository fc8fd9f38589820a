// What comes out of the project: print images, the game file, and its way onto the pen.
#include "app/MainWindow.h"

#include "app/AreaTools.h"
#include "app/BookPrinting.h"
#include "app/Recovery.h"
#include "app/WorkProgress.h"
#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "document/StartSymbol.h"
#include "oid/PictureFile.h"
#include "oid/PrintImage.h"
#include "oid/PrintJob.h"
#include "publish/Assembling.h"
#include "publish/BuildDriver.h"
#include "publish/PenCopy.h"
#include "qtsync/FlowLayout.h"
#include "speech/tab/SpeechTab.h"
#include "ui_MainWindow.h"

#include <QPointer>
#include <QSettings>

void MainWindow::giveSizeToAllPictures()
{
    ProjectDataWasChanged(true);
    const Oid::PICTURE* const current = ui->polyArea->picture();
    if (current == nullptr) {
        tell(*ui->lbCreateResult, tr("There is no picture yet"));
        return;
    }
    if (current->paperWidth <= 0 || current->paperHeight <= 0 || current->dpi <= 0) {
        tell(*ui->lbCreateResult, tr("Paper size and DPI must be greater than 0"));
        return;
    }
    const Gesture allPages = document.newGesture();
    edit::SetPaper paper{0, current->paperWidth, current->paperHeight, current->dpi};
    for (; paper.page < static_cast<int>(project.pictures.size()); ++paper.page) {
        document.apply(paper, allPages);
    }
    document.endGesture();
    tell(*ui->lbCreateResult, tr("All pictures have this paper and these DPI now"));
}

QString MainWindow::tooFewDpi() const
{
    QStringList lines;
    for (const int n : picturesWithTooFewDpi(project)) {
        const int dpi = project.pictures[static_cast<size_t>(n)].dpi;
        lines << tr("picture %1: %2 DPI are too few for the dots").arg(n).arg(dpi);
    }
    return lines.join('\n');
}

// What came of creating, in one sentence. The errors are those of the console.
static QString sentenceOn(const PrintJobResult& result)
{
    if (result.cancelled) {
        return MainWindow::tr("Creating was cancelled");
    }
    if (result.firstFailed >= 0) {
        return MainWindow::tr("Picture %1 was not created: %2")
            .arg(QString::number(result.firstFailed), QString::fromStdString(result.firstError));
    }
    switch (result.created) {
    case 0:
        return MainWindow::tr("There is no picture yet");
    case 1:
        return MainWindow::tr("1 print image created");
    default:
        return MainWindow::tr("%1 print images created").arg(result.created);
    }
}

// As printing leaves them, so that undoing knows of it.
void MainWindow::turnAreasForPrint()
{
    for (int n = 0; n < static_cast<int>(project.pictures.size()); ++n) {
        if (FileSystem::doesFileExist(project.pathImageSource(n))) {
            document.orientAreas(n);
        }
    }
}

void MainWindow::on_btCreateImage_clicked()
{
    ProjectDataWasChanged(true);
    recovery->keep();
    mi_printf = ui->txConsole->printFunction();
    FileSystem::setCurrentDirectory(FileSystem::getDirectoryOfPath(project.projectPath));
    const QString warnings = tooFewDpi();
    ui->lbCreateResult->setText(warnings);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);  // so that they are seen
    turnAreasForPrint();
    PrintJobResult result;
    {
        WorkProgress progress(*this, tr("Creating the print images..."), tr("Cancel"));
        result = makeImages(project,
                            [&](int percent, int total) { return progress.tell(percent, total); });
    }
    tell(*ui->lbCreateResult, sentenceOn(result));
    if (!warnings.isEmpty()) {
        ui->lbCreateResult->setText(ui->lbCreateResult->text() + '\n' + warnings);
    }
}

void MainWindow::preparePrinting()
{
    auto* const addStart = new QAction(tr("Add START &symbol"), this);
    addStart->setObjectName("actionAddStart");
    addStart->setToolTip(
        tr("An area with the number of the book, which the pen must touch before it knows it"));
    connect(addStart, &QAction::triggered, this, &MainWindow::addStartSymbol);
    ui->polyArea->addAction(addStart);
    BookPrinting::Window window;
    window.takeForm = [this] {
        ProjectDataWasChanged(true);
        recovery->keep();
    };
    window.tell = [this](const QString& text) { tell(*ui->lbCreateResult, text); };
    window.picture = [this] { return currentPicture(); };
    window.selected = [this] { return middleOfSelectedArea(); };
    printing = new BookPrinting(document, *ui->txConsole, *ui->btCreatePdf, addStart, window);
}

// The page on the screen has it, if it has been shown since.
QImage MainWindow::currentPicture() const
{
    const std::string path = project.pathImageSource(document.currentPage());
    return ui->polyArea->loadedPath == path
               ? ui->polyArea->loadedImage()
               : PictureFile(QString::fromStdString(Platform::nativePath(path))).read();
}

std::optional<Oid::PNT> MainWindow::middleOfSelectedArea() const
{
    const Oid::POLY* const area = selectedArea();
    if (area == nullptr || area->points.empty()) {
        return std::nullopt;
    }
    Oid::POLY bounded = *area;
    prepareBounds(bounded);
    return Oid::PNT{(bounded.minX + bounded.maxX) / 2, (bounded.minY + bounded.maxY) / 2};
}

void MainWindow::addStartSymbol()
{
    keepEdits();
    areaTools->pick();
    const std::string picture = project.pathImageSource(document.currentPage());
    const StartSymbol start =
        giveStartSymbol(document, PictureFile(QString::fromStdString(picture)).uprightSize());
    if (start.area == AreaId::none) {
        tell(tr("There is no picture yet"));
        return;
    }
    ui->ribbonTab->setCurrentWidget(ui->tabAreas);
    showSelectedArea();
    ui->polyArea->setFocus();
    const Oid::POLY& area = *selectedArea();
    emit ui->polyArea->cameTo(ui->polyArea->toPix(area.points.front()));
    ui->polyArea->paintChanges();
    if (!start.isNew) {
        tell(tr("This page has its START symbol already: %1")
                 .arg(QString::fromStdString(area.name)));
    } else if (start.covers) {
        tell(tr("The START symbol lies over other areas: nothing of the page is free. Move it."));
    } else {
        tell(tr("The START symbol is on the page. Drag it where you like."));
    }
}

// On a small screen the controls need two rows.
void MainWindow::prepareBuilding()
{
    auto* const controls = new FlowLayout;
    for (QWidget* const control :
         {static_cast<QWidget*>(ui->btBuild), static_cast<QWidget*>(ui->chDebugMode),
          static_cast<QWidget*>(ui->btCopyToPen), static_cast<QWidget*>(ui->chQuickAnswers)}) {
        controls->addWidget(control);
    }
    ui->horizontalLayout_6->insertLayout(0, controls);
    ui->chQuickAnswers->setChecked(!isTttoolThere());
}

void MainWindow::keepQuickAnswersIn(QSettings& settings)
{
    constexpr char kQuickAnswers[] = "build/quickAnswers";
    const QString kept = settings.value(kQuickAnswers).toString();
    if (kept == "true" || kept == "false") {
        ui->chQuickAnswers->setChecked(kept == "true");
    }
    connect(ui->chQuickAnswers, &QCheckBox::clicked, this,
            [&settings, kQuickAnswers](bool on) { settings.setValue(kQuickAnswers, on); });
}

void MainWindow::on_btBuild_clicked()
{
    KVQtStdoutWidget& console = *ui->txConsole;
    console.clear();
    ProjectDataWasChanged(true);
    recovery->keep();
    printIntoConsole();
    const bool debugMode = ui->chDebugMode->checkState() == Qt::Checked;
    BuildOptions options;
    options.createSoundFiles = [this] { return createSoundFiles(); };
    options.answers = ui->chQuickAnswers->isChecked() ? Answers::quick : Answers::plain;
    tell(*ui->lbBuildResult, tr("Building..."));
    const bool complete = buildGame(project, debugMode, console, options);
    const QString game = QString::fromStdString(FileSystem::getFilenameOfPath(project.pathGme()));
    waitForAssembler([this, complete, game] {
        const bool built = complete && ui->txConsole->exitCode() == 0;
        tell(*ui->lbBuildResult, built ? tr("The game was built: %1").arg(game)
                                       : tr("The game was not built. The console tells why."));
    });
}

// A button that goes grey hands the keyboard on to another control, and gets it back.
void MainWindow::waitForAssembler(const std::function<void()>& done)
{
    const auto letBuildAndCopy = [this](bool free) {
        ui->btBuild->setEnabled(free && !speechTab->isBusy());
        ui->btCopyToPen->setEnabled(free);
        speechTab->setBuilding(!free);
    };
    const QPointer<QWidget> before = focusWidget();
    letBuildAndCopy(false);
    const QPointer<QWidget> meanwhile = focusWidget();
    ui->txConsole->whenEnded([=] {
        letBuildAndCopy(true);
        if (before != nullptr && focusWidget() == meanwhile) {
            before->setFocus();
        }
        done();
    });
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
    const bool built = FileSystem::doesFileExist(project.pathGme());
    const std::string script = ui->codeEditor->text().toStdString();
    switch (copyGmeToPen(project, script, *ui->txConsole)) {
    case PenCopy::done:
        tell(*ui->lbBuildResult, tr("The game was copied to the pen, which can be unplugged"));
        break;
    case PenCopy::stillInUse:
        tell(*ui->lbBuildResult,
             tr("The game was copied to the pen. Eject it before you unplug it"));
        break;
    case PenCopy::failed:
        tell(*ui->lbBuildResult, built ? tr("The game was not copied to the pen")
                                       : tr("There is no game yet: build it first"));
        break;
    case PenCopy::noPen:
        tell(*ui->lbBuildResult,
             tr("No pen was found: a pen is a drive that holds the file %1").arg(kPenMark));
        break;
    }
}
