#pragma once

#include <QString>

#include "ttbasic/ScriptOutline.h"

// What the mouse over a word of the language tells, in rich text: how a statement or an option of a
// voice is written, what it does, an example. Empty for any other place; line and column count from
// 1, the column in bytes.
QString keywordToolTip(const ScriptOutline& outline, int line, int column);
