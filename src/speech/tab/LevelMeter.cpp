#include "speech/tab/LevelMeter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFall = 1.2;          // dB that the bar falls from one time to the next
constexpr qint64 kHeld = 3000;         // ms in which the highest level counts
constexpr double kTooLoud = -1;        // dB
constexpr double kLoudEnough = -30;    // dB
constexpr double kNearlyTooLoud = -6;  // dB

double decibels(double peak)
{
    return peak > 0 ? 20 * std::log10(peak) : -HUGE_VAL;
}

QColor colourOf(double level)
{
    if (level > kTooLoud) {
        return {200, 40, 40};
    }
    return level > kNearlyTooLoud ? QColor(220, 160, 0) : QColor(60, 150, 60);
}

}  // namespace

LevelMeter::LevelMeter(QWidget* parent) : QWidget(parent)
{
    setObjectName("levelMeter");
    setAccessibleName(tr("Level of the microphone"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    judge();
}

void LevelMeter::showPeak(double peak)
{
    const double heard = std::clamp(decibels(peak), kLowest, 0.0);
    level = std::max(heard, level - kFall);
    if (heard >= highest || !sinceHighest.isValid() || sinceHighest.elapsed() > kHeld) {
        highest = heard;
        sinceHighest.start();
    }
    judge();
    update();
}

void LevelMeter::showNothing()
{
    level = kLowest;
    highest = kLowest;
    sinceHighest.invalidate();
    judge();
    update();
}

// The words change seldom: a screen reader may read each of them.
void LevelMeter::judge()
{
    now = !sinceHighest.isValid()  ? Verdict::off
          : highest > kTooLoud     ? Verdict::tooLoud
          : highest >= kLoudEnough ? Verdict::good
                                   : Verdict::quiet;
    if (accessibleDescription() != words()) {
        setAccessibleDescription(words());
        setToolTip(words());
    }
}

QString LevelMeter::words() const
{
    switch (now) {
    case Verdict::quiet:
        return tr("Quiet");
    case Verdict::good:
        return tr("Good");
    case Verdict::tooLoud:
        return tr("Too loud");
    default:
        return tr("Nothing is heard");
    }
}

QSize LevelMeter::sizeHint() const
{
    return {200, fontMetrics().height() + 6};
}

void LevelMeter::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect frame = rect().adjusted(0, 0, -1, -1);
    painter.fillRect(frame, palette().base());
    const auto placeOf = [&](double decibel) {
        return static_cast<int>(frame.width() * (decibel - kLowest) / -kLowest);
    };
    painter.fillRect(QRect(frame.left(), frame.top(), placeOf(level), frame.height()),
                     colourOf(highest));
    if (highest > kLowest) {
        const int place = std::min(frame.left() + placeOf(highest), frame.right() - 1);
        painter.fillRect(QRect(place, frame.top(), 2, frame.height()), palette().windowText());
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(frame);
    for (const int mark : {-50, -40, -30, -20, -10}) {
        const int place = frame.left() + placeOf(mark);
        painter.drawLine(place, frame.bottom() - 3, place, frame.bottom());
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(frame.adjusted(6, 0, -6, 0), Qt::AlignVCenter | Qt::AlignLeft, words());
}
