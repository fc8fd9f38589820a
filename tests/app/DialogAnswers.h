#pragma once

#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

class QWidget;

// Answers the modal dialogs that open while it lives, in the order of the answers given, and notes
// what they showed. A dialog that nobody expected is closed and noted as such. A box that warns and
// does not lead to a place of the manual is noted, too.
class DialogAnswers : public QObject
{
    Q_OBJECT

public:
    DialogAnswers();

    // For file dialogs.
    void chooseFile(const QString& path);
    // For every dialog: Escape.
    void cancel();
    // For message boxes: the button with this text, its "&" left out. A box without it is closed
    // and noted as such.
    void press(const QString& button);
    void look(std::function<void(QWidget&)> lookAt);

    // One line per dialog: its title, and for message boxes ": " and the text.
    const QStringList& seen() const { return shown; }
    bool allGiven() const { return answers.empty(); }

private:
    void answer();

    std::deque<std::function<void(QWidget&)>> answers;
    QStringList shown;
    QTimer timer;
};
