#pragma once

#include <QObject>

#include <atomic>
#include <future>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "speech/SpeechTexts.h"

// How long audio files sound. Each is read once, on another thread: thousands take seconds, for
// which nobody is to wait.
class SpeechLengths : public QObject
{
    Q_OBJECT

public:
    explicit SpeechLengths(QObject* parent = nullptr) : QObject(parent) {}
    // Waits for the file that is being read.
    ~SpeechLengths() override;

    // Of the text's file, as it was looked up: in seconds, 0 of what cannot be read; none while it
    // was not read. On any thread.
    std::optional<double> known(const SpeechText& text) const;
    // Reads these, native paths, instead of those that were asked for before.
    void read(std::vector<std::string> files);

signals:
    // More lengths are known. At most twice a second, and at the end.
    void found();

private:
    // Of a file that had this size and time.
    struct Length
    {
        qint64 size = -1;
        qint64 time = 0;
        double seconds = 0;
    };

    std::string next();
    void start();
    void readAll();

    mutable std::mutex mutex;  // of the two behind it
    std::unordered_map<std::string, Length> lengths;
    std::vector<std::string> wanted;
    std::atomic<bool> isCancelled{false};
    std::future<void> work;
};
