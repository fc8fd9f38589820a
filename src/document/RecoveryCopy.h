#pragma once

#include "document/PagesMoved.h"
#include "oid/OidProject.h"

#include <QByteArray>
#include <QDateTime>

#include <optional>
#include <string>

// A copy of work that its project file does not hold yet. Its text is that of a project file, whose
// first comment lines are the head below, so a copy can be opened like any project. Only its script
// stands there as it was typed, since saving changes "%%".
struct RecoveryHead
{
    std::string projectPath;  // where the work belongs; empty when it never had a file
    std::string productName;  // to the letter: the line PRODUCT does not bring back every name
    int pages = 0;            // a project file that has none is read as one that has one
    QDateTime since;          // when the work began that is not saved, in UTC
    PagesMoved moved;         // where pages stand elsewhere than in the project file
    QByteArray movedFrom;     // as savedHash, of that file; only with moved
    QByteArray savedHash;     // of the file that saving this work would write
};

// Of the file that saving the project would write. Projects that save alike have the same.
QByteArray hashOfSaved(const Oid::OidProject& project);
// Of such a file as it is there.
QByteArray hashOfSavedFile(const QByteArray& bytes);

// The whole copy; empty when saving would write just the file of this hash and no page has been
// moved. Of the head only path, time and moved pages are taken; the rest is the project's.
QByteArray recoveryCopy(const Oid::OidProject& project, const RecoveryHead& head,
                        const QByteArray& savedHash = {});

// The head of a copy; none when any byte of the copy is not what was written.
std::optional<RecoveryHead> readRecoveryHead(const QByteArray& copy);
