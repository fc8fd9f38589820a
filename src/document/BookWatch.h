#pragma once

#include <QObject>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <new>
#include <optional>

#include "oid/OidProject.h"

// What one needs to look into the book that the author works on.
struct BookSource
{
    // Another number once anything but the script has changed.
    std::function<std::uint64_t()> revision;
    // The project as it is now, the script excepted; asked when there is another revision.
    std::function<Oid::OidProject()> project;
    std::function<QString()> script;
};

// The book as another thread gets it.
struct BookState
{
    std::optional<Oid::OidProject> project;  // none: as the last time
    QString script;
};

// Looks for something in the book while the author works: on another thread, in a copy, as soon as
// there was no change for a moment. A search that a change has made needless is not told of.
template <class Findings>
class BookWatch
{
public:
    // On the other thread; one call at a time. Ends early once it is cancelled.
    using Look = std::function<Findings(BookState&, const std::atomic<bool>& isCancelled)>;
    // On the thread of the watch.
    using Found = std::function<void(Findings)>;

    BookWatch(BookSource bookSource, Look howToLook, Found whatToDo)
        : source(std::move(bookSource)), look(std::move(howToLook)), found(std::move(whatToDo))
    {
        pause.setSingleShot(true);
        pause.setInterval(kPause);
        QObject::connect(&pause, &QTimer::timeout, &pause, [this] { start(); });
    }

    // Waits for the other thread, which gives up soon.
    ~BookWatch()
    {
        isCancelled = true;
        if (search.valid()) {
            search.wait();
        }
    }

    BookWatch(const BookWatch&) = delete;
    BookWatch& operator=(const BookWatch&) = delete;

    // Something has changed. Costs next to nothing, so that it can be said with each key.
    void lookSoon()
    {
        upToDate = false;
        isCancelled = true;
        pause.start();
    }

    // What was found last is about what is there now.
    bool isUpToDate() const { return upToDate && !search.valid(); }

private:
    // After the last key; with the search it has to stay below the 300 ms in which the list is
    // there.
    static constexpr int kPause = 100;  // ms

    // A search that has just been cancelled is waited for without keeping anyone.
    void start()
    {
        isWaited = search.valid();
        if (isWaited) {
            return;
        }
        upToDate = true;
        isCancelled = false;
        auto state = std::make_shared<BookState>();
        if (seen != source.revision()) {
            seen = source.revision();
            state->project = source.project();
        }
        state->script = source.script();
        search = std::async(std::launch::async, [this, state] {
            Findings findings;
            try {
                findings = look(*state, isCancelled);
            } catch (const std::bad_alloc&) {
                // the next search may have room again
            }
            QMetaObject::invokeMethod(
                &pause, [this] { finish(); }, Qt::QueuedConnection);
            return findings;
        });
    }

    void finish()
    {
        Findings findings = search.get();
        if (isWaited) {
            start();
        } else if (upToDate) {
            found(std::move(findings));
        }
    }

    BookSource source;
    Look look;
    Found found;
    QTimer pause;
    bool upToDate = false;              // nothing has changed since the search began
    bool isWaited = false;              // for the end of a search that nobody wants any more
    std::optional<std::uint64_t> seen;  // the revision that the other thread has
    std::atomic<bool> isCancelled{false};
    std::future<Findings> search;
};
