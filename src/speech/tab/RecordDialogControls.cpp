#include "speech/tab/RecordDialog.h"

#include "speech/tab/LevelMeter.h"
#include "speech/tab/RecordCard.h"
#include "speech/tab/WaveHandle.h"
#include "speech/tab/WaveView.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

// What the dialog shows: its controls, and the microphone that they choose.

namespace {

constexpr char kMicrophone[] = "recording/microphone";
constexpr char kCountIn[] = "recording/countIn";

}  // namespace

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
    microphones->setToolTip(
        tr("The microphone that is recorded from; the level below shows whether it hears you"));
    microphones->setMinimumContentsLength(12);
    microphones->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    microphones->addItem(tr("Usual microphone"));
    countIn = new QCheckBox(tr("Count &in"));
    countIn->setObjectName("recordCountIn");
    countIn->setToolTip(
        tr("Counts 3, 2, 1 before a recording begins, so that you can take a breath"));
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
    openMicrophone();
}

void RecordDialog::openMicrophone()
{
    microphone.open(settings.value(kMicrophone).toString());
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
