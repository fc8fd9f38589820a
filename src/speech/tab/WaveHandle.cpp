#include "speech/tab/WaveHandle.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

WaveHandle::WaveHandle(End end, QWidget* wave) : QAbstractSlider(wave), which(end)
{
    const bool isBegin = end == End::begin;
    setObjectName(isBegin ? "waveBegin" : "waveEnd");
    setAccessibleName(isBegin ? tr("Beginning of what is kept, in milliseconds")
                              : tr("End of what is kept, in milliseconds"));
    setToolTip(isBegin ? tr("Drag this to where the voice begins, or move it with the arrow keys")
                       : tr("Drag this to where the voice ends, or move it with the arrow keys"));
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeHorCursor);
    setSingleStep(10);
    setPageStep(100);
    setTracking(true);
    connect(this, &QAbstractSlider::valueChanged, this,
            [this](int time) { emit moved(time, goesOn); });
}

void WaveHandle::place(int least, int most, int time)
{
    const QSignalBlocker silent(this);
    setRange(least, most);
    setValue(time);
}

void WaveHandle::keyPressEvent(QKeyEvent* event)
{
    goesOn = event->isAutoRepeat();
    QAbstractSlider::keyPressEvent(event);
}

void WaveHandle::mousePressEvent(QMouseEvent* event)
{
    grip = event->x() - width() / 2;
    isDragged = false;
}

void WaveHandle::mouseMoveEvent(QMouseEvent* event)
{
    emit draggedTo(mapToParent(event->pos()).x() - grip, isDragged);
    isDragged = true;
}

void WaveHandle::focusInEvent(QFocusEvent* event)
{
    QAbstractSlider::focusInEvent(event);
    update();
}

void WaveHandle::focusOutEvent(QFocusEvent* event)
{
    QAbstractSlider::focusOutEvent(event);
    update();
}

// The grip lies on the side of what is kept.
void WaveHandle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour =
        hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::WindowText);
    const int middle = width() / 2;
    const int side = which == End::begin ? 1 : -1;
    painter.fillRect(QRect(middle - (hasFocus() ? 1 : 0), 0, hasFocus() ? 3 : 1, height()), colour);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (const int top : {0, height() - 12}) {
        painter.drawPolygon(
            QPolygon({{middle, top}, {middle + side * 7, top + 6}, {middle, top + 12}}));
    }
}
