#include "tryout/TryTab.h"

#include "document/Document.h"
#include "page/PolyEditorWidget.h"
#include "qtsync/FlowLayout.h"
#include "qtsync/ToolTip.h"
#include "tryout/Conversation.h"
#include "tryout/PageWindow.h"
#include "tryout/ReaderPage.h"
#include "tryout/ScriptView.h"
#include "tryout/VariableTable.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSlider>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

constexpr int kFullVolume = 100;

QString wordsOf(const TriedBook::Tap& tap)
{
    switch (tap.kind) {
    case TriedBook::Tap::Kind::start:
        return TryTab::tr("Start");
    case TriedBook::Tap::Kind::again:
        return TryTab::tr("Again");
    case TriedBook::Tap::Kind::stop:
        return TryTab::tr("Stop");
    default:
        return QString::fromStdString(tap.area);
    }
}

}  // namespace

TryTab::TryTab(Document& shown, const TriedBook::Source& source, QWidget* parent)
    : QWidget(parent),
      document(shown),
      book(source, SpokenTexts::usualFolder()),
      page(new ReaderPage(shown))
{
    page->setObjectName("tryPageScroll");
    page->page()->setObjectName("tryPage");
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(4, 4, 4, 4);
    rows->setSpacing(4);
    rows->addWidget(makeControls());
    auto* const sides = new QSplitter;
    sides->setObjectName("trySides");
    sides->setChildrenCollapsible(false);
    sides->addWidget(page);
    sides->addWidget(makePanels());
    sides->setStretchFactor(0, 3);
    sides->setStretchFactor(1, 2);
    sides->setSizes({600, 400});
    rows->addWidget(sides, 1);
    takeTaps(page);
    connectBook();
    connect(&document, &Document::changed, this, &TryTab::showPages);
    showPages();
    showState();
}

TryTab::~TryTab() = default;

// --- What there is -------------------------------------------------------------------------------

QPushButton* TryTab::addButton(QLayout& row, const char* name, const QString& text,
                               const QString& toolTip, const char* key)
{
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setToolTip(toolTip);
    if (key != nullptr) {
        // At once; a shortcut of the button's own would first show it pressed for a while.
        auto* const shortcut = new QShortcut(QKeySequence(key), this);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
        button->setToolTip(withKey(toolTip, shortcut->key()));
    }
    row.addWidget(button);
    return button;
}

QWidget* TryTab::makeControls()
{
    auto* const controls = new QWidget;
    auto* const row = new FlowLayout(controls);
    connect(addButton(*row, "btStart", tr("Start"),
                      tr("Switches the book on, as START on paper does: plays the welcome")),
            &QPushButton::clicked, &book, &TriedBook::start);
    connect(addButton(*row, "btTryAgain", tr("Again"),
                      tr("Plays once more what was played last, as REPLAY on paper does")),
            &QPushButton::clicked, &book, &TriedBook::again);
    connect(addButton(*row, "btTryStop", tr("Stop"),
                      tr("Ends the sound that plays, as STOP on paper does")),
            &QPushButton::clicked, &book, &TriedBook::stop);
    connect(addButton(*row, "btTryFresh", tr("Fresh"),
                      tr("All as in the beginning: nothing was tapped, no variable changed")),
            &QPushButton::clicked, &book, &TriedBook::fresh);
    connect(addButton(*row, "btTryStep", tr("Step"),
                      tr("Goes on by one line of the script; the next tap begins like that"),
                      "F10"),
            &QPushButton::clicked, &book, &TriedBook::step);
    connect(addButton(*row, "btTryGoOn", tr("Go on"), tr("Goes on to the next breakpoint"), "F5"),
            &QPushButton::clicked, &book, &TriedBook::goOn);
    connect(addButton(*row, "btTryBreakpoint", tr("Breakpoint"),
                      tr("Sets a breakpoint at the line of the caret, or takes it away"), "F9"),
            &QPushButton::clicked, this, [this] { script->toggleHere(); });
    recordButton = addButton(*row, "btTryRecord", tr("Record"),
                             tr("Begins anew and writes down what is tapped, as a book test; a "
                                "second click keeps it"));
    recordButton->setCheckable(true);
    connect(recordButton, &QPushButton::clicked, this, &TryTab::record);
    windowButton =
        addButton(*row, "btTryWindow", tr("Window"),
                  tr("Shows the page in a window of its own, for a second screen"), "F11");
    windowButton->setCheckable(true);
    connect(windowButton, &QPushButton::clicked, this, &TryTab::toggleWindow);

    pages = new QComboBox;
    pages->setObjectName("cbTryPage");
    pages->setAccessibleName(tr("Page"));
    pages->setToolTip(tr("The page that is shown; Page Up and Page Down turn the pages, too"));
    row->addWidget(pages);
    connect(pages, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        if (!showingPages && index >= 0) {
            emit pageAsked(index);
        }
    });
    auto* const volume = new QSlider(Qt::Horizontal);
    volume->setObjectName("slTryVolume");
    volume->setRange(0, kFullVolume);
    volume->setValue(kFullVolume);
    volume->setFixedSize(70, pages->sizeHint().height());
    volume->setAccessibleName(tr("Volume"));
    volume->setToolTip(tr("How loud the book is on this computer; the pen has keys of its own"));
    row->addWidget(volume);
    connect(volume, &QSlider::valueChanged, this,
            [this](int value) { book.setVolume(static_cast<double>(value) / kFullVolume); });
    return controls;
}

