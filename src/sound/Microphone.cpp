#include "sound/Microphone.h"

#include "sound/AudioSystem.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kStep(40);  // between two looks at the level
constexpr std::chrono::seconds kPatience(3);    // with a microphone of which nothing comes
constexpr Uint16 kFrames = 1024;                // at once: 23 ms

// What comes from the device: it is brought by a thread of SDL.
class Heard
{
public:
    struct Look
    {
        size_t samples = 0;  // since the last look
        float peak = 0;
        bool isFull = false;  // said once a recording
    };

    void begin(int newRate)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        rate = newRate;
        isKeeping = false;
        sinceLook = {};
    }

    void add(const float* samples, size_t count)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        sinceLook.samples += count;
        for (size_t i = 0; i < count; ++i) {
            sinceLook.peak = std::max(sinceLook.peak, std::abs(samples[i]));
        }
        if (!isKeeping) {
            return;
        }
        const size_t most = static_cast<size_t>(rate) * Microphone::kMostSeconds;
        kept.insert(kept.end(), samples, samples + std::min(count, most - kept.size()));
        if (kept.size() == most) {
            isKeeping = false;
            sinceLook.isFull = true;
        }
    }

    Look look()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return std::exchange(sinceLook, {});
    }

    void keep()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        kept.clear();
        keptRate = rate;
        isKeeping = true;
    }

    MonoSound take()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isKeeping = false;
        return {std::exchange(kept, {}), keptRate};
    }

private:
    std::mutex mutex;
    int rate = 44100;
    bool isKeeping = false;
    std::vector<float> kept;
    int keptRate = 44100;
    Look sinceLook;
};

void hear(void* user, Uint8* bytes, int size)
{
    static_cast<Heard*>(user)->add(reinterpret_cast<const float*>(bytes),
                                   static_cast<size_t>(size) / sizeof(float));
}

// An open microphone.
class Device
{
public:
    // Without a name the usual one.
    Device(Heard& heard, const QString& name)
    {
        SDL_AudioSpec wanted{};
        wanted.freq = 44100;
        wanted.format = AUDIO_F32SYS;
        wanted.channels = 1;
        wanted.samples = kFrames;
        wanted.callback = hear;
        wanted.userdata = &heard;
        SDL_AudioSpec given{};
        const QByteArray utf8 = name.toUtf8();
        const AudioSystem::Lock lock(AudioSystem::mutex());
        number = SDL_OpenAudioDevice(name.isEmpty() ? nullptr : utf8.constData(), 1, &wanted,
                                     &given, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE);
        if (number == 0) {
            return;
        }
        heard.begin(given.freq);
        SDL_PauseAudioDevice(number, 0);
    }
    ~Device()
    {
        if (number != 0) {
            const AudioSystem::Lock lock(AudioSystem::mutex());
            SDL_CloseAudioDevice(number);
        }
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool isOpen() const { return number != 0; }
    bool isThere() const { return SDL_GetAudioDeviceStatus(number) != SDL_AUDIO_STOPPED; }

private:
    SDL_AudioDeviceID number = 0;
};

QStringList namesOfMicrophones()
{
    const AudioSystem::Lock lock(AudioSystem::mutex());
    QStringList names;
    for (int i = 0; i < SDL_GetNumAudioDevices(1); ++i) {
        names << QString::fromUtf8(SDL_GetAudioDeviceName(i, 1));
    }
    return names;
}

}  // namespace

// Has the microphone open that is wished for, and looks at what it hears.
class Microphone::Worker
{
public:
    explicit Worker(Microphone& owner) : microphone(owner), thread([this] { work(); }) {}
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    struct Wish
    {
        uint64_t number = 0;
        bool end = false;
        bool open = false;
        QString name;
    };

    void want(const Wish& wanted);

    Heard heard;

private:
    void work();
    Wish nextWish();
    void open();
    void look();
    void giveUp(const QString& reason);
    template <class Step>
    void tell(Step step);

