#include "app/WelcomePage.h"

#include "app/RecentBooks.h"

#include <QAction>
#include <QBoxLayout>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

namespace {

QLabel* title(const QString& text)
{
    auto* const label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

QPushButton* button(const char* name, const QString& text, const QString& toolTip)
{
    auto* const made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(toolTip);
    return made;
}

// As wide as its column, whatever the paths are, and as high as its rows.
class BookList : public QListWidget
{
public:
    QSize sizeHint() const override
    {
        const int row = count() > 0 ? sizeHintForRow(0) : fontMetrics().height();
        return {fontMetrics().averageCharWidth() * 30, row * qMax(1, count()) + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 12, sizeHint().height()};
    }
};

}  // namespace

WelcomePage::WelcomePage(RecentBooks& books, QWidget* under)
    : QScrollArea(under->parentWidget()), recent(books), covered(under)
{
    setObjectName("welcomePage");
    setAccessibleName(tr("Welcome"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* const content = new QWidget;
    columns = new QBoxLayout(QBoxLayout::TopToBottom, content);
    beginning = makeBeginning();
    last = makeRecent();
    columns->addWidget(beginning, 1);
    columns->addWidget(last, 1);
    columns->setSpacing(2 * columns->spacing());
    setWidget(content);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    setFocusProxy(content->findChild<QPushButton*>("btNewBook"));
    covered->installEventFilter(this);
    follow();
}

QWidget* WelcomePage::makeBeginning()
{
    constexpr int kWidest = 40;  // letters
    auto* const column = new QWidget;
    column->setMaximumWidth(fontMetrics().averageCharWidth() * kWidest);
    auto* const rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(title(tr("Begin with a book")));
    auto* const newBook =
        button("btNewBook", tr("New book..."),
               tr("Asks for name, number, folder and pictures, and makes the book"));
    auto* const open = button("btOpenBook", tr("Open..."), tr("Opens a project that is there"));
    connect(newBook, &QPushButton::clicked, this, &WelcomePage::newBookAsked);
    connect(open, &QPushButton::clicked, this, &WelcomePage::openAsked);
    rows->addWidget(newBook);
    rows->addWidget(open);
    samplesTitle = title(tr("Sample books, to try out and to change"));
    rows->addSpacing(rows->spacing());
    rows->addWidget(samplesTitle);
    samples = new QVBoxLayout;
    rows->addLayout(samples);
    rows->addStretch();
    auto* const aside = new QWidget;
    auto* const line = new QHBoxLayout(aside);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(column, 1);
    line->addStretch();
    return aside;
}

QWidget* WelcomePage::makeRecent()
{
    auto* const column = new QWidget;
    auto* const rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(title(tr("Last books")));
    list = new BookList;
    list->setObjectName("recentBooks");
    list->setAccessibleName(tr("Last books"));
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto act = [this](const char* name, const QString& text,
                            const QList<QKeySequence>& keys) {
        auto* const action = new QAction(text, list);
        action->setObjectName(name);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        list->addAction(action);
        return action;
    };
    const QString removing = tr("Remove from the list");
    connect(act("actionOpenRecent", tr("Open"), {{Qt::Key_Return}, {Qt::Key_Enter}}),
            &QAction::triggered, this, [this] { open(list->currentItem()); });
    connect(act("actionRemoveRecent", removing, {QKeySequence(Qt::Key_Delete)}),
            &QAction::triggered, this, &WelcomePage::removeCurrent);
    connect(list, &QListWidget::itemClicked, this, &WelcomePage::open);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        remove->setEnabled(item != nullptr);
        if (item != nullptr) {
            const QPoint row = list->visualItemRect(item).center();
            const QPoint place = list->viewport()->mapTo(widget(), row);
            ensureVisible(0, place.y());
        }
    });
    remove = button("btRemoveRecent", removing,
                    tr("Takes the book off this list; its files stay (Delete)"));
    remove->setEnabled(false);
    connect(remove, &QPushButton::clicked, this, &WelcomePage::removeCurrent);
    rows->addWidget(list);
    rows->addWidget(remove, 0, Qt::AlignLeft);
    rows->addStretch();
    return column;
}

// Once, and not for a window that begins with a project.
void WelcomePage::findSamples()
{
    if (samplesKnown) {
        return;
    }
    samplesKnown = true;
    QWidget* before = beginning->findChild<QPushButton*>("btOpenBook");
    for (const SampleBook& book : sampleBooks(samplesFolder(), QLocale::system().uiLanguages())) {
        auto* const sample =
            button(qPrintable("btSample_" + book.name), QString(book.title).replace('&', "&&"),
                   tr("Copies this sample book to a folder of yours, and opens "
                      "the copy"));
        connect(sample, &QPushButton::clicked, this, [this, book] { emit sampleAsked(book); });
        samples->addWidget(sample);
        setTabOrder(before, sample);
        before = sample;
    }
    samplesTitle->setVisible(samples->count() > 0);
}

void WelcomePage::showRecent()
{
    list->clear();
    for (const QString& file : recent.files()) {
        const QFileInfo info(file);
        const QString folder = QDir::toNativeSeparators(info.path());
        const QString text = info.exists() ? tr("%1 in %2") : tr("%1 in %2 (not there any more)");
        auto* const item = new QListWidgetItem(text.arg(info.fileName(), folder), list);
        item->setData(Qt::UserRole, file);
        item->setSizeHint({0, list->fontMetrics().height() * 3 / 2});  // else it is not elided
        item->setToolTip(QDir::toNativeSeparators(file));
        if (!info.exists()) {
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        }
    }
    last->setVisible(list->count() > 0);
    list->updateGeometry();
    list->setCurrentRow(-1);
}

void WelcomePage::open(const QListWidgetItem* item)
{
    if (item == nullptr) {
        return;
    }
    const QString file = item->data(Qt::UserRole).toString();
    if (QFileInfo::exists(file)) {
        emit projectAsked(file);
    } else {
        emit told(tr("%1 is not there any more. It can be removed from the list.")
                      .arg(QDir::toNativeSeparators(file)));
    }
}

void WelcomePage::removeCurrent()
{
    const QListWidgetItem* const item = list->currentItem();
    if (item == nullptr) {
        return;
    }
    const int row = list->currentRow();
    const QString file = item->data(Qt::UserRole).toString();
    recent.remove(file);
    showRecent();
    emit told(tr("%1 is off the list.").arg(QFileInfo(file).fileName()));
    if (list->count() == 0) {
        setFocus();
        return;
    }
    list->setCurrentRow(qMin(row, list->count() - 1));
    list->setFocus();
}

bool WelcomePage::eventFilter(QObject* watched, QEvent* event)
{
    const bool changed = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (watched == covered && changed) {
        follow();
    }
    return QScrollArea::eventFilter(watched, event);
}

void WelcomePage::follow()
{
    setGeometry(covered->geometry());
}

void WelcomePage::showEvent(QShowEvent* event)
{
    findSamples();
    showRecent();
    arrange();
    QScrollArea::showEvent(event);
}

void WelcomePage::resizeEvent(QResizeEvent* event)
{
    arrange();
    QScrollArea::resizeEvent(event);
}

// Side by side where there is room for both.
void WelcomePage::arrange()
{
    const int both = beginning->sizeHint().width() + last->sizeHint().width() + columns->spacing() +
                     columns->contentsMargins().left() * 2;
    columns->setDirection(both <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}
