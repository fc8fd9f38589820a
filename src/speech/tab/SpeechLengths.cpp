#include "speech/tab/SpeechLengths.h"

#include "speech/AudioFile.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>

static qint64 timeOf(const QFileInfo& file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

SpeechLengths::~SpeechLengths()
{
    isCancelled = true;
    if (work.valid()) {
        work.wait();
    }
}

std::optional<double> SpeechLengths::known(const QFileInfo& file) const
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto length = lengths.find(file.filePath());
    if (length == lengths.end() || length->size != file.size() || length->time != timeOf(file)) {
        return std::nullopt;
    }
    return length->seconds;
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
        const Length length{info.size(), timeOf(info), secondsOf(file)};
        {
            const std::lock_guard<std::mutex> lock(mutex);
            lengths[info.filePath()] = length;
        }
        if (time.elapsed() > kPause) {
            time.restart();
            emit found();
        }
    }
}
