#include "document/UnsavedWork.h"

#include <chrono>
#include <new>
#include <utility>

UnsavedWork::UnsavedWork(Source workSource) : source(std::move(workSource))
{
    folder.forgetOld();
}

UnsavedWork::~UnsavedWork()
{
    leave();
}

void UnsavedWork::isSaved(const std::string& savedPath)
{
    finishWriting(true);
    failing = false;
    removeCopy();
    path = savedPath;
    savedHash = hashOfSaved(source.project());
    seen = source.fingerprint();
}

bool UnsavedWork::keep()
{
    if (!finishWriting(false)) {
        return !failing;  // the disk is slow; next time
    }
    const std::uint64_t now = source.fingerprint();
    if (seen == now) {
        return !failing;
    }
    seen.reset();  // so that it is tried again also when this throws
    if (startWriting()) {
        seen = now;
    }
    return !failing;
}

bool UnsavedWork::isWriting() const
{
    return writing.valid() &&
           writing.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

bool UnsavedWork::keepNow()
{
    finishWriting(true);
    keep();
    finishWriting(true);
    return !failing;
}

void UnsavedWork::leave()
{
    keepNow();
    copy = nullptr;
}

void UnsavedWork::continueWith(std::unique_ptr<RecoveryFile> restored, const RecoveryHead& head)
{
    if (path != head.projectPath) {
        savedHash.clear();
    }
    path = head.projectPath;
    since = head.since;
    copy = std::move(restored);
    seen.reset();
}

// False when the last copy is still being written.
bool UnsavedWork::finishWriting(bool wait)
{
    if (!writing.valid()) {
        return true;
    }
    if (!wait && isWriting()) {
        return false;
    }
    const Outcome outcome = writing.get();
    failing = outcome == Outcome::failed;
    if (outcome == Outcome::saved) {
        removeCopy();
    } else if (failing) {
        seen.reset();
    }
    return true;
}

// On another thread: of a large project this takes long enough to be felt while typing, and so do
// slow disks.
bool UnsavedWork::startWriting()
{
    if (copy == nullptr) {
        copy = RecoveryFile::create(folder.path(), path);
        since = QDateTime::currentDateTimeUtc();
    }
    if (copy == nullptr) {
        failing = true;
        return false;
    }
    RecoveryHead head;
    head.projectPath = path;
    head.since = since;
    if (source.moved) {
        head.moved = source.moved();
    }
    writing = std::async(std::launch::async,
                         [head, project = source.project(), hash = savedHash, file = copy->path()] {
                             return write(project, head, hash, file);
                         });
    return true;
}

UnsavedWork::Outcome UnsavedWork::write(const Oid::OidProject& project, const RecoveryHead& head,
                                        const QByteArray& savedHash, const QString& file)
try {
    const QByteArray bytes = recoveryCopy(project, head, savedHash);
    if (bytes.isEmpty()) {
        return Outcome::saved;
    }
    return writeWhole(file, bytes) ? Outcome::written : Outcome::failed;
} catch (const std::bad_alloc&) {
    return Outcome::failed;
}

void UnsavedWork::removeCopy()
{
    if (copy != nullptr) {
        copy->remove();
        copy = nullptr;
    }
}
