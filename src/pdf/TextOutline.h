#pragma once

#include <QPainterPath>

#include <string>

// A line of text as shapes, in the fonts of this machine: for letters that the fonts every PDF
// viewer has do not know. Sizes are those of letters with a height of 1, downwards; the line stands
// on the origin. Without a font that has a letter there is a box in its place.
class TextOutline
{
public:
    explicit TextOutline(const std::string& utf8, bool bold = false);

    const QPainterPath& path() const { return shapes; }
    double width() const { return advance; }

private:
    QPainterPath shapes;
    double advance = 0;
};
