#include "app/ProblemsDock.h"

#include "qtsync/ToolTip.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMainWindow>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int kPatience = 1500;  // ms
constexpr int kFewestRows = 3;   // there is seldom one alone
constexpr int kMostRows = 5;

}  // namespace

ProblemsDock::ProblemsDock(QWidget* parent)
    : QDockWidget(parent), view(new QTreeView), title(new QToolButton)
{
    setObjectName("dockProblems");
    setWindowTitle(tr("Problems"));
    setFeatures(QDockWidget::NoDockWidgetFeatures);
    setAllowedAreas(Qt::BottomDockWidgetArea);
    prepareView();
    prepareTitle();
    prepareKey();
    empty.setSingleShot(true);
    empty.setInterval(kPatience);
    connect(&empty, &QTimer::timeout, this, &ProblemsDock::foldAsNeeded);
    show({});
    fold(true);
}

void ProblemsDock::prepareView()
{
    view->setObjectName("problemsView");
    view->setAccessibleName(tr("Problems"));
    view->setAccessibleDescription(
        tr("Enter goes to the place, Alt+Enter puts right what can be put right, F1 tells why"));
    view->setToolTip(tr("A click goes to the place (Enter); further clicks put right what can be "
                        "put right (Alt+Enter) and tell why (F1)"));
    view->setModel(&list);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    view->setTextElideMode(Qt::ElideRight);
    view->setMinimumHeight(2 * view->fontMetrics().height());
    QHeaderView* const header = view->header();
    header->setStretchLastSection(false);
    header->setResizeContentsPrecision(0);  // what is in view, be the list as long as it may
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ProblemList::words, QHeaderView::Stretch);
    view->installEventFilter(this);
    connect(view, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        switch (index.column()) {
        case ProblemList::fix:
            return askForFix(index);
        case ProblemList::why:
            return askForReason(index);
        default:
            return choose(index);
        }
    });
    setWidget(view);
}

// One line that tells how many there are, and folds and unfolds the list.
void ProblemsDock::prepareTitle()
{
    title->setObjectName("problemsTitle");
    title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    title->setAutoRaise(true);
    title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    title->setToolTip(tr("Shows or folds the list of problems. F8 goes to the next one in the "
                         "script, Shift+F8 to the one before."));
    connect(title, &QToolButton::clicked, this, &ProblemsDock::toggle);
    setTitleBarWidget(title);
}

void ProblemsDock::prepareKey()
{
    auto* const action = new QAction(tr("Problems"), this);
    action->setObjectName("actionDockProblems");
    action->setShortcut(QKeySequence("Ctrl+Shift+M"));
    addAction(action);
    connect(action, &QAction::triggered, this, &ProblemsDock::toggleByKey);
    title->setToolTip(withKey(title->toolTip(), action->shortcut()));
}

void ProblemsDock::toggle()
{
    foldedByAuthor = !isFolded();
    fold(foldedByAuthor || list.all().empty());
}

// Into the list, and back to where one was.
void ProblemsDock::toggleByKey()
{
    const bool wasInside = view->hasFocus();
    toggle();
    if (!isFolded()) {
        before = QApplication::focusWidget();
        view->setFocus();
    } else if (wasInside && before != nullptr && before->isVisible()) {
        before->setFocus();
    }
}

QString ProblemsDock::summaryOf(const Problems& problems)
{
    switch (problems.size()) {
    case 0:
        return tr("No problems");
    case 1:
        return tr("1 problem");
    default:
        return tr("%1 problems").arg(problems.size());
    }
}

// The row that the author is at stays, as far as there is one.
void ProblemsDock::show(const Problems& problems)
{
    const int row = view->currentIndex().row();
    const bool wasEmpty = list.all().empty();
    const QString news = ProblemList::newsOf(list.all(), problems);
    list.set(problems);
    title->setText(summaryOf(problems));
    announce(news);
    title->setEnabled(!problems.empty());
    if (row >= 0 && row < list.rowCount()) {
        view->setCurrentIndex(list.index(row, 0));
    }
    if (problems.empty()) {
        empty.start();
    } else {
        empty.stop();
        if (wasEmpty) {
            foldAsNeeded();
        }
    }
}

// Without taking the focus from the text.
void ProblemsDock::announce(const QString& news)
{
    if (!news.isEmpty()) {
        title->setAccessibleDescription(news);
        QAccessibleEvent alert(title, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

bool ProblemsDock::isFolded() const
{
    return view->isHidden();
}

void ProblemsDock::letFoldByItself(bool may)
{
    foldsByItself = may;
    foldAsNeeded();
}

void ProblemsDock::foldAsNeeded()
{
    const bool folded = foldedByAuthor || list.all().empty();
    if (foldsByItself && folded != isFolded() && !(folded && empty.isActive())) {
        fold(folded);
    }
}

void ProblemsDock::fold(bool folded)
{
    view->setHidden(folded);
    title->setArrowType(folded ? Qt::RightArrow : Qt::DownArrow);
    const int titleHeight = title->sizeHint().height();
    setMaximumHeight(folded ? titleHeight : QWIDGETSIZE_MAX);
    auto* const window = qobject_cast<QMainWindow*>(parentWidget());
    if (!folded && window != nullptr) {
        const int rows = std::clamp(list.rowCount(), kFewestRows, kMostRows) + 1;  // and the header
        const int rowHeight = view->fontMetrics().lineSpacing() * 3 / 2;
        window->resizeDocks({this}, {titleHeight + rows * rowHeight}, Qt::Vertical);
    }
    emit wasFolded();
}

bool ProblemsDock::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (watched != view || (event->type() != QEvent::KeyPress && !isOverride)) {
        return QDockWidget::eventFilter(watched, event);
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F1) {  // here it is not that of the window
        event->accept();
        if (!isOverride) {
            askForReason(view->currentIndex());
        }
        return true;
    }
    if (isOverride) {
        return false;
    }
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) {
        return false;
    }
    const bool wantsFix = key->modifiers().testFlag(Qt::AltModifier);
    wantsFix ? askForFix(view->currentIndex()) : choose(view->currentIndex());
    return true;
}

// Going there may change the list.
void ProblemsDock::choose(const QModelIndex& index)
{
    if (index.isValid()) {
        const Problem problem = list.all()[static_cast<std::size_t>(index.row())];
        emit chosen(problem);
    }
}

void ProblemsDock::askForFix(const QModelIndex& index)
{
    if (!index.isValid()) {
        return;
    }
    const Problem problem = list.all()[static_cast<std::size_t>(index.row())];
    if (problem.fix) {
        emit fixAsked(problem);
    }
}

void ProblemsDock::askForReason(const QModelIndex& index)
{
    if (index.isValid()) {
        emit reasonAsked(list.all()[static_cast<std::size_t>(index.row())]);
    }
}
