#pragma once

#include <QObject>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <optional>
#include <string>
#include <unordered_set>

#include "app/Problem.h"
#include "hints/FindHints.h"
#include "oid/OidProject.h"

// Of the areas that the script knows.
using ScriptNames = std::unordered_set<std::string>;

// The problems of a book, whose pages are looked at once and whose script again and again. Can be
// used on any thread, by one at a time.
class ProblemSearch
{
public:
    // Another state of all but the script.
    void setProject(Oid::OidProject project);
    // What compiler, comparison and hints have to say with this script. Prints nothing. When it was
    // cancelled, some of that. The names are told as soon as the compiler has them.
    Problems find(const std::string& script, const hints::Cancelled& isCancelled = {},
                  const std::function<void(ScriptNames names)>& tellNames = {});

private:
    Oid::OidProject book;
    hints::PagePictures pictures;
    std::optional<std::vector<hints::Finding>> hintsOnPages;  // of the project
};

// Looks for problems while the author works: on another thread, in a copy, as soon as there was no
// change for a moment.
class ProblemFinder : public QObject
{
    Q_OBJECT

public:
    struct Source
    {
        // Another number once anything but the script has changed.
        std::function<std::uint64_t()> revision;
        // The project as it is now, the script excepted; asked when there is another revision.
        std::function<Oid::OidProject()> project;
        std::function<QString()> script;
    };

    explicit ProblemFinder(Source source, QObject* parent = nullptr);
    // Waits for the other thread, which gives up soon.
    ~ProblemFinder() override;

    // Something has changed. Costs next to nothing, so that it can be said with each key.
    void lookSoon();
    // What was found last is about what is there now.
    bool isUpToDate() const { return upToDate && !search.valid(); }

signals:
    void found(const Problems& problems);
    // Other names than before. The problems are found a little later.
    void scriptNamesFound(const ScriptNames& names);

private:
    // What the other thread needs to know.
    struct Request
    {
        std::optional<Oid::OidProject> project;  // none: as before
        QString script;
    };

    void start();
    void finish();
    Problems look(Request& request);
    void takeNames(const ScriptNames& names);

    Source source;
    QTimer pause;
    ScriptNames known;
    bool upToDate = false;              // nothing has changed since the search began
    bool isWaited = false;              // for the end of a search that nobody wants any more
    std::optional<std::uint64_t> seen;  // the revision that the book has
    std::atomic<bool> isCancelled{false};
    std::future<Problems> search;
    // Those of the other thread, while there is one.
    ProblemSearch book;
};
