#pragma once

#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

// What can be done to whole lines of a script.
namespace LineTools {

// Indents the selected lines, or the caret's, as the blocks of the script say; one step of undo.
void indent(KVQtHighlightEditCtrlInlay& script);
// Comments the selected lines out, or back in when all of them are comments; one step of undo.
void toggleComment(KVQtHighlightEditCtrlInlay& script);
// Enter was pressed: the caret's line begins as deep as the line above it asks for, and that line,
// where it ends a block, stands below its beginning. It belongs to the step of the key.
void indentAfterEnter(KVQtHighlightEditCtrlInlay& script);

}  // namespace LineTools
