#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

// Asks for the name that something gets everywhere, says how many places that changes, and tells
// while it is typed what speaks against it.
class RenameDialog : public QDialog
{
    Q_OBJECT

public:
    struct Verdict
    {
        bool isPossible = true;
        QString note;  // empty when there is nothing to say
    };
    using Judge = std::function<Verdict(const QString& name)>;

    // The places are one or more lines of text.
    RenameDialog(QWidget* parent, const QString& name, const QString& places, Judge judge);

    QLineEdit& field() { return *nameField; }
    QString name() const;

private:
    void judgeName();

    const QString before;
    const Judge judge;
    QLineEdit* nameField;
    QLabel* noteLabel;
    QPushButton* rename;
};
