#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QRect>

#include <array>
#include <vector>

// The shapes of the characters, each drawn once: a stencil of one cell that says how much of each
// pixel the character covers. One stencil serves all colours.
class GlyphCache
{
public:
    enum Half { left = 0, right = 1 };

    // The size of the largest cell in device pixels; ratio of them make one pixel of the font.
    void set_font(const QFont& font, QSize cell, qreal ratio);
    // Empties the cache: set_font comes before the next drawing.
    void clear();
    QSize cell() const { return cell_size; }
    qreal ratio() const { return pixel_ratio; }

    // Draws a code unit into a cell of a 32-bit canvas. What does not fit into the cell is cut off,
    // and so is what lies outside the canvas.
    void drawChar(QImage& canvas, const QRect& place, char16_t ch, QRgb color, QRgb background);
    // One half of a character that is a surrogate pair and so takes two cells.
    void draw_pair(QImage& canvas, const QRect& place, char16_t high, char16_t low, Half half,
                   QRgb color, QRgb background);

private:
    struct Stencil
    {
        QImage coverage;  // null until the character is drawn for the first time
        QRect ink;        // the part that the character covers
    };

    static void blend(QImage& canvas, const QRect& place, const Stencil& stencil, QRgb color,
                      QRgb background);
    Stencil make_stencil(const QString& text, int shift) const;

    QFont font;  // in device pixels
    QSize cell_size;
    qreal pixel_ratio = 1;
    int baseline = 0;               // device pixels below the cell's top
    std::vector<Stencil> stencils;  // by code unit
    QHash<uint, std::array<Stencil, 2>> pair_stencils;
};
