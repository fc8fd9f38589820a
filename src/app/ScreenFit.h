#pragma once

class QWidget;

// To be called before the window is shown: one that is larger than the free space of its screen
// starts maximised, so that all of it can be reached.
void fitOntoScreen(QWidget& window);
