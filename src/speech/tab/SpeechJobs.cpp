#include "speech/tab/SpeechJobs.h"

#include "base/FileSystem.h"
#include "oid/OutputLock.h"
#include "publish/BuildDriver.h"
#include "publish/SoundFiles.h"
#include "recording/VoiceFile.h"
#include "speech/ReadingSheet.h"
#include "speech/SpeechIndex.h"
#include "speech/Tidy.h"
#include "speech/tab/QuietRunner.h"
#include "speech/tab/SheetPdf.h"

#include <algorithm>
#include <memory>

namespace {

// Nobody else makes files of this book meanwhile; else says who does.
template <class Work>
QStringList withLock(const Oid::OidProject& book, const Work& work)
{
    OutputLock lock(book, kBuildLock);
    QString who;
    if (!lock.take([&](const char* line) { who += QString::fromUtf8(line).trimmed(); })) {
        return {who};
    }
    return work();
}

// Whose file is replaced is looked at now: the author may have put one there since the table was
// made.
recording::Places placesOf(const SpeechText& text, const std::string& folder, SpeechIndex& index)
{
    recording::Places places;
    places.target = text.file;
    places.originals = recording::originalsOf(folder);
    places.keepsEarlier = index.spokenInto(text.audioName) == nullptr;
    return places;
}

QStringList linesOf(const std::string& said)
{
    return QString::fromStdString(said).split('\n', Qt::SkipEmptyParts);
}

}  // namespace

SpeechWork::Job SpeechJobs::speak(Oid::OidProject book, QString script,
                                  std::vector<SpeechText> texts)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, script = std::move(script),
            texts = std::move(texts)](const SpeechWork::Contact& contact) {
        shared->print = printNothing;
        shared->compiler = ttbasic();
        shared->compiler.source = script.toStdString();
        shared->compiler.reportTo([](const Diagnostic&) {});
        compileScript(shared->compiler, false);
        return withLock(*shared, [&] { return speakNow(*shared, texts, contact); });
    };
}

QStringList SpeechJobs::speakNow(Oid::OidProject& book, const std::vector<SpeechText>& texts,
                                 const SpeechWork::Contact& contact)
{
    book.compiler.talkTexts.clear();
    for (const SpeechText& text : texts) {
        book.compiler.talkTexts[text.audioName] = {text.said.voice, text.said.text};
    }
    QuietRunner runner(contact.isWanted);
    const SpeechOutcome outcome = makeSoundFiles(book, runner, contact.tell);
    const int count = static_cast<int>(texts.size());
    switch (outcome) {
    case SpeechOutcome::complete:
        return {count == 1 ? tr("The text was spoken.") : tr("%1 texts were spoken.").arg(count)};
    case SpeechOutcome::cancelled:
        return {tr("Speaking was cancelled. \"Speak\" goes on where it stopped.")};
    default:
        return QStringList{tr("Not all texts could be spoken:")} + linesOf(runner.said());
    }
}

SpeechWork::Job SpeechJobs::adopt(Oid::OidProject book, std::vector<Adoption> adoptions,
                                  Reports reports)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, adoptions = std::move(adoptions),
            reports = std::move(reports)](const SpeechWork::Contact& contact) {
        return withLock(
            *shared, [&] { return adoptNow(audioFolder(*shared), adoptions, *reports, contact); });
    };
}

QStringList SpeechJobs::adoptNow(const std::string& folder, const std::vector<Adoption>& adoptions,
                                 std::vector<recording::FileReport>& reports,
                                 const SpeechWork::Contact& contact)
{
    FileSystem::createDirectory(folder);
    SpeechIndex index(folder);
    QStringList problems;
    const int total = static_cast<int>(adoptions.size());
    int taken = 0;
    for (int done = 0; done < total; ++done) {
        if (!contact.tell(done, total)) {
            problems << tr("Cancelled.");
            break;
        }
        const Adoption& one = adoptions[static_cast<std::size_t>(done)];
        reports.push_back(recording::adoptSound(
            one.source.toStdString(), placesOf(one.text, folder, index), contact.isWanted));
        if (reports.back().done == recording::FileReport::Done::failed) {
            problems << reports.back().text;
        } else {
            ++taken;
        }
    }
    return QStringList{taken == 1 ? tr("1 recording was taken.")
                                  : tr("%1 recordings were taken.").arg(taken)} +
           problems;
}

// --- Sheets to read from -------------------------------------------------------------------------

namespace {

// The part of a sheet that is wanted.
ReadingSheet onlyWanted(ReadingSheet sheet, const SpeechJobs::Sheet& wish)
{
    const auto isUnwanted = [&](const ReadingSheet::Line& line) {
        return wish.wanted.count(wish.texts[line.text].audioName) == 0;
    };
    for (ReadingSheet::Voice& voice : sheet.voices) {
        auto& lines = voice.lines;
        lines.erase(std::remove_if(lines.begin(), lines.end(), isUnwanted), lines.end());
    }
    auto& voices = sheet.voices;
    voices.erase(std::remove_if(voices.begin(), voices.end(),
                                [](const auto& voice) { return voice.lines.empty(); }),
                 voices.end());
    return sheet;
}

}  // namespace

