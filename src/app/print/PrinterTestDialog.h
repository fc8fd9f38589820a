#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "app/print/KeptOptions.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLineEdit;
class QSettings;

// Asks for what a printer's test page tries out, and where page and game go.
class PrinterTestDialog : public QDialog
{
    Q_OBJECT

public:
    // The languages are those that the pen can speak, such as "de". The settings outlive the
    // dialog, and keep the choice when it is accepted.
    PrinterTestDialog(QSettings& settings, const std::vector<std::string>& languages,
                      const QString& folder, QWidget* parent = nullptr);

    PrinterTestOptions options() const;
    QString folder() const;

    void accept() override;

private:
    void addLanguages(const std::vector<std::string>& languages, const QString& chosen);
    void chooseFolder();
    void checkComplete();

    QSettings& settings;
    std::vector<QCheckBox*> resolutions;
    QComboBox* language;
    QLineEdit* path;
    QDialogButtonBox* buttons;
};
