#pragma once

#include <QGroupBox>

#include "pdf/PrinterProfiles.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSettings;
class QSpinBox;

// What belongs to the printer: resolution, size of the dots, its black, how light pictures are; and
// the profiles, which keep that by the names of printers.
class PrinterBox : public QGroupBox
{
    Q_OBJECT

public:
    // The settings outlive the box.
    explicit PrinterBox(QSettings& userSettings, QWidget* parent = nullptr);

    // False while the resolution is none.
    bool isComplete() const;
    PrinterSettings printer() const;
    void setPrinter(const PrinterSettings& printer);
    // Larger dots would touch each other; in pixels of the printer.
    void setLargestDot(int pixels);

signals:
    void changed();
    // What came of an action, for the author.
    void told(const QString& text);

private:
    void prepareProfiles();
    void prepareField();
    void prepareSettings();
    void listProfiles(const QString& chosen);
    void showProfileOfSettings();
    void takeProfile();
    void keepProfile();
    void removeProfile();
    void takeField();
    QString askForName(const QString& proposed);
    void keepAs(const QString& name, const PrinterSettings& printer);

    QSettings& settings;
    PrinterProfiles profiles;
    QComboBox* profile;
    QPushButton* keep;
    QPushButton* remove;
    QLineEdit* field;
    QPushButton* takeOver;
    QComboBox* resolution;
    QSpinBox* dotSize;
    QCheckBox* noBlack;
    QSpinBox* lighten;
    bool filling = false;  // with settings that are there as a whole
};
