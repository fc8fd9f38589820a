// Editing around tabs and around characters of several cells. The editing logic takes columns as
// they are and counts single cells; here its commands find the lines with their tabs expanded and
// the carets at the edges of characters.
#include "editor/widget/Characters.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

using CARET = KVTextEditor::CARET;
using LINE = KVTextEditor::Line<KVTextEditor::EdChar>;

constexpr char16_t kBackspace = 8;
constexpr char16_t kEscape = 27;

// A column as a number of characters, which stays the same when tabs are expanded.
struct Place
{
    Place(const LINE& line, int column)
        : characters(line.characters_between(0, column)),
          beyond(std::max(0, column - line.length()))
    {}

    int column_in(const LINE& line) const { return line.column_behind(characters) + beyond; }

    int characters;  // in front
    int beyond;      // columns behind the line's end
};

}  // namespace

// A step of undo begins: what comes now changes the text.
void KVQtHighlightEditCtrlInlay::begin_undo_step()
{
    settle_selection();
    editor.push_undo_state();
}

// Expands the lines that the selection stands in. Its carets keep their places in the text.
void KVQtHighlightEditCtrlInlay::settle_selection()
{
    const SELECTION& selection = editor.selection;
    if (!selection.block) {
        expand_tabs_of(selection.start.line);
        expand_tabs_of(selection.end.line);
    }
    keep_between_characters();
}

// A caret stands neither in a tab nor in a surrogate pair. A rectangle has its columns where it is
// drawn, so its lines are expanded as they will be when something is typed there.
void KVQtHighlightEditCtrlInlay::keep_between_characters()
{
    SELECTION& selection = editor.selection;
    if (selection.block) {
        const Rows rows = rows_of(selection);
        for (int line = rows.first; line <= rows.last; ++line) {
            expand_tabs_of(line);
        }
        return;
    }
    const BUFFER& text = buffer;
    for (CARET* caret : {&selection.start, &selection.end}) {
        const LINE& line = text.line(caret->line);
        if (line.is_filler_at(caret->column) || parts_pair(line, caret->column)) {
            caret->column = end_of_character(line, caret->column);
        }
    }
}

void KVQtHighlightEditCtrlInlay::expand_tabs_of(int index)
{
    const BUFFER& text = buffer;
    const LINE& line = text.line(index);
    if (line.tabs_are_expanded(editor.tab_width)) {
        return;
    }
    std::vector<CARET*> carets = {&press_position, &drop_position};
    if (!editor.selection.block) {
        carets.insert(carets.end(), {&editor.selection.start, &editor.selection.end});
    }
    std::vector<Place> places;
    places.reserve(carets.size());
    for (const CARET* caret : carets) {
        places.emplace_back(line, caret->column);
    }
    buffer.line(index).tabs_insert(editor.tab_width);
    for (std::size_t i = 0; i < carets.size(); ++i) {
        if (carets[i]->line == index) {
            carets[i]->column = places[i].column_in(text.line(index));
        }
    }
}

KVQtHighlightEditCtrlInlay::Rows
KVQtHighlightEditCtrlInlay::rows_of(const SELECTION& rectangle) const
{
    const auto [first, last] = std::minmax(rectangle.start.line, rectangle.end.line);
    return {std::max(first, 0), std::min(last, buffer.line_count() - 1)};
}

// Whether an edge of the rectangle runs through a character.
bool KVQtHighlightEditCtrlInlay::parts_characters(const SELECTION& rectangle) const
{
    const Rows rows = rows_of(rectangle);
    for (int i = rows.first; i <= rows.last; ++i) {
        const LINE& line = buffer.line(i);
        for (const int column : {rectangle.start.column, rectangle.end.column}) {
            if (start_of_character(line, column) != column) {
                return true;
            }
        }
    }
    return false;
}

// The selected text with whole characters: to a rectangle belong those that begin in it.
KVQtHighlightEditCtrlInlay::BUFFER KVQtHighlightEditCtrlInlay::selected_lines() const
{
    const SELECTION range = editor.selection.normalized();
    if (!range.block || !range.has_range() || !parts_characters(range)) {
        return editor.get_selected_text();
    }
    BUFFER selected;
    selected.insert_rows(0, range.height() - 1);
    for (int i = 0; i < range.height(); ++i) {
        const LINE& line = buffer.line(range.start.line + i);
        const int first = end_of_character(line, range.start.column);
        const int end = end_of_character(line, range.end.column);
        selected.line(i) = line.substr(first, end - first);
    }
    selected.tabs_remove();
    return selected;
}

