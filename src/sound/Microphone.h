#pragma once

#include "sound/MonoSound.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

// Hears a microphone, and keeps what is to be recorded. Nothing here waits: the microphone is
// opened and closed elsewhere, and the signals come when the thread of this object is idle.
class Microphone : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMostSeconds = 600;  // of one recording

    explicit Microphone(QObject* parent = nullptr);
    ~Microphone() override;

    // The microphone of that name, or the system's usual one where the name is empty or not there.
    // Takes the place of one that is open. found, and opened or problem, follow.
    void open(const QString& name = {});
    void close();
    bool isOpen() const { return listening; }

    // What is heard from now on is kept, as long as the microphone is open.
    void beginRecording();
    // What was kept: all until now, or until the microphone was closed or gone, or the recording
    // full.
    MonoSound endRecording();
    bool isRecording() const { return recording; }

signals:
    // The names of all microphones.
    void found(const QStringList& names);
    // The name is empty for the usual one.
    void opened(const QString& name);
    // The highest sample since the last time, 0 to 1; some 25 times a second.
    void heard(double peak);
    // There is none, or it cannot be used, or it is gone: then it is closed.
    void problem(const QString& text);
    // The recording is as long as it may get; what is heard now is not kept.
    void full();

private:
    class Worker;

    void takeOpened(const QString& name);
    void takeProblem(const QString& text);

    uint64_t wishes = 0;  // so far; only what the last one leads to is told
    bool listening = false;
    bool recording = false;
    std::unique_ptr<Worker> worker;
};
