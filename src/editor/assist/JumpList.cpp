#include "editor/assist/JumpList.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <utility>

JumpList::JumpList(QWidget* parent, const QString& title, std::vector<Place> placesToChoose)
    : QDialog(parent),
      places(std::move(placesToChoose)),
      filter(new QLineEdit),
      list(new QListWidget)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("jumpList");
    setWindowTitle(title);
    filter->setObjectName("jumpFilter");
    filter->setPlaceholderText(tr("Type a part of it"));
    filter->setAccessibleName(tr("Filter"));
    filter->installEventFilter(this);
    list->setObjectName("jumpPlaces");
    list->setAccessibleName(title);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(filter);
    column->addWidget(list);
    constexpr int kWidth = 60, kHeight = 20;  // letters, lines
    resize(kWidth * fontMetrics().averageCharWidth(), kHeight * fontMetrics().lineSpacing());
    connect(filter, &QLineEdit::textChanged, this, &JumpList::fill);
    connect(filter, &QLineEdit::returnPressed, this, &JumpList::choose);
    connect(list, &QListWidget::itemActivated, this, &JumpList::choose);
    connect(list, &QListWidget::itemClicked, this, &JumpList::choose);
    fill({});
}

void JumpList::fill(const QString& wanted)
{
    list->clear();
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i].text.contains(wanted, Qt::CaseInsensitive)) {
            auto* const item = new QListWidgetItem(places[i].text, list);
            item->setData(Qt::UserRole, static_cast<int>(i));
        }
    }
    list->setCurrentRow(0);
}

void JumpList::choose()
{
    if (const QListWidgetItem* const item = list->currentItem()) {
        const Place place = places[static_cast<std::size_t>(item->data(Qt::UserRole).toInt())];
        close();
        emit chosen(place.part);
    }
}

// The keys that move in the list do so while the field has the focus.
bool JumpList::eventFilter(QObject* /*field*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown;
    if (moves) {
        QCoreApplication::sendEvent(list, event);
    }
    return moves;
}