void KVQtHighlightEditCtrlInlay::delete_selection()
{
    SELECTION& selection = editor.selection;
    selection.normalize();
    const bool rectangle = selection.block;
    if (rectangle && selection.has_range() && parts_characters(selection)) {
        delete_rectangle();
    } else {
        editor.delete_selected_range();
    }
    expand_tabs_of(selection.end.line);  // where only a part of one line went, it is not
    if (rectangle && !selection.block) {
        keep_whole_characters(true);  // it held nothing and has become a caret
    }
}

// Like the editing logic does it, but with whole characters.
void KVQtHighlightEditCtrlInlay::delete_rectangle()
{
    SELECTION& selection = editor.selection;
    const Rows rows = rows_of(selection);
    bool erased = false;
    for (int i = rows.first; i <= rows.last; ++i) {
        LINE& line = buffer.line(i);
        const int first = end_of_character(line, selection.start.column);
        const int end = end_of_character(line, selection.end.column);
        erased = line.erase(first, end - first) || erased;
        line.tabs_insert(editor.tab_width);
    }
    editor.dirty = true;
    if (erased) {
        selection.end.column = selection.start.column;
    } else {
        selection.end = selection.start;
        selection.stop_selecting();
    }
}

void KVQtHighlightEditCtrlInlay::delete_forward()
{
    SELECTION& selection = editor.selection;
    selection.normalize();
    if (selection.has_range()) {
        delete_selection();
        return;
    }
    if (!selection.block || selection.height() == 1) {
        erase_rest_of_character(selection.end);
        editor.key_delete();
        return;
    }
    SELECTION cells = selection;
    ++cells.end.column;
    if (parts_characters(cells)) {
        selection = cells;
        delete_rectangle();
    } else {
        editor.key_delete();
    }
}

void KVQtHighlightEditCtrlInlay::delete_backward()
{
    SELECTION& selection = editor.selection;
    selection.normalize();
    if (selection.has_range()) {
        delete_selection();
    } else if (selection.block && selection.height() > 1) {
        delete_backward_in_rows();
    } else {
        delete_character_before(selection.end);
    }
}

void KVQtHighlightEditCtrlInlay::delete_character_before(CARET caret)
{
    const BUFFER& text = buffer;
    const LINE& line = text.line(caret.line);
    if (caret.column > line.length()) {
        --caret.column;  // nothing stands there, and the line's end stays
        editor.selection.set(caret.line, caret.column);
        return;
    }
    if (caret.column == 0) {
        expand_tabs_of(caret.line - 1);  // the two become one
    } else {
        caret.column = start_of_character(line, caret.column - 1) + 1;
        const int rest = editor.selection.end.column - caret.column;
        if (rest > 0) {
            buffer.line(caret.line).erase(caret.column, rest);
        }
    }
    editor.selection.set(caret.line, caret.column);  // also when a selection was begun with Shift
    editor.key_any(kBackspace, false);
}

// A rectangle without width goes back by the narrowest character that stands in front of it.
void KVQtHighlightEditCtrlInlay::delete_backward_in_rows()
{
    SELECTION& selection = editor.selection;
    const int column = selection.end.column;
    if (column < 1) {
        return;
    }
    int first = -1;
    const Rows rows = rows_of(selection);
    for (int i = rows.first; i <= rows.last; ++i) {
        const LINE& line = buffer.line(i);
        if (line.length() >= column) {
            first = std::max(first, start_of_character(line, column - 1));
        }
    }
    selection.start.column = first < 0 ? column - 1 : first;
    delete_selection();
}

// Leaves one cell of the character at the caret, for a command that takes a single one.
void KVQtHighlightEditCtrlInlay::erase_rest_of_character(CARET caret)
{
    const BUFFER& text = buffer;
    const LINE& line = text.line(caret.line);
    if (caret.column < 0 || caret.column >= line.length()) {
        return;
    }
    const int rest = caret.column + 1;
    const int end = end_of_character(line, rest);
    if (end > rest) {
        buffer.line(caret.line).erase(rest, end - rest);
    }
}

