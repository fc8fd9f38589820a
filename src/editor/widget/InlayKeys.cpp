// Keys: the map of the keyboard, and typed characters.
#include "base/PlatformMachine.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include "editor/widget/Characters.h"
#include "editor/widget/KVQtFindDialog.h"

#include <QInputDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr char16_t kEscape = 27;
constexpr char16_t kTab = 9;
constexpr char16_t kDelete = 127;  // what some systems send with Control and Backspace

// What a key press types: one character, which may be a surrogate pair.
QString typed_text(const QKeyEvent& event)
{
    // Intended: the decimal key of the keypad types a point, also where it bears a comma.
    if (event.key() == Qt::Key_Comma && event.modifiers().testFlag(Qt::KeypadModifier)) {
        return ".";
    }
    const QString text = event.text();
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return text.left(pair ? 2 : 1);
}

}  // namespace

void KVQtHighlightEditCtrlInlay::keyPressEvent(QKeyEvent* event)
{
    store_modifiers(event->modifiers());
    if (ProcessKeyDown(event->key())) {
        return;
    }
    if (event->key() == Qt::Key_Backtab) {
        shift_held = true;
        event->setAccepted(OnChar(kTab));
        return;
    }
    // Control+Tab, for one, is left to the window.
    event->setAccepted(type_text(typed_text(*event)));
}

void KVQtHighlightEditCtrlInlay::keyReleaseEvent(QKeyEvent* event)
{
    store_modifiers(event->modifiers());
}

void KVQtHighlightEditCtrlInlay::store_modifiers(Qt::KeyboardModifiers modifiers)
{
    shift_held = modifiers.testFlag(Qt::ShiftModifier);
    control_held = modifiers.testFlag(Qt::ControlModifier);
    alt_held = modifiers.testFlag(Qt::AltModifier);
    if (dragging) {
        update_cursor();
    }
}

// Composed characters: dead keys, the compose key, input methods of non-Latin scripts.
void KVQtHighlightEditCtrlInlay::inputMethodEvent(QInputMethodEvent* event)
{
    store_modifiers(Qt::NoModifier);
    type_text(event->commitString());
    event->accept();
}

// Returns whether it did something.
bool KVQtHighlightEditCtrlInlay::type_text(const QString& text)
{
    const std::u16string units = text.toStdU16String();
    KVTextEditor::Line<KVTextEditor::EdChar> typed;
    typed.set(units.data(), text.size());
    bool used = false;
    for (int i = 0; i < text.size(); ++i) {
        used = OnChar(units[std::size_t(i)], start_of_character(typed, i) < i) || used;
    }
    return used;
}

QVariant KVQtHighlightEditCtrlInlay::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImCursorRectangle:
        return caret_rectangle(editor.selection.end);
    case Qt::ImFont:
        return font();
    default:
        return QWidget::inputMethodQuery(query);
    }
}

bool KVQtHighlightEditCtrlInlay::ProcessKeyDown(int key)
{
    if (key == Qt::Key_Control || key == Qt::Key_Alt) {
        return false;
    }
    // Control with Alt is AltGr on some systems: it types.
    const bool handled = move_by_key(key) || process_function_key(key) ||
                         (control_held && !alt_held && process_control_key(key));
    if (handled) {
        EnsureVisible(editor.selection.end);
        UpdateAllViews();
    }
    return handled;
}

bool KVQtHighlightEditCtrlInlay::move_by_key(int key)
{
    const int page = std::max(1, GetVisibleSize().height() - 1);
    switch (key) {
    case Qt::Key_Up:
        move_caret(-1, 0);
        return true;
    case Qt::Key_Down:
        move_caret(1, 0);
        return true;
    case Qt::Key_Left:
        move_caret(0, -1);
        return true;
    case Qt::Key_Right:
        move_caret(0, 1);
        return true;
    case Qt::Key_PageUp:
        move_caret(-page, 0);
        return true;
    case Qt::Key_PageDown:
        move_caret(page, 0);
        return true;
    case Qt::Key_Home:
        control_held ? move_to({0, 0}) : move_home();
        return true;
    case Qt::Key_End:
        control_held ? move_to(end_of_text()) : move_end();
        return true;
    default:
        return false;
    }
}

