#pragma once

#include "editor/core/EditorBackend.h"
#include "editor/widget/EditorOptions.h"
#include "editor/widget/GlyphCache.h"
#include "editor/widget/LineMarks.h"

#include <QImage>

#include <array>
#include <vector>

// The part of the text that is drawn.
struct TextView
{
    int first_line = 0;
    int first_column = 0;
    int lines = 0;
    int columns = 0;
    int gutter_digits = 0;  // places of the line numbers
    int text_left = 0;      // pixels in front of the text
    QSize cell;             // pixels
    qreal ratio = 1;        // device pixels per pixel
    // The bracket at the caret and its partner.
    std::array<KVTextEditor::CARET, 2> brackets = {{{-1, -1}, {-1, -1}}};
    const LineMarks* marks = nullptr;  // not owned; null is none
};

// Draws rows of the text into a 32-bit canvas, cell by cell and without a painter: a frame has
// thousands of cells, and each costs no more than its pixels.
class TextPainter
{
public:
    using BACKEND = KVTextEditor::EditorBackend<KVTextEditor::EdChar>;
    using LINE = KVTextEditor::Line<KVTextEditor::EdChar>;
    using CARET = KVTextEditor::CARET;

    TextPainter(QImage& canvas, GlyphCache& glyphs, const EditorOptions& options,
                const BACKEND& editor, const TextView& view);
    // Draws one row of the view, whatever was there before.
    void draw_row(int row);

private:
    enum Ground { plain, selected, bracket };
    static constexpr int kGrounds = 3;
    static constexpr int kRoles = 8;

    void prepare_colors();
    void prepare_columns();
    void draw_line(int row);
    void draw_gutter(int row);
    void draw_bookmark(const QRect& place);
    void draw_marks(int row);
    void draw_mark_in_gutter(int row, TextMark::Kind kind);
    void draw_wave(int row, int from, int end, QRgb color);
    void find_selected_columns(int line);
    Ground ground_at(CARET caret) const;
    void draw_cell(const QRect& place, const LINE& cells, int column, Ground ground);
    int device(int pixels) const;
    QRect gutter_cell(int row, int column) const;
    void fill(const QRect& place, QRgb color);
    const QRgb& color_of(KVTextEditor::COLORINDEX role, Ground ground) const;

    QImage& canvas;
    GlyphCache& glyphs;
    const EditorOptions& options;
    const BACKEND& editor;
    TextView view;
    KVTextEditor::SELECTION selection;  // normalized
    bool has_selection;
    int selected_from = 0;  // columns of the line that is being drawn
    int selected_end = 0;
    std::vector<int> lefts;  // of the columns in view, in device pixels
    std::array<QRgb, kGrounds> grounds{};
    std::array<std::array<QRgb, kRoles>, kGrounds> colors{};
};
