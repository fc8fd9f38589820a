#include "editor/widget/EditorAccessible.h"

#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <algorithm>
#include <utility>

namespace {

using KVTextEditor::CARET;
using BUFFER = KVQtHighlightEditCtrlInlay::BUFFER;

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* const editor = qobject_cast<KVQtHighlightEditCtrlInlay*>(object);
    return editor == nullptr ? nullptr : new EditorAccessible(editor);
}

int offsetOf(const BUFFER& buffer, CARET position)
{
    const int breaks = std::min(position.line, buffer.line_count() - 1);
    int offset = std::max(breaks, 0);
    for (int i = 0; i <= breaks; ++i) {
        const int length = buffer.line(i).length();
        offset +=
            buffer.line(i).characters_between(0, i == position.line ? position.column : length);
    }
    return offset;
}

CARET positionAt(const BUFFER& buffer, int offset)
{
    const int last = buffer.line_count() - 1;
    for (int i = 0; i < last; ++i) {
        const int characters = buffer.line(i).characters_between(0, buffer.line(i).length());
        if (offset <= characters) {
            return {i, buffer.line(i).column_behind(offset)};
        }
        offset -= characters + 1;  // with the line break
    }
    return {last, buffer.line(last).column_behind(offset)};
}

// How many characters two texts have in common at their beginning. A pair of surrogates is one.
int commonBeginning(const QString& a, const QString& b)
{
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    const int length = static_cast<int>(end - a.begin());
    return length > 0 && a.at(length - 1).isHighSurrogate() ? length - 1 : length;
}

// The same at their end, behind their first `begin` code units.
int commonEnd(const QString& a, const QString& b, int begin)
{
    const auto end =
        std::mismatch(a.rbegin(), a.rend() - begin, b.rbegin(), b.rend() - begin).first;
    const int length = static_cast<int>(end - a.rbegin());
    return length > 0 && a.at(a.size() - length).isLowSurrogate() ? length - 1 : length;
}

}  // namespace

void EditorAccessible::install()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed)
}

void EditorAccessible::announce(KVQtHighlightEditCtrlInlay* editor)
{
    if (!QAccessible::isActive()) {
        return;
    }
    auto* const accessible =
        static_cast<EditorAccessible*>(QAccessible::queryAccessibleInterface(editor));
    if (const auto change = accessible->change()) {
        QAccessible::updateAccessibility(change.get());
    }
    QAccessibleTextCursorEvent caret(editor, accessible->cursorPosition());
    QAccessible::updateAccessibility(&caret);
}

EditorAccessible::EditorAccessible(KVQtHighlightEditCtrlInlay* editor)
    : QAccessibleWidget(editor, QAccessible::EditableText), announced(wholeText())
{}

std::unique_ptr<QAccessibleTextUpdateEvent> EditorAccessible::change()
{
    const QString before = std::exchange(announced, wholeText());
    if (before == announced) {
        return nullptr;
    }
    const int begin = commonBeginning(before, announced);
    const int same = begin + commonEnd(before, announced, begin);
    return std::make_unique<QAccessibleTextUpdateEvent>(
        widget(), begin, before.mid(begin, before.size() - same),
        announced.mid(begin, announced.size() - same));
}

KVQtHighlightEditCtrlInlay& EditorAccessible::editor() const
{
    return *static_cast<KVQtHighlightEditCtrlInlay*>(widget());
}

QString EditorAccessible::wholeText() const
{
    return QString::fromStdU16String(editor().buffer.get_all_text(u"\n"));
}

void* EditorAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State EditorAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

// Whoever owns the control gives it its name.
QString EditorAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        return wholeText();
    }
    const QString own = QAccessibleWidget::text(kind);
    const QWidget* control = widget()->parentWidget()->parentWidget();
    return kind == QAccessible::Name && own.isEmpty() ? control->accessibleName() : own;
}

QString EditorAccessible::text(int start, int end) const
{
    return wholeText().mid(start, end - start);
}

int EditorAccessible::characterCount() const
{
    return wholeText().size();
}

int EditorAccessible::cursorPosition() const
{
    return offsetOf(editor().buffer, editor().editor.selection.end);
}

void EditorAccessible::setCursorPosition(int position)
{
    setSelection(0, position, position);
}

int EditorAccessible::selectionCount() const
{
    return editor().editor.selection.has_range() ? 1 : 0;
}

void EditorAccessible::selection(int /*index*/, int* start, int* end) const
{
    const auto range = editor().editor.selection.normalized();
    *start = range.has_range() ? offsetOf(editor().buffer, range.start) : 0;
    *end = range.has_range() ? offsetOf(editor().buffer, range.end) : 0;
}

void EditorAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void EditorAccessible::setSelection(int /*index*/, int start, int end)
{
    auto& selection = editor().editor.selection;
    const CARET from = positionAt(editor().buffer, start);
    selection.set(from.line, from.column);
    selection.end = positionAt(editor().buffer, end);
    editor().EnsureVisible(selection.end);
    editor().UpdateAllViews();
}

void EditorAccessible::removeSelection(int /*index*/)
{
    setCursorPosition(cursorPosition());
}

// On the screen.
QRect EditorAccessible::characterRect(int offset) const
{
    const QRect cell = editor().CellRectangle(positionAt(editor().buffer, offset));
    return {editor().mapToGlobal(cell.topLeft()), cell.size()};
}

int EditorAccessible::offsetAtPoint(const QPoint& point) const
{
    return offsetOf(editor().buffer, editor().FromPoint(editor().mapFromGlobal(point)));
}

void EditorAccessible::scrollToSubstring(int start, int end)
{
    editor().EnsureVisible(positionAt(editor().buffer, end));
    editor().EnsureVisible(positionAt(editor().buffer, start));
}

QString EditorAccessible::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}
