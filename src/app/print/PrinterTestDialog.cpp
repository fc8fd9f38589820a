#include "app/print/PrinterTestDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kOffered[] = {600, 1200, 2400};

}  // namespace

PrinterTestDialog::PrinterTestDialog(QSettings& userSettings,
                                     const std::vector<std::string>& languages,
                                     const QString& inFolder, QWidget* parent)
    : QDialog(parent),
      settings(userSettings),
      language(new QComboBox),
      path(new QLineEdit(QDir::toNativeSeparators(inFolder))),
      buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("printerTestDialog");
    setWindowTitle(tr("Printer's test page"));
    const PrinterTestOptions kept = keptPrinterTest(settings);
    auto* const what = new QLabel(
        tr("Makes a page and a game that find out how your printer prints dots. Print the page, "
           "copy the game onto the pen, touch the fields, and tell the best one's name where you "
           "make a PDF."));
    what->setWordWrap(true);
    auto* const dpi = new QHBoxLayout;
    for (const int offered : kOffered) {
        auto* const box = new QCheckBox(QString::number(offered));
        box->setObjectName("testDpi" + QString::number(offered));
        box->setAccessibleName(tr("%1 DPI").arg(offered));
        box->setToolTip(tr("Tries this resolution: tick those that your printer has, and the pen "
                           "tells which one is best"));
        box->setChecked(std::count(kept.resolutions.begin(), kept.resolutions.end(), offered) > 0);
        connect(box, &QCheckBox::toggled, this, &PrinterTestDialog::checkComplete);
        dpi->addWidget(box);
        resolutions.push_back(box);
    }
    addLanguages(languages, kept.language);
    path->setObjectName("testFolder");
    path->setAccessibleName(tr("Folder"));
    path->setToolTip(
        tr("The folder in which the page to be printed and the game for the pen are written"));
    path->setAcceptDrops(false);
    connect(path, &QLineEdit::textChanged, this, &PrinterTestDialog::checkComplete);
    auto* const browse = new QPushButton("...");
    browse->setObjectName("testBrowse");
    browse->setToolTip(tr("Chooses another folder"));
    browse->setAccessibleName(tr("Chooses another folder"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &PrinterTestDialog::chooseFolder);
    auto* const place = new QHBoxLayout;
    place->addWidget(path, 1);
    place->addWidget(browse);
    auto* const form = new QFormLayout;
    form->addRow(tr("DPI:"), dpi);
    form->addRow(tr("Language of the pen:"), language);
    form->addRow(tr("Folder:"), place);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Create"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PrinterTestDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrinterTestDialog::reject);
    auto* const all = new QVBoxLayout(this);
    all->addWidget(what);
    all->addLayout(form);
    all->addStretch();
    all->addWidget(buttons);
    checkComplete();
}

// Each by its own name. Unless one was chosen before, it is that of the window.
void PrinterTestDialog::addLanguages(const std::vector<std::string>& languages,
                                     const QString& chosen)
{
    language->setObjectName("testLanguage");
    language->setAccessibleName(tr("Language of the pen"));
    language->setToolTip(tr("The language in which the pen names the fields"));
    for (const std::string& one : languages) {
        const QString code = QString::fromStdString(one);
        QString name = QLocale(code).nativeLanguageName();
        name[0] = name[0].toUpper();
        language->addItem(code == "en" ? "English" : name, code);
    }
    //: The code of the language of this translation: en, de, fr or nl.
    const QString ofWindow = tr("en");
    const int index = language->findData(chosen.isEmpty() ? ofWindow : chosen);
    language->setCurrentIndex(std::max(index, 0));
}

PrinterTestOptions PrinterTestDialog::options() const
{
    PrinterTestOptions options;
    for (const QCheckBox* const box : resolutions) {
        if (box->isChecked()) {
            options.resolutions.push_back(box->text().toInt());
        }
    }
    options.language = language->currentData().toString();
    return options;
}

QString PrinterTestDialog::folder() const
{
    return path->text().trimmed();
}

void PrinterTestDialog::chooseFolder()
{
    QFileDialog dialog(this, tr("Folder"), folder());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() == QDialog::Accepted) {
        path->setText(QDir::toNativeSeparators(dialog.selectedFiles().value(0)));
    }
}

void PrinterTestDialog::checkComplete()
{
    const bool complete = !options().resolutions.empty() && !folder().isEmpty();
    buttons->button(QDialogButtonBox::Ok)->setEnabled(complete);
}

void PrinterTestDialog::accept()
{
    keepPrinterTest(settings, options());
    QDialog::accept();
}
