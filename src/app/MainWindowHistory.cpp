// Undo and redo, and what the window shows of a change.
#include "app/MainWindow.h"

#include "qtsync/KVQtSync.h"
#include "ui_MainWindow.h"

#include <QKeyEvent>

namespace {

// A field whose typing is part of the document's history leaves the keys of undo and redo to it.
class HistoryField : public QObject
{
public:
    explicit HistoryField(QWidget* field) : QObject(field) { field->installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*field*/, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride) {
            return false;
        }
        const auto* const key = static_cast<QKeyEvent*>(event);
        return key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
    }
};

}  // namespace

void MainWindow::prepareHistory()
{
    for (QLineEdit* const field : {ui->txPolyName, ui->txOidOfArea->findChild<QLineEdit*>(),
                                   ui->txProjPaperWidth, ui->txProjPaperHeight, ui->txProjDPI}) {
        new HistoryField(field);
        connect(field, &QLineEdit::editingFinished, &document, &Document::endGesture);
    }
    new HistoryField(ui->txOidOfArea);
    ui->actionUndo->setShortcut(QKeySequence("Ctrl+Z"));
    ui->actionRedo->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
    connect(ui->actionUndo, &QAction::triggered, this, &MainWindow::undo);
    connect(ui->actionRedo, &QAction::triggered, this, &MainWindow::redo);
    connect(ui->ribbonTab, &QTabWidget::currentChanged, this, &MainWindow::updateHistoryActions);
    connect(&document, &Document::changed, this, &MainWindow::showChange);
    connect(&document, &Document::pagesArranged, this,
            [this](const std::vector<int>& from) { companions.pagesArranged(from); });
    updateHistoryActions();
}

bool MainWindow::scriptIsShown() const
{
    return ui->ribbonTab->currentWidget() == ui->tabScript;
}

// The script keeps its own history; what it has is asked when it is wanted.
void MainWindow::updateHistoryActions()
{
    ui->actionUndo->setEnabled(scriptIsShown() || document.canUndo());
    ui->actionRedo->setEnabled(scriptIsShown() || document.canRedo());
}

void MainWindow::undo()
{
    if (scriptIsShown()) {
        ui->codeEditor->surface().OnEditUndo();
    } else if (document.canUndo() && !document.undo()) {
        warnOfPictures();
    }
}

void MainWindow::redo()
{
    if (scriptIsShown()) {
        ui->codeEditor->surface().OnEditRedo();
    } else if (document.canRedo() && !document.redo()) {
        warnOfPictures();
    }
}

void MainWindow::showChange(const Change& change)
{
    updateHistoryActions();
    if (change.has(Change::pictureFile) && change.page >= 0) {
        companions.cameIn(project, change.page);
    }
    if (!typingPaper && (change.has(Change::paper) || change.has(Change::selection))) {
        showPaper();
    }
    if (change.has(Change::selection) || change.has(Change::areas) || change.has(Change::names) ||
        change.has(Change::numbers)) {
        showSelectedArea();
    }
}

void MainWindow::showPaper()
{
    if (ui->polyArea->picture() != nullptr) {
        syncPaper(false);
    }
}

edit::SetPaper MainWindow::syncPaper(bool fromFields) const
{
    const Oid::PICTURE& picture = *ui->polyArea->picture();
    edit::SetPaper paper{document.currentPage(), picture.paperWidth, picture.paperHeight,
                         picture.dpi};
    KVQtSync sync(fromFields);  // blocks the fields' signals, so filling them changes nothing
    sync.syncI(paper.dpi, ui->txProjDPI);
    sync.syncD(paper.width, ui->txProjPaperWidth);
    sync.syncD(paper.height, ui->txProjPaperHeight);
    return paper;
}
