#include "document/RecoveryFolder.h"

#include "base/FileSystem.h"
#include "base/InputFile.h"
#include "base/PlatformFiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace {

constexpr int kDaysKept = 90;
constexpr int kDaysOfLeftovers = 1;  // nothing takes that long to be written
const char* const kSuffix = ".oidpro";
const char* const kLockSuffix = ".lock";

// One file has one path here, whatever links lead to it.
QString truePath(const std::string& projectPath)
{
    const QFileInfo file(QString::fromStdString(Platform::nativePath(projectPath)));
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return file.exists() ? file.canonicalFilePath() : folder + '/' + file.fileName();
}

// The beginning of the names of a project's copies.
QString nameOf(const std::string& projectPath)
{
    if (projectPath.empty()) {
        return "new";
    }
    const QByteArray path = truePath(projectPath).toUtf8();
    return QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16);
}

// Not by their age: the process that holds a lock may have been asleep for days.
bool tryLock(QLockFile& lock)
{
    lock.setStaleLockTime(0);
    return lock.tryLock(0);
}

QByteArray bytesOf(const QString& path)
{
    return readInput(path.toStdString()).value_or(QByteArray());
}

// As the head of a copy has it. Empty without a file.
QByteArray hashOfFile(const std::string& projectPath)
{
    const QByteArray bytes = bytesOf(QString::fromStdString(Platform::nativePath(projectPath)));
    return bytes.isEmpty() ? QByteArray() : hashOfSavedFile(bytes);
}

}  // namespace

RecoveryFile::RecoveryFile(const QString& path) : file(path), lock(path + kLockSuffix) {}

std::unique_ptr<RecoveryFile> RecoveryFile::create(const QString& folder,
                                                   const std::string& projectPath)
{
    QDir().mkpath(folder);
    const QString chance = QUuid::createUuid().toString(QUuid::WithoutBraces);
    std::unique_ptr<RecoveryFile> copy(
        new RecoveryFile(folder + '/' + nameOf(projectPath) + '-' + chance + kSuffix));
    return tryLock(copy->lock) ? std::move(copy) : nullptr;
}

std::unique_ptr<RecoveryFile> RecoveryFile::take(const QString& path)
{
    std::unique_ptr<RecoveryFile> copy(new RecoveryFile(path));
    return tryLock(copy->lock) && QFile::exists(path) ? std::move(copy) : nullptr;
}

std::optional<RecoveryHead> RecoveryFile::head() const
{
    return readRecoveryHead(bytesOf(file));
}

void RecoveryFile::remove()
{
    QFile::remove(file);
}

RecoveryFolder::RecoveryFolder()
    : folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
             "/plinkett/recovery")
{}

std::vector<FoundCopy> RecoveryFolder::find(const QString& pattern) const
{
    std::vector<FoundCopy> copies;
    for (const QFileInfo& file : QDir(folder).entryInfoList({pattern}, QDir::Files, QDir::Time)) {
        if (const auto copy = RecoveryFile::take(file.filePath())) {
            copies.push_back({copy->path(), file.lastModified().toUTC(), copy->head()});
        }
    }
    return copies;
}

std::optional<FoundCopy> RecoveryFolder::newestFor(const std::string& projectPath) const
{
    const QByteArray inFile = hashOfFile(projectPath);
    for (const FoundCopy& found : find(nameOf(projectPath) + "-*" + kSuffix)) {
        // Pages that look alike may have been moved: then the file's bytes are the same.
        const bool sameBytes = found.head && found.head->savedHash == inFile;
        const bool moved = sameBytes && !found.head->moved.empty();
        if (!sameBytes || (moved && found.head->movedFrom == inFile)) {
            return found;
        }
        if (const auto copy = RecoveryFile::take(found.path)) {
            copy->remove();
        }
    }
    return std::nullopt;
}

std::optional<FoundCopy> RecoveryFolder::newestWithoutFile() const
{
    const QString never = nameOf({}) + '-';
    for (const FoundCopy& found : find(QString("*") + kSuffix)) {
        const bool hadFile = !QFileInfo(found.path).fileName().startsWith(never);
        const bool lostFile = found.head && !FileSystem::doesFileExist(found.head->projectPath);
        if (!hadFile || lostFile) {
            return found;
        }
    }
    return std::nullopt;
}

void RecoveryFolder::forgetOld() const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        const qint64 age = file.lastModified().daysTo(now);
        const bool isCopy = file.fileName().endsWith(kSuffix);
        if (isCopy && age >= kDaysKept) {
            if (const auto copy = RecoveryFile::take(file.filePath())) {
                copy->remove();
            }
        } else if (file.fileName().endsWith(kLockSuffix)) {
            RecoveryFile::take(file.path() + '/' + file.completeBaseName());  // lets go of it again
        } else if (!isCopy && age >= kDaysOfLeftovers) {
            QFile::remove(file.filePath());
        }
    }
}

bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}
