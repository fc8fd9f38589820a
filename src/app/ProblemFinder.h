#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

#include "app/Problem.h"
#include "document/BookWatch.h"
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

// Looks for problems while the author works.
class ProblemFinder : public QObject
{
    Q_OBJECT

public:
    explicit ProblemFinder(BookSource source, QObject* parent = nullptr);

    // Something has changed. Costs next to nothing, so that it can be said with each key.
    void lookSoon() { watch.lookSoon(); }
    // What was found last is about what is there now.
    bool isUpToDate() const { return watch.isUpToDate(); }

signals:
    void found(const Problems& problems);
    // Other names than before. The problems are found a little later.
    void scriptNamesFound(const ScriptNames& names);

private:
    Problems look(BookState& state, const std::atomic<bool>& isCancelled);
    void takeNames(const ScriptNames& names);

    ScriptNames known;
    ProblemSearch book;  // of the other thread
    BookWatch<Problems> watch;
};
