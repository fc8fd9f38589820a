#pragma once

#include "editor/widget/KVQtHighlightEditCtrl.h"

#include <QImage>
#include <QString>

class KVQtFindDialog;

// From 1 to 21, as the Web Content Accessibility Guidelines define it.
double contrast(QColor a, QColor b);

// The code editor in a window of its own, used with keys and mouse as an author does.
class EditorWindow
{
public:
    using CARET = KVTextEditor::CARET;
    using SELECTION = KVTextEditor::SELECTION;

    // In the text '|' marks the caret and '^' the anchor of a selection; lines end with LF.
    explicit EditorWindow(const QString& marked = QString(), QSize size = {640, 400});

    // The text with '|' at the caret and '^' at the anchor of a range, lines joined with LF.
    QString shown() const;
    QString text() const;
    KVTextEditor::SELECTION& selection() { return surface.editor.selection; }
    CARET caret() const { return surface.editor.selection.end; }
    // "0,1-2,3", with " block" for a rectangle.
    QString rectangle() const;

    void place(CARET anchor, CARET caret, bool block = false);

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);
    // The text comes from an input method, as composed characters do.
    void compose(const QString& text);

    // The left edge of a cell in the middle of its line's height.
    QPoint point(int line, int column) const;
    QPoint gutter(int line) const;
    void press(QPoint where, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void move(QPoint where, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(QPoint where, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(QPoint where, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void doubleClick(QPoint where);
    // Presses, moves and releases; the modifiers are those of the move and the release.
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    KVQtFindDialog& findDialog();
    // A frame without the caret.
    QImage picture();
    // The colour of the corner of a cell, which no character covers.
    QColor ground(const QImage& picture, int line, int column) const;
    QColor ink(const QImage& picture, int line, int column) const;
    bool isEmpty(const QImage& picture, int line, int column) const;
    // Whether something in this colour, or close to it, stands in the cell.
    static bool holdsColor(const QImage& picture, const QRect& cell, QColor color);
    QRect cell(int line, int column) const;
    QRect gutterCell(int line, int column) const;

    KVQtHighlightEditCtrl control;
    KVQtHighlightEditCtrlInlay& surface;
};
