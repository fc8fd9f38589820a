#include "app/print/PrinterBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>

#include <algorithm>

#include "app/print/KeptOptions.h"
#include "pdf/TestPage.h"

namespace {

constexpr int kUsualResolutions[] = {600, 720, 1200, 1440, 2400, 2880, 4800};

// Enter is for what stands beside the field, not for the dialog.
class EnteredField : public QLineEdit
{
protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QLineEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            event->accept();
        }
    }
};

bool areSame(const PrinterSettings& one, const PrinterSettings& other)
{
    return one.dpi == other.dpi && one.dotSize == other.dotSize && one.noBlack == other.noBlack &&
           one.lighten == other.lighten;
}

QHBoxLayout* row(const std::initializer_list<QWidget*> widgets)
{
    auto* const line = new QHBoxLayout;
    for (QWidget* const widget : widgets) {
        line->addWidget(widget);
    }
    return line;
}

}  // namespace

PrinterBox::PrinterBox(QSettings& userSettings, QWidget* parent)
    : QGroupBox(tr("Printer"), parent),
      settings(userSettings),
      profiles(userSettings),
      profile(new QComboBox),
      keep(new QPushButton(tr("Keep..."))),
      remove(new QPushButton(tr("Remove"))),
      field(new EnteredField),
      takeOver(new QPushButton(tr("Make profile..."))),
      resolution(new QComboBox),
      dotSize(new QSpinBox),
      noBlack(new QCheckBox(tr("No black in the picture"))),
      lighten(new QSpinBox)
{
    prepareProfiles();
    prepareField();
    prepareSettings();
    auto* const form = new QFormLayout(this);
    form->addRow(tr("Profile:"), row({profile, keep, remove}));
    form->addRow(tr("Best field:"), row({field, takeOver}));
    form->addRow(tr("DPI:"), resolution);
    form->addRow(tr("Edge of a dot:"), dotSize);
    form->addRow(tr("Lighten the picture:"), lighten);
    form->addRow(noBlack);
    listProfiles({});
    setPrinter({});
}

void PrinterBox::prepareProfiles()
{
    profile->setObjectName("printerProfile");
    profile->setAccessibleName(tr("Profile of a printer"));
    profile->setToolTip(tr(
        "The settings that were kept for a printer: choose the one that the book is printed on"));
    profile->setMinimumContentsLength(6);
    profile->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    profile->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    keep->setObjectName("keepProfile");
    keep->setToolTip(tr(
        "Keeps the settings below under a name, so that this printer has them the next time, too"));
    remove->setObjectName("removeProfile");
    remove->setToolTip(tr("Forgets the chosen profile"));
    for (QPushButton* const button : {keep, remove, takeOver}) {
        button->setAutoDefault(false);
    }
    connect(profile, qOverload<int>(&QComboBox::activated), this, &PrinterBox::takeProfile);
    connect(keep, &QPushButton::clicked, this, &PrinterBox::keepProfile);
    connect(remove, &QPushButton::clicked, this, &PrinterBox::removeProfile);
}

void PrinterBox::prepareField()
{
    field->setObjectName("bestField");
    field->setAccessibleName(tr("Best field of the printer's test page"));
    field->setPlaceholderText("B3");
    field->setToolTip(
        tr("The field of the printer's test page that the pen reads best, such as B3"));
    field->setMaximumWidth(field->fontMetrics().averageCharWidth() * 12);
    takeOver->setObjectName("takeField");
    takeOver->setToolTip(tr("Makes a profile of what that field says about the printer"));
    takeOver->setEnabled(false);
    connect(field, &QLineEdit::textChanged, this,
            [this](const QString& text) { takeOver->setEnabled(!text.trimmed().isEmpty()); });
    connect(field, &QLineEdit::returnPressed, takeOver, &QPushButton::click);
    connect(takeOver, &QPushButton::clicked, this, &PrinterBox::takeField);
}

void PrinterBox::prepareSettings()
{
    resolution->setObjectName("printerDpi");
    resolution->setAccessibleName(tr("Resolution of the printer"));
    resolution->setToolTip(
        tr("The dots per inch of the printer, when they are not those of the pictures"));
    resolution->setEditable(true);
    resolution->setInsertPolicy(QComboBox::NoInsert);
    resolution->setValidator(new QIntValidator(1, kMostPrinterDpi, resolution));
    resolution->addItem(tr("that of each picture"));
    for (const int dpi : kUsualResolutions) {
        resolution->addItem(QString::number(dpi));
    }
    dotSize->setObjectName("printerDotSize");
    dotSize->setAccessibleName(tr("Edge of a dot in pixels of the printer"));
    dotSize->setToolTip(tr("Smaller dots for a printer that prints them too fat"));
    dotSize->setSpecialValueText(tr("standard"));
    dotSize->setSuffix(tr(" pixels"));
    noBlack->setObjectName("printerNoBlack");
    noBlack->setToolTip(
        tr("Mixes the picture's black of cyan, magenta and yellow, which the pen does not see"));
    lighten->setObjectName("printerLighten");
    lighten->setAccessibleName(tr("How much lighter the picture is, in percent"));
    lighten->setToolTip(tr("Takes ink out of the picture, so that the pen finds the dots"));
    lighten->setMaximum(100);
    lighten->setSingleStep(5);
    lighten->setSpecialValueText(tr("not"));
    lighten->setSuffix(" %");
    connect(resolution, &QComboBox::editTextChanged, this, &PrinterBox::showProfileOfSettings);
    connect(dotSize, qOverload<int>(&QSpinBox::valueChanged), this,
            &PrinterBox::showProfileOfSettings);
    connect(noBlack, &QCheckBox::toggled, this, &PrinterBox::showProfileOfSettings);
    connect(lighten, qOverload<int>(&QSpinBox::valueChanged), this,
            &PrinterBox::showProfileOfSettings);
}

