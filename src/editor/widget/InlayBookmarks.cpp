// Bookmarks: marked lines and the way from one to the next.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <algorithm>

void KVQtHighlightEditCtrlInlay::ToggleBookmark(int line)
{
    if (line >= 0 && line < buffer.line_count()) {
        bool& bookmark = buffer.line(line).bookmark;
        bookmark = !bookmark;
    }
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::OnViewToggleBookmark()
{
    ToggleBookmark(editor.selection.end.line);
}

void KVQtHighlightEditCtrlInlay::GotoNextBookmark()
{
    goto_bookmark(1);
}

void KVQtHighlightEditCtrlInlay::GotoPrevBookmark()
{
    goto_bookmark(-1);
}

// Once around the text, from the line beside the caret's; the caret's own line does not count.
void KVQtHighlightEditCtrlInlay::goto_bookmark(int step)
{
    const BUFFER& text = buffer;
    const int count = text.line_count();
    int line = std::clamp(editor.selection.end.line, 0, count - 1);
    for (int i = 1; i < count; ++i) {
        line = (line + step + count) % count;
        if (text.line(line).bookmark) {
            editor.selection.set(line, 0);
            EnsureVisible(editor.selection.end, true);
            UpdateAllViews();
            return;
        }
    }
}
