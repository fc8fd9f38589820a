// What the buttons of the tab do.
#include "speech/tab/SpeechTab.h"

#include "base/PrintFunction.h"
#include "speech/Engines.h"
#include "speech/SpeechImport.h"
#include "speech/SpeechIndex.h"
#include "speech/SpeechProgram.h"
#include "speech/Tidy.h"
#include "speech/tab/ImportDialog.h"
#include "speech/tab/RecordDialog.h"
#include "speech/tab/SpeechJobs.h"
#include "speech/tab/SpeechView.h"
#include "speech/tab/TidyDialog.h"
#include "speech/tab/TryVoicesDialog.h"

#include <QDir>
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

std::vector<SpeechText> SpeechTab::allTexts() const
{
    std::vector<SpeechText> texts;
    for (const SpeechRow& row : model.all()) {
        texts.push_back(row.text);
    }
    return texts;
}

// The project as it is now, for another thread.
Oid::OidProject SpeechTab::book() const
{
    return source.project();
}

bool SpeechTab::mayBegin()
{
    if (folder.isEmpty()) {
        emit told(summary->text());
        return false;
    }
    if (work.isBusy() || isBuilding) {
        emit told(tr("Wait until what is being made is done."));
        return false;
    }
    return true;
}

void SpeechTab::begin(SpeechWork::Job job, const QString& what)
{
    if (!mayBegin()) {
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
    if (!takesFile(text)) {
        emit told(tr("This text can have no file: %1.").arg(SpeechModel::stateOf(text)));
    } else {
        const auto reports = std::make_shared<std::vector<recording::FileReport>>();
        begin(SpeechJobs::adopt(book(), {{file, text}}, reports), tr("Taking the file..."));
    }
}

void SpeechTab::importFolder()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Import folder"));
    if (!chosen.isEmpty()) {
        importFiles({chosen});
    }
}

// Of a folder its files, but not those of folders in it.
void SpeechTab::importFiles(const QStringList& paths)
{
    if (!mayBegin()) {
        return;
    }
    std::vector<std::string> found;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.isDir() && info.canonicalFilePath() == QFileInfo(folder).canonicalFilePath()) {
            say({tr("%1 is the audio folder of the book itself.").arg(path)});
            return;
        }
        if (info.isDir() && !info.isReadable()) {
            say({tr("The folder %1 cannot be read.").arg(path)});
            return;
        }
        const QStringList names =
            info.isDir() ? QDir(path).entryList(QDir::Files, QDir::Name) : QStringList{QString()};
        for (const QString& name : names) {
            found.push_back((name.isEmpty() ? path : QDir(path).filePath(name)).toStdString());
        }
    }
    if (found.empty()) {
        say({tr("There are no files in %1.").arg(paths.join(", "))});
        return;
    }
    stop();
    const std::vector<SpeechText> texts = allTexts();
    const SpeechIndex index(folder.toStdString());
    ImportDialog dialog(matchRecordings(found, texts, index.sheetNumbers()), texts, book(), this);
    dialog.exec();
    say(dialog.sentences());
    lookSoon();
}

// --- Sheets to read from -------------------------------------------------------------------------

void SpeechTab::printSheet()
{
    makeSheet(QFileDialog::getSaveFileName(this, tr("Print sheet"), sheetName(".pdf"),
                                           tr("PDF files") + " (*.pdf)"),
              true);
}

void SpeechTab::saveSheet()
{
    makeSheet(QFileDialog::getSaveFileName(this, tr("Save sheet"), sheetName(".txt"),
                                           tr("Text files") + " (*.txt)"),
              false);
}

// Beside the project.
QString SpeechTab::sheetName(const QString& extension) const
{
    const QFileInfo project(QString::fromStdString(book().projectPath));
    return project.path() + '/' + project.completeBaseName() + ' ' + tr("reading sheet") +
           extension;
}

void SpeechTab::makeSheet(const QString& file, bool isPdf)
{
    if (file.isEmpty()) {
        return;
    }
    SpeechJobs::Sheet sheet;
    sheet.isPdf = isPdf;
    sheet.file = QFileInfo(file).suffix().isEmpty() ? file + (isPdf ? ".pdf" : ".txt") : file;
    sheet.texts = allTexts();
    for (const SpeechText& text : selectedOrAll(takesFile)) {
        sheet.wanted.insert(text.audioName);
    }
    begin(SpeechJobs::writeSheet(book(), std::move(sheet)), tr("Writing the sheet..."));
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

// What stands behind a mistake of the script uses files, too.
void SpeechTab::tidy()
{
    if (!mayBegin()) {
        return;
    }
    Oid::OidProject project = book();
    project.print = printNothing;
    project.compiler = ttbasic();
    project.compiler.source = source.script().toStdString();
    project.compiler.reportTo([](const Diagnostic&) {});
    if (!compileScript(project.compiler, false)) {
        say({tr("The script has mistakes, so it is not known which audio files it uses. Correct "
                "them first.")});
        return;
    }
    SpeechIndex index(folder.toStdString());
    std::vector<TidyDialog::File> unused;
    for (const std::string& name :
         unusedAudio(folder.toStdString(), speechTexts(project, currentEngines()))) {
        const std::string audioName =
            QFileInfo(QString::fromStdString(name)).completeBaseName().toStdString();
        const bool isOurs = name == audioName + ".ogg" && index.spokenInto(audioName) != nullptr;
        unused.push_back({name, isOurs});
    }
    if (unused.empty()) {
        say({tr("All audio files are used by texts.")});
        return;
    }
    TidyDialog dialog(std::move(unused), this);
    if (dialog.exec() == QDialog::Accepted) {
        begin(SpeechJobs::moveToTrash(std::move(project), dialog.chosen()),
              tr("Moving files to the trash..."));
    }
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
