#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "editor/core/EditorBackend.h"
#include "tests/editor/core/SlowEditor.h"

// The editor and its model, side by side.
class EditorPair
{
public:
    // Where chance comes from: any numbers.
    explicit EditorPair(std::function<unsigned()> chance)
        : editor(&buffer), random(std::move(chance))
    {
        setText(randomText(12));
    }

    // One random operation on both; returns what was done.
    std::string step();
    // What both are to have in common, and what is to hold of the editor by itself; to be looked at
    // after each operation.
    void expectSame() const;
    void expectSound() const;

private:
    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    char16_t randomCharacter();
    std::u16string randomText(int lines);
    KVTextEditor::CARET randomCaret();

    void setText(const std::u16string& text);
    std::string move();
    std::string mouse();
    std::string type();
    std::string remove();
    std::string paste();
    std::string command();
    std::string history();
    std::string bookmark();
    void expectSameLines() const;
    void mustBeExpanded(int first, int last);
    bool isExpanded(int line) const;

    KVTextEditor::Buffer<KVTextEditor::EdChar> buffer;
    KVTextEditor::EditorBackend<KVTextEditor::EdChar> editor;
    SlowEditor model;
    std::function<unsigned()> random;
    // setText leaves the charge as it is, so the sum is off by this much.
    std::int64_t leftCharge = 0;
    // What the last operation promises: lines with their tabs expanded, a caret inside the text.
    int firstExpanded = 0;
    int lastExpanded = -1;
    bool caretInText = false;
};
