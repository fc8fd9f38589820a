#include "speech/SpokenTexts.h"

#include "base/PlatformProcess.h"
#include "speech/Engines.h"
#include "speech/SpeechProgram.h"
#include "ttbasic/ScriptLanguage.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

namespace {

// The oldest files make room for new ones.
void keepWithinBounds(const QString& folder)
{
    constexpr qint64 kMostBytes = 200 * 1024 * 1024;
    qint64 bytes = 0;
    for (const QFileInfo& file : QDir(folder).entryInfoList({"*.wav"}, QDir::Files, QDir::Time)) {
        bytes += file.size();
        if (bytes > kMostBytes) {
            QFile::remove(file.filePath());
        }
    }
}

// Of this object; another one or another window may be speaking, too.
QString nextUnfinishedFile()
{
    static int count = 0;
    return '/' + QString::number(QCoreApplication::applicationPid()) + '.' +
           QString::number(++count) + ".unfinished.wav";
}

}  // namespace

SpokenTexts::SpokenTexts(QString files, QObject* parent)
    : QObject(parent), folder(std::move(files)), unfinishedFile(folder + nextUnfinishedFile())
{
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &SpokenTexts::takeSpoken);
}

// Half a text is of no use.
SpokenTexts::~SpokenTexts()
{
    process.disconnect(this);
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
        QFile::remove(unfinishedFile);
    }
}

QString SpokenTexts::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           "/plinkett/speech";
}

void SpokenTexts::want(const std::string& text, const ttbasic::VOICE& voice)
{
    wanted = {text, voice, fileOf(text, voice)};
    QTimer::singleShot(0, this, &SpokenTexts::bringOn);
}

// The program's end arrives before this returns, and nobody waits for its text.
void SpokenTexts::cancel()
{
    giveUp();
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

// Texts are the same if one hears no difference.
QString SpokenTexts::fileOf(const std::string& text, const ttbasic::VOICE& voice) const
{
    const std::string engine = currentEngines().identity(voice);
    const std::string all = voice.language + '\n' + std::to_string(voice.age) +
                            (voice.female ? "f" : "m") + '\n' + text + '\n' + engine;
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(all), QCryptographicHash::Sha1);
    return folder + '/' + hash.toHex() + ".wav";
}

void SpokenTexts::bringOn()
{
    if (!wanted) {
        return;
    }
    const QString file = wanted->file;
    if (QFileInfo::exists(file)) {
        wanted.reset();
        emit ready(file);
    } else if (process.state() == QProcess::NotRunning) {
        speak();
    }
}

void SpokenTexts::speak()
{
    if (wanted->text.size() > Platform::longestArgument) {
        tell(Problem::tooLong);
        return;
    }
    if (!ScriptLanguage::isLanguage(wanted->voice.language)) {
        tell(Problem::failed, QString::fromStdString("'" + wanted->voice.language +
                                                     "' is not the name of a language"));
        return;
    }
    putToolsOnPath();
    QDir().mkpath(folder);
    spoken = wanted;
    const ProgramCall call =
        callToSpeak(spoken->text, spoken->voice, unfinishedFile.toStdString(), false);
    if (!program.start(call.program, call.arguments, false, call.surroundings)) {
        tell(Problem::noProgram);
    }
}

void SpokenTexts::takeSpoken()
{
    const QString file = spoken->file;
    const bool isGood = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 &&
                        QFile::rename(unfinishedFile, file);
    const bool isWanted = wanted && wanted->file == file;
    if (isGood) {
        keepWithinBounds(folder);
    } else {
        QFile::remove(unfinishedFile);
    }
    if (isWanted && !isGood) {
        tell(Problem::failed, QString::fromUtf8(process.readAllStandardError()).simplified());
    } else {
        bringOn();
    }
}

void SpokenTexts::tell(Problem problem, const QString& words)
{
    wanted.reset();
    emit failed(problem, words);
}
