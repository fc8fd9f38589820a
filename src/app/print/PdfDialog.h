#pragma once

#include <QDialog>

#include <optional>

#include "pdf/PagePreview.h"
#include "pdf/PdfOptions.h"

class DotPreview;
class PrinterBox;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSettings;
class QSpinBox;

// Asks how a book becomes a PDF. What is chosen is shown at once on a centimetre of the page.
class PdfDialog : public QDialog
{
    Q_OBJECT

public:
    // The book and the settings outlive the dialog. It begins with these options, and the author's
    // choice is kept in the settings when the dialog is accepted.
    PdfDialog(const Oid::OidProject& project, const PagePreview& preview, QSettings& settings,
              const PdfOptions& options, const QString& file, QWidget* parent = nullptr);

    PdfOptions options() const;
    QString file() const;

    void accept() override;

private:
    void prepareChoices();
    QWidget* makeOptionsSide();
    QWidget* makePreviewSide();
    void addPages(QFormLayout& form);
    void addDots(QFormLayout& form);
    void addPaper(QFormLayout& form);
    void addFile(QFormLayout& form);
    void showOptions(const PdfOptions& options);
    void chooseFile();
    void showChoice();
    void say(const QString& text);
    int largestDot() const;
    std::optional<PaperSize> paper() const;
    // What keeps the PDF from being made; empty when nothing does.
    QString problem() const;

    const Oid::OidProject& project;
    const PagePreview preview;
    QSettings& settings;
    PrinterBox* printer;
    QLineEdit* pages;
    QComboBox* dots;
    QCheckBox* lightenAreas;
    QCheckBox* outlines;
    QCheckBox* cropMarks;
    QSpinBox* margin;
    QComboBox* poster;
    QComboBox* symbols;
    QLineEdit* path;
    DotPreview* centimetre;
    QLabel* sheets;
    QLabel* message;
    QDialogButtonBox* buttons;
    QSize usualSize;  // of the options
    bool filling = false;
};
