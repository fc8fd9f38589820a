#include "speech/tab/RecordCard.h"

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int kLargest = 34;   // points
constexpr int kSmallest = 14;  // then it is scrolled

}  // namespace

RecordCard::RecordCard(QWidget* parent)
    : QFrame(parent), speaker(new QLabel), words(new QLabel), area(new QScrollArea)
{
    setObjectName("recordCard");
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    speaker->setObjectName("recordVoice");
    words->setObjectName("recordText");
    words->setWordWrap(true);
    words->setAlignment(Qt::AlignCenter);
    words->setTextFormat(Qt::PlainText);
    words->setTextInteractionFlags(Qt::NoTextInteraction);
    speaker->setTextFormat(Qt::PlainText);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(words);
    area->viewport()->setBackgroundRole(QPalette::Base);
    words->setBackgroundRole(QPalette::Base);
    area->setFocusPolicy(Qt::TabFocus);  // a long text is scrolled by keys
    area->setObjectName("recordCardArea");
    area->setAccessibleName(tr("Text to read aloud"));
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(8, 4, 8, 4);
    all->addWidget(speaker);
    all->addWidget(area, 1);
}

void RecordCard::showText(const QString& voice, const QString& text)
{
    speaker->setText(voice);
    words->setText(text);
    area->setAccessibleDescription(text);
    area->verticalScrollBar()->setValue(0);
    fit();
}

QSize RecordCard::sizeHint() const
{
    return {600, 190};
}

QSize RecordCard::minimumSizeHint() const
{
    return {240, 96};
}

void RecordCard::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    fit();
}

void RecordCard::fit()
{
    const QSize room = area->viewport()->size() - QSize(8, 8);
    QFont font = words->font();
    for (int points = kLargest; points >= kSmallest; points -= 2) {
        font.setPointSize(points);
        const QRect needed = QFontMetrics(font).boundingRect(
            QRect(0, 0, room.width(), 100000), Qt::AlignCenter | Qt::TextWordWrap, words->text());
        if (needed.height() <= room.height() && needed.width() <= room.width()) {
            break;
        }
    }
    words->setFont(font);
}
