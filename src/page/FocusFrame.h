#pragma once

#include <QWidget>

// A frame inside the edge of a view, on top of it, that is seen while what the view shows has the
// focus. It stays where it is when the view is scrolled, and lets the mouse through.
class FocusFrame : public QWidget
{
public:
    // Belongs to the view's parent.
    FocusFrame(QWidget* shown, QWidget* view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();

    QWidget* shown;
    QWidget* view;
};
