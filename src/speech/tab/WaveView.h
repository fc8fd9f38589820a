#pragma once

#include "recording/Take.h"

#include <QWidget>

#include <memory>
#include <vector>

class WaveHandle;

// The wave of a recording, with a handle at each end of what is kept of it.
class WaveView : public QWidget
{
    Q_OBJECT

public:
    explicit WaveView(QWidget* parent = nullptr);

    // The take as it is now; nothing is drawn of an empty one.
    void showTake(const recording::Take& take);

    // How much is kept.
    QString words() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // The author moved an end; goesOn means within one drag, or while one key is held.
    void trimmed(recording::Span kept, bool goesOn);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The least and the greatest of some samples.
    struct Bounds
    {
        float least = 0;
        float greatest = 0;
    };

    void measure();
    void placeHandles();
    void moveEnd(bool isBegin, int time, bool goesOn);
    void drawWave(QPainter& painter) const;

    size_t samples() const { return sound->samples.size(); }
    size_t sampleAt(int time) const;  // ms
    int timeOf(size_t sample) const;  // ms
    int placeOf(size_t sample) const;
    size_t sampleAtPlace(int x) const;
    QRect inside() const;

    std::shared_ptr<const MonoSound> sound;
    std::vector<Bounds> bounds;  // of the sound, some samples each
    float highest = 0;           // to either side; it is drawn as high as there is room
    recording::Span kept;
    WaveHandle* const begin;
    WaveHandle* const end;
};