SpeechWork::Job SpeechJobs::writeSheet(Oid::OidProject book, Sheet sheet)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, sheet = std::move(sheet)](const SpeechWork::Contact&) {
        return withLock(*shared, [&] { return writeSheetNow(*shared, sheet); });
    };
}

// Numbers that are not kept would lead recordings to other texts, so there is no sheet then.
QStringList SpeechJobs::writeSheetNow(const Oid::OidProject& book, const Sheet& wish)
{
    const std::string folder = audioFolder(book);
    SpeechIndex index(folder);
    const QString problem = QString::fromStdString(index.problem());
    if (index.state() == SpeechIndex::State::unreadable) {
        return {problem};
    }
    const ReadingSheet whole = readingSheetOf(wish.texts, index.sheetNumbers());
    index.numberTexts(numbersOf(whole, wish.texts));
    FileSystem::createDirectory(folder);
    if (index.isChanged() && !index.save()) {
        return {tr("The file %1 cannot be written.").arg(QString::fromStdString(index.path()))};
    }
    const ReadingSheet sheet = onlyWanted(whole, wish);
    const std::string bytes =
        wish.isPdf
            ? sheetAsPdf(sheet, wish.texts, QString::fromStdString(book.productName)).toStdString()
            : asPlainText(sheet, wish.texts);
    const std::string failure = recording::writeWhole(wish.file.toStdString(), bytes);
    if (!failure.empty()) {
        return {tr("The file %1 cannot be written: %2")
                    .arg(wish.file, QString::fromStdString(failure))};
    }
    QStringList sentences{tr("The sheet is in the file %1.").arg(wish.file)};
    if (!problem.isEmpty()) {
        sentences << problem << tr("The numbers begin anew; earlier sheets do not fit any more.");
    }
    return sentences;
}

// --- Tidying -------------------------------------------------------------------------------------

SpeechWork::Job SpeechJobs::moveToTrash(Oid::OidProject book, std::vector<std::string> names)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, names = std::move(names)](const SpeechWork::Contact& contact) {
        return withLock(*shared, [&] { return trashNow(audioFolder(*shared), names, contact); });
    };
}

QStringList SpeechJobs::trashNow(const std::string& folder, const std::vector<std::string>& names,
                                 const SpeechWork::Contact& contact)
{
    QStringList problems;
    const int total = static_cast<int>(names.size());
    int gone = 0;
    for (int done = 0; done < total; ++done) {
        if (!contact.tell(done, total)) {
            problems << tr("Cancelled.");
            break;
        }
        const std::string& name = names[static_cast<std::size_t>(done)];
        if (::moveToTrash(folder + FileSystem::directorySeparator + name)) {
            ++gone;
        } else {
            problems << tr("%1 stays: it cannot be moved to the trash.")
                            .arg(QString::fromStdString(name));
        }
    }
    return QStringList{gone == 1 ? tr("1 file is in the trash.")
                                 : tr("%1 files are in the trash.").arg(gone)} +
           problems;
}

// --- Evenness ------------------------------------------------------------------------------------

SpeechWork::Job SpeechJobs::evenOut(Oid::OidProject book, std::vector<SpeechText> texts)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, texts = std::move(texts)](const SpeechWork::Contact& contact) {
        return withLock(*shared, [&] { return evenOutNow(audioFolder(*shared), texts, contact); });
    };
}

QStringList SpeechJobs::evenOutNow(const std::string& folder, const std::vector<SpeechText>& texts,
                                   const SpeechWork::Contact& contact)
{
    using Done = recording::FileReport::Done;
    SpeechIndex index(folder);
    QStringList problems;
    const int total = static_cast<int>(texts.size());
    int written = 0;
    for (int done = 0; done < total; ++done) {
        if (!contact.tell(done, total)) {
            problems << tr("Cancelled.");
            break;
        }
        const SpeechText& text = texts[static_cast<std::size_t>(done)];
        const Utterance* const spoken = index.spokenInto(text.audioName);
        const recording::FileReport report = recording::evenOut(placesOf(text, folder, index));
        written += report.done == Done::written ? 1 : 0;
        if (report.done == Done::failed) {
            problems << report.text;
        } else if (report.done == Done::written && spoken != nullptr &&
                   !(index.remember(text.audioName, Utterance(*spoken)) && index.save())) {
            problems
                << tr("The file %1 cannot be written.").arg(QString::fromStdString(index.path()));
        }
    }
    return QStringList{
               written == 1
                   ? tr("1 audio file was made as loud as all are to be.")
                   : tr("%1 audio files were made as loud as all are to be.").arg(written)} +
           problems;
}