void KVQtHighlightEditCtrlInlay::move_caret(int dy, int dx)
{
    SELECTION& selection = editor.selection;
    if (shift_held) {
        begin_movement();
    } else {
        selection.active = false;
        selection.block = false;
        if (selection.has_range()) {
            // The arrow only ends the selection, at the end that it points to.
            selection.normalize();
            const CARET caret = dx > 0 || dy > 0 ? selection.end : selection.start;
            selection.start = selection.end = caret;
            return;
        }
    }
    if (control_held && dx != 0) {
        move_by_word(dx > 0);
    } else {
        editor.move_cursor(dy, dx);
        keep_whole_characters(dx > 0);
    }
}

// A caret that has moved into a character goes on to its end, or stays in front of it.
void KVQtHighlightEditCtrlInlay::keep_whole_characters(bool forward)
{
    SELECTION& selection = editor.selection;
    if (selection.active && selection.block) {
        return;
    }
    const BUFFER& text = buffer;
    CARET& caret = selection.end;
    const auto edge = forward ? end_of_character : start_of_character;
    caret.column = edge(text.line(caret.line), caret.column);
    if (!selection.active) {
        selection.start = caret;
    }
}

void KVQtHighlightEditCtrlInlay::move_by_word(bool right)
{
    SELECTION& selection = editor.selection;
    if (right) {
        selection.end = editor.end_of_word(selection.end);
    } else {
        if (selection.end.column > 0) {
            --selection.end.column;
        }
        selection.end = editor.start_of_word(selection.end);
    }
    keep_whole_characters(right);
}

void KVQtHighlightEditCtrlInlay::begin_movement()
{
    if (shift_held) {
        if (alt_held) {
            settle_selection();  // a rectangle goes by the columns of expanded lines
        }
        editor.selection.active = true;
        editor.selection.block = alt_held;
    }
}

void KVQtHighlightEditCtrlInlay::finish_movement()
{
    if (!shift_held) {
        editor.selection.stop_selecting();
    }
}

void KVQtHighlightEditCtrlInlay::move_home()
{
    begin_movement();
    CARET& caret = editor.selection.end;
    const BUFFER& text = buffer;
    const auto& line = text.line(caret.line);
    const int indentation = start_of_character(line, line.indentation());
    caret.column = caret.column == indentation ? 0 : indentation;
    finish_movement();
}

void KVQtHighlightEditCtrlInlay::move_end()
{
    begin_movement();
    CARET& caret = editor.selection.end;
    const BUFFER& text = buffer;
    caret.column = text.line(caret.line).length();
    finish_movement();
}

void KVQtHighlightEditCtrlInlay::move_to(CARET caret)
{
    begin_movement();
    editor.selection.end = caret;
    finish_movement();
}

KVTextEditor::CARET KVQtHighlightEditCtrlInlay::end_of_text() const
{
    const int last = buffer.line_count() - 1;
    return {last, buffer.line(last).length()};
}

