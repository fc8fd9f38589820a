#include "app/MainWindow.h"

#include "app/AboutDialog.h"
#include "app/AreaCommands.h"
#include "app/AreaTools.h"
#include "app/AreasDock.h"
#include "app/BookPrinting.h"
#include "app/ChangedFileBar.h"
#include "app/DecimalComma.h"
#include "app/FileDialogs.h"
#include "app/NumberBar.h"
#include "app/PageMenu.h"
#include "app/PagesDock.h"
#include "app/ProblemsGuide.h"
#include "app/ProductNameNote.h"
#include "app/Recovery.h"
#include "app/RenameEverywhere.h"
#include "app/ScriptAreas.h"
#include "app/SettingsBar.h"
#include "app/SideDocks.h"
#include "app/StorableName.h"
#include "app/SubNameNote.h"
#include "app/ToolBarFit.h"
#include "app/ZoomActions.h"
#include "base/FileSystem.h"
#include "editor/assist/CaretStatus.h"
#include "oid/OpenProject.h"
#include "oid/PrintImage.h"
#include "page/FocusFrame.h"
#include "page/PagePanning.h"
#include "page/PageScrollArea.h"
#include "page/PageTouch.h"
#include "qtsync/KVQtSync.h"
#include "qtsync/ToolTip.h"
#include "qtsync/WhyButton.h"
#include "speech/tab/SpeechTab.h"
#include "tryout/TryTab.h"
#include "ttbasic/ttbasic.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QBoxLayout>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <algorithm>

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), ui(new Ui::MainWindow)
{
    Q_INIT_RESOURCE(plinkett);  // the icons
    ui->setupUi(this);
    takeDrops();
    letPictureScroll();
    letProjectScroll();
    takeDecimalCommas();
    prepareNotices();
    new StorableName(ui->txPolyName);
    new SubNameNote(ui->txPolyName, document, ui->verticalLayout_2, 1);
    new ProductNameNote(ui->txProjectName, ui->lbProjectNameProblems);
    ui->polyArea->setDocument(&document);
    prepareHistory();
    new PageMenu(document, ui->polyArea);
    new AreaCommands(
        document, *ui->polyArea, [this](const QString& text) { tell(text); }, this);
    auto* const rename = new RenameEverywhere(document, ui->codeEditor->surface(), ui->polyArea);
    connect(rename, &RenameEverywhere::told, this, [this](const QString& text) { tell(text); });
    prepareTools();
    const auto typed = [this] {
        document.typeProduct(ui->txProjectName->text().toStdString(), ui->txProjectId->value());
    };
    connect(ui->txProjectName, &QLineEdit::textChanged, &document, typed);
    connect(ui->txProjectId, qOverload<int>(&QSpinBox::valueChanged), &document, typed);
    typed();
    connect(ui->btSizeForAll, &QPushButton::clicked, this, &MainWindow::giveSizeToAllPictures);
    connect(ui->polyArea, &PolyEditorWidget::clickedLB, this, &MainWindow::onPolyAreaClickedLB);
    setDefaultPrintf(KVQtStdoutWidget::redirectPrintf);
    printIntoConsole();
    mi_printf = KVQtStdoutWidget::redirectPrintf;
    prepareTextEditor();
    helpWithScript(*rename);
    prepareRecovery();
    prepareDocks();
    prepareWelcome();
    prepareTrying();
    prepareSpeech();
    preparePrinting();
    prepareBuilding();
    auto* const problems = new ProblemsGuide(*this, *ui, document);
    connect(problems, &ProblemsGuide::manualAsked, this, &MainWindow::showManual);
    prepareManual();
    AboutDialog::addButton(*statusBar());
    tellKeys();
    new ToolBarFit(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focused) {
        if (focused != nullptr && focused == windowHandle()) {
            followOtherWindows();
        }
    });
}

MainWindow::~MainWindow()
{
    docks->save();
    // The console dies with the form; what is said later goes where it went without a window.
    setDefaultPrintf(nullptr);
    project.redirectPrintf(defaultPrintf());
    mi_printf = defaultPrintf();
}

// Fields take drops of their own: the path of a project would be typed into them.
void MainWindow::takeDrops()
{
    for (QLineEdit* const field : findChildren<QLineEdit*>()) {
        field->setAcceptDrops(false);
    }
    setAcceptDrops(true);
}

// A picture is as wide as the tab, or zoomed; every spot of it can be touched on any screen.
void MainWindow::letPictureScroll()
{
    pictureScroll = new PageScrollArea(ui->polyArea);
    docks = new SideDocks(pictureScroll);
    ui->verticalLayout_2->addWidget(docks, 1);
    pictureScroll->setObjectName("pictureScroll");
    pictureScroll->setFocusPolicy(Qt::NoFocus);  // the page has it, and lets it scroll
    new FocusFrame(ui->polyArea, pictureScroll->viewport());
    connect(ui->polyArea, &PolyEditorWidget::cameTo, pictureScroll,
            [this](QPoint pixel) { pictureScroll->ensureVisible(pixel.x(), pixel.y()); });
    new PagePanning(pictureScroll);
    new PageTouch(pictureScroll);
}

