#pragma once

#include "document/NewBook.h"

#include <QDialog>

#include <map>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

// Asks for what a new book begins with, and makes it. It is accepted once the book is there; what
// is wrong is told while it is typed.
class NewBookDialog : public QDialog
{
    Q_OBJECT

public:
    // Where a folder for the book is suggested, and the author's other books by their numbers.
    NewBookDialog(QString folderOfBooks, std::map<int, QString> otherBooks, QWidget* parent);

    // Of the book that was made.
    QString projectFile() const { return book.projectFile(); }

    void accept() override;

private:
    QWidget* makeForm();
    QWidget* makeFolder();
    QWidget* makePages();
    QPushButton* addButton(QVBoxLayout& column, const char* name, const QString& text,
                           const QString& toolTip, const QKeySequence& keys,
                           void (NewBookDialog::*asked)());
    void nameTyped();
    void suggestNumber();
    void chooseFolder();
    void addPages();
    void moveUp();
    void moveDown();
    void movePage(int way);
    void removePage();
    void showState();
    void takeFields();
    void tell(const QString& problem);

    const QString folderOfBooks;
    const std::map<int, QString> otherBooks;
    NewBook book;
    bool folderChosen = false;  // by the author
    bool numberChosen = false;
    QLineEdit* name;
    QSpinBox* number;
    QLabel* numberNote;
    QLineEdit* folder;
    QListWidget* pages;
    QPushButton* up = nullptr;
    QPushButton* down = nullptr;
    QPushButton* remove = nullptr;
    QLabel* message;
    QDialogButtonBox* buttons;
};
