#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// Asks what to find and what to put in its place. It stays open while the author goes on editing;
// whoever searches reads its fields.
class KVQtFindDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KVQtFindDialog(QWidget* parent = nullptr);

    // With replace, the fields and buttons for the replacement are there too.
    void open_for(bool replace);

    QString find_text() const;
    void set_find_text(const QString& text);
    QString replace_text() const;
    bool backwards() const;
    void set_backwards(bool backwards);
    // Says beside the field what came of a search, until another text is searched for.
    void say(const QString& message);

    QLineEdit* txFind;
    QLineEdit* txReplace;
    QPushButton* btFind;
    QPushButton* btReplace;
    QPushButton* btReplaceAll;
    QCheckBox* chBackwards;

private:
    QLabel* lbReplace;
    QLabel* lbMessage;
};
