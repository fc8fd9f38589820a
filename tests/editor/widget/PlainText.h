#pragma once

#include <QString>
#include <QVector>

// What an editor is to its author: a row of characters, a caret in it and an anchor; no columns and
// no cells. Line breaks are characters ("\n"); what follows the rules of this editor beyond a text
// field (indentation of new lines, lines that are joined, steps of undo) is told again here.
class PlainText
{
public:
    using Characters = QVector<QString>;

    Characters text;
    int caret = 0;
    int anchor = 0;
    bool overwrite = false;

    QString whole() const { return joined(0, text.size()); }
    QString selected() const { return joined(first(), last()); }
    bool hasRange() const { return caret != anchor; }
    // In code units.
    int unitsBefore(int character) const { return joined(0, character).size(); }
    // -1 inside a character.
    int characterAt(int units) const;

    void setText(const Characters& characters);
    void place(int character) { caret = anchor = character; }

    void type(const QString& character);
    void enter();
    void tab();
    void shiftTab();
    void backspace();
    void deleteForward();
    // As far as the jump by a word goes; where that goes nowhere, a character.
    void deleteWord(bool right);
    void insert(const Characters& characters);
    void paste(const Characters& characters);
    void lowerCase();
    void replaceAll(const Characters& characters);
    // Moves the selection, or copies it.
    void drop(int target, bool copy);
    void undo();
    void redo();

    void left(bool shift);
    void right(bool shift);
    void home(bool shift);
    void end(bool shift);
    void wordLeft();
    void wordRight();
    void selectAll();

private:
    struct State
    {
        Characters text;
        int caret;
        int anchor;
    };
    int first() const { return qMin(caret, anchor); }
    int last() const { return qMax(caret, anchor); }
    QString joined(int from, int to) const;
    int lineStart(int at) const;
    int lineEnd(int at) const;
    int indentationEnd(int at) const;
    void erase(int from, int to);
    void erasedAt(int from) { caret = anchor = from; }
    void moveTo(int character, bool shift);
    void snapshot();
    static void exchange(QVector<State>& from, QVector<State>& to, PlainText& now);

    QVector<State> undoStates;
    QVector<State> redoStates;
};
