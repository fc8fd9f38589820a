#pragma once

#include <QElapsedTimer>
#include <QWidget>

// How loud the microphone hears: a bar from -60 to 0 dB, and a word for who does not see it.
class LevelMeter : public QWidget
{
    Q_OBJECT

public:
    enum class Verdict { off, quiet, good, tooLoud };

    explicit LevelMeter(QWidget* parent = nullptr);

    // The highest sample since the last time, 0 to 1.
    void showPeak(double peak);
    // Nothing is heard.
    void showNothing();

    // By the highest level of the last seconds, in dB.
    Verdict verdict() const { return now; }
    QString words() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void judge();

    double level = kLowest;    // dB; falls slowly
    double highest = kLowest;  // dB, of the last seconds
    QElapsedTimer sinceHighest;
    Verdict now = Verdict::off;

    static constexpr double kLowest = -60;
};