void MainWindow::prepareTools()
{
    pickTool.tell = [this](const QString& text) { tell(text); };
    areaTools = std::make_unique<AreaTools>(document, pickTool, *ui->polyArea, *ui->txPolyName,
                                            *ui->editBar);
    connect(areaTools.get(), &AreaTools::told, this, qOverload<const QString&>(&MainWindow::tell));
    new ZoomActions(pictureScroll, *ui->editBar, *ui->statusbar);
}

// What is told below "Create" may be long; on a small screen one scrolls to it.
void MainWindow::letProjectScroll()
{
    auto* const content = new QWidget(ui->tabProject);  // the order of Tab stays within a window
    content->setLayout(ui->verticalLayout_6);           // takes the tab's controls along
    projectScroll = new QScrollArea(ui->tabProject);
    projectScroll->setFrameShape(QFrame::NoFrame);
    projectScroll->setFocusPolicy(Qt::NoFocus);
    projectScroll->setWidgetResizable(true);
    projectScroll->setWidget(content);
    projectScroll->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    auto* const tab = new QVBoxLayout(ui->tabProject);
    tab->setContentsMargins(0, 0, 0, 0);
    tab->addWidget(projectScroll);
}

// Those that stand in no list of their own, which has them behind each name.
void MainWindow::tellKeys()
{
    for (QAction* const action :
         {ui->action_Open, ui->actionSave, ui->action_Save_As, ui->actionUndo, ui->actionRedo}) {
        tellKeyOf(*action);
    }
}

void MainWindow::takeDecimalCommas()
{
    ui->txProjPaperWidth->setValidator(new DecimalComma(this));
    ui->txProjPaperHeight->setValidator(new DecimalComma(this));
}

// Above the tabs, one below the other.
void MainWindow::prepareNotices()
{
    ui->horizontalLayout_3->setDirection(QBoxLayout::TopToBottom);
    numberBar = new NumberBar;
    addNotice(numberBar);
    connect(numberBar, &NumberBar::numberTaken, this, &MainWindow::takeNumber);
    noticeOthers();
    addNotice(new SettingsBar);
}

void MainWindow::addNotice(NoticeBar* bar)
{
    ui->horizontalLayout_3->insertWidget(0, bar);
    connect(bar, &NoticeBar::appears, this, &MainWindow::makeRoomForNotice);
}

// A small screen has no room for a bar and the tabs as they should be. The tabs give way then.
void MainWindow::makeRoomForNotice(bool visible)
{
    const QList<NoticeBar*> bars = findChildren<NoticeBar*>();
    const auto stays = [this](NoticeBar* bar) { return bar != sender() && !bar->isHidden(); };
    const bool any = visible || std::any_of(bars.begin(), bars.end(), stays);
    ui->ribbonTab->setMinimumHeight(any ? ui->ribbonTab->minimumSizeHint().height() / 2 : 0);
}

void MainWindow::takeNumber(int number)
{
    ui->txProjectId->setValue(number);
    keepEdits();
    tell(tr("This book has the number %1 now. Save it to keep that.").arg(number));
}

void MainWindow::printIntoConsole()
{
    ui->txConsole->useThisWidgetForRedirectedPrintf();
    project.redirectPrintf(KVQtStdoutWidget::redirectPrintf);
}

void MainWindow::prepareTextEditor()
{
    KVQtHighlightEditCtrl::OPTIONS& options = ui->codeEditor->options();
    options.set_default_colours_bright();
    options.show_line_numbers = true;
    options.show_whitespace = false;
    KVTextEditor::set_script_rules(ui->codeEditor->editor(), ttbasic::keywords(),
                                   ttbasic::voiceOptions());
}

