#include "app/print/PdfDialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>

#include <algorithm>

#include "app/print/DotPreview.h"
#include "app/print/KeptOptions.h"
#include "app/print/PrinterBox.h"
#include "pdf/PageList.h"

namespace {

constexpr int kUsualMargin = -1;  // in the field of the margin

template <typename Choice>
void choose(QComboBox& box, Choice choice)
{
    box.setCurrentIndex(box.findData(static_cast<int>(choice)));
}

// Narrow enough for a small screen, whatever its entries say.
QComboBox* choices(const char* name)
{
    auto* const box = new QComboBox;
    box->setObjectName(name);
    box->setMinimumContentsLength(16);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

}  // namespace

PdfDialog::PdfDialog(const Oid::OidProject& book, const PagePreview& ofPage,
                     QSettings& userSettings, const PdfOptions& options, const QString& file,
                     QWidget* parent)
    : QDialog(parent),
      project(book),
      preview(ofPage),
      settings(userSettings),
      printer(new PrinterBox(userSettings)),
      pages(new QLineEdit),
      dots(choices("pdfDots")),
      lightenAreas(new QCheckBox(tr("Lighten only inside of areas"))),
      outlines(new QCheckBox(tr("Outlines and names of the areas"))),
      cropMarks(new QCheckBox(tr("Crop marks"))),
      margin(new QSpinBox),
      poster(choices("pdfPoster")),
      symbols(choices("pdfSymbols")),
      path(new QLineEdit(file)),
      centimetre(new DotPreview),
      sheets(new QLabel),
      message(new QLabel),
      buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("pdfDialog");
    setWindowTitle(tr("PDF"));
    prepareChoices();
    auto* const sides = new QHBoxLayout;
    sides->addWidget(makeOptionsSide(), 3);
    sides->addWidget(makePreviewSide(), 2);
    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(message, 1);
    bottom->addWidget(buttons);
    auto* const all = new QVBoxLayout(this);
    all->addLayout(sides, 1);
    all->addLayout(bottom);
    showOptions(options);
    resize(usualSize.width() + centimetre->sizeHint().width() + 3 * all->spacing() + 30,
           std::max(usualSize.height(), centimetre->sizeHint().height()) + 100);
}

void PdfDialog::prepareChoices()
{
    using Dots = PdfOptions::Dots;
    dots->addItem(tr("everywhere"), static_cast<int>(Dots::everywhere));
    dots->addItem(tr("only in areas"), static_cast<int>(Dots::areas));
    dots->addItem(tr("none: a proof"), static_cast<int>(Dots::none));
    using Symbols = PdfOptions::Symbols;
    symbols->addItem(tr("when no area starts the book"), static_cast<int>(Symbols::whenNeeded));
    symbols->addItem(tr("always"), static_cast<int>(Symbols::always));
    symbols->addItem(tr("never"), static_cast<int>(Symbols::never));
    symbols->addItem(tr("nothing else"), static_cast<int>(Symbols::alone));
    poster->addItem(tr("no"));
    for (const PaperSize& size : {kA4, kA3, kLetter}) {
        poster->addItem(size.name);
    }
    message->setObjectName("pdfMessage");
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Create"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PdfDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PdfDialog::reject);
    connect(printer, &PrinterBox::changed, this, &PdfDialog::showChoice);
    connect(printer, &PrinterBox::told, this, &PdfDialog::say);
    for (QComboBox* const box : {dots, poster, symbols}) {
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &PdfDialog::showChoice);
    }
    for (QCheckBox* const box : {lightenAreas, outlines, cropMarks}) {
        connect(box, &QCheckBox::toggled, this, &PdfDialog::showChoice);
    }
    for (QLineEdit* const field : {pages, path}) {
        field->setAcceptDrops(false);
        connect(field, &QLineEdit::textChanged, this, &PdfDialog::showChoice);
    }
    connect(margin, qOverload<int>(&QSpinBox::valueChanged), this, &PdfDialog::showChoice);
}