QWidget* TryTab::makePanels()
{
    conversation = new Conversation;
    variables = new VariableTable;
    script = new ScriptView;
    state = new QLabel;
    state->setObjectName("lbTryState");
    state->setMinimumWidth(1);
    auto* const below = new QWidget;
    auto* const column = new QVBoxLayout(below);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(state);
    column->addWidget(script, 1);
    panels = {conversation, variables, below};

    panelTabs = new QTabBar;
    panelTabs->setObjectName("tryPanelTabs");
    panelTabs->setAccessibleName(tr("What is shown beside the page"));
    panelTabs->setStyleSheet("QTabBar::tab { min-height: 20px; }");  // there is little room
    panelTabs->setDrawBase(false);
    panelTabs->hide();
    for (const QString& text : {tr("Said"), tr("Variables"), tr("Script")}) {
        panelTabs->addTab(text);
    }
    connect(panelTabs, &QTabBar::currentChanged, this, &TryTab::arrangePanels);
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->setObjectName("tryPanels");
    splitter->setChildrenCollapsible(false);
    for (size_t i = 0; i < panels.size(); ++i) {
        splitter->addWidget(panels[i]);
        splitter->setStretchFactor(static_cast<int>(i), panels[i] == variables ? 2 : 3);
    }
    auto* const side = new QWidget;
    auto* const rows = new QVBoxLayout(side);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(panelTabs);
    rows->addWidget(splitter, 1);
    connect(variables, &VariableTable::edited, this, [this](const QString& name, int value) {
        book.setVariable(name.toStdString(), static_cast<uint16_t>(value));
    });
    connect(script, &ScriptView::breakpointsChanged, this,
            [this] { book.setBreakpoints(script->breakpoints()); });
    connect(script, &ScriptView::lineAsked, this, &TryTab::lineAsked);
    return side;
}

// On a small screen one below the other they would show next to nothing.
void TryTab::arrangePanels()
{
    const bool isSmall = height() < 16 * fontMetrics().height();
    panelTabs->setVisible(isSmall);
    for (size_t i = 0; i < panels.size(); ++i) {
        panels[i]->setVisible(!isSmall || panelTabs->currentIndex() == static_cast<int>(i));
    }
}

void TryTab::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrangePanels();
}

void TryTab::connectBook()
{
    connect(&book, &TriedBook::told, this, &TryTab::told);
    connect(&book, &TriedBook::tapped, this, &TryTab::begin);
    connect(&book, &TriedBook::bookChanged, this, &TryTab::showBook);
    connect(&book, &TriedBook::begunAnew, this, [this] {
        conversation->clearAll();
        recorder.clear();
    });
    connect(&book, &TriedBook::tapEnded, this, [this] { recorder.end(*book.book()); });
    connect(&book, &TriedBook::moved, this, &TryTab::showMoves);
}

