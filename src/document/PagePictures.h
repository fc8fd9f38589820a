#pragma once

#include <QLockFile>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "document/KeptFile.h"
#include "document/PagesMoved.h"
#include "document/Step.h"
#include "oid/PictureOrder.h"

// What could not be done to a picture file or what belongs to it, and why.
struct FileProblem
{
    std::string file;   // native path
    std::string cause;  // in the words of the system, or in the author's language
};

// What is done to the files. One operation is done wholly or not at all; false when it failed.
class PictureFileWork
{
public:
    virtual ~PictureFileWork() = default;
    virtual bool move(const std::string& from, const std::string& to);  // never overwrites
    virtual bool copy(const std::string& from, const std::string& to);
    virtual bool write(const std::string& path, const std::string& text);
    virtual bool remove(const std::string& path);
};

// The picture files of a document's pages. They are named by the pages' places, so they are renamed
// when pages are moved or removed. Until that is saved, the project file on the disk speaks of the
// old places: then a file beside the pictures tells which is which (oid/PictureOrder.h), whoever
// opens the project sees the right pictures, and leaving without a save puts all back.
class PagePictures
{
public:
    // All of them outlive it.
    PagePictures(Oid::OidProject& project, KeptFiles& keptFiles, PictureFileWork& work);
    // As leave.
    ~PagePictures();
    PagePictures(const PagePictures&) = delete;
    PagePictures& operator=(const PagePictures&) = delete;

    // The project was just read, and these are its pages. What another program left unfinished
    // beside it is put in order, if that can be done; else the project's movedPictures stay.
    void restart(const std::vector<PageId>& pages);
    // It is unsaved work, of which that is known: brings the pictures to its pages. False when that
    // failed; then its movedPictures tell where they are.
    bool restart(const std::vector<PageId>& pages, const PagesMoved& moved);

    // Looks where the pictures are, since another window may have moved pages: each page shows its
    // own (the project's movedPictures). True when that has changed.
    bool followOthers();
    // Another window has saved pages it moved. Nothing is arranged or saved here then.
    bool isOutdated() const { return outdated; }
    // Of this window's page: its picture is another one now.
    void wasReplaced(PageId page);

    // These are the pages now. Their pictures come to their places, and those of pages that are
    // gone are kept. False when a file is in the way or cannot be renamed, or another window has
    // moved pages or saved that; all is then as it was.
    bool arrange(const std::vector<PageId>& pages);
    // What made the last arrange or beforeSaving fail; no file when it did not.
    const FileProblem& problem() const { return found; }
    void forgetProblem() { found = {}; }
    void noteProblem(const FileProblem& problem) { found = problem; }
    // False, and the problem, for a file that is a link to another folder.
    bool mayWrite(const std::string& file);

    // Whether the project file has the page.
    bool isSaved(PageId page) const;
    // The page is gone, and so is its picture, which is kept elsewhere.
    void drop(PageId page);
    // The page never comes back.
    void forget(PageId page);
    PagesMoved moved(const std::vector<PageId>& pages) const;

    // The project is about to be saved where it was opened. False when its pictures cannot be put
    // in order; it must not be saved then.
    bool beforeSaving(const std::vector<PageId>& pages);
    void couldNotSave();
    // It is saved, so the places are right as they are.
    void saved(const std::vector<PageId>& pages);
    // Whether the project still has the folder and the number with which it was opened or saved.
    bool isInPlace() const { return isAt(project); }
    bool isAt(const Oid::OidProject& place) const { return files == Oid::PictureFiles(place); }

    // Old path and new path.
    using Renamed = std::vector<std::pair<std::string, std::string>>;
    // The project was saved in another folder or under another number, and has taken the pictures
    // along: those of the old place go back to where its file looks for them.
    Renamed wentElsewhere(const std::vector<PageId>& pages);
    // The pictures go back to where the project file looks for them.
    Renamed leave();

private:
    using Places = std::map<int, int>;
    // Pictures of pages that are gone: aside where another one needs the place, or all.
    enum class Removed { outOfTheWay, aside };

    bool arrange(const std::vector<PageId>& pages, Removed removed);

    void number(const std::vector<PageId>& pages);
    bool isUpToDate();
    std::map<int, std::string> foundElsewhere() const;
    int newNumber(int place, const Places& taken) const;
    bool mustMove(const Places& target) const;
    bool bring(const Places& target, const std::map<int, std::string>& copies);
    bool moveTo(const Places& target);
    bool moveAside(const Places& target);
    bool begin();
    bool settle();
    bool write(const Oid::PictureOrder& next);
    bool writePlaces(const Places& places);
    bool move(const std::string& from, const std::string& to);
    bool finish();
    void keepRemoved(const std::vector<PageId>& pages);
    bool isKept(const std::string& file) const;
    void useAsTheyAre(const std::vector<PageId>& pages);
    bool fail(const std::string& file);

    Oid::OidProject& project;
    KeptFiles& keptFiles;
    PictureFileWork& work;
    Oid::PictureFiles files;
    std::string folder;  // of the project; empty while it has no file
    std::unique_ptr<QLockFile> lock;

    Oid::PictureOrder order;
    std::string written;                 // the order as it lies beside the project; empty: none
    std::map<PageId, int> numbers;       // of their pictures in the order
    std::map<PageId, std::string> kept;  // copies of pictures of removed pages
    int savedPages = 0;
    std::map<int, std::string> signs;  // by which pictures are known under any name
    bool outdated = false;
    FileProblem found;
};