// The lists of pages and areas, beside the page.
void MainWindow::prepareDocks()
{
    pages = new PagesDock(document, this);
    docks->add(pages, Qt::RightDockWidgetArea, *ui->editBar, "actionDockPages", "dock-pages",
               tr("Shows or hides the list of the pages, in which one goes to pages, moves and "
                  "removes them"),
               QKeySequence("Ctrl+Shift+P"));
    const auto goToPage = [this] {
        if (ui->polyArea->isVisible()) {
            ui->polyArea->setFocus();
        }
    };
    connect(docks, &SideDocks::focusLeft, this, goToPage);
    connect(pages, &PagesDock::clicked, this, goToPage);
    connect(pages, &PagesDock::pageAsked, this, &MainWindow::showPicture);
    connect(pages, &PagesDock::failed, this, &MainWindow::warnOfPictures);
    connect(pages, &PagesDock::told, this, [this](const QString& text) { tell(text); });
    const int behindNext = ui->horizontalLayout->indexOf(ui->btNextPicture) + 1;
    ui->horizontalLayout->insertWidget(behindNext, pages->makeLabel());

    auto* const areas = new AreasDock(document, this);
    docks->add(areas, Qt::RightDockWidgetArea, *ui->editBar, "actionDockAreas", "dock-areas",
               tr("Shows or hides the list of all areas of the book, with what is wrong with them"),
               QKeySequence("Ctrl+Shift+A"));
    connect(areas, &AreasDock::pageAsked, this, goToPage);
    for (const char* const command :
         {"actionCutAreas", "actionCopyAreas", "actionPasteAreas", "actionDuplicateAreas",
          "actionBringForward", "actionSendBackward"}) {
        areas->addCommand(findChild<QAction*>(command));
    }
    // Behind the field of the list, since this may ask.
    connect(areas, &AreasDock::renameAsked, findChild<RenameEverywhere*>(), &RenameEverywhere::give,
            Qt::QueuedConnection);
    connect(areas, &AreasDock::codeAsked, this, &MainWindow::on_btEditPolyCode_clicked);
    const auto lookAtTab = [this] {
        docks->enableActions(ui->ribbonTab->currentWidget() == ui->tabAreas);
    };
    connect(ui->ribbonTab, &QTabWidget::currentChanged, docks, lookAtTab);
    lookAtTab();
}

void MainWindow::helpWithScript(RenameEverywhere& rename)
{
    const auto showPage = [this] {
        ui->ribbonTab->setCurrentWidget(ui->tabAreas);
        ui->polyArea->setFocus();
    };
    KVQtHighlightEditCtrlInlay& script = ui->codeEditor->surface();
    auto* const help = new ScriptHelp(script, areasForScript(document, rename, showPage));
    connect(help, &ScriptHelp::told, this, [this](const QString& text) { tell(text); });
    statusBar()->addPermanentWidget(new CaretStatus(script, *help));
}

void MainWindow::keepSettingsIn(QSettings& settings)
{
    findChild<CaretStatus*>()->keepSettingsIn(settings);
    docks->keepSettingsIn(settings);
    recentBooks.keepIn(settings);
    printing->keepSettingsIn(settings);
    speechTab->keepSettingsIn(settings);
    keepQuickAnswersIn(settings);
    findChild<SettingsBar*>()->watch(settings);
    constexpr char kLetterSize[] = "script/letterSize";  // points
    KVQtHighlightEditCtrlInlay& script = ui->codeEditor->surface();
    bool isNumber = false;
    const int size = settings.value(kLetterSize).toInt(&isNumber);
    if (isNumber) {
        script.SetLetterSize(size);
    }
    connect(&script, &KVQtHighlightEditCtrlInlay::LetterSizeChanged, this,
            [&settings, kLetterSize](int points) { settings.setValue(kLetterSize, points); });
}

void MainWindow::ProjectDataWasChanged(bool toProject)
{
    if (toProject) {
        document.setProduct(ui->txProjectName->text().toStdString(), ui->txProjectId->value());
        ui->txProjectName->setModified(false);
    } else {
        ui->txProjectName->setText(QString::fromStdString(project.productName));
        ui->txProjectId->setValue(project.productId);
    }

    if (const Oid::PICTURE* const picture = ui->polyArea->picture()) {
        const edit::SetPaper paper = syncPaper(toProject);
        const bool changed = paper.width != picture->paperWidth ||
                             paper.height != picture->paperHeight || paper.dpi != picture->dpi;
        if (changed) {
            const QScopedValueRollback<bool> typing(typingPaper, true);
            document.apply(paper, typedPaper);
        }
    }

    if (toProject) {
        project.compiler = ttbasic();
        project.compiler.source = ui->codeEditor->text().toStdString();
        document.numberAllAreas();
    } else {
        showScript();
    }
}

// A text that is there already is left alone, with its undo, its bookmarks and its caret.
void MainWindow::showScript()
{
    const QString script = QString::fromStdString(project.compiler.source);
    if (!ui->codeEditor->holds(script)) {
        ui->codeEditor->setText(script);
    }
}

void MainWindow::on_txProjPaperWidth_textChanged(const QString& /*arg1*/)
{
    ProjectDataWasChanged(true);
}

void MainWindow::on_txProjPaperHeight_textChanged(const QString& /*arg1*/)
{
    ProjectDataWasChanged(true);
}

void MainWindow::on_txProjDPI_textChanged(const QString& /*arg1*/)
{
    ProjectDataWasChanged(true);
}

