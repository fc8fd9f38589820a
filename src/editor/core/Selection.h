#pragma once

#include <cstdint>

namespace KVTextEditor {

// A position: zero-based line and zero-based cell of it (fillers count).
struct CARET
{
    std::int32_t line = 0;
    std::int32_t column = 0;
};

// Field by field; saturates.
CARET operator+(CARET left, CARET right);
bool operator==(CARET left, CARET right);
bool operator!=(CARET left, CARET right);
bool operator<(CARET left, CARET right);  // in reading order

// Anchor and caret. A stream selection runs through the text like reading, a block selection is
// the rectangle between the two.
struct SELECTION
{
    CARET start;  // the anchor
    CARET end;    // the caret
    bool active = false;
    bool block = false;

    void set(std::int32_t line, std::int32_t column);
    void stop_selecting();
    // Stream: start before end. Block: start top left, end bottom right.
    void normalize();
    SELECTION normalized() const;

    std::int32_t width() const;
    std::int32_t height() const;
    bool has_range() const;
    bool is_selected(CARET caret) const;
};

bool operator==(const SELECTION& left, const SELECTION& right);

}  // namespace KVTextEditor
