#include "recording/BookSounds.h"

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "recording/ReadSound.h"
#include "recording/VoiceFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace recording {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(Recording)
};

constexpr double kPeakTolerance = 0.1;  // dB by which two measurements may differ

QString qPath(const std::string& path)
{
    return QString::fromStdString(Platform::nativePath(path));
}

QString nameOf(const std::string& path)
{
    return QFileInfo(qPath(path)).fileName();
}

bool haveSameBytes(const QString& one, const QString& other)
{
    QFile first;
    QFile second;
    return openInput(first, one.toStdString()) && openInput(second, other.toStdString()) &&
           first.size() == second.size() && first.readAll() == second.readAll();
}

// Where an original of that name can lie: "Moo.wav", "Moo-2.wav" ... where others lie already.
QString freePlace(const std::string& folder, const QString& name, const QString& suffix, int number)
{
    const QString counted = number > 1 ? "-" + QString::number(number) : QString();
    const QString dotted = suffix.isEmpty() ? QString() : "." + suffix;
    return qPath(folder) + "/" + name + counted + dotted;
}

// A file as it is kept, and what became of that.
struct Kept
{
    std::string path;
    QString problem;
};

// Authors and strangers may put links into the folder of the audio files, which may be one itself.
QString whyNotWritten(const std::string& file)
{
    return FileSystem::placeOutside(FileSystem::getDirectoryOfPath(file), file).empty()
               ? QString()
               : Words::tr("it is a link to a file in another folder");
}

QString cannotBeKept(const std::string& file, const std::string& reason)
{
    return Words::tr("The original of %1 cannot be kept: %2")
        .arg(nameOf(file), QString::fromStdString(reason));
}

// A copy that is there already is as good as another.
Kept keepFile(const std::string& file, const Places& places)
{
    QDir().mkpath(qPath(places.originals));
    const QString name = QFileInfo(qPath(places.target)).completeBaseName();
    const QString suffix = QFileInfo(qPath(file)).suffix();
    for (int number = 1;; ++number) {
        const QString place = freePlace(places.originals, name, suffix, number);
        if (!QFileInfo::exists(place)) {
            const QString link = whyNotWritten(place.toStdString());
            if (!link.isEmpty()) {
                return {{}, cannotBeKept(file, link.toStdString())};
            }
            const bool isKept = Platform::copyFile(file, place.toStdString());
            return isKept ? Kept{place.toStdString(), {}}
                          : Kept{{}, cannotBeKept(file, Platform::lastFileError())};
        }
        if (haveSameBytes(qPath(file), place)) {
            return {place.toStdString(), {}};
        }
    }
}

Kept keepBytes(const std::string& bytes, const Places& places)
{
    const QString name = QFileInfo(qPath(places.target)).completeBaseName();
    int number = 1;
    while (QFileInfo::exists(freePlace(places.originals, name, "flac", number))) {
        ++number;
    }
    const std::string place = freePlace(places.originals, name, "flac", number).toStdString();
    const std::string link = whyNotWritten(place).toStdString();
    const std::string problem = link.empty() ? writeWhole(place, bytes) : link;
    return problem.empty() ? Kept{place, {}} : Kept{{}, cannotBeKept(places.target, problem)};
}

FileReport failed(const QString& text)
{
    FileReport report;
    report.text = text;
    return report;
}

QString shown(double loudness)
{
    return std::isinf(loudness) ? Words::tr("silent") : QString::number(loudness, 'f', 1) + " LUFS";
}

// Replaces the file, which is kept before; the report says the rest already.
void writeVoice(const std::string& bytes, const Places& places, FileReport& report)
{
    const QString link = whyNotWritten(places.target);
    if (!link.isEmpty()) {
        report.text = Words::tr("%1 cannot be written: %2").arg(nameOf(places.target), link);
        return;
    }
    if (places.keepsEarlier && QFileInfo::exists(qPath(places.target))) {
        const Kept earlier = keepFile(places.target, places);
        report.keptEarlier = earlier.path;
        report.text = earlier.problem;
    }
    if (report.text.isEmpty()) {
        const std::string problem = writeWhole(places.target, bytes);
        if (!problem.empty()) {
            report.text = Words::tr("%1 cannot be written: %2")
                              .arg(nameOf(places.target), QString::fromStdString(problem));
        }
    }
    if (!report.text.isEmpty()) {
        return;
    }
    report.done = FileReport::Done::written;
    report.after = levelOf(soundOfFile(bytes));
    report.text = Words::tr("%1: %2, before %3")
                      .arg(nameOf(places.target), shown(report.after.loudness),
                           shown(report.before.loudness));
}

bool isEven(const Level& level)
{
    return std::isinf(level.loudness) || (std::abs(level.loudness - kLoudness) <= kSameLoudness &&
                                          level.peak <= kHighestPeak + kPeakTolerance);
}

// Not every sound can become as loud as the others; done again it would only lose.
bool isBetter(const Level& level, const Level& before)
{
    const auto distance = [](const Level& of) {
        return std::abs(of.loudness - kLoudness) + std::max(0.0, of.peak - kHighestPeak);
    };
    return distance(level) < distance(before) - kPeakTolerance;
}

FileReport untouched(FileReport report, const Places& places)
{
    report.done = FileReport::Done::untouched;
    report.after = report.before;
    report.text =
        Words::tr("%1: %2, not changed").arg(nameOf(places.target), shown(report.before.loudness));
    return report;
}

}  // namespace

std::string originalsOf(const std::string& audioFolder)
{
    return audioFolder + FileSystem::directorySeparator + "originals";
}

FileReport adoptSound(const std::string& source, const Places& places,
                      const std::function<bool()>& isWanted)
{
    const FoundSound found = readSound(source, isWanted);
    if (!found.problem.isEmpty()) {
        return failed(found.problem);
    }
    const Kept original = keepFile(source, places);
    if (!original.problem.isEmpty()) {
        return failed(original.problem);
    }
    FileReport report;
    report.keptSource = original.path;
    report.before = levelOf(found.sound);
    writeVoice(voiceFileOf(found.sound), places, report);
    return report;
}

FileReport adoptTake(const Take& take, const Places& places)
{
    const MonoSound finished = take.finished();
    if (finished.samples.empty()) {
        return failed(Words::tr("Nothing is recorded for %1").arg(nameOf(places.target)));
    }
    const Kept original = keepBytes(flacFileOf(take.sound()), places);
    if (!original.problem.isEmpty()) {
        return failed(original.problem);
    }
    FileReport report;
    report.keptSource = original.path;
    report.before = levelOf(finished);
    writeVoice(voiceFileOf(finished), places, report);
    return report;
}

FileReport evenOut(const Places& places)
{
    const FoundSound found = readSound(places.target);
    if (!found.problem.isEmpty()) {
        return failed(found.problem);
    }
    FileReport report;
    report.before = levelOf(found.sound);
    if (found.isVoice && isEven(report.before)) {
        return untouched(report, places);
    }
    const std::string bytes = voiceFileOf(found.sound);
    if (found.isVoice && !isBetter(levelOf(soundOfFile(bytes)), report.before)) {
        return untouched(report, places);
    }
    writeVoice(bytes, places, report);
    return report;
}

}  // namespace recording
