#include "speech/tab/RecordDialog.h"

#include "recording/ReadSound.h"
#include "recording/Silence.h"
#include "recording/VoiceFile.h"
#include "speech/AudioFile.h"
#include "speech/SpeechIndex.h"

#include <QMessageBox>
#include <QPushButton>

#include <memory>

// What the dialog writes and reads.

// Whose file is replaced is looked at now: the author may have put one there since the dialog was
// opened.
static recording::FileReport keepNow(const recording::Take& take, recording::Places places,
                                     SpeechIndex index, const std::string& audioName)
{
    places.keepsEarlier = index.spokenInto(audioName) == nullptr;
    return recording::adoptTake(take, places);
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
    const recording::Places places{fileOf(current()), recording::originalsOf(folder)};
    const auto report = std::make_shared<recording::FileReport>();
    work.start([report, places, kept = take, name = current().audioName.toStdString(),
                folder = folder] { *report = keepNow(kept, places, SpeechIndex(folder), name); },
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

bool RecordDialog::isUnsaved() const
{
    return !take.isEmpty() && !(take.sharedSound() == savedSound && take.kept() == savedSpan);
}

void RecordDialog::markSaved()
{
    savedSound = take.sharedSound();
    savedSpan = take.kept();
}

std::string RecordDialog::fileOf(const TextToRecord& text) const
{
    return audioFileIn(folder, text.audioName.toStdString());
}
