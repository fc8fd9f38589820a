#pragma once

#include "document/RecoveryCopy.h"

#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

// A copy in the hands of one window. No other window, of this process or another, finds it
// meanwhile. That ends with this object, and with the process, however it ends.
class RecoveryFile
{
public:
    // A copy for the work on this project (empty: work that never had a file), nothing written yet.
    // Null when the folder cannot be written.
    static std::unique_ptr<RecoveryFile> create(const QString& folder,
                                                const std::string& projectPath);
    // A copy that was found. Null when it is gone or another window has it.
    static std::unique_ptr<RecoveryFile> take(const QString& path);

    const QString& path() const { return file; }
    // None: the copy is damaged.
    std::optional<RecoveryHead> head() const;
    void remove();

private:
    explicit RecoveryFile(const QString& path);

    QString file;
    QLockFile lock;
};

// A copy that nobody works on.
struct FoundCopy
{
    QString path;
    QDateTime changed;                 // when it was written, in UTC
    std::optional<RecoveryHead> head;  // none: the copy is damaged
};

// The folder with the copies of one user. Copies are named by the project that they belong to and
// by chance, so that neither two projects nor two windows ever share one.
class RecoveryFolder
{
public:
    // In the user's data folder.
    RecoveryFolder();

    const QString& path() const { return folder; }

    // The newest copy of work on this project that is not what its file holds. Copies that are go.
    std::optional<FoundCopy> newestFor(const std::string& projectPath) const;
    // The newest copy of work that never had a file, or whose file is there no more.
    std::optional<FoundCopy> newestWithoutFile() const;

    // Removes copies that were written 90 days ago or earlier, and what a process left when it was
    // killed: half-written copies, and locks.
    void forgetOld() const;

private:
    std::vector<FoundCopy> find(const QString& pattern) const;  // the newest first

    QString folder;
};

// Writes a file whole or not at all; its folder is made when it is not there.
bool writeWhole(const QString& path, const QByteArray& bytes);