// --- Tapping -------------------------------------------------------------------------------------

void TryTab::takeTaps(ReaderPage* tappedPage)
{
    connect(tappedPage, &ReaderPage::tapped, this, &TryTab::tapArea);
    connect(tappedPage, &ReaderPage::turned, this, &TryTab::turn);
}

void TryTab::tapArea(const QString& area)
{
    if (area.isEmpty()) {
        emit told(tr("There is no area here."));
        return;
    }
    emit told(QString());
    page->flash(area.toStdString());
    if (window != nullptr) {
        window->page()->flash(area.toStdString());
    }
    book.tapArea(area.toStdString());
}

void TryTab::turn(int way)
{
    const int asked = document.currentPage() + way;
    if (document.pageAt(asked) != PageId::none) {
        emit pageAsked(asked);
    }
}

// --- Showing -------------------------------------------------------------------------------------

void TryTab::begin(const TriedBook::Tap& tap)
{
    conversation->begin(wordsOf(tap));
    recorder.add(tap);
}

void TryTab::showBook()
{
    script->showScript(QString::fromStdString(book.book()->book().script));
}

void TryTab::showMoves()
{
    if (book.book() != nullptr) {
        conversation->showOutcome(*book.book(), book.state() == TriedBook::State::atRest);
        variables->showValues(book.book()->variables(), book.book()->outcome().variables);
    }
    if (book.state() == TriedBook::State::pausing) {
        panelTabs->setCurrentIndex(panelTabs->count() - 1);  // the script
    }
    script->showLine(book.line(), book.state() == TriedBook::State::pausing);
    showState();
}

void TryTab::showState()
{
    switch (book.state()) {
    case TriedBook::State::pausing:
        state->setText(tr("Line %1 comes next: F10 runs it, F5 goes on").arg(book.line()));
        break;
    case TriedBook::State::sounding:
        state->setText(tr("Something is heard"));
        break;
    default:
        state->setText(book.isStepping() ? tr("The next tap goes line by line")
                                         : tr("Tap an area of the page"));
    }
    state->setToolTip(state->text());
}

void TryTab::showPages()
{
    const QScopedValueRollback<bool> filling(showingPages, true);
    const int count = static_cast<int>(document.project().pictures.size());
    while (pages->count() > count) {
        pages->removeItem(pages->count() - 1);
    }
    while (pages->count() < count) {
        pages->addItem(tr("Page %1").arg(pages->count() + 1));
    }
    pages->setCurrentIndex(document.currentPage());
    pages->setEnabled(count > 1);
}

// --- Recording -----------------------------------------------------------------------------------

void TryTab::record(bool on)
{
    if (on) {
        book.beginTest();
        emit told(
            tr("What is tapped now becomes a book test. Another click on \"Record\" keeps it."));
        return;
    }
    book.endTest();
    if (recorder.text().empty()) {
        emit told(tr("Nothing was tapped, so there is no book test."));
    } else if (!saveTest(recorder.text())) {
        book.goOnWithTest();
        recordButton->setChecked(true);
        emit told(tr("The book test was not saved; it goes on. \"Fresh\" begins it anew."));
    }
}

void TryTab::keepTest()
{
    if (recordButton->isChecked()) {
        recordButton->setChecked(false);
        book.endTest();
        if (!recorder.text().empty()) {
            saveTest(recorder.text());
        }
    }
}

// --- The second window, and who hears ------------------------------------------------------------

void TryTab::toggleWindow()
{
    if (window == nullptr) {
        window = new PageWindow(document, this);
        takeTaps(window->page());
        connect(window, &PageWindow::closed, this, [this] {
            windowButton->setChecked(false);
            useSound();
        });
    }
    if (window->isVisible()) {
        window->close();
    } else {
        window->open();
        windowButton->setChecked(true);
    }
}

void TryTab::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    book.refresh();
    showMoves();
    useSound();
}

void TryTab::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    useSound();
}

// The loudspeaker is left to others while nobody taps.
void TryTab::useSound()
{
    if (isVisible() || (window != nullptr && window->isVisible())) {
        book.prepareSound();
    } else {
        book.releaseSound();
    }
}
