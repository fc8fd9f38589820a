#pragma once

#include "play/PlayedBook.h"

#include <QTreeWidget>

#include <vector>

// What was tapped and what the book said to it, line by line. A tap that keeps the reader waiting
// is marked.
class Conversation : public QTreeWidget
{
    Q_OBJECT

public:
    static constexpr double kLongWait = 1.5;  // seconds before the first sound

    enum Column { tapped, voice, said, waited };

    explicit Conversation(QWidget* parent = nullptr);

    void clearAll();
    // Another tap.
    void begin(const QString& what);
    // What came of it up to now, and whether more may come.
    void showOutcome(const play::PlayedBook& book, bool isAtRest);

private:
    struct Row
    {
        QString voice;
        QString text;
        QString note;  // as the tool tip
        bool isRemark = false;
    };

    static Row rowOf(const play::Heard& heard, const play::Book& book);
    static Row rowOf(const play::Incident& incident);
    void showRow(size_t index, const Row& row);
    void showWait(const play::Outcome& outcome);

    QString what;
    std::vector<QTreeWidgetItem*> rows;  // of the last tap; all are the list's
};
