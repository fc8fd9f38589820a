#include "tryout/SpokenTexts.h"

#include "base/PlatformProcess.h"
#include "speech/SpeechProgram.h"

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

}  // namespace

SpokenTexts::SpokenTexts(QString files, QObject* parent) : QObject(parent), folder(std::move(files))
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
        QFile::remove(unfinishedFile());
    }
}

QString SpokenTexts::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           "/plinkett/speech";
}

void SpokenTexts::want(const std::string& text, const ttbasic::VOICE& voice)
{
    wanted = {text, voice};
    QTimer::singleShot(0, this, &SpokenTexts::bringOn);
}

// Texts are the same if one hears no difference.
QString SpokenTexts::fileOf(const Speech& speech) const
{
    const ttbasic::VOICE& voice = speech.voice;
    const std::string all = voice.language + '\n' + std::to_string(voice.age) +
                            (voice.female ? "f" : "m") + '\n' + speech.text;
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(all), QCryptographicHash::Sha1);
    return folder + '/' + hash.toHex() + ".wav";
}

// Of this process; another window may be speaking, too.
QString SpokenTexts::unfinishedFile() const
{
    return folder + '/' + QString::number(QCoreApplication::applicationPid()) + ".unfinished.wav";
}

void SpokenTexts::bringOn()
{
    if (!wanted) {
        return;
    }
    const QString file = fileOf(*wanted);
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
        tell(tr("A text is too long for the speech program and is only shown."));
        return;
    }
    putToolsOnPath();
    QDir().mkpath(folder);
    spoken = wanted;
    const ProgramCall call =
        callToSpeak(spoken->text, spoken->voice, unfinishedFile().toStdString(), false);
    if (!program.start(call.program, call.arguments, false, call.surroundings)) {
        tell(tr("The speech program is not there: texts without an audio file are only shown."));
    }
}

void SpokenTexts::takeSpoken()
{
    const QString file = fileOf(*spoken);
    const bool isGood = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 &&
                        QFile::rename(unfinishedFile(), file);
    const bool isWanted = wanted && fileOf(*wanted) == file;
    if (isGood) {
        keepWithinBounds(folder);
    } else {
        QFile::remove(unfinishedFile());
    }
    if (isWanted && !isGood) {
        tell(tr("The speech program could not speak a text, which is only shown."));
    } else {
        bringOn();
    }
}

void SpokenTexts::tell(const QString& reason)
{
    wanted.reset();
    emit failed(reason);
}
