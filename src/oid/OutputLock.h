#pragma once

#include <functional>
#include <memory>
#include <string>

class QLockFile;
namespace Oid {
class OidProject;
}

// The right of one program to make certain files, until this ends: two that make the game of one
// book at the same time would mix its parts. A lock file beside those files says who has it; that
// of a program that has crashed is taken over.
class OutputLock
{
public:
    // "900-build.lock" beside the project: of one kind of files.
    OutputLock(const Oid::OidProject& project, const std::string& kind);
    // "book.pdf.lock": of one file. Nothing for what is no file, such as a pipe.
    explicit OutputLock(const std::string& output);
    ~OutputLock();
    OutputLock(const OutputLock&) = delete;
    OutputLock& operator=(const OutputLock&) = delete;

    // Waits for another program that has it, but not longer than patience, and says so, a line at a
    // time. False when that still has it then. True also where no lock can be made, as in a folder
    // that cannot be written: who writes there says that better.
    bool take(const std::function<void(const char* line)>& say);
    void release();

    // In ms. 0, as in the beginning, for a program that must not stand still.
    static int patience;

private:
    bool tryFor(int milliseconds);
    std::string owner() const;

    std::string path;
    std::unique_ptr<QLockFile> lock;
};