void MainWindow::on_action_Open_triggered()
{
    const QString path = askForProjectToOpen(this);
    if (!path.isEmpty()) {
        openProject(path);
    }
}

void MainWindow::openProject(const QString& path)
{
    tryTab->keepTest();
    clearMessages();
    recovery->leaving();
    document.leave();
    // Creating print images, for one, goes to another folder.
    const std::string file = QFileInfo(path).absoluteFilePath().toStdString();
    const std::string before = project.projectPath;
    savedFile.isRead(file);
    const bool opened = Oid::openProject(project, file);
    const bool foundMoved = !project.movedPictures.empty();

    showProject(opened);
    if (project.projectPath != before) {
        ui->codeEditor->forgetHistory();  // undo would lead back into the other book
    }
    noteFiles();
    changedFileBar->follow();
    recovery->opened(file, opened);
    if (opened) {
        rememberBook();
    }
    const QString name = QFileInfo(path).fileName();
    tell(opened ? tr("Opened: %1").arg(name) : tr("Not opened: %1").arg(name));
    if (foundMoved && project.movedPictures.empty()) {
        tell(tr("The pictures are in the order of the pages again. Pages had been moved, but not "
                "saved."));
    }
}

void MainWindow::clearMessages()
{
    ui->txConsole->clear();
    ui->lbCreateResult->clear();
    ui->lbBuildResult->clear();
    printIntoConsole();
}

void MainWindow::showProject(bool opened)
{
    ui->ribbonTab->setCurrentWidget(opened ? ui->tabProject : ui->tabBuild);
    // First the index: the form would show, and later write back, the sizes of another page.
    document.restart();
    tryTab->forget();
    speechTab->forget();
    pictureScroll->fit();
    showTopOfPicture();
    selectPolygon(-1);
    ProjectDataWasChanged(false);
    ui->polyArea->repaint();
}

void MainWindow::noteFiles()
{
    numberBar->opened(project);
    companions.areBeside(project);
}

static QString fileName(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).fileName();
}

void MainWindow::on_action_Save_As_triggered()
{
    const QString path = askForProjectToSave(this);
    ProjectDataWasChanged(true);
    if (!path.isEmpty() && !saveProject(path.toStdString())) {
        warn(tr("The file could not be saved to the drive"), "questions-not-saved");
    }
    ProjectDataWasChanged(false);
}

void MainWindow::on_actionSave_triggered()
{
    ProjectDataWasChanged(true);
    if (!FileSystem::doesFileExist(project.projectPath)) {
        on_action_Save_As_triggered();
        return;
    }
    const OtherFile other = othersWouldLose() ? askAboutOther() : OtherFile::overwrite;
    if (other == OtherFile::leave) {
        tell(tr("Not saved: %1").arg(fileName(project.projectPath)));
    } else if (other == OtherFile::open) {
        openOther();
    } else if (other == OtherFile::saveAs || !saveProject(project.projectPath)) {
        on_action_Save_As_triggered();
    }
}

bool MainWindow::saveProject(const std::string& path)
{
    followOtherWindows();
    companions.wereMoved(project);
    const bool saved = document.save(path);
    const QString name = fileName(path);
    tell(saved ? tr("Saved: %1").arg(name) : tr("Not saved: %1").arg(name));
    if (saved) {
        savedFile.isWritten(project);
        changedFileBar->follow();
        numberBar->saved(project);
        recovery->saved(path);
        rememberBook();
        takeFilesAlong();
        companions.wereRenamed(document.wentElsewhere());
    } else if (!document.problem().file.empty()) {
        warnOfPictures();
    }
    return saved;
}

void MainWindow::tell(const QString& text)
{
    statusBar()->showMessage(text);
    if (!text.isEmpty()) {
        QAccessibleEvent alert(statusBar(), QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void MainWindow::tell(QLabel& besideButton, const QString& text)
{
    besideButton.setText(text);
    tell(text);
    if (projectScroll->isAncestorOf(&besideButton)) {
        QTimer::singleShot(0, projectScroll, [this, &besideButton] {  // when it has its place
            projectScroll->ensureWidgetVisible(&besideButton);
        });
    }
}

void MainWindow::warn(const QString& text, const QString& placeInManual, const QString& advice)
{
    warnWithReason(this, tr("Warning"), text, placeInManual, advice);
}

// The one project file of a drag; an empty text for anything else.
static QString draggedProject(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls[0].toLocalFile() : QString();
    return path.endsWith(".oidpro", Qt::CaseInsensitive) ? path : QString();
}

// A file manager that moves files deletes what was accepted as moved.
static void takeCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const bool free = QApplication::activeModalWidget() == nullptr;
    if (free && !draggedProject(*event->mimeData()).isEmpty()) {
        takeCopy(*event);
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    takeCopy(*event);
    openProject(draggedProject(*event->mimeData()));
}