bool PrinterBox::isComplete() const
{
    const int dpi = resolution->currentText().toInt();
    return resolution->currentText() == resolution->itemText(0) ||
           (dpi >= kFewestPrinterDpi && dpi <= kMostPrinterDpi);
}

PrinterSettings PrinterBox::printer() const
{
    PrinterSettings printer;
    printer.dpi = isComplete() ? resolution->currentText().toInt() : 0;
    printer.dotSize = dotSize->value();
    printer.noBlack = noBlack->isChecked();
    printer.lighten = lighten->value();
    return printer;
}

void PrinterBox::setPrinter(const PrinterSettings& printer)
{
    {
        const QScopedValueRollback<bool> whole(filling, true);
        resolution->setEditText(printer.dpi > 0 ? QString::number(printer.dpi)
                                                : resolution->itemText(0));
        dotSize->setMaximum(std::max(dotSize->maximum(), printer.dotSize));
        dotSize->setValue(printer.dotSize);
        noBlack->setChecked(printer.noBlack);
        lighten->setValue(printer.lighten);
    }
    showProfileOfSettings();
}

void PrinterBox::setLargestDot(int pixels)
{
    dotSize->setMaximum(pixels);
}

// Behind the entry of none.
void PrinterBox::listProfiles(const QString& chosen)
{
    profile->clear();
    profile->addItem(tr("none"));
    for (const std::string& name : profiles.names()) {
        profile->addItem(QString::fromStdString(name));
    }
    profile->setCurrentIndex(0);
    for (int i = 1; i < profile->count(); ++i) {
        if (profile->itemText(i) == chosen) {
            profile->setCurrentIndex(i);
        }
    }
    remove->setEnabled(profile->currentIndex() > 0);
}

// Settings that are changed are no longer those of the chosen profile.
void PrinterBox::showProfileOfSettings()
{
    if (filling) {
        return;
    }
    const auto kept = profiles.find(profile->currentText().toStdString());
    if (profile->currentIndex() > 0 && (!kept || !areSame(*kept, printer()))) {
        profile->setCurrentIndex(0);
    }
    remove->setEnabled(profile->currentIndex() > 0);
    emit changed();
}

void PrinterBox::takeProfile()
{
    const auto kept = profiles.find(profile->currentText().toStdString());
    if (profile->currentIndex() > 0 && kept) {
        setPrinter(*kept);
    } else {
        showProfileOfSettings();
    }
}

void PrinterBox::keepProfile()
{
    const QString current = profile->currentIndex() > 0 ? profile->currentText() : QString();
    keepAs(askForName(current), printer());
}

void PrinterBox::removeProfile()
{
    const QString name = profile->currentText();
    profiles.remove(name.toStdString());
    listProfiles({});
    emit told(tr("The profile %1 is gone.").arg(name));
}

void PrinterBox::takeField()
{
    const QString name = field->text().trimmed().toUpper();
    const auto printer = settingsOfField(keptPrinterTest(settings).resolutions, name.toStdString());
    if (!printer) {
        emit told(tr("The test page has no field %1.").arg(name));
        field->setFocus();
        field->selectAll();
        return;
    }
    const bool known = profile->currentIndex() > 0;
    keepAs(askForName(known ? profile->currentText() : tr("Printer %1").arg(name)), *printer);
}

QString PrinterBox::askForName(const QString& proposed)
{
    QInputDialog dialog(this);
    dialog.setWindowTitle(tr("Profile of a printer"));
    dialog.setLabelText(tr("Name of the printer:"));
    dialog.setTextValue(proposed);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().trimmed() : QString();
}

// Without a name nothing happens.
void PrinterBox::keepAs(const QString& name, const PrinterSettings& printer)
{
    if (name.isEmpty()) {
        return;
    }
    profiles.keep(name.toStdString(), printer);
    listProfiles(name);
    setPrinter(printer);
    emit told(tr("The profile %1 is kept.").arg(name));
}
