#include "qtsync/WhyButton.h"

#include "qtsync/OpenManual.h"
#include "qtsync/ToolTip.h"

#include <QMessageBox>
#include <QShortcut>

#include <utility>

WhyButton::WhyButton(QMessageBox& box, QString placeInManual)
    : QPushButton(tr("Why?")), messageBox(box), placeOfReason(std::move(placeInManual))
{
    setObjectName("btWhy");
    // One of the button's own would press it only after a while.
    const auto* const key = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(key, &QShortcut::activated, this, &QPushButton::click);
    setToolTip(
        withKey(tr("Opens the manual in your browser, where it tells what to do"), key->key()));
    // Escape presses the only button there is; with a second one it has to be said which.
    const QList<QAbstractButton*> others = box.buttons();
    if (others.size() == 1) {
        box.setEscapeButton(others[0]);
    }
    box.addButton(this, QMessageBox::HelpRole);
    disconnect(this, &QPushButton::clicked, nullptr, nullptr);  // every button closes the box
    connect(this, &QPushButton::clicked, this, &WhyButton::showReason);
}

void WhyButton::showReason()
{
    if (openManual(placeOfReason)) {
        return;
    }
    QStringList sentences = messageBox.informativeText().split("\n\n", Qt::SkipEmptyParts);
    if (!sentences.contains(whyNoManual())) {
        messageBox.setInformativeText((sentences << whyNoManual()).join("\n\n"));
    }
}

void warnWithReason(QWidget* parent, const QString& title, const QString& text,
                    const QString& placeInManual, const QString& advice)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setInformativeText(advice);
    new WhyButton(box, placeInManual);
    box.exec();
}
