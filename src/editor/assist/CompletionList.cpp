#include "editor/assist/CompletionList.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

using KVTextEditor::CARET;

CompletionList::CompletionList(KVQtHighlightEditCtrlInlay& ofScript, ScriptWatch& scriptWatch,
                               const BookAreas& bookAreas)
    : QListWidget(&ofScript), script(ofScript), watch(scriptWatch), areas(bookAreas)
{
    setObjectName("completionList");
    setAccessibleName(tr("Suggestions"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    hide();
    constexpr int kSoon = 40;  // ms
    soon.setSingleShot(true);
    soon.setInterval(kSoon);
    connect(&soon, &QTimer::timeout, this, &CompletionList::refresh);
    connect(this, &QListWidget::itemClicked, this, &CompletionList::accept);
    connect(this, &QListWidget::currentRowChanged, this, &CompletionList::tellReaders);
}

void CompletionList::ask()
{
    watch.now();
    offer(true);
}

void CompletionList::typed()
{
    soon.start();
}

void CompletionList::follow()
{
    if (isVisible() && !accepting) {
        soon.start();
    }
}

void CompletionList::dismiss()
{
    soon.stop();
    hide();
}

void CompletionList::refresh()
{
    soon.stop();
    if (isVisible()) {
        offer(wasAsked);
        return;
    }
    std::string line;
    const WrittenWord word = wordAtCaret(line);
    const bool isName = word.wanted == Wanted::areaOfSub || word.wanted == Wanted::subOfGoto ||
                        word.wanted == Wanted::voiceOfSay;
    if (isName && !word.text.empty()) {
        offer(false);
    }
}

WrittenWord CompletionList::wordAtCaret(std::string& line) const
{
    const KVTextEditor::SELECTION& selection = script.editor.selection;
    if (selection.has_range() || selection.block) {
        return {};
    }
    const CARET caret = selection.end;
    line = script.LineText(caret.line).toStdString();
    const auto bytes = static_cast<std::size_t>(script.PartAt(caret).column - 1);
    line.resize(std::min(line.size(), bytes));
    return writtenWord(line);
}

void CompletionList::offer(bool isAsked)
{
    std::string line;
    const WrittenWord word = wordAtCaret(line);
    const bool needsAreas = word.wanted == Wanted::areaOfSub && areas.names;
    const std::vector<Suggestion> suggestions = suggestionsFor(
        word, watch.recent(), needsAreas ? areas.names() : std::vector<std::string>(),
        script.editor.selection.end.line + 1);
    if (word.wanted == Wanted::nothing || suggestions.empty()) {
        hide();
        return;
    }
    wasAsked = isAsked;
    fill(suggestions);
    place(word);
    show();
    raise();
    tellReaders();
}

void CompletionList::fill(const std::vector<Suggestion>& suggestions)
{
    constexpr std::size_t kMost = 100;  // who wants another one types a letter more
    QStringList texts;
    for (std::size_t i = 0; i < std::min(kMost, suggestions.size()); ++i) {
        texts << QString::fromStdString(suggestions[i].text);
    }
    clear();
    addItems(texts);
    setCurrentRow(wasAsked ? 0 : -1);
}

// Below the word, or above it where there is no room.
void CompletionList::place(const WrittenWord& word)
{
    constexpr int kRows = 8, kNarrowest = 12;  // rows, letters
    const int rows = std::min(kRows, count());
    const int frame = 2 * frameWidth();
    const int width =
        std::max(sizeHintForColumn(0), kNarrowest * fontMetrics().averageCharWidth()) + frame +
        (count() > rows ? verticalScrollBar()->sizeHint().width() : 0);
    const int height = rows * sizeHintForRow(0) + frame;
    const CARET caret = script.editor.selection.end;
    const KVQtHighlightEditCtrlInlay::Part part{caret.line + 1, static_cast<int>(word.begin) + 1,
                                                0};
    const QRect cell = script.CellRectangle(script.CellsOf(part).start);
    const int left = std::clamp(cell.left(), 0, std::max(0, script.width() - width));
    const bool isBelow = cell.bottom() + 1 + height <= script.height() || cell.top() < height;
    setGeometry(left, isBelow ? cell.bottom() + 1 : cell.top() - height, width, height);
}

bool CompletionList::takeKey(int key)
{
    const bool isForList = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                           key == Qt::Key_PageDown || key == Qt::Key_Return ||
                           key == Qt::Key_Enter || key == Qt::Key_Tab;
    if (isVisible() && isForList && soon.isActive()) {
        refresh();  // to what was typed just before the key
    }
    if (!isVisible()) {
        return false;
    }
    switch (key) {
    case Qt::Key_Escape:
        dismiss();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int step = key == Qt::Key_Up ? count() - 1 : 1;
        setCurrentRow(currentRow() < 0 ? (key == Qt::Key_Up ? count() - 1 : 0)
                                       : (currentRow() + step) % count());
        return true;
    }
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        if (currentRow() >= 0) {
            accept();
            return true;
        }
        dismiss();
        return false;
    default:
        return false;
    }
}

void CompletionList::accept()
{
    std::string line;
    const WrittenWord word = wordAtCaret(line);
    if (word.wanted != Wanted::nothing && currentItem() != nullptr) {
        const QScopedValueRollback<bool> guard(accepting, true);
        script.Replace({{{script.editor.selection.end.line + 1, static_cast<int>(word.begin) + 1,
                          static_cast<int>(word.text.size())},
                         currentItem()->text()}});
        script.EnsureVisible(script.editor.selection.end);
    }
    dismiss();
}

// The list never has the focus, so what is chosen in it is said as an event of its own.
void CompletionList::tellReaders()
{
    if (isVisible() && currentRow() >= 0) {
        QAccessibleEvent event(this, QAccessible::Selection);
        event.setChild(currentRow());
        QAccessible::updateAccessibility(&event);
    }
}