// What a small screen has no room for is scrolled to.
QWidget* PdfDialog::makeOptionsSide()
{
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->addWidget(printer);
    auto* const form = new QFormLayout;
    addPages(*form);
    addDots(*form);
    addPaper(*form);
    addFile(*form);
    column->addLayout(form);
    column->addStretch();
    auto* const scroll = new QScrollArea;
    scroll->setObjectName("pdfOptions");
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(content);
    // Across nothing is scrolled, unless on a very small screen.
    constexpr int kMostOfScreen = 440;  // pixels, beside the preview on 640
    const int bar = scroll->verticalScrollBar()->sizeHint().width();
    scroll->setMinimumWidth(std::min(content->minimumSizeHint().width() + bar, kMostOfScreen));
    usualSize = content->sizeHint() + QSize(bar, 0);
    scroll->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return scroll;
}

QWidget* PdfDialog::makePreviewSide()
{
    auto* const side = new QWidget;
    auto* const column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const title = new QLabel(tr("1 cm of the page, dots 1:1"));
    title->setWordWrap(true);
    title->setBuddy(centimetre);
    column->addWidget(title);
    column->addWidget(centimetre, 1);
    sheets->setObjectName("pdfSheets");
    sheets->setWordWrap(true);
    column->addWidget(sheets);
    return side;
}

void PdfDialog::addPages(QFormLayout& form)
{
    pages->setObjectName("pdfPages");
    pages->setPlaceholderText(tr("all"));
    pages->setToolTip(tr("Only these pictures, counted from 0, such as 0,2-3, to print a changed "
                         "page again; empty prints all"));
    pages->setAccessibleName(tr("Pages"));
    form.addRow(tr("Pages:"), pages);
}

void PdfDialog::addDots(QFormLayout& form)
{
    dots->setToolTip(tr("Whether the whole page gets dots, or only its areas, which leaves the "
                        "rest as clear as it was"));
    dots->setAccessibleName(tr("Dots"));
    form.addRow(tr("Dots:"), dots);
    lightenAreas->setObjectName("pdfLightenAreas");
    lightenAreas->setToolTip(tr(
        "Lightens the picture on areas only, where the pen reads; the rest of it stays as it is"));
    form.addRow(lightenAreas);
    outlines->setObjectName("pdfOutlines");
    outlines->setToolTip(tr("Draws the areas with their names, to check them on paper, in a colour "
                            "that the pen does not see"));
    form.addRow(outlines);
}

void PdfDialog::addPaper(QFormLayout& form)
{
    margin->setObjectName("pdfMargin");
    margin->setRange(kUsualMargin, kLargestMargin);
    margin->setSpecialValueText(tr("as needed"));
    margin->setSuffix(" mm");
    margin->setToolTip(
        tr("White paper around each page, for a printer that does not print up to the edge"));
    margin->setAccessibleName(tr("Margin"));
    form.addRow(tr("Margin:"), margin);
    cropMarks->setObjectName("pdfCropMarks");
    cropMarks->setToolTip(tr("Marks in the margin where the page ends, to cut along them"));
    form.addRow(cropMarks);
    poster->setToolTip(tr("Prints pages that are larger than the paper on several sheets that "
                          "overlap, to be glued together"));
    poster->setAccessibleName(tr("Poster"));
    form.addRow(tr("Poster:"), poster);
    symbols->setToolTip(tr("Adds a page with START, REPLAY, STOP and a legend of all areas, to be "
                           "cut out; a book needs START somewhere"));
    symbols->setAccessibleName(tr("Symbols and legend"));
    form.addRow(tr("Symbols and legend:"), symbols);
}

