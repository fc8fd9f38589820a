#include "app/FileDialogs.h"

#include "app/MainWindow.h"
#include "app/ScreenFit.h"

#include <QCollator>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

static QString chosenFile(QFileDialog& dialog)
{
    shrinkOntoScreen(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString askForProjectToOpen(QWidget* parent)
{
    QFileDialog dialog(parent, MainWindow::tr("Open project"), QString(),
                       MainWindow::tr("Project files (*.oidpro)"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosenFile(dialog);
}

QString askForProjectToSave(QWidget* parent)
{
    QFileDialog dialog(parent, MainWindow::tr("Save project"), QString(),
                       MainWindow::tr("Project files (*.oidpro)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix("oidpro");
    return chosenFile(dialog);
}

// The system's dialog reads the semicolons of the filter as separators, Qt's own as part of the
// patterns, and would show the last kind only. There the patterns are set apart from the text that
// the author sees.
static void setPictureFilter(QFileDialog& dialog, const QString& filter)
{
    dialog.setNameFilter(filter);
    QComboBox* const shownFilter = dialog.findChild<QComboBox*>("fileTypeCombo");
    if (shownFilter != nullptr) {
        dialog.setNameFilter(QString(filter).remove(';'));
        shownFilter->setItemText(0, filter);
    }
}

QString askForPicture(QWidget* parent)
{
    QFileDialog dialog(parent, MainWindow::tr("Import Picture"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    setPictureFilter(dialog, MainWindow::tr("Picture files (*.png; *.jpg; *.jpeg; *.bmp)"));
    return chosenFile(dialog);
}

QStringList askForPictures(QWidget* parent)
{
    QFileDialog dialog(parent, MainWindow::tr("Pictures of the pages"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    setPictureFilter(dialog, MainWindow::tr("Picture files (*.png; *.jpg; *.jpeg; *.bmp)"));
    shrinkOntoScreen(dialog);
    QStringList files = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
    QCollator byNumbers{QLocale(QLocale::English)};  // that of the locale "C" has no numbers
    byNumbers.setNumericMode(true);
    std::sort(files.begin(), files.end(), byNumbers);
    return files;
}

QString askForFolder(QWidget* parent, const QString& title, const QString& beginIn)
{
    QFileDialog dialog(parent, title, beginIn);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosenFile(dialog);
}

QString askForTestToSave(QWidget* parent, const QString& suggestion)
{
    QFileDialog dialog(parent, MainWindow::tr("Save book test"), QString(),
                       MainWindow::tr("Book tests (*.booktest)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix("booktest");
    const QFileInfo file(suggestion);
    dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
    return chosenFile(dialog);
}
