#pragma once

#include <QPushButton>

class QMessageBox;

// The button "Why?" of a message box, F1 on the keyboard. It shows the manual at the place that
// tells more
// ("questions-picture") and leaves the box open, in which Enter and Escape do what they did without
// it.
class WhyButton : public QPushButton
{
    Q_OBJECT

public:
    // The box, which has its other buttons already, owns it.
    WhyButton(QMessageBox& box, QString placeInManual);

    const QString& place() const { return placeOfReason; }

private:
    void showReason();

    QMessageBox& messageBox;
    QString placeOfReason;
};

// What QMessageBox::warning shows with an OK button, and "Why?"; below the text an advice, unless
// empty.
void warnWithReason(QWidget* parent, const QString& title, const QString& text,
                    const QString& placeInManual, const QString& advice = {});
