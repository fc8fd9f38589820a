#include "recording/ReadSound.h"

#include "base/PlatformFiles.h"
#include "programs/OutsideProgram.h"
#include "recording/VoiceFile.h"
#include "sound/Resampler.h"
#include "sound/SoundFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <optional>

namespace recording {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(Recording)
};

QString nameOf(const std::string& path)
{
    return QFileInfo(QString::fromStdString(Platform::nativePath(path))).fileName();
}

FoundSound noSound(const QString& problem)
{
    FoundSound none;
    none.problem = problem;
    return none;
}

std::vector<float> mixed(const std::vector<float>& samples, int channels)
{
    const auto width = static_cast<size_t>(channels);
    std::vector<float> mono(samples.size() / width);
    for (size_t i = 0; i < samples.size(); ++i) {
        mono[i / width] += samples[i] / static_cast<float>(width);
    }
    return mono;
}

// The left ones of equal channels.
void append(std::vector<float>& samples, const std::vector<float>& stereo)
{
    for (size_t i = 0; i < stereo.size(); i += 2) {
        samples.push_back(stereo[i]);
    }
}

// As far as it can be read.
MonoSound soundOf(SoundFile& file)
{
    constexpr size_t kPiece = 16384;  // frames
    MonoSound sound{{}, kVoiceRate};
    Resampler resampler(1, file.rate(), kVoiceRate);
    for (std::vector<float> samples = file.read(kPiece); !samples.empty();
         samples = file.read(kPiece)) {
        append(sound.samples, resampler.convert(mixed(samples, file.channels())));
    }
    append(sound.samples, resampler.finish());
    return sound;
}

// Nothing where the format is not known here, or the file is damaged or cut off: another program
// may do better.
std::optional<FoundSound> readHere(const std::string& path, const QString& name)
{
    SoundFile file(path);
    if (file.state() == SoundFile::State::notOpened) {
        return noSound(
            Words::tr("%1 cannot be opened: %2").arg(name, QString::fromStdString(file.reason())));
    }
    if (file.state() != SoundFile::State::good) {
        return std::nullopt;
    }
    if (std::isinf(file.seconds())) {
        return std::nullopt;
    }
    if (file.seconds() > kLongestSound) {
        return noSound(Words::tr("%1 is longer than an hour").arg(name));
    }
    FoundSound found;
    found.isVoice = file.isOggVorbis() && file.channels() == 1 && file.rate() == kVoiceRate;
    found.sound = soundOf(file);
    if (file.state() != SoundFile::State::good) {
        return std::nullopt;
    }
    if (found.sound.samples.empty()) {
        return noSound(Words::tr("There is no sound in %1").arg(name));
    }
    return found;
}

// The last of what a program said, in one line.
QString lastWordsOf(QProcess& process)
{
    constexpr int kLines = 3;
    QStringList lines =
        QString::fromUtf8(process.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    for (QString& line : lines) {
        line = line.trimmed();
    }
    return QStringList(lines.mid(std::max(0, static_cast<int>(lines.size()) - kLines))).join("; ");
}

// Why there is no WAV file; empty when there is.
QString convert(const std::string& path, const QString& wav, const std::function<bool()>& isWanted)
{
    QProcess process;
    OutsideProgram ffmpeg(process);
    bool isStopped = false;
    if (isWanted) {
        ffmpeg.setWhileWaiting([&] {
            if (!isWanted()) {
                isStopped = true;
                process.kill();
            }
        });
    }
    // With "file:" nothing in a name has a meaning of its own.
    const QString source =
        "file:" + QFileInfo(QString::fromStdString(Platform::nativePath(path))).absoluteFilePath();
    const bool started =
        ffmpeg.start("ffmpeg.exe",
                     {"-hide_banner", "-nostdin", "-loglevel", "error", "-i", source.toStdString(),
                      "-t", std::to_string(static_cast<int>(kLongestSound) + 1), "-vn", "-ac", "1",
                      "-c:a", "pcm_f32le", "-f", "wav", "-y", wav.toStdString()},
                     true);
    if (!started) {
        return Words::tr("the program ffmpeg, which would read it, is not there");
    }
    if (isStopped) {
        return Words::tr("cancelled");
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        return Words::tr("the program ffmpeg was stopped");
    }
    const QString words = lastWordsOf(process);
    if (process.exitCode() == 0 && words.isEmpty()) {
        return {};
    }
    return words.isEmpty()
               ? Words::tr("the program ffmpeg ended with status %1").arg(process.exitCode())
               : words;
}

FoundSound readByProgram(const std::string& path, const QString& name,
                         const std::function<bool()>& isWanted)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        return noSound(Words::tr("%1 cannot be read: %2").arg(name, folder.errorString()));
    }
    const QString wav = folder.filePath("sound.wav");
    const QString problem = convert(path, wav, isWanted);
    if (!problem.isEmpty()) {
        return noSound(Words::tr("%1 cannot be read: %2").arg(name, problem));
    }
    std::optional<FoundSound> found = readHere(wav.toStdString(), name);
    if (!found) {
        return noSound(Words::tr("There is no sound in %1").arg(name));
    }
    found->isVoice = false;
    return *found;
}

}  // namespace

FoundSound readSound(const std::string& path, const std::function<bool()>& isWanted)
{
    const QString name = nameOf(path);
    const std::optional<FoundSound> found = readHere(path, name);
    return found ? *found : readByProgram(path, name, isWanted);
}

}  // namespace recording
