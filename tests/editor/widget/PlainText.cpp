#include "tests/editor/widget/PlainText.h"

namespace {

bool isBlank(const QString& character)
{
    return character == " " || character == "\t";
}

int kindOf(const QString& character)
{
    if (isBlank(character)) {
        return 1;
    }
    return QString(".=(,").contains(character) ? 2 : 3;
}

}  // namespace

int PlainText::characterAt(int units) const
{
    int character = 0;
    while (units > 0 && character < text.size()) {
        units -= text.at(character++).size();
    }
    return units == 0 ? character : -1;
}

void PlainText::setText(const Characters& characters)
{
    text = characters;
    caret = anchor = 0;
    undoStates.clear();
    redoStates.clear();
}

QString PlainText::joined(int from, int to) const
{
    QString units;
    for (int i = from; i < to; ++i) {
        units += text.at(i);
    }
    return units;
}

int PlainText::lineStart(int at) const
{
    while (at > 0 && text.at(at - 1) != "\n") {
        --at;
    }
    return at;
}

int PlainText::lineEnd(int at) const
{
    while (at < text.size() && text.at(at) != "\n") {
        ++at;
    }
    return at;
}

int PlainText::indentationEnd(int at) const
{
    while (at < text.size() && isBlank(text.at(at))) {
        ++at;
    }
    return at;
}

void PlainText::erase(int from, int to)
{
    text.remove(from, to - from);
}

void PlainText::insert(const Characters& characters)
{
    const int at = first();
    erase(at, last());
    text = text.mid(0, at) + characters + text.mid(at);
    caret = anchor = at + characters.size();
}

void PlainText::snapshot()
{
    undoStates.append({text, caret, anchor});
    redoStates.clear();
}

void PlainText::type(const QString& character)
{
    if (character.at(0) < '0' || undoStates.isEmpty()) {
        snapshot();
    }
    insert({});
    if (overwrite && caret < text.size() && text.at(caret) != "\n") {
        erase(caret, caret + 1);
    }
    insert({character});
}

void PlainText::enter()
{
    snapshot();
    insert({});
    const int start = lineStart(caret);
    const int blanks = qMin(indentationEnd(start), caret);
    insert(Characters{"\n"} + text.mid(start, blanks - start));
}

// Without a selection of several lines it is a character; with one it indents them.
void PlainText::tab()
{
    const int from = lineStart(first());
    if (from == lineStart(last())) {
        type("\t");
        return;
    }
    snapshot();
    const int to = last() == lineStart(last()) ? last() - 1 : last();
    for (int start = lineStart(to); start >= from; start = lineStart(start - 1)) {
        text.insert(start, "\t");
        caret += caret > start ? 1 : 0;
        anchor += anchor > start ? 1 : 0;
        if (start == 0) {
            break;
        }
    }
}

// Where the carets go follows columns; the test looks there.
void PlainText::shiftTab()
{
    snapshot();
    const int from = lineStart(first());
    for (int start = lineStart(last()); start >= from; start = lineStart(start - 1)) {
        int blanks = 0;
        while (blanks < 4 && start + blanks < text.size() && text.at(start + blanks) == " ") {
            ++blanks;
        }
        const bool tab = start < text.size() && text.at(start) == "\t";
        erase(start, start + (tab ? 1 : blanks));
        if (start == 0) {
            break;
        }
    }
}

void PlainText::backspace()
{
    snapshot();
    if (hasRange()) {
        insert({});
    } else if (caret > 0) {
        --caret;
        erase(caret, text.at(caret) == "\n" ? indentationEnd(caret + 1) : caret + 1);
        anchor = caret;
    }
}

void PlainText::deleteForward()
{
    snapshot();
    if (hasRange()) {
        insert({});
    } else if (caret < text.size()) {
        erase(caret, text.at(caret) == "\n" ? indentationEnd(caret + 1) : caret + 1);
    }
}

void PlainText::deleteWord(bool right)
{
    const State before = {text, caret, anchor};
    if (!hasRange()) {
        right ? wordRight() : wordLeft();
        anchor = before.anchor;
    }
    right ? deleteForward() : backspace();
    undoStates.last() = before;
}

void PlainText::paste(const Characters& characters)
{
    snapshot();
    insert(characters);
}

void PlainText::lowerCase()
{
    snapshot();
    for (int i = first(); i < last(); ++i) {
        text[i] = text.at(i).toLower();
    }
}

void PlainText::replaceAll(const Characters& characters)
{
    snapshot();
    text = characters;
}

void PlainText::drop(int target, bool copy)
{
    snapshot();
    const Characters moved = text.mid(first(), last() - first());
    if (!copy) {
        target -= target >= last() ? moved.size() : 0;
        insert({});
    }
    place(target);
    insert(moved);
    anchor = target;
}

void PlainText::exchange(QVector<State>& from, QVector<State>& to, PlainText& now)
{
    if (from.isEmpty()) {
        return;
    }
    to.append({now.text, now.caret, now.anchor});
    const State state = from.takeLast();
    now.text = state.text;
    now.caret = state.caret;
    now.anchor = state.anchor;
}

void PlainText::undo()
{
    exchange(undoStates, redoStates, *this);
}

void PlainText::redo()
{
    exchange(redoStates, undoStates, *this);
}

void PlainText::moveTo(int character, bool shift)
{
    caret = character;
    anchor = shift ? anchor : caret;
}

void PlainText::left(bool shift)
{
    moveTo(hasRange() && !shift ? first() : qMax(0, caret - 1), shift);
}

void PlainText::right(bool shift)
{
    moveTo(hasRange() && !shift ? last() : qMin(text.size(), caret + 1), shift);
}

void PlainText::home(bool shift)
{
    const int start = lineStart(caret);
    const int inner = indentationEnd(start);
    moveTo(caret == inner ? start : inner, shift);
}

void PlainText::end(bool shift)
{
    moveTo(lineEnd(caret), shift);
}

void PlainText::wordLeft()
{
    if (hasRange()) {
        moveTo(first(), false);
        return;
    }
    const int start = lineStart(caret);
    int to = qMax(start, caret - 1);
    while (to > start && kindOf(text.at(to - 1)) == kindOf(text.at(to))) {
        --to;
    }
    moveTo(to, false);
}

void PlainText::wordRight()
{
    if (hasRange()) {
        moveTo(last(), false);
        return;
    }
    const int end = lineEnd(caret);
    int to = caret;
    while (to < end && kindOf(text.at(to)) == kindOf(text.at(caret))) {
        ++to;
    }
    moveTo(to, false);
}

void PlainText::selectAll()
{
    anchor = 0;
    caret = text.size();
}
