#include "speech/tab/SpeechJobs.h"

#include "base/FileSystem.h"
#include "oid/OutputLock.h"
#include "publish/BuildDriver.h"
#include "publish/SoundFiles.h"
#include "recording/BookSounds.h"
#include "speech/SpeechIndex.h"
#include "speech/tab/QuietRunner.h"

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

recording::Places placesOf(const SpeechText& text, const std::string& folder)
{
    recording::Places places;
    places.target = text.file;
    places.originals = recording::originalsOf(folder);
    places.keepsEarlier = text.state == SpeechState::recorded;
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

SpeechWork::Job SpeechJobs::adopt(Oid::OidProject book, std::vector<Adoption> adoptions)
{
    const auto shared = std::make_shared<Oid::OidProject>(std::move(book));
    return [shared, adoptions = std::move(adoptions)](const SpeechWork::Contact& contact) {
        return withLock(*shared,
                        [&] { return adoptNow(audioFolder(*shared), adoptions, contact); });
    };
}

QStringList SpeechJobs::adoptNow(const std::string& folder, const std::vector<Adoption>& adoptions,
                                 const SpeechWork::Contact& contact)
{
    FileSystem::createDirectory(folder);
    QStringList problems;
    const int total = static_cast<int>(adoptions.size());
    int taken = 0;
    for (int done = 0; done < total; ++done) {
        if (!contact.tell(done, total)) {
            problems << tr("Cancelled.");
            break;
        }
        const Adoption& one = adoptions[static_cast<std::size_t>(done)];
        const recording::FileReport report = recording::adoptSound(
            one.source.toStdString(), placesOf(one.text, folder), contact.isWanted);
        if (report.done == recording::FileReport::Done::failed) {
            problems << report.text;
        } else {
            ++taken;
        }
    }
    return QStringList{taken == 1 ? tr("1 recording was taken.")
                                  : tr("%1 recordings were taken.").arg(taken)} +
           problems;
}

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
        const recording::FileReport report = recording::evenOut(placesOf(text, folder));
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
