#include "app/BookPrinting.h"

#include "app/ScreenFit.h"
#include "app/WorkProgress.h"
#include "app/print/KeptOptions.h"
#include "app/print/PdfDialog.h"
#include "app/print/PrinterTestDialog.h"
#include "base/FileSystem.h"
#include "document/Document.h"
#include "oid/PrintImage.h"
#include "oid/PrintMessages.h"
#include "pdf/BookPdf.h"
#include "pdf/TestPage.h"
#include "publish/PrinterTest.h"
#include "publish/console/KVQtStdoutWidget.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QStandardPaths>
#include <QToolButton>

namespace {

// Beside the project, or among the user's documents while there is none.
QString usualFolder(const Oid::OidProject& project)
{
    return project.projectPath.empty()
               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
               : QFileInfo(QString::fromStdString(project.projectPath)).absolutePath();
}

}  // namespace

BookPrinting::BookPrinting(const Document& printed, KVQtStdoutWidget& messages,
                           QToolButton& ofPrinting, QAction* addStart, const Window& around)
    : QObject(&ofPrinting), document(printed), console(messages), button(ofPrinting), of(around)
{
    prepareMenu(ofPrinting, addStart);
}

void BookPrinting::prepareMenu(QToolButton& menuButton, QAction* addStart)
{
    auto* const menu = new QMenu(&menuButton);
    menu->setObjectName("pdfMenu");
    const auto add = [&](const char* name, const QString& text, void (BookPrinting::*made)()) {
        QAction* const action = menu->addAction(text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, made);
    };
    add("actionPdf", tr("&PDF of the book..."), &BookPrinting::makeBook);
    add("actionSymbols", tr("&Symbols and legend..."), &BookPrinting::makeSymbols);
    add("actionPrinterTest", tr("Printer's &test page..."), &BookPrinting::makeTest);
    menu->addSeparator();
    menu->addAction(addStart);
    menuButton.setMenu(menu);
    menuButton.setPopupMode(QToolButton::MenuButtonPopup);
    menuButton.installEventFilter(this);
    connect(&menuButton, &QToolButton::clicked, this, &BookPrinting::makeBook);
}

// A tool button has no keys for its menu.
bool BookPrinting::eventFilter(QObject* /*watched*/, QEvent* event)
{
    const bool isDown =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down;
    if (!isDown && event->type() != QEvent::ContextMenu) {
        return false;
    }
    button.showMenu();
    return true;
}

QWidget* BookPrinting::window() const
{
    return button.window();
}

// Messages go to the console; files that are named without a folder are beside the project.
void BookPrinting::begin()
{
    of.takeForm();
    mi_printf = console.printFunction();
    FileSystem::setCurrentDirectory(FileSystem::getDirectoryOfPath(document.project().projectPath));
}

void BookPrinting::makeBook()
{
    begin();
    askAndMake(keptPdfOptions(*settings), pathPdf(document.project()));
}

void BookPrinting::makeSymbols()
{
    begin();
    PdfOptions options = keptPdfOptions(*settings);
    options.symbols = PdfOptions::Symbols::alone;
    askAndMake(options, pathSymbols(document.project()));
}

void BookPrinting::askAndMake(const PdfOptions& options, const std::string& path)
{
    const Oid::OidProject& project = document.project();
    const int page = document.currentPage();
    if (document.pageAt(page) == PageId::none) {
        of.tell(tr("There is no picture yet"));
        return;
    }
    const QString native =
        QDir::toNativeSeparators(QString::fromStdString(path).replace('\\', '/'));
    PdfDialog dialog(project, PagePreview(project, page, of.picture(), of.selected()), *settings,
                     options, native, window());
    shrinkOntoScreen(dialog);
    if (dialog.exec() == QDialog::Accepted) {
        make(dialog.options(), dialog.file());
    }
}

void BookPrinting::make(const PdfOptions& options, const QString& file)
{
    bool cancelled = false;
    bool made = false;
    const LastMessage lastMessage;
    {
        WorkProgress progress(*window(), tr("Creating the PDF..."), tr("Cancel"));
        made =
            makePdf(document.project(), file.toStdString(), options, [&](int percent, int total) {
                cancelled = !progress.tell(percent, total);
                return !cancelled;
            });
    }
    if (made) {
        of.tell(tr("The PDF was created: %1").arg(QFileInfo(file).fileName()));
    } else if (cancelled) {
        of.tell(tr("Creating was cancelled"));
    } else {
        of.tell(tr("The PDF was not created: %1").arg(QString::fromStdString(lastMessage.line())));
    }
}

void BookPrinting::makeTest()
{
    begin();
    PrinterTestDialog dialog(*settings, printerTestLanguages(), usualFolder(document.project()),
                             window());
    shrinkOntoScreen(dialog);
    if (dialog.exec() == QDialog::Accepted) {
        const PrinterTestOptions options = dialog.options();
        runTest(QDir::fromNativeSeparators(dialog.folder()), options.resolutions, options.language);
    }
}

void BookPrinting::runTest(const QString& folder, const std::vector<int>& resolutions,
                           const QString& language)
{
    bool cancelled = false;
    bool made = false;
    const LastMessage lastMessage;
    {
        WorkProgress progress(*window(), tr("Making the printer's test page..."), tr("Cancel"));
        console.setWhileWaiting([&] {
            if (!progress.stayAlive()) {
                console.stopExecution();
            }
        });
        made = makePrinterTest(folder.toStdString(), resolutions, language.toStdString(), console,
                               [&](int percent, int total) {
                                   cancelled = !progress.tell(percent, total);
                                   return !cancelled;
                               });
        console.setWhileWaiting({});
    }
    if (made) {
        of.tell(tr("Print %1 at 100 %, and copy %2 onto the pen")
                    .arg(QString::fromStdString(printerTestPage()),
                         QString::fromStdString(printerTestGame())));
    } else if (cancelled) {
        of.tell(tr("Creating was cancelled"));
    } else {
        of.tell(tr("The test page was not created: %1")
                    .arg(QString::fromStdString(lastMessage.line())));
    }
}
