#include "speech/tab/SpeechLengths.h"

#include "speech/AudioFile.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>

SpeechLengths::~SpeechLengths()
{
    isCancelled = true;
    if (work.valid()) {
        work.wait();
    }
}

std::optional<double> SpeechLengths::known(const SpeechText& text) const
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = lengths.find(text.file);
    if (found == lengths.end() || found->second.size != text.fileSize ||
        found->second.time != text.fileTime) {
        return std::nullopt;
    }
    return found->second.seconds;
}

void SpeechLengths::read(std::vector<std::string> files)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        wanted = std::move(files);
        std::reverse(wanted.begin(), wanted.end());
        if (wanted.empty() || work.valid()) {
            return;
        }
    }
    start();
}

void SpeechLengths::start()
{
    work = std::async(std::launch::async, [this] {
        readAll();
        QMetaObject::invokeMethod(
            this,
            [this] {
                work.get();
                emit found();
            },
            Qt::QueuedConnection);
    });
}

// Empty when there is none.
std::string SpeechLengths::next()
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (wanted.empty() || isCancelled) {
        return {};
    }
    std::string file = std::move(wanted.back());
    wanted.pop_back();
    return file;
}

void SpeechLengths::readAll()
{
    constexpr int kPause = 500;  // ms
    QElapsedTimer time;
    time.start();
    for (std::string file = next(); !file.empty(); file = next()) {
        const QFileInfo info(QString::fromStdString(file));
        const Length length{info.size(), info.lastModified().toMSecsSinceEpoch(), secondsOf(file)};
        {
            const std::lock_guard<std::mutex> lock(mutex);
            lengths[file] = length;
        }
        if (time.elapsed() > kPause) {
            time.restart();
            emit found();
        }
    }
}
