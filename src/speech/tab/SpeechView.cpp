#include "speech/tab/SpeechView.h"

#include "speech/tab/SpeechFilter.h"
#include "speech/tab/SpeechModel.h"

#include <QAbstractButton>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace {

// The files and folders of a drag; none of one that holds anything else, or a project, which the
// window takes.
QStringList pathsOf(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        paths << url.toLocalFile();
        if (paths.last().isEmpty() || paths.last().endsWith(".oidpro", Qt::CaseInsensitive)) {
            return {};
        }
    }
    return paths;
}

// One file belongs to the row below it; a folder and several files to the whole table.
bool isForOneRow(const QStringList& paths)
{
    return paths.size() == 1 && !QFileInfo(paths.front()).isDir();
}

// A file manager that moves files deletes what was accepted as moved.
void takeCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

}  // namespace

SpeechView::SpeechView(SpeechFilter& shown, QWidget* parent) : QTableView(parent)
{
    setObjectName("speechTable");
    setAccessibleName(tr("Texts of the book"));
    setAccessibleDescription(tr("Space plays a text, Enter goes to its line in the script"));
    setToolTip(tr("Every text of the book. A click on the sign plays it (Space), one on the line "
                  "goes there (Enter)"));
    setModel(&shown);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setAcceptDrops(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    findChild<QAbstractButton*>()->setToolTip(toolTip());
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

// --- Files that are dropped ----------------------------------------------------------------------

void SpeechView::dragEnterEvent(QDragEnterEvent* event)
{
    if (pathsOf(*event->mimeData()).isEmpty()) {
        event->ignore();
    } else {
        takeCopy(*event);
    }
}

void SpeechView::dragMoveEvent(QDragMoveEvent* event)
{
    const bool isForRow = isForOneRow(pathsOf(*event->mimeData()));
    markAll(!isForRow);
    markRow(isForRow ? indexAt(event->pos()).row() : -1);
    if (!isBelowDrag && rowBelowDrag < 0) {
        event->ignore();
    } else {
        takeCopy(*event);
    }
}

void SpeechView::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    markRow(-1);
    markAll(false);
}

// What opens a dialog waits until the drag has ended, for whoever dragged waits for that.
void SpeechView::dropEvent(QDropEvent* event)
{
    markRow(-1);
    markAll(false);
    const QStringList paths = pathsOf(*event->mimeData());
    const int row = indexAt(event->pos()).row();
    if (paths.isEmpty() || (isForOneRow(paths) && row < 0)) {
        event->ignore();
        return;
    }
    takeCopy(*event);
    if (isForOneRow(paths)) {
        emit fileDropped(row, paths.front());
    } else {
        QTimer::singleShot(0, this, [this, paths] { emit filesDropped(paths); });
    }
}

void SpeechView::markAll(bool marked)
{
    isBelowDrag = marked;
    viewport()->update();
}

void SpeechView::markRow(int row)
{
    rowBelowDrag = row;
    viewport()->update();
}

void SpeechView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (rowBelowDrag >= 0) {
        QPainter painter(viewport());
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRect(1, rowViewportPosition(rowBelowDrag) + 1, viewport()->width() - 3,
                         rowHeight(rowBelowDrag) - 3);
    }
    if (isBelowDrag) {
        QPainter painter(viewport());
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -2, -2));
    }
}
