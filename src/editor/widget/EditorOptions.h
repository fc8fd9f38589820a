#pragma once

#include "editor/core/EdChar.h"

#include <QColor>

#include <array>

// How the editor shows its text.
struct EditorOptions
{
    // Slots of the colours: 0 to 7 by role (color_of_role), 8 the selection.
    static constexpr int kSelectionSlot = 8;
    std::array<QColor, 9> colors;  // opaque

    bool show_line_numbers = true;
    int min_number_digits = 2;
    bool show_whitespace = false;

    EditorOptions() { set_default_colours_bright(); }
    void set_default_colours_bright();

    QColor background() const { return colors[0]; }
    // Intended: the roles 5 and 6 take each other's slot; roles from 7 on share one.
    QColor color_of_role(KVTextEditor::COLORINDEX role) const;
};

// The colour itself where it can be read on the background (a contrast of at least 4.5 to 1 as the
// Web Content Accessibility Guidelines define it), else black or white.
QColor legible_on(const QColor& color, const QColor& background);
