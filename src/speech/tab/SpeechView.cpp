#include "speech/tab/SpeechView.h"

#include "speech/tab/SpeechFilter.h"
#include "speech/tab/SpeechModel.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

SpeechView::SpeechView(SpeechFilter& shown, QWidget* parent) : QTableView(parent)
{
    setObjectName("speechTable");
    setAccessibleName(tr("Texts of the book"));
    setAccessibleDescription(tr("Space plays a text, Enter goes to its line in the script"));
    setModel(&shown);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    findChild<QAbstractButton*>()->setToolTip(accessibleName());
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMinimumSize(60, 3 * fontMetrics().height());
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setSortingEnabled(true);
    sortByColumn(SpeechModel::line, Qt::AscendingOrder);
    fitColumns();
    connect(this, &QTableView::clicked, this, &SpeechView::takeClick);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() != SpeechModel::play && index.column() != SpeechModel::line) {
            emit lineAsked(index.row());
        }
    });
}

// To look at the cells would cost much where there are thousands.
void SpeechView::fitColumns()
{
    QHeaderView* const header = horizontalHeader();
    header->setHighlightSections(false);
    header->setMinimumSectionSize(30);
    const auto fit = [&](int column, const QString& widest) {
        const int text = fontMetrics().horizontalAdvance(widest) + fontMetrics().height();
        header->setSectionResizeMode(column, QHeaderView::Interactive);
        header->resizeSection(column, std::max(header->sectionSizeHint(column), text));
    };
    fit(SpeechModel::voice, "grandmother");
    fit(SpeechModel::line, SpeechModel::tr("welcome"));
    fit(SpeechModel::length, SpeechModel::tr("%1 s").arg("000.0"));
    fit(SpeechModel::state, "MM" + SpeechModel::tr("too long a name"));
    fit(SpeechModel::play, "MM");
    header->setSectionResizeMode(SpeechModel::text, QHeaderView::Stretch);
}

void SpeechView::takeClick(const QModelIndex& index)
{
    if (index.column() == SpeechModel::play) {
        emit playAsked(index.row());
    } else if (index.column() == SpeechModel::line) {
        emit lineAsked(index.row());
    } else {
        emit rowClicked(index.row());
    }
}

void SpeechView::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = event->modifiers() == Qt::NoModifier ||
                         event->modifiers() == Qt::KeypadModifier;  // of the other Enter
    const int row = currentIndex().row();
    if (isPlain && row >= 0 && event->key() == Qt::Key_Space) {
        emit playAsked(row);
    } else if (isPlain && row >= 0 &&
               (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        emit lineAsked(row);
    } else {
        QTableView::keyPressEvent(event);
    }
}
