#include "sound/SoundPlayer.h"

#include "sound/Playback.h"
#include "sound/Resampler.h"
#include "sound/SoundDevice.h"
#include "sound/SoundFile.h"

#include <QFileInfo>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

// Brings the player's wishes about: reads the file piece by piece, and has the device open.
class SoundPlayer::Worker
{
public:
    explicit Worker(SoundPlayer& owner);
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void wantDevice(bool wanted);
    void wantSound(uint64_t sound, const QString& file);
    void setVolume(double volume) { playback.setVolume(static_cast<float>(volume)); }

private:
    struct Wishes
    {
        bool end = false;
        bool device = false;
        uint64_t sound = 0;
        QString file;
    };

    void work();
    Wishes nextWishes();
    void haveDevice(bool wanted);
    void openFile(const Wishes& wishes);
    void readOn();
    void tellEvents();
    void tell(void (SoundPlayer::*signal)(const QString&), const QString& text);
    QString problemOfFile() const;

    SoundPlayer& player;
    Playback playback;

    std::mutex mutex;
    std::condition_variable called;
    bool isCalled = false;
    Wishes wishes;

    // The rest belongs to the thread.
    std::unique_ptr<SoundDevice> device;
    bool saidSilent = false;
    uint64_t sound = 0;
    QString fileName;
    std::unique_ptr<SoundFile> file;  // null when all of it has been read
    std::optional<Resampler> resampler;
    std::thread thread;
};

SoundPlayer::Worker::Worker(SoundPlayer& owner) : player(owner)
{
    playback.wake = [this] {
        const std::lock_guard<std::mutex> lock(mutex);
        isCalled = true;
        called.notify_one();
    };
    thread = std::thread([this] { work(); });
}

SoundPlayer::Worker::~Worker()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        wishes.end = true;
    }
    playback.wake();
    thread.join();
}

void SoundPlayer::Worker::wantDevice(bool wanted)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        wishes.device = wanted;
    }
    playback.wake();
}

void SoundPlayer::Worker::wantSound(uint64_t number, const QString& path)
{
    playback.begin(number);
    {
        const std::lock_guard<std::mutex> lock(mutex);
        wishes.sound = number;
        wishes.file = path;
    }
    playback.wake();
}

SoundPlayer::Worker::Wishes SoundPlayer::Worker::nextWishes()
{
    std::unique_lock<std::mutex> lock(mutex);
    called.wait(lock, [this] { return isCalled; });
    isCalled = false;
    return wishes;
}

void SoundPlayer::Worker::work()
{
    for (Wishes now = nextWishes(); !now.end; now = nextWishes()) {
        haveDevice(now.device);
        if (now.sound != sound) {
            openFile(now);
        }
        readOn();
        tellEvents();
    }
    device.reset();
}

void SoundPlayer::Worker::haveDevice(bool wanted)
{
    if (!wanted) {
        device.reset();
    } else if (device == nullptr) {
        device = std::make_unique<SoundDevice>(playback);
        if (!device->problem().empty() && !saidSilent) {
            saidSilent = true;
            tell(&SoundPlayer::silent, SoundPlayer::tr("Nothing is heard: no loudspeaker can be "
                                                       "used (%1)")
                                           .arg(QString::fromStdString(device->problem())));
        }
    }
}

void SoundPlayer::Worker::openFile(const Wishes& now)
{
    sound = now.sound;
    file.reset();
    if (sound == 0) {
        return;
    }
    fileName = QFileInfo(now.file).fileName();
    file = std::make_unique<SoundFile>(now.file.toStdString());
    if (file->state() == SoundFile::State::good) {
        resampler.emplace(file->channels(), file->rate(), device->rate());
    }
}

void SoundPlayer::Worker::readOn()
{
    constexpr size_t kFrames = 2048;
    while (file != nullptr && playback.wantsMore()) {
        const std::vector<float> samples = file->read(kFrames);
        if (!samples.empty()) {
            playback.add(sound, resampler->convert(samples));
            continue;
        }
        if (file->state() != SoundFile::State::good) {
            tell(&SoundPlayer::problem, problemOfFile());
        }
        if (resampler) {
            playback.add(sound, resampler->finish());
        }
        playback.finish(sound);
        resampler.reset();
        file.reset();
    }
}

QString SoundPlayer::Worker::problemOfFile() const
{
    switch (file->state()) {
    case SoundFile::State::notOpened:
        return SoundPlayer::tr("%1 cannot be opened: %2")
            .arg(fileName, QString::fromStdString(file->reason()));
    case SoundFile::State::tooManyChannels:
        return SoundPlayer::tr("%1 cannot be played: it has more than two channels").arg(fileName);
    case SoundFile::State::damaged:
        return SoundPlayer::tr("%1 is damaged and cannot be played to its end").arg(fileName);
    default:
        return SoundPlayer::tr("%1 cannot be played: it is damaged, or no sound in one of the "
                               "formats WAV, Ogg, FLAC and MP3")
            .arg(fileName);
    }
}

void SoundPlayer::Worker::tellEvents()
{
    if (const uint64_t number = playback.takeStarted()) {
        QMetaObject::invokeMethod(
            &player, [this, number] { player.tellStarted(number); }, Qt::QueuedConnection);
    }
    if (const uint64_t number = playback.takeEnded()) {
        QMetaObject::invokeMethod(
            &player, [this, number] { player.tellEnded(number); }, Qt::QueuedConnection);
    }
}

void SoundPlayer::Worker::tell(void (SoundPlayer::*signal)(const QString&), const QString& text)
{
    QMetaObject::invokeMethod(
        &player, [this, signal, text] { emit(player.*signal)(text); }, Qt::QueuedConnection);
}

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent), worker(new Worker(*this)) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::prepare()
{
    worker->wantDevice(true);
}

void SoundPlayer::release()
{
    stop();
    worker->wantDevice(false);
}

void SoundPlayer::play(const QString& file)
{
    current = ++sounds;
    prepare();
    worker->wantSound(current, file);
}

void SoundPlayer::stop()
{
    current = 0;
    worker->wantSound(0, {});
}

void SoundPlayer::setVolume(double volume)
{
    worker->setVolume(volume);
}

void SoundPlayer::tellStarted(uint64_t sound)
{
    if (sound == current) {
        emit started();
    }
}

void SoundPlayer::tellEnded(uint64_t sound)
{
    if (sound == current) {
        current = 0;
        emit ended();
    }
}
