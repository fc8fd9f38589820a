#pragma once

#include "oid/OidProject.h"

#include <QByteArray>

#include <optional>
#include <string>

// The project file as this window has last read or written it. Another window or program that
// writes it is noticed by what it then holds, whatever its time says.
class SavedFile
{
public:
    // The file is about to be read: what is written meanwhile is noticed, too.
    void isRead(const std::string& path);
    // The project has just been saved in its file.
    void isWritten(const Oid::OidProject& project);
    // The file belongs to the work, but what it holds was never seen here.
    void isUnseen(const std::string& path);

    const std::string& path() const { return file; }
    // Whether it holds now what this window neither read nor wrote. False when it is not there or
    // cannot be read.
    bool wasChanged() const;
    // Whether saving the project would overwrite that with anything else.
    bool wouldBeLost(const Oid::OidProject& toSave) const;

private:
    std::string file;
    std::optional<QByteArray> seen;  // hash of what it held; none: not known
};