    Microphone& microphone;
    std::mutex mutex;
    std::condition_variable called;
    Wish wish;

    // The rest belongs to the thread.
    Wish now;
    std::unique_ptr<AudioSystem> system;
    std::unique_ptr<Device> device;
    Clock::time_point lastHeard;
    std::thread thread;
};

Microphone::Worker::~Worker()
{
    Wish last;
    last.number = UINT64_MAX;
    last.end = true;
    want(last);
    thread.join();
}

void Microphone::Worker::want(const Wish& wanted)
{
    const std::lock_guard<std::mutex> lock(mutex);
    wish = wanted;
    called.notify_one();
}

Microphone::Worker::Wish Microphone::Worker::nextWish()
{
    std::unique_lock<std::mutex> lock(mutex);
    const auto isNew = [this] { return wish.number != now.number; };
    if (device != nullptr) {
        called.wait_for(lock, kStep, isNew);
    } else {
        called.wait(lock, isNew);
    }
    return wish;
}

void Microphone::Worker::work()
{
    for (Wish next = nextWish(); !next.end; next = nextWish()) {
        if (next.number == now.number) {
            look();
            continue;
        }
        now = next;
        device.reset();
        system.reset();
        if (now.open) {
            open();
        }
    }
    device.reset();
    system.reset();
}

void Microphone::Worker::open()
{
    system = std::make_unique<AudioSystem>();
    if (!system->isThere()) {
        giveUp(Microphone::tr("No microphone can be used (%1)").arg(SDL_GetError()));
        return;
    }
    const QStringList names = namesOfMicrophones();
    tell([this, names] { emit microphone.found(names); });
    if (names.isEmpty()) {
        giveUp(Microphone::tr("There is no microphone: plug one in, or allow programs to hear it"));
        return;
    }
    const QString name = names.contains(now.name) ? now.name : QString();
    device = std::make_unique<Device>(heard, name);
    if (!device->isOpen()) {
        giveUp(Microphone::tr("The microphone cannot be used (%1)").arg(SDL_GetError()));
        return;
    }
    lastHeard = Clock::now();
    tell([this, name] { microphone.takeOpened(name); });
}

void Microphone::Worker::look()
{
    const Heard::Look found = heard.look();
    if (found.samples > 0) {
        lastHeard = Clock::now();
        tell([this, found] { emit microphone.heard(found.peak); });
    }
    if (found.isFull) {
        tell([this] { emit microphone.full(); });
    }
    if (!device->isThere()) {
        giveUp(Microphone::tr("The microphone is gone: is it still plugged in?"));
    } else if (Clock::now() - lastHeard > kPatience) {
        giveUp(Microphone::tr("Nothing comes from the microphone any more"));
    }
}

// It is told before it is closed: who does not answer may also take long to close.
void Microphone::Worker::giveUp(const QString& reason)
{
    tell([this, reason] { microphone.takeProblem(reason); });
    device.reset();
    system.reset();
}

template <class Step>
void Microphone::Worker::tell(Step step)
{
    const auto isStillWished = [this, number = now.number] { return microphone.wishes == number; };
    QMetaObject::invokeMethod(
        &microphone,
        [isStillWished, step] {
            if (isStillWished()) {
                step();
            }
        },
        Qt::QueuedConnection);
}

Microphone::Microphone(QObject* parent) : QObject(parent), worker(new Worker(*this)) {}

Microphone::~Microphone() = default;

void Microphone::open(const QString& name)
{
    listening = false;
    worker->want({++wishes, false, true, name});
}

void Microphone::close()
{
    listening = false;
    worker->want({++wishes, false, false, {}});
}

void Microphone::beginRecording()
{
    recording = true;
    worker->heard.keep();
}

MonoSound Microphone::endRecording()
{
    recording = false;
    return worker->heard.take();
}

void Microphone::takeOpened(const QString& name)
{
    listening = true;
    emit opened(name);
}

void Microphone::takeProblem(const QString& text)
{
    listening = false;
    emit problem(text);
}
