#pragma once

class QWidget;

// Both are to be called before the window is shown.

// A window that is larger than the free space of its screen starts maximised, so that all of it can
// be reached.
void fitOntoScreen(QWidget& window);
// A dialog that is larger starts smaller, as far as its controls can be.
void shrinkOntoScreen(QWidget& dialog);
