#pragma once

#include <QByteArray>
#include <QElapsedTimer>

// Output of a program on its way to the console. Showing costs far more than printing, so what
// arrives is shown at once only while showing keeps up; of a flood only what will stay in sight is
// kept: the last lines of what has gathered in the meantime.
class GatheredOutput
{
public:
    // Intended: of each chunk only what stands before its first zero byte.
    void add(const QByteArray& chunk);
    bool isEmpty() const { return bytes.isEmpty(); }
    // Milliseconds until it is to be shown; 0 for now. There are as long pauses between two
    // showings as showing takes.
    int pause() const;

    // What has gathered, very long lines broken into pieces that can be laid out quickly. Between
    // take and shown the text is shown.
    QByteArray take();
    void shown();

    static constexpr int kMostLines = 100000;
    static constexpr int kMostBytes = 8 << 20;
    static constexpr int kLongestPiece = 4000;  // bytes of one line

private:
    void keepTheEnd();

    QByteArray bytes;
    QElapsedTimer sinceShown;
    QElapsedTimer showing;
    qint64 cost = 0;  // milliseconds of the last showing
};
