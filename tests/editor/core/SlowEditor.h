#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "editor/core/Selection.h"

// The editor as plainly as it can be said: a text is a vector of strings, in which a tab is
// followed by its fillers (character 0). No colours, no cleverness, everything is copied. It stands
// beside the real editor in the model test.
class SlowEditor
{
public:
    using Text = std::u16string;

    std::vector<Text> lines = {Text()};
    std::vector<bool> bookmarks = {false};
    KVTextEditor::SELECTION selection;
    bool dirty = false;
    std::int64_t undoLimit = 100 * 1024 * 1024;

    void setText(const Text& text);
    Text allText() const;
    std::int64_t undoBytes() const;
    std::size_t undoCount() const { return undoStates.size(); }
    std::size_t redoCount() const { return redoStates.size(); }

    void moveCursor(int dy, int dx);
    void click(KVTextEditor::CARET caret, bool extend, bool block);
    void doubleClick(KVTextEditor::CARET caret);
    void type(char16_t c, bool overwrite);
    void enter();
    void deleteForward();
    void deleteSelection();
    void paste(const Text& text, bool asBlock);
    void indent();
    void unindent();
    void changeCase(char16_t (*fn)(char16_t));
    std::vector<Text> selectedText() const;
    void pushUndo();
    void undo();
    void redo();

private:
    struct State
    {
        KVTextEditor::SELECTION selection;
        Text text;
    };

    int lastLine() const { return static_cast<int>(lines.size()) - 1; }
    int length(int line) const;
    char16_t characterAt(int line, int column) const;
    bool isFiller(int line, int column) const;
    KVTextEditor::CARET snapped(KVTextEditor::CARET caret) const;
    void insertAt(int line, int column, const Text& text);
    void eraseAt(int line, int column, int count);
    void expand(int line);
    void moveLeft(int dx);
    void moveRight(int dx);
    void deleteAtCaret();
    void deleteInBlock();
    void pasteStream(const std::vector<Text>& pasted);
    void pasteBlock(std::vector<Text> pasted);
    State state() const { return {selection, allText()}; }
    void restore(const State& state);

    std::vector<State> undoStates;
    std::vector<State> redoStates;
};
