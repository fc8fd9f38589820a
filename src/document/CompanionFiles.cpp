#include "document/CompanionFiles.h"

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "speech/SpeechIndex.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <algorithm>

namespace {

QString native(const std::string& path)
{
    return QString::fromStdString(Platform::nativePath(path));
}

bool sameContent(const std::string& one, const std::string& other)
{
    QFile a;
    QFile b;
    if (!openInput(a, one) || !openInput(b, other) || a.size() != b.size()) {
        return false;
    }
    constexpr qint64 kPiece = 1 << 20;
    while (!a.atEnd()) {
        if (a.read(kPiece) != b.read(kPiece)) {
            return false;
        }
    }
    return true;
}

// Their paths below the folder. The list is complete before anything is copied: the copies may lie
// in the same folder.
QStringList filesBelow(const QDir& folder)
{
    QStringList files;
    QDirIterator found(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        files << folder.relativeFilePath(found.next());
    }
    files.sort();
    return files;
}

// Of a project without audio files so far; empty when the folder of that name is another book's.
std::string ownAudioFolder(const Oid::OidProject& project)
{
    const std::string folder = audioFolder(project);
    return QFileInfo::exists(native(folder)) ? std::string() : folder;
}

// Not over what a link in its place leads to.
bool staysBeside(const std::string& file)
{
    return FileSystem::placeOutside(FileSystem::getDirectoryOfPath(file), file).empty();
}

// False when there is no such file afterwards.
bool copyUnlessThere(const QString& source, const QString& target)
{
    return QFile::exists(target) ||
           (QFileInfo(target).dir().mkpath(".") &&
            FileSystem::copyFileContent(source.toStdString(), target.toStdString()));
}

// Where the target has an index of its own, that was not copied.
bool takeIndexAlong(const std::string& source, const std::string& target)
{
    SpeechIndex index(target);
    index.takeOver(SpeechIndex(source));
    return !index.isChanged() || index.save();
}

}  // namespace

void CompanionFiles::areBeside(const Oid::OidProject& project)
{
    place.projectPath = project.projectPath;
    place.productId = project.productId;
    place.movedPictures = project.movedPictures;
    elsewhere.clear();
    audio = audioFolder(place);
}

void CompanionFiles::wereMoved(const Oid::OidProject& project)
{
    place.movedPictures = project.movedPictures;
}

void CompanionFiles::cameIn(const Oid::OidProject& project, int n)
{
    elsewhere[n] = {project.pathImageSource(n), {}};
}

void CompanionFiles::pagesArranged(const std::vector<int>& from)
{
    std::map<int, Picture> arranged;
    for (std::size_t i = 0; i < from.size(); ++i) {
        const auto page = static_cast<int>(i);
        const auto found = elsewhere.find(from[i]);
        if (found == elsewhere.end() || found->second.file == place.pathImageSource(from[i])) {
            continue;
        }
        Picture& picture = arranged[page] = found->second;
        if (picture.inTheWay == place.pathImageSource(from[i])) {
            picture.inTheWay = place.pathImageSource(page);
        }
    }
    elsewhere = std::move(arranged);
}

void CompanionFiles::wereRenamed(const std::vector<std::pair<std::string, std::string>>& paths)
{
    for (auto& entry : elsewhere) {
        const auto renamed = std::find_if(paths.begin(), paths.end(), [&](const auto& path) {
            return path.first == entry.second.file;
        });
        if (renamed != paths.end()) {
            entry.second.file = renamed->second;
        }
    }
}

CompanionFiles::Outcome CompanionFiles::follow(const Oid::OidProject& project,
                                               const MayOverwrite& mayOverwrite)
{
    Platform::useUtf8ForSystemTexts();
    if (place.projectPath.empty()) {
        areBeside(project);
        audio = ownAudioFolder(project);
        return {};
    }
    Outcome outcome;
    followPictures(project, mayOverwrite, outcome);
    if (audio.empty()) {
        audio = ownAudioFolder(project);
    } else {
        followAudio(audioFolder(project), outcome);
    }
    place.projectPath = project.projectPath;
    place.productId = project.productId;
    place.movedPictures.clear();
    return outcome;
}

CompanionFiles::Picture CompanionFiles::pictureOfPage(int n) const
{
    const auto found = elsewhere.find(n);
    return found != elsewhere.end() ? found->second : Picture{place.pathImageSource(n), {}};
}

void CompanionFiles::followPictures(const Oid::OidProject& project,
                                    const MayOverwrite& mayOverwrite, Outcome& outcome)
{
    std::map<int, Picture> left;
    for (int n = 0; n < static_cast<int>(project.pictures.size()); ++n) {
        Picture picture = pictureOfPage(n);
        const std::string target = project.pathImageSource(n);
        if (picture.file == target || !FileSystem::doesFileExist(picture.file) ||
            sameContent(picture.file, target)) {
            continue;
        }
        const bool allowed =
            !FileSystem::doesFileExist(target) ||
            (picture.inTheWay != target && mayOverwrite(Platform::nativePath(target)));
        if (!allowed) {
            picture.inTheWay = target;
        } else if (staysBeside(target) && FileSystem::copyFileContent(picture.file, target)) {
            outcome.copied = true;
            continue;
        } else {
            outcome.failed.push_back(Platform::nativePath(target));
        }
        left[n] = picture;
    }
    elsewhere = std::move(left);
}

void CompanionFiles::followAudio(const std::string& target, Outcome& outcome)
{
    const QDir from(native(audio));
    bool complete = true;
    if (audio != target) {
        for (const QString& file : filesBelow(from)) {
            complete = copyUnlessThere(from.filePath(file), QDir(native(target)).filePath(file)) &&
                       complete;
        }
        complete = takeIndexAlong(audio, target) && complete;
    }
    if (complete) {
        audio = target;
    } else {
        outcome.failed.push_back(Platform::nativePath(target));
    }
}