void PdfDialog::addFile(QFormLayout& form)
{
    path->setObjectName("pdfFile");
    path->setToolTip(
        tr("The PDF file that is written; one of this name that is there is replaced"));
    path->setAccessibleName(tr("File"));
    auto* const browse = new QPushButton("...");
    browse->setObjectName("pdfBrowse");
    browse->setToolTip(tr("Chooses another file"));
    browse->setAccessibleName(tr("Chooses another file"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &PdfDialog::chooseFile);
    auto* const row = new QHBoxLayout;
    row->addWidget(path, 1);
    row->addWidget(browse);
    form.addRow(tr("File:"), row);
}

void PdfDialog::showOptions(const PdfOptions& options)
{
    {
        const QScopedValueRollback<bool> whole(filling, true);
        printer->setPrinter(options.printer);
        choose(*dots, options.dots);
        lightenAreas->setChecked(options.lightenAreas);
        outlines->setChecked(options.outlines);
        cropMarks->setChecked(options.cropMarks);
        margin->setValue(static_cast<int>(options.margin.value_or(kUsualMargin)));
        poster->setCurrentIndex(options.poster ? poster->findText(options.poster->name) : 0);
        choose(*symbols, options.symbols);
    }
    showChoice();
}

PdfOptions PdfDialog::options() const
{
    PdfOptions options;
    options.printer = printer->printer();
    options.pages = pagesIn(pages->text().trimmed().toStdString());
    options.lightenAreas = lightenAreas->isChecked() && options.printer.lighten > 0;
    options.dots = static_cast<PdfOptions::Dots>(dots->currentData().toInt());
    options.outlines = outlines->isChecked();
    options.cropMarks = cropMarks->isChecked();
    if (margin->value() != kUsualMargin) {
        options.margin = margin->value();
    }
    options.poster = paper();
    options.symbols = static_cast<PdfOptions::Symbols>(symbols->currentData().toInt());
    return options;
}

std::optional<PaperSize> PdfDialog::paper() const
{
    for (const PaperSize& size : {kA4, kA3, kLetter}) {
        if (poster->currentText() == size.name) {
            return size;
        }
    }
    return std::nullopt;
}

QString PdfDialog::file() const
{
    return path->text().trimmed();
}

void PdfDialog::chooseFile()
{
    QFileDialog dialog(this, tr("PDF"), file(), tr("PDF files (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("pdf");
    dialog.selectFile(file());
    if (dialog.exec() == QDialog::Accepted) {
        path->setText(dialog.selectedFiles().value(0));
    }
}

// Follows every change of an option.
void PdfDialog::showChoice()
{
    if (filling) {
        return;
    }
    {
        const QScopedValueRollback<bool> following(filling, true);
        printer->setLargestDot(largestDot());
    }
    const PdfOptions chosen = options();
    const bool alone = chosen.symbols == PdfOptions::Symbols::alone;
    lightenAreas->setEnabled(chosen.printer.lighten > 0);
    centimetre->showPrinted(preview.draw(chosen));
    sheets->setText(alone ? QString()
                          : tr("Sheets of paper: %1").arg(countSheets(project, chosen)));
    say(problem());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(problem().isEmpty());
}

int PdfDialog::largestDot() const
{
    return largestDotOf(project, options());
}

QString PdfDialog::problem() const
{
    const int last = static_cast<int>(project.pictures.size()) - 1;
    const std::vector<int> chosen = options().pages;
    const bool exist =
        std::all_of(chosen.begin(), chosen.end(), [last](int page) { return page <= last; });
    if (!pages->text().trimmed().isEmpty() && (chosen.empty() || !exist)) {
        return tr("Pages are numbers from 0 to %1, such as 0,2-3.").arg(last);
    }
    if (!printer->isComplete()) {
        return tr("The DPI are a number from %1 to %2.")
            .arg(kFewestPrinterDpi)
            .arg(kMostPrinterDpi);
    }
    return file().isEmpty() ? tr("The file has no name.") : QString();
}

// Also aloud.
void PdfDialog::say(const QString& text)
{
    if (message->text() == text) {
        return;
    }
    message->setText(text);
    if (!text.isEmpty()) {
        QAccessibleEvent alert(message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void PdfDialog::accept()
{
    keepPdfOptions(settings, options());
    QDialog::accept();
}
