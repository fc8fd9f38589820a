#include "tryout/Conversation.h"

#include <QHeaderView>

#include <algorithm>

Conversation::Conversation(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName("tryConversation");
    setAccessibleName(tr("What was said"));
    setToolTip(tr("What was tapped and what was heard, the latest at the end"));
    setHeaderLabels({tr("Tapped"), tr("Voice"), tr("Said"), tr("Waited")});
    setRootIsDecorated(false);
    setWordWrap(true);
    setAllColumnsShowFocus(true);
    setMinimumSize(60, 40);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(said, QHeaderView::Stretch);
    header()->setMinimumSectionSize(30);
}

void Conversation::clearAll()
{
    rows.clear();
    clear();
}

void Conversation::begin(const QString& tap)
{
    constexpr int kMost = 2000;  // rows
    while (topLevelItemCount() >= kMost) {
        delete takeTopLevelItem(0);
    }
    what = tap;
    rows.clear();
    showRow(0, {});
}

void Conversation::showOutcome(const play::PlayedBook& book, bool isAtRest)
{
    if (rows.empty()) {
        return;
    }
    const play::Outcome outcome = book.outcome();
    std::vector<Row> shown;
    for (const play::Heard& heard : outcome.heard) {
        shown.push_back(rowOf(heard, book.book()));
    }
    for (const play::Incident& incident : outcome.incidents) {
        shown.push_back(rowOf(incident));
    }
    if (shown.empty()) {
        shown.push_back({{}, isAtRest ? tr("nothing") : QString(), {}, true});
    }
    for (size_t i = 0; i < shown.size(); ++i) {
        showRow(i, shown[i]);
    }
    showWait(outcome);
}

Conversation::Row Conversation::rowOf(const play::Heard& heard, const play::Book& book)
{
    const auto textOf = [&book](uint16_t media) {
        return QString::fromStdString(book.texts[media].text);
    };
    Row row;
    row.voice = QString::fromStdString(book.texts[heard.sound.media()].voice);
    row.text = textOf(heard.sound.media());
    if (heard.sound.choices.size() > 1) {
        QStringList all;
        for (const uint16_t media : heard.sound.choices) {
            all << textOf(media);
        }
        row.note = tr("Chosen by chance from:") + "\n" + all.join('\n');
    }
    return row;
}

Conversation::Row Conversation::rowOf(const play::Incident& incident)
{
    using Kind = play::Incident::Kind;
    const QString number = QString::number(incident.number);
    QString words;
    switch (incident.kind) {
    case Kind::noScript:
        words = tr("There is no script for this area");
        break;
    case Kind::divisionByZero:
        words = tr("Division by zero");
        break;
    case Kind::tooLarge:
        words = tr("A value ran over 65535 and went on from 0");
        break;
    case Kind::belowZero:
        words = tr("A value fell below 0 and went on from 65535");
        break;
    case Kind::noBranch:
        words = tr("The condition was %1, neither 0 nor 1, so no branch was run").arg(number);
        break;
    case Kind::noEnd:
        words = tr("There was no end after %1 steps").arg(number);
        break;
    }
    if (incident.line > 0) {
        words = tr("Line %1: %2").arg(QString::number(incident.line), words);
    }
    return {{}, words, {}, true};
}

void Conversation::showRow(size_t index, const Row& row)
{
    if (index == rows.size()) {
        rows.push_back(new QTreeWidgetItem(this));
        rows.back()->setText(tapped, index == 0 ? what : QString());
        rows.back()->setTextAlignment(waited, Qt::AlignRight | Qt::AlignTop);
        scrollToItem(rows.back());
        setCurrentItem(rows.back());
    }
    QTreeWidgetItem& item = *rows[index];
    item.setText(voice, row.voice);
    item.setText(said, row.text);
    item.setToolTip(said, row.note.isEmpty() ? row.text : row.note);
    QFont font = this->font();
    font.setItalic(row.isRemark);
    item.setFont(said, font);
}

void Conversation::showWait(const play::Outcome& outcome)
{
    if (outcome.heard.empty()) {
        return;
    }
    const play::Heard& first = outcome.heard.front();
    const QString seconds = tr("%1 s").arg(locale().toString(first.seconds, 'f', 1));
    const bool isLong = first.seconds > kLongWait;
    QTreeWidgetItem& item = *rows.front();
    item.setText(waited,
                 isLong ? QString(u8"\u26A0 ") + tr("%1, %2 steps").arg(seconds).arg(first.steps)
                        : seconds);
    item.setToolTip(
        waited, isLong
                    ? tr("The reader waits long before the first sound: %1 steps").arg(first.steps)
                    : tr("Until the first sound: %1 steps").arg(first.steps));
    QFont bold = font();
    bold.setBold(isLong);
    item.setFont(waited, bold);
}