void KVQtHighlightEditCtrlInlay::type_code_unit(char16_t ch, bool further)
{
    if (ch == kBackspace) {
        delete_backward();
        return;
    }
    if (ch == 0 || ch == kEscape) {
        editor.key_any(ch, false);
        return;
    }
    delete_selection();
    if (ch == u'\n' || ch == u'\r') {
        leave_rectangle();
        editor.key_any(ch, false);
        return;
    }
    const SELECTION& selection = editor.selection;
    const BUFFER& text = buffer;
    const int column = selection.end.column;
    const bool over = is_overwrite_mode() && !further &&
                      !continues_character(text.line(selection.end.line), column, ch);
    const Rows rows = rows_of(selection);
    if (selection.block) {
        open_column(rows, column, over);
    }
    for (int line = rows.first; over && line <= rows.last; ++line) {
        erase_rest_of_character({line, column});
    }
    editor.key_any(ch, over);
}

// What has no meaning for several lines goes on at the caret alone.
void KVQtHighlightEditCtrlInlay::leave_rectangle()
{
    if (editor.selection.block) {
        editor.selection.stop_selecting();
        keep_between_characters();
    }
}

// The editing logic moves the carets by columns, whatever stands there.
void KVQtHighlightEditCtrlInlay::unindent()
{
    editor.indent_negative();
    const BUFFER& text = buffer;
    for (CARET* caret : {&editor.selection.start, &editor.selection.end}) {
        caret->column = start_of_character(text.line(caret->line), caret->column);
    }
}

// In a rectangle all lines take the text in the same column, as lines that are too short are filled
// up with blanks for it. A tab that lies across the column becomes blanks; a character that does
// moves behind it, or is written over.
void KVQtHighlightEditCtrlInlay::open_column(Rows rows, int column, bool over)
{
    for (int i = rows.first; i <= rows.last; ++i) {
        const BUFFER& text = buffer;
        const int first = start_of_character(text.line(i), column);
        const int end = end_of_character(text.line(i), column);
        if (first == end) {
            continue;
        }
        const std::vector<KVTextEditor::EdChar> blanks(static_cast<std::size_t>(end - first),
                                                       {u' ', KVTextEditor::kPlainRole});
        if (over || text.line(i).is_filler_at(column)) {
            buffer.line(i).overwrite(first, blanks.data(), end - first);
        } else {
            buffer.line(i).insert(first, blanks.data(), column - first);
        }
        buffer.line(i).tabs_insert(editor.tab_width);
    }
}

// Replaces the selection and returns the place behind what was pasted; the selection is that of the
// editing logic.
CARET KVQtHighlightEditCtrlInlay::paste_lines(const BUFFER& pasted, bool rectangle)
{
    settle_selection();
    delete_selection();
    return rectangle ? paste_rectangle(pasted) : paste_stream(pasted);
}

CARET KVQtHighlightEditCtrlInlay::paste_stream(const BUFFER& pasted)
{
    leave_rectangle();
    SELECTION& selection = editor.selection;
    const BUFFER& text = buffer;
    const Place before(text.line(selection.end.line), selection.end.column);
    const int last = pasted.line_count() - 1;
    int characters = pasted.line(last).length();
    if (last == 0) {
        characters += before.characters + before.beyond;
    }
    editor.paste(pasted, false);
    selection.end.column = text.line(selection.end.line).column_behind(characters);
    return selection.end;
}

CARET KVQtHighlightEditCtrlInlay::paste_rectangle(const BUFFER& pasted)
{
    const BUFFER& text = buffer;
    const CARET corner = editor.selection.normalized().start;
    const int last = corner.line + pasted.block_height() - 1;
    for (int line = corner.line; line <= std::min(last, text.line_count() - 1); ++line) {
        expand_tabs_of(line);
        open_column({line, line}, corner.column, false);
    }
    const Place before(text.line(last), corner.column);
    editor.paste(pasted, true);
    const int characters = before.characters + before.beyond + pasted.width();
    return {last, text.line(last).column_behind(characters)};
}
