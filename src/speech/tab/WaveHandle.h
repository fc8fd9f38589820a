#pragma once

#include <QAbstractSlider>

// One end of what is kept of a recording, on its wave: a line with a grip, dragged with the mouse
// or moved by keys. Its value is a time in ms; arrows move it by 10 ms, Page Up and Page Down by
// 100.
class WaveHandle : public QAbstractSlider
{
    Q_OBJECT

public:
    enum class End { begin, end };

    WaveHandle(End end, QWidget* wave);

    // Without a signal.
    void place(int least, int most, int time);

    static constexpr int kWidth = 14;  // pixels

signals:
    // The author moved it; goesOn means by the same drag, or the same key that is held.
    void moved(int time, bool goesOn);
    // It was dragged to that place of its wave, in pixels.
    void draggedTo(int x, bool goesOn);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const End which;
    int grip = 0;  // where the mouse has it
    bool isDragged = false;
    bool goesOn = false;
};
