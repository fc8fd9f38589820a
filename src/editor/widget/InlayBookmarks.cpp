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

// Once around the text, from the line beside the caret's; the caret's own line does not count. A
// caret below the text has no line of its own.
void KVQtHighlightEditCtrlInlay::goto_bookmark(int step)
{
    const BUFFER& text = buffer;
    const int count = text.line_count();
    const int own = std::max(0, editor.selection.end.line);
    const bool below = own >= count;
    int line = below && step > 0 ? -1 : std::min(own, count);
    for (int left = below ? count : count - 1; left > 0; --left) {
        line = (line + step + count) % count;
        if (text.line(line).bookmark) {
            editor.selection.set(line, 0);
            EnsureVisible(editor.selection.end, true);
            UpdateAllViews();
            return;
        }
    }
}
