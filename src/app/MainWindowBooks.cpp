// The way to a book: the page of an empty window, a new book, the samples, and the last ones.
#include "app/MainWindow.h"

#include "app/FileDialogs.h"
#include "app/NewBookDialog.h"
#include "app/WelcomePage.h"
#include "base/PlatformFiles.h"
#include "document/BookNumbers.h"
#include "page/PageScrollArea.h"
#include "qtsync/ToolTip.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

void MainWindow::prepareWelcome()
{
    auto* const newBook = new QAction(QIcon(":/icons/new-book.svg"), tr("New book..."), this);
    newBook->setObjectName("actionNewBook");
    newBook->setShortcut(QKeySequence("Ctrl+N"));
    newBook->setToolTip(tr("Makes a book with the pictures of its pages"));
    tellKeyOf(*newBook);
    newBook->setPriority(QAction::LowPriority);  // its icon says it
    ui->editBar->addSeparator();
    ui->editBar->addAction(newBook);
    connect(newBook, &QAction::triggered, this, &MainWindow::makeNewBook);

    welcome = new WelcomePage(recentBooks, pictureScroll->viewport());
    connect(welcome, &WelcomePage::newBookAsked, newBook, &QAction::trigger);
    connect(welcome, &WelcomePage::openAsked, ui->action_Open, &QAction::trigger);
    connect(welcome, &WelcomePage::projectAsked, this, &MainWindow::openProject);
    connect(welcome, &WelcomePage::sampleAsked, this, &MainWindow::openSample);
    connect(welcome, &WelcomePage::told, this, qOverload<const QString&>(&MainWindow::tell));
    connect(&document, &Document::changed, this, &MainWindow::updateWelcome);
    updateWelcome();
}

// There is nothing yet.
void MainWindow::updateWelcome()
{
    welcome->setVisible(project.projectPath.empty() && project.pictures.empty());
}

void MainWindow::rememberBook()
{
    const QString file = QString::fromStdString(Platform::nativePath(project.projectPath));
    recentBooks.add(QFileInfo(file).absoluteFilePath());
}

// Beside that of the last book, or among the user's documents.
QString MainWindow::folderOfBooks() const
{
    for (const QString& file : recentBooks.files()) {
        QDir folder = QFileInfo(file).dir();
        if (folder.exists() && folder.cdUp()) {
            return folder.path();
        }
    }
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void MainWindow::makeNewBook()
{
    std::map<int, QString> others;
    for (const QString& file : recentBooks.files()) {
        const int number = numberOfBook(file.toStdString());
        if (number > 0) {
            others[number] = QDir::toNativeSeparators(file);
        }
    }
    NewBookDialog dialog(folderOfBooks(), std::move(others), this);
    if (dialog.exec() == QDialog::Accepted) {
        openProject(dialog.projectFile());
    }
}

// In a folder of its own.
void MainWindow::openSample(const SampleBook& book)
{
    const QString folder =
        askForFolder(this, tr("Folder for your copy of the book"), folderOfBooks());
    if (folder.isEmpty()) {
        return;
    }
    QString copy = folder + '/' + book.name;
    for (int next = 2; QFileInfo::exists(copy); ++next) {
        copy = folder + '/' + book.name + '-' + QString::number(next);
    }
    const QString file = copySampleBook(book, copy);
    if (file.isEmpty()) {
        warn(tr("The book could not be copied to %1.").arg(QDir::toNativeSeparators(copy)),
             "questions-not-saved");
        return;
    }
    openProject(file);
    tell(tr("Your copy of the book lies in %1.").arg(QDir::toNativeSeparators(copy)));
}
