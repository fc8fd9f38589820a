// What the buttons of the tab do.
#include "speech/tab/SpeechTab.h"

#include "speech/SpeechProgram.h"
#include "speech/Tidy.h"
#include "speech/tab/RecordDialog.h"
#include "speech/tab/SpeechJobs.h"
#include "speech/tab/SpeechView.h"
#include "speech/tab/TryVoicesDialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QSettings>
#include <QTemporaryFile>

#include <set>

namespace {

QString nameOfFile(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).fileName();
}

bool isRecorded(const SpeechText& text)
{
    return text.state == SpeechState::recorded;
}

// The pen says another text in the place of this one.
bool isReplaced(const SpeechText& text)
{
    return text.inItsPlace.line != 0;
}

}  // namespace

// --- Which texts ---------------------------------------------------------------------------------

bool SpeechTab::needsSpeech(const SpeechText& text)
{
    return text.state == SpeechState::missing || text.state == SpeechState::stale;
}

bool SpeechTab::takesFile(const SpeechText& text)
{
    return !isReplaced(text) &&
           (text.state != SpeechState::refused || text.refusal == Refusal::longText);
}

std::vector<SpeechText> SpeechTab::selectedOrAll(bool (*isMeant)(const SpeechText&)) const
{
    std::vector<int> rows = selectedRows();
    if (rows.empty()) {
        for (int row = 0; row < model.rowCount(); ++row) {
            rows.push_back(row);
        }
    }
    std::vector<SpeechText> texts;
    std::set<std::string> known;
    for (const int row : rows) {
        const SpeechText& text = model.row(row).text;
        if (isMeant(text) && known.insert(text.audioName).second) {
            texts.push_back(text);
        }
    }
    return texts;
}

// The project as it is now, for another thread.
Oid::OidProject SpeechTab::book() const
{
    return source.project();
}

void SpeechTab::begin(SpeechWork::Job job, const QString& what)
{
    if (work.isBusy() || isBuilding) {
        emit told(tr("Wait until what is being made is done."));
        return;
    }
    stop();
    say({});
    showProgress(what);
    work.start(std::move(job));
    allowCommands();
    emit busyChanged(true);
}

void SpeechTab::end(const QStringList& sentences)
{
    progressRow->hide();
    say(sentences);
    allowCommands();
    lookSoon();
    emit busyChanged(false);
}

// --- Speaking and evenness -----------------------------------------------------------------------

void SpeechTab::speak()
{
    const std::vector<SpeechText> texts = selectedOrAll(needsSpeech);
    putToolsOnPath();
    begin(SpeechJobs::speak(book(), source.script(), texts), tr("Speaking..."));
}

void SpeechTab::evenOut()
{
    begin(SpeechJobs::evenOut(book(), selectedOrAll(SpeechModel::hasFile)),
          tr("Making the texts equally loud..."));
}

// --- The author's own files ----------------------------------------------------------------------

void SpeechTab::record()
{
    std::vector<TextToRecord> texts;
    for (const SpeechRow& row : model.all()) {
        if (takesFile(row.text)) {
            const bool isSpoken =
                row.text.state == SpeechState::spoken || row.text.state == SpeechState::stale;
            texts.push_back({QString::fromStdString(row.text.audioName),
                             QString::fromStdString(row.text.said.voice),
                             QString::fromStdString(row.text.said.text),
                             SpeechModel::hasFile(row.text), isSpoken});
        }
    }
    stop();
    player.release();
    const std::vector<int> selected = selectedRows();
    const QString first = selected.empty()
                              ? QString()
                              : QString::fromStdString(model.row(selected.front()).text.audioName);
    QTemporaryFile forgotten;
    forgotten.open();
    QSettings own(forgotten.fileName(), QSettings::IniFormat);
    RecordDialog dialog(std::move(texts), folder, settings != nullptr ? *settings : own, first,
                        this);
    connect(&dialog, &RecordDialog::recorded, this, &SpeechTab::lookSoon);
    dialog.exec();
    lookSoon();
}

void SpeechTab::useFile()
{
    const std::vector<int> selected = selectedRows();
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Use file"), {},
        tr("Sound files") + " (*.wav *.ogg *.oga *.opus *.flac *.mp3 *.m4a *.aac *.wma *.aiff);;" +
            tr("All files") + " (*)");
    if (!file.isEmpty()) {
        adoptFile(file, model.row(selected.front()).text);
    }
}

void SpeechTab::adoptFile(const QString& file, const SpeechText& text)
{
    if (folder.isEmpty()) {
        emit told(summary->text());
    } else if (!takesFile(text)) {
        emit told(tr("This text can have no file: %1.").arg(SpeechModel::stateOf(text)));
    } else {
        begin(SpeechJobs::adopt(book(), {{file, text}}), tr("Taking the file..."));
    }
}

// --- Taking away ---------------------------------------------------------------------------------

void SpeechTab::takeBack()
{
    stop();
    QStringList sentences;
    int gone = 0;
    for (const SpeechText& text : selectedOrAll(isRecorded)) {
        if (moveToTrash(text.file)) {
            ++gone;
        } else {
            sentences
                << tr("%1 stays: it cannot be moved to the trash.").arg(nameOfFile(text.file));
        }
    }
    if (gone > 0) {
        sentences.prepend(gone == 1 ? tr("1 recording is in the trash.")
                                    : tr("%1 recordings are in the trash.").arg(gone));
    }
    say(sentences);
    lookSoon();
}

// --- Others --------------------------------------------------------------------------------------

void SpeechTab::tryVoices()
{
    stop();
    player.release();
    TryVoicesDialog dialog(scriptVoices, this);
    if (dialog.exec() == QDialog::Accepted) {
        emit statementChosen(dialog.statement());
    }
}