bool KVQtHighlightEditCtrlInlay::process_function_key(int key)
{
    switch (key) {
    case Qt::Key_Delete:
        if (control_held && !alt_held) {
            delete_word(true);
        } else if (shift_held && !alt_held) {
            OnEditCut();
        } else {
            begin_undo_step();
            delete_forward();
        }
        return true;
    case Qt::Key_Insert:
        if (control_held) {
            OnEditCopy();
        } else if (shift_held && !alt_held) {
            OnEditPaste();
        } else if (!alt_held) {
            overwrite = !overwrite;
        }
        return true;
    case Qt::Key_F2:
        if (control_held) {
            OnViewToggleBookmark();
        } else if (shift_held) {
            GotoPrevBookmark();
        } else {
            GotoNextBookmark();
        }
        return true;
    case Qt::Key_F3:
        if (control_held) {
            SetFindStringFromSelection();
        } else {
            find_dialog->set_backwards(shift_held);
        }
        DoFindNext(true);
        return true;
    case Qt::Key_F8:
        GotoMark(!shift_held);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (alt_held && !control_held) {
            emit FixAsked();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool KVQtHighlightEditCtrlInlay::process_control_key(int key)
{
    switch (key) {
    case Qt::Key_A:
        OnEditSelectAll();
        return true;
    case Qt::Key_C:
        OnEditCopy();
        return true;
    case Qt::Key_X:
        OnEditCut();
        return true;
    case Qt::Key_V:
        OnEditPaste();
        return true;
    case Qt::Key_Z:
        shift_held ? OnEditRedo() : OnEditUndo();
        return true;
    case Qt::Key_Y:
        OnEditRedo();
        return true;
    case Qt::Key_F:
        ShowFindDialog(false);
        return true;
    case Qt::Key_H:
        ShowFindDialog(true);
        return true;
    case Qt::Key_G:
        OnEditGotoLine();
        return true;
    case Qt::Key_Backspace:
        delete_word(false);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:  // where the plus is typed with Shift
        SetLetterSize(letter_size() + 1);
        return true;
    case Qt::Key_Minus:
        SetLetterSize(letter_size() - 1);
        return true;
    case Qt::Key_0:
        SetLetterSize(kUsualLetterSize);
        return true;
    case Qt::Key_U:
        change_case(shift_held ? KVTextEditor::transform_to_upper
                               : KVTextEditor::transform_to_lower);
        return true;
    default:
        return false;
    }
}

void KVQtHighlightEditCtrlInlay::change_case(KVTextEditor::CHARACTER_FUNCTION fn)
{
    begin_undo_step();
    editor.transform(editor.selection, fn);
}

// Deletes what the jump by a word would pass; where that passes nothing, what the key deletes
// without Control. A rectangle has no word of its own: each of its lines loses a character.
void KVQtHighlightEditCtrlInlay::delete_word(bool right)
{
    SELECTION& selection = editor.selection;
    begin_undo_step();
    if (!selection.has_range() && !selection.block) {
        selection.active = true;  // keeps the anchor
        move_by_word(right);
        selection.active = false;
    }
    right ? delete_forward() : delete_backward();
}

void KVQtHighlightEditCtrlInlay::OnEditGotoLine()
{
    QInputDialog* const dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("gotoLineDialog");
    dialog->setWindowTitle(tr("Go to line"));
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setLabelText(tr("&Line (1 to %1):").arg(buffer.line_count()));
    dialog->setIntRange(1, buffer.line_count());
    dialog->setIntValue(std::min(editor.selection.end.line + 1, buffer.line_count()));
    dialog->setOkButtonText(tr("Go"));
    dialog->setCancelButtonText(tr("Cancel"));
    connect(dialog, &QInputDialog::intValueSelected, this, &KVQtHighlightEditCtrlInlay::goto_line);
    dialog->open();
}

// Lines count from 1, as in the gutter.
void KVQtHighlightEditCtrlInlay::goto_line(int number)
{
    editor.selection.set(number - 1, 0);
    EnsureVisible(editor.selection.end, true);
    UpdateAllViews();
}

// Returns whether the code unit did something. A further unit of a character joins the first.
bool KVQtHighlightEditCtrlInlay::OnChar(char16_t ch, bool further)
{
    // A letter with Control or Alt is a command, also where there is none. Both together are AltGr
    // on some systems: they type.
    const bool typed = ch < u' ' ? !control_held : control_held == alt_held;
    if (!typed || ch == kDelete) {
        return false;
    }
    settle_selection();
    // A run of letters and digits is undone in one step.
    if (ch < u'0' || !editor.can_undo() || editor.link_to_undo() != 0) {
        editor.push_undo_state();
    }
    const SELECTION& selection = editor.selection;
    if (ch == kTab && !selection.block && (selection.height() > 1 || shift_held)) {
        if (shift_held) {
            unindent();
        } else {
            editor.indent();
        }
    } else {
        if (ch == kEscape) {
            end_gesture();
        }
        type_code_unit(ch, further);
    }
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
    return true;
}

bool KVQtHighlightEditCtrlInlay::is_overwrite_mode() const
{
    return Platform::insertKeyToggled().value_or(overwrite);
}
