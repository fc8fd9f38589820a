#include "speech/tab/RecordDialog.h"

#include "recording/Silence.h"
#include "speech/tab/RecordCard.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kCounts = 3;
constexpr int kCountTime = 700;  // ms
constexpr int kClockTime = 100;  // ms

// Of so many samples at the very top, some were higher.
bool isDistorted(const MonoSound& sound)
{
    constexpr float kTop = 0.999F;
    constexpr std::ptrdiff_t kSome = 3;
    return std::count_if(sound.samples.begin(), sound.samples.end(),
                         [](float sample) { return std::abs(sample) >= kTop; }) >= kSome;
}

QString shownSeconds(double seconds)
{
    return QString::number(seconds, 'f', 1);
}

}  // namespace

RecordDialog::RecordDialog(std::vector<TextToRecord> texts, const QString& audioFolder,
                           QSettings& userSettings, const QString& audioName, QWidget* parent)
    : QDialog(parent),
      all(std::move(texts)),
      folder(audioFolder.toStdString()),
      settings(userSettings)
{
    setObjectName("recordDialog");
    setWindowTitle(tr("Record"));
    makeControls();
    layOut();
    connectMicrophone();
    connect(&counter, &QTimer::timeout, this, &RecordDialog::count);
    connect(&clock, &QTimer::timeout, this, &RecordDialog::showTime);
    connect(&player, &SoundPlayer::problem, this, &RecordDialog::say);
    connect(&player, &SoundPlayer::silent, this, &RecordDialog::say);
    connect(&player, &SoundPlayer::ended, this, &RecordDialog::showState);
    place = all.size() - 1;
    const size_t missing = nextMissing();
    const auto wanted = std::find_if(all.begin(), all.end(), [&](const TextToRecord& text) {
        return text.audioName == audioName;
    });
    goTo(wanted != all.end()  ? static_cast<size_t>(wanted - all.begin())
         : countMissing() > 0 ? missing
                              : 0);
}

RecordDialog::~RecordDialog() = default;

void RecordDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!microphone.isOpen()) {
        openMicrophone();
    }
    player.prepare();
    record->setFocus();
}

void RecordDialog::done(int result)
{
    microphone.close();
    player.release();
    QDialog::done(result);
}

// An Escape ends what is going on, and only then the dialog.
void RecordDialog::reject()
{
    switch (state) {
    case State::counting:
        enter(State::idle);
        say(tr("Not recorded"));
        return;
    case State::recording:
        endRecording();
        return;
    case State::working:
        wish = [this] { reject(); };
        return;
    case State::idle:
        whenNothingIsLost([this] { QDialog::reject(); });
    }
}

// What a button or a handle has not taken for itself.
void RecordDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        return;
    }
    switch (event->key()) {
    case Qt::Key_Space:
        beginOrEnd();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        keepAndGoOn();
        return;
    case Qt::Key_PageUp:
        goToNeighbour(-1);
        return;
    case Qt::Key_PageDown:
        goToNeighbour(1);
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

size_t RecordDialog::countMissing() const
{
    return static_cast<size_t>(
        std::count_if(all.begin(), all.end(), [](const auto& text) { return text.isMissing(); }));
}

size_t RecordDialog::nextMissing() const
{
    for (size_t i = 1; i <= all.size(); ++i) {
        const size_t candidate = (place + i) % all.size();
        if (all[candidate].isMissing()) {
            return candidate;
        }
    }
    return place;
}

void RecordDialog::goTo(size_t text)
{
    place = text;
    take.clear();
    player.stop();
    card->showText(current().voice, current().text);
    message->clear();
    record->setFocus();
    enter(State::idle);
    if (current().hasFile) {
        loadFile();
    }
}

void RecordDialog::goToNeighbour(int step)
{
    const auto last = static_cast<std::ptrdiff_t>(all.size()) - 1;
    const std::ptrdiff_t to =
        std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(place) + step, 0, last);
    if (state == State::idle && to != static_cast<std::ptrdiff_t>(place)) {
        whenNothingIsLost([this, to] { goTo(static_cast<size_t>(to)); });
    }
}

void RecordDialog::beginOrEnd()
{
    switch (state) {
    case State::idle:
        beginCounting();
        break;
    case State::counting:
        reject();
        break;
    case State::recording:
        endRecording();
        break;
    case State::working:
        wish = [this] { beginOrEnd(); };
        break;
    }
}

void RecordDialog::beginCounting()
{
    player.stop();
    if (!microphone.isOpen()) {
        say(tr("Looking for the microphone ..."));
        openMicrophone();
        return;
    }
    say({});
    if (!countIn->isChecked()) {
        beginRecording();
        return;
    }
    counted = kCounts;
    enter(State::counting);
    counter.start(kCountTime);
}

void RecordDialog::count()
{
    --counted;
    if (counted == 0) {
        beginRecording();
    } else {
        showState();
    }
}

void RecordDialog::beginRecording()
{
    sinceBegin.start();
    enter(State::recording);
    clock.start(kClockTime);
    microphone.beginRecording();
}

void RecordDialog::endRecording()
{
    MonoSound sound = microphone.endRecording();
    const QString text = words(sound);
    if (!sound.samples.empty()) {
        take.record(std::move(sound));
    }
    enter(State::idle);
    say(text);
}

QString RecordDialog::words(const MonoSound& sound) const
{
    if (recording::isSilent(sound)) {
        return tr("Nothing was heard: is the microphone muted?");
    }
    if (isDistorted(sound)) {
        return tr("It was too loud and is distorted: speak more softly, or from farther away");
    }
    return tr("Recorded: %1 s").arg(shownSeconds(sound.seconds()));
}

void RecordDialog::showTime()
{
    sign->setText("\u25CF " + shownSeconds(static_cast<double>(sinceBegin.elapsed()) / 1000));
}

void RecordDialog::trim(recording::Span kept, bool goesOn)
{
    changeTake([&] { take.trim(kept, goesOn); });
}

void RecordDialog::changeTake(const std::function<void()>& change)
{
    if (state == State::idle) {
        change();
    }
    showState();
}

void RecordDialog::enter(State following)
{
    counter.stop();
    clock.stop();
    state = following;
    showState();
    if (state == State::recording) {
        showTime();
    }
    QTimer::singleShot(0, this, &RecordDialog::takeWish);
}

void RecordDialog::takeWish()
{
    if (state == State::idle && wish) {
        std::exchange(wish, nullptr)();
    }
}
