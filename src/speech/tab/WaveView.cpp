#include "speech/tab/WaveView.h"

#include "speech/tab/WaveHandle.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr float kQuiet = 0.02F;  // what is quieter is drawn small
constexpr size_t kPiece = 64;    // samples that are looked at together

}  // namespace

WaveView::WaveView(QWidget* parent)
    : QWidget(parent),
      begin(new WaveHandle(WaveHandle::End::begin, this)),
      end(new WaveHandle(WaveHandle::End::end, this))
{
    setObjectName("waveView");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Recording"));
    for (WaveHandle* const handle : {begin, end}) {
        const bool isBegin = handle == begin;
        connect(handle, &WaveHandle::moved, this,
                [this, isBegin](int time, bool goesOn) { moveEnd(isBegin, time, goesOn); });
        connect(handle, &WaveHandle::draggedTo, this, [this, isBegin](int x, bool goesOn) {
            moveEnd(isBegin, timeOf(sampleAtPlace(x)), goesOn);
        });
    }
    showTake({});
}

void WaveView::showTake(const recording::Take& take)
{
    if (sound != take.sharedSound()) {
        sound = take.sharedSound();
        measure();
    }
    kept = take.kept();
    placeHandles();
    setAccessibleDescription(words());
    update();
}

void WaveView::measure()
{
    bounds.clear();
    highest = kQuiet;
    for (size_t i = 0; i < samples(); i += kPiece) {
        const auto from = sound->samples.begin() + static_cast<std::ptrdiff_t>(i);
        const auto to = from + static_cast<std::ptrdiff_t>(std::min(kPiece, samples() - i));
        const auto [least, greatest] = std::minmax_element(from, to);
        bounds.push_back({*least, *greatest});
        highest = std::max({highest, -*least, *greatest});
    }
}

void WaveView::placeHandles()
{
    const int shortest = static_cast<int>(recording::Take::kShortest * 1000);
    const int all = timeOf(samples());
    begin->place(0, std::max(0, timeOf(kept.end) - shortest), timeOf(kept.begin));
    end->place(std::min(all, timeOf(kept.begin) + shortest), all, timeOf(kept.end));
    for (WaveHandle* const handle : {begin, end}) {
        const int place = placeOf(handle == begin ? kept.begin : kept.end);
        handle->setGeometry(place - WaveHandle::kWidth / 2, 0, WaveHandle::kWidth, height());
        handle->setVisible(samples() > 0);
    }
}

void WaveView::moveEnd(bool isBegin, int time, bool goesOn)
{
    recording::Span span = kept;
    if (isBegin) {
        span.begin = std::min(sampleAt(time), sampleAt(begin->maximum()));
    } else {
        span.end = std::max(sampleAt(time), sampleAt(end->minimum()));
    }
    emit trimmed(span, goesOn);
}

size_t WaveView::sampleAt(int time) const
{
    const auto sample =
        static_cast<size_t>(std::max(0, time)) * static_cast<size_t>(sound->rate) / 1000;
    return time >= timeOf(samples()) ? samples() : sample;
}

int WaveView::timeOf(size_t sample) const
{
    return static_cast<int>(std::lround(1000.0 * static_cast<double>(sample) / sound->rate));
}

int WaveView::placeOf(size_t sample) const
{
    const double part =
        samples() > 0 ? static_cast<double>(sample) / static_cast<double>(samples()) : 0;
    return inside().left() + static_cast<int>(part * inside().width());
}

size_t WaveView::sampleAtPlace(int x) const
{
    const double part = static_cast<double>(x - inside().left()) / std::max(1, inside().width());
    return static_cast<size_t>(std::clamp(part, 0.0, 1.0) * static_cast<double>(samples()));
}

// Between the handles at its ends.
QRect WaveView::inside() const
{
    return rect().adjusted(WaveHandle::kWidth / 2, 0, -WaveHandle::kWidth / 2, 0);
}

QString WaveView::words() const
{
    if (samples() == 0) {
        return tr("Nothing is recorded yet");
    }
    const auto seconds = [this](size_t count) {
        return QString::number(static_cast<double>(count) / sound->rate, 'f', 1);
    };
    return tr("%1 of %2 s are kept").arg(seconds(kept.size()), seconds(samples()));
}

QSize WaveView::sizeHint() const
{
    return {480, 90};
}

QSize WaveView::minimumSizeHint() const
{
    return {200, 44};
}

void WaveView::resizeEvent(QResizeEvent*)
{
    placeHandles();
}

void WaveView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(inside(), palette().base());
    if (samples() == 0) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter, words());
        return;
    }
    drawWave(painter);
    QColor gone = palette().color(QPalette::Window);
    gone.setAlpha(190);
    const QRect all = inside();
    painter.fillRect(QRect(all.topLeft(), QPoint(placeOf(kept.begin), all.bottom())), gone);
    painter.fillRect(QRect(QPoint(placeOf(kept.end), all.top()), all.bottomRight()), gone);
}

void WaveView::drawWave(QPainter& painter) const
{
    const QRect all = inside();
    const double middle = all.height() / 2.0;
    painter.setPen(QColor(50, 110, 180));
    for (int x = 0; x < all.width(); ++x) {
        const auto pieceAt = [&](int place) {
            return static_cast<size_t>(place) * bounds.size() / static_cast<size_t>(all.width());
        };
        Bounds found = bounds[pieceAt(x)];
        for (size_t i = pieceAt(x); i < pieceAt(x + 1); ++i) {
            found.least = std::min(found.least, bounds[i].least);
            found.greatest = std::max(found.greatest, bounds[i].greatest);
        }
        const auto y = [&](float sample) {
            return static_cast<int>(middle - sample / highest * (middle - 2));
        };
        painter.drawLine(all.left() + x, y(found.greatest), all.left() + x, y(found.least));
    }
}
