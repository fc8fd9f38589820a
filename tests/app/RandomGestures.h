#pragma once

#include "app/MainWindow.h"
#include "page/PolyEditorWidget.h"

#include <random>

// Anything that mouse, wheel and keys can do on the page of a window, with all tools and commands.
// The same seed gives the same gestures.
class RandomGestures
{
public:
    // The window is shown and outlives this.
    RandomGestures(MainWindow& window, unsigned seed);

    void doAnything();

private:
    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    QPoint anywhere() { return page.toPix({double(below(100)), double(below(50))}); }
    Qt::KeyboardModifiers modifiers();
    void key(int key, Qt::KeyboardModifiers with = Qt::NoModifier);
    void click(const char* button);

    void chooseTool();
    void drag();
    void wheel();
    void drawingKey();
    void command();

    MainWindow& window;
    PolyEditorWidget& page;
    std::mt19937 random;
};
