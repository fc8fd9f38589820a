#pragma once

namespace KVTextEditor {

// Changes the case of one character; for TextLine::transform and TextEditor::transform.
using CHARACTER_FUNCTION = char16_t (*)(char16_t);

// The simple case mapping of Unicode, the same in every locale. What has none stays: surrogate
// halves, and letters such as the sharp s, whose capital form takes more than one unit.
char16_t transform_to_upper(char16_t c);
char16_t transform_to_lower(char16_t c);

}  // namespace KVTextEditor
