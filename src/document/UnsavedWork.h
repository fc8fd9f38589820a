#pragma once

#include "document/RecoveryFolder.h"

#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>

// Sees to it that the unsaved work of one window has a copy in the user's recovery folder while it
// differs from what is saved, and only then.
class UnsavedWork
{
public:
    struct Source
    {
        // Another number once anything changed that saving would write (Fingerprint.h). Asked
        // every few seconds.
        std::function<std::uint64_t()> fingerprint;
        // The project as it would be saved now; asked after a change.
        std::function<Oid::OidProject()> project;
        // Its pages that stand elsewhere than in the project file. May be left out.
        std::function<PagesMoved()> moved = nullptr;
    };

    explicit UnsavedWork(Source source);
    // As leave.
    ~UnsavedWork();
    UnsavedWork(const UnsavedWork&) = delete;
    UnsavedWork& operator=(const UnsavedWork&) = delete;

    // What is there now is saved in the file at this path; or, without a path, it is the beginning
    // of a new book. The copy goes.
    void isSaved(const std::string& path);

    // To be called every few seconds. Writes a copy if anything has changed; that goes on while the
    // work does. False while copies cannot be written. When it throws std::bad_alloc, the next call
    // tries again.
    bool keep();
    // The same, and waits until it is written.
    bool keepNow();
    // Whether the copy that keep began is not finished yet.
    bool isWriting() const;

    // To be called before something else takes this work's place: what is not saved stays behind as
    // a copy, for whoever opens the project next.
    void leave();
    // What is there now was restored from this copy, which is from now on the copy of this work.
    void continueWith(std::unique_ptr<RecoveryFile> copy, const RecoveryHead& head);

private:
    enum class Outcome { saved, written, failed };

    static Outcome write(const Oid::OidProject& project, const RecoveryHead& head,
                         const QByteArray& savedHash, const QString& file);
    bool finishWriting(bool wait);
    bool startWriting();
    void removeCopy();

    Source source;
    RecoveryFolder folder;
    std::string path;
    QByteArray savedHash;               // empty: nothing is saved
    std::optional<std::uint64_t> seen;  // none: look again, whether anything changed or not
    std::unique_ptr<RecoveryFile> copy;
    QDateTime since;
    std::future<Outcome> writing;
    bool failing = false;
};
