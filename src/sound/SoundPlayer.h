#pragma once

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>

// Plays audio files, one at a time. Nothing here waits: files are read and the loudspeaker is
// opened elsewhere, and the signals come when the player's own thread is idle. Where there is no
// loudspeaker a sound takes as long, unheard.
class SoundPlayer : public QObject
{
    Q_OBJECT

public:
    explicit SoundPlayer(QObject* parent = nullptr);
    ~SoundPlayer() override;

    // Opens the loudspeaker, so that the first sound is heard without delay, too.
    void prepare();
    // Leaves the loudspeaker to others; what is playing ends.
    void release();

    // Plays a file from its beginning, instead of what is playing.
    void play(const QString& file);
    // Neither this nor another sound that takes the place of one gives ended().
    void stop();
    bool isPlaying() const { return current != 0; }

    // 0 to 1, which is the beginning: as loud as the file.
    void setVolume(double volume);

signals:
    // The first samples are on their way to the loudspeaker.
    void started();
    // The file was heard to its end, or to where it is damaged.
    void ended();
    // Why a file, which the text names, is not heard, or not to its end. ended() follows.
    void problem(const QString& text);
    // Said once: there is no loudspeaker.
    void silent(const QString& text);

private:
    class Worker;

    void tellStarted(uint64_t sound);
    void tellEnded(uint64_t sound);

    uint64_t current = 0;  // what is to be heard; 0: nothing
    uint64_t sounds = 0;   // so far
    std::unique_ptr<Worker> worker;
};
