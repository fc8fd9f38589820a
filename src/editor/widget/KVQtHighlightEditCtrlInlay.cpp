#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include "editor/widget/EditorAccessible.h"
#include "editor/widget/KVQtFindDialog.h"
#include "editor/widget/SearchNote.h"

#include <QAbstractScrollArea>
#include <QPushButton>

KVQtHighlightEditCtrlInlay::KVQtHighlightEditCtrlInlay(QAbstractScrollArea* scrollArea)
    : QWidget(scrollArea->viewport()),
      editor(&buffer),
      area(scrollArea),
      find_dialog(new KVQtFindDialog(this)),
      search_note(new SearchNote(this)),
      blink_timer(this)
{
    EditorAccessible::install();
    setObjectName("inlay");
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled);
    setContextMenuPolicy(Qt::CustomContextMenu);
    KVTextEditor::set_new_editor_rules(editor);
    SetFont("Consolas", kUsualLetterSize);

    using Self = KVQtHighlightEditCtrlInlay;
    connect(find_dialog->btFind, &QPushButton::clicked, this, &Self::OnEditFindNext);
    connect(find_dialog->btReplace, &QPushButton::clicked, this, &Self::OnEditDoReplace);
    connect(find_dialog->btReplaceAll, &QPushButton::clicked, this, &Self::OnEditReplaceAll);
    connect(this, &QWidget::customContextMenuRequested, this, &Self::ShowContextMenu);

    constexpr int kBlinkTime = 500;  // ms
    connect(&blink_timer, &QTimer::timeout, this, &Self::blink);
    blink_timer.start(kBlinkTime);
    connect(&scroll_timer, &QTimer::timeout, this, &Self::scroll_on);
}

KVQtHighlightEditCtrlInlay::~KVQtHighlightEditCtrlInlay() = default;

QString KVQtHighlightEditCtrlInlay::text() const
{
    if (has_changed()) {
        return text_of(buffer);
    }
    if (told_text.isNull()) {
        told_text = text_of(buffer);
    }
    return told_text;
}

bool KVQtHighlightEditCtrlInlay::has_changed() const
{
    return editor.is_dirty() || buffer.line_count() != told_lines;
}

QString KVQtHighlightEditCtrlInlay::text_of(const BUFFER& lines)
{
    return QString::fromStdU16String(lines.get_all_text(u"\r\n"));
}

void KVQtHighlightEditCtrlInlay::setText(const QString& text)
{
    forgetHistory();
    editor.selection.set(0, 0);
    buffer.set_text(text.toStdU16String());
    buffer.tabs_insert(editor.tab_width);
    editor.dirty = true;
    UpdateAllViews();
}

bool KVQtHighlightEditCtrlInlay::holds(const QString& text) const
{
    BUFFER other;
    other.set_text(text.toStdU16String());
    return text_of(other) == text_of(buffer);
}

// Intended: the charge of the undo states, undo_bytes, stays as it is.
void KVQtHighlightEditCtrlInlay::forgetHistory()
{
    editor.undo_states.clear();
    editor.redo_states.clear();
}

void KVQtHighlightEditCtrlInlay::OnEditUndo()
{
    undo_or_redo(&BACKEND::undo, editor.link_to_undo(), false);
}

void KVQtHighlightEditCtrlInlay::OnEditRedo()
{
    undo_or_redo(&BACKEND::redo, editor.link_to_redo(), true);
}

void KVQtHighlightEditCtrlInlay::undo_or_redo(void (BACKEND::*step)(), quint64 link, bool forward)
{
    settle_selection();
    (editor.*step)();
    UpdateAllViews();
    EnsureVisible(editor.selection.end);
    if (link != 0) {
        emit LinkedStepMoved(link, forward);
    }
}

void KVQtHighlightEditCtrlInlay::OnEditSelectAll()
{
    const BUFFER& text = buffer;
    const int last = text.line_count() - 1;
    editor.selection.stop_selecting();
    editor.selection.start = {0, 0};
    editor.selection.end = {last, text.line(last).length()};
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::blink()
{
    if (hasFocus()) {
        caret_visible = !caret_visible;
        update_caret();
    } else if (area->hasFocus()) {
        setFocus();
    }
}
