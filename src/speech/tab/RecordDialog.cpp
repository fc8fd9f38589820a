#include "speech/tab/RecordDialog.h"

#include "recording/ReadSound.h"
#include "recording/Silence.h"
#include "recording/VoiceFile.h"
#include "speech/AudioFile.h"
#include "speech/tab/LevelMeter.h"
#include "speech/tab/RecordCard.h"
#include "speech/tab/WaveHandle.h"
#include "speech/tab/WaveView.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr int kCounts = 3;
constexpr int kCountTime = 700;  // ms
constexpr int kClockTime = 100;  // ms
constexpr char kMicrophone[] = "recording/microphone";
constexpr char kCountIn[] = "recording/countIn";

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

QPushButton* RecordDialog::button(const char* name, const QString& text, const QString& toolTip)
{
    auto* const made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(toolTip);
    made->setAutoDefault(false);
    made->setFocusPolicy(Qt::TabFocus);  // after a click, Space still records
    return made;
}

void RecordDialog::makeControls()
{
    card = new RecordCard;
    progress = new QLabel;
    progress->setObjectName("recordProgress");
    sign = new QLabel;
    sign->setObjectName("recordSign");
    sign->setAlignment(Qt::AlignCenter);
    message = new QLabel;
    message->setObjectName("recordMessage");
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    length = new QLabel;
    microphones = new QComboBox;
    microphones->setObjectName("recordMicrophone");
    microphones->setAccessibleName(tr("Microphone"));
    microphones->setToolTip(tr("The microphone that is recorded from"));
    microphones->setMinimumContentsLength(12);
    microphones->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    microphones->addItem(tr("Usual microphone"));
    countIn = new QCheckBox(tr("Count &in"));
    countIn->setObjectName("recordCountIn");
    countIn->setToolTip(tr("Counts 3, 2, 1 before a recording begins"));
    countIn->setChecked(settings.value(kCountIn, true).toBool());
    meter = new LevelMeter;
    wave = new WaveView;
    record = button("recordRecord", {}, tr("Begins and ends a recording (Space)"));
    hear = button("recordListen", tr("&Listen"), tr("Plays it as the pen will (Ctrl+L)"));
    undo = button("recordUndo", tr("&Undo"), tr("Takes back the last change (Ctrl+Z)"));
    redo = button("recordRedo", tr("Re&do"), tr("Makes it again (Ctrl+Shift+Z)"));
    before = button("recordBack", tr("&Back"), tr("The text before this one (Page Up)"));
    skip = button("recordSkip", tr("S&kip"), tr("The text after this one (Page Down)"));
    next = button("recordNext", tr("Keep, &next"),
                  tr("Keeps the recording and goes to the next text that is missing (Enter)"));
    leave = button("recordClose", tr("&Close"), tr("Ends recording (Escape)"));
    connect(countIn, &QCheckBox::toggled, this,
            [this](bool counts) { settings.setValue(kCountIn, counts); });
    connect(wave, &WaveView::trimmed, this, &RecordDialog::trim);
    connect(record, &QPushButton::clicked, this, &RecordDialog::beginOrEnd);
    connect(hear, &QPushButton::clicked, this, &RecordDialog::listen);
    connect(undo, &QPushButton::clicked, this, [this] { changeTake([this] { take.undo(); }); });
    connect(redo, &QPushButton::clicked, this, [this] { changeTake([this] { take.redo(); }); });
    connect(before, &QPushButton::clicked, this, [this] { goToNeighbour(-1); });
    connect(skip, &QPushButton::clicked, this, [this] { goToNeighbour(1); });
    connect(next, &QPushButton::clicked, this, &RecordDialog::keepAndGoOn);
    connect(leave, &QPushButton::clicked, this, &RecordDialog::reject);
    const auto onKeys = [this](const QKeySequence& keys, QPushButton* button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QPushButton::click);
    };
    onKeys(Qt::CTRL + Qt::Key_L, hear);
    onKeys(QKeySequence::Undo, undo);
    onKeys(Qt::CTRL + Qt::SHIFT + Qt::Key_Z, redo);
    onKeys(Qt::CTRL + Qt::Key_Y, redo);
}

// Rows that are short enough for a small screen.
void RecordDialog::layOut()
{
    auto* const top = new QHBoxLayout;
    top->addWidget(progress, 1);
    auto* const label = new QLabel(tr("&Microphone:"));
    label->setBuddy(microphones);
    top->addWidget(label);
    top->addWidget(microphones);
    top->addWidget(countIn);
    auto* const levels = new QHBoxLayout;
    levels->addWidget(sign);
    levels->addWidget(meter, 1);
    auto* const told = new QHBoxLayout;
    told->addWidget(message, 1);
    told->addWidget(length);
    auto* const ofTake = new QHBoxLayout;
    ofTake->addWidget(record, 1);
    ofTake->addWidget(hear);
    ofTake->addWidget(undo);
    ofTake->addWidget(redo);
    auto* const way = new QHBoxLayout;
    way->addWidget(before);
    way->addWidget(skip);
    way->addWidget(next, 1);
    way->addWidget(leave);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addWidget(card, 3);
    rows->addLayout(levels);
    rows->addWidget(wave, 1);
    rows->addLayout(told);
    rows->addLayout(ofTake);
    rows->addLayout(way);
    QFont large = sign->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    sign->setFont(large);
    sign->setMinimumWidth(QFontMetrics(large).horizontalAdvance("10:00.0"));
    std::vector<QWidget*> order{microphones, countIn, card->findChild<QScrollArea*>()};
    for (WaveHandle* const handle : wave->findChildren<WaveHandle*>()) {
        order.push_back(handle);
    }
    order.insert(order.end(), {record, hear, undo, redo, before, skip, next, leave});
    for (size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void RecordDialog::connectMicrophone()
{
    connect(&microphone, &Microphone::found, this, &RecordDialog::showMicrophones);
    connect(microphones, qOverload<int>(&QComboBox::activated), this,
            &RecordDialog::takeMicrophone);
    connect(&microphone, &Microphone::opened, this, [this](const QString& name) {
        microphones->setCurrentIndex(std::max(0, microphones->findData(name)));
        if (message->text() == tr("Looking for the microphone ...")) {
            say({});
        }
    });
    connect(&microphone, &Microphone::heard, meter, &LevelMeter::showPeak);
    connect(&microphone, &Microphone::problem, this, [this](const QString& text) {
        meter->showNothing();
        if (state == State::recording) {
            endRecording();
        } else if (state == State::counting) {
            enter(State::idle);
        }
        say(text);
    });
    connect(&microphone, &Microphone::full, this, [this] {
        endRecording();
        say(tr("The recording ended by itself: it cannot be longer than ten minutes"));
    });
}

void RecordDialog::showMicrophones(const QStringList& names)
{
    while (microphones->count() > 1) {
        microphones->removeItem(1);
    }
    for (const QString& name : names) {
        microphones->addItem(name, name);
    }
}

void RecordDialog::takeMicrophone(int index)
{
    settings.setValue(kMicrophone, microphones->itemData(index).toString());
    microphone.open(microphones->itemData(index).toString());
}

void RecordDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!microphone.isOpen()) {
        microphone.open(settings.value(kMicrophone).toString());
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
        microphone.open(settings.value(kMicrophone).toString());
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

void RecordDialog::keepAndGoOn()
{
    if (state == State::counting || state == State::working) {
        return;
    }
    if (state == State::recording) {
        endRecording();
    }
    if (!isUnsaved()) {
        goTo(nextMissing());
        return;
    }
    keep([this] {
        if (countMissing() > 0) {
            goTo(nextMissing());
            return;
        }
        loadFile();
        say(tr("All texts are recorded"));
    });
}

void RecordDialog::keep(const std::function<void()>& then)
{
    if (recording::isSilent(take.finished())) {
        say(tr("Nothing was heard, so there is nothing to keep"));
        return;
    }
    player.stop();
    enter(State::working);
    say(tr("Saving ..."));
    const recording::Places places{fileOf(current()), recording::originalsOf(folder),
                                   !current().isSpoken};
    const auto report = std::make_shared<recording::FileReport>();
    work.start([report, places, kept = take] { *report = recording::adoptTake(kept, places); },
               [this, report, then] {
                   enter(State::idle);
                   if (report->done == recording::FileReport::Done::failed) {
                       wish = nullptr;
                       say(report->text);
                       return;
                   }
                   current().hasFile = true;
                   current().isSpoken = false;
                   markSaved();
                   emit recorded(current().audioName);
                   showState();
                   say(report->text);
                   then();
               });
}

void RecordDialog::whenNothingIsLost(const std::function<void()>& then)
{
    if (!isUnsaved()) {
        then();
        return;
    }
    QMessageBox question(QMessageBox::Question, windowTitle(),
                         tr("This recording is not kept yet. Keep it?"), QMessageBox::NoButton,
                         this);
    const QAbstractButton* const yes = question.addButton(tr("&Keep"), QMessageBox::AcceptRole);
    const QAbstractButton* const no =
        question.addButton(tr("&Throw away"), QMessageBox::DestructiveRole);
    question.addButton(QMessageBox::Cancel);
    question.exec();
    if (question.clickedButton() == yes) {
        keep(then);
    } else if (question.clickedButton() == no) {
        then();
    }
}

// So that it can be heard and trimmed.
void RecordDialog::loadFile()
{
    enter(State::working);
    const auto found = std::make_shared<recording::FoundSound>();
    work.start([found, file = fileOf(current())] { *found = recording::readSound(file); },
               [this, found] {
                   take.load(std::move(found->sound));
                   markSaved();
                   enter(State::idle);
                   if (!found->problem.isEmpty()) {
                       say(found->problem);
                   }
               });
}

// As loud as it will be, so it is measured before.
void RecordDialog::listen()
{
    if (player.isPlaying()) {
        player.stop();
        showState();
        return;
    }
    if (state != State::idle || take.isEmpty()) {
        return;
    }
    enter(State::working);
    const QString file = heardFolder.filePath("heard.ogg");
    const auto problem = std::make_shared<std::string>();
    work.start(
        [file, problem, kept = take] {
            *problem =
                recording::writeWhole(file.toStdString(), recording::voiceFileOf(kept.finished()));
        },
        [this, file, problem] {
            if (problem->empty()) {
                player.play(file);
            } else {
                say(tr("It cannot be played: %1").arg(QString::fromStdString(*problem)));
            }
            enter(State::idle);
        });
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

bool RecordDialog::isUnsaved() const
{
    return !take.isEmpty() && !(take.sharedSound() == savedSound && take.kept() == savedSpan);
}

void RecordDialog::markSaved()
{
    savedSound = take.sharedSound();
    savedSpan = take.kept();
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

void RecordDialog::showState()
{
    // While a file is written or read, which is short, nothing looks different: focus stays.
    const bool isGoing = state == State::recording || state == State::counting;
    progress->setText(
        tr("Text %1 of %2, %3 missing").arg(place + 1).arg(all.size()).arg(countMissing()));
    record->setText(isGoing ? tr("&Stop (Space)") : tr("&Record (Space)"));
    hear->setText(player.isPlaying() ? tr("Stop &listening") : tr("&Listen"));
    hear->setEnabled(!isGoing && !take.isEmpty());
    undo->setEnabled(!isGoing && take.canUndo());
    redo->setEnabled(!isGoing && take.canRedo());
    before->setEnabled(!isGoing && place > 0);
    skip->setEnabled(!isGoing && place + 1 < all.size());
    next->setText(isUnsaved() || state == State::recording ? tr("Keep, &next (Enter)")
                                                           : tr("&Next (Enter)"));
    next->setEnabled(state != State::counting);
    microphones->setEnabled(!isGoing);
    wave->showTake(take);
    length->setText(take.isEmpty() ? QString() : wave->words());
    const bool isCount = state == State::counting;
    sign->setText(isCount ? QString::number(counted) : QString());
    if (isCount) {
        QAccessibleEvent alert(sign, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void RecordDialog::say(const QString& text)
{
    message->setText(text);
    if (!text.isEmpty()) {
        QAccessibleEvent alert(message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

std::string RecordDialog::fileOf(const TextToRecord& text) const
{
    return audioFileIn(folder, text.audioName.toStdString());
}
