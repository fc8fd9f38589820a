#include "document/PagePictures.h"

#include "base/PlatformFiles.h"
#include "document/Document.h"
#include "oid/OpenProject.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace {

// The first operations work; then the program is stopped, and nothing more reaches the disk. Or one
// operation fails, and the next ones work again.
class Interrupted : public PictureFileWork
{
public:
    enum class By { stop, failure };

    explicit Interrupted(int operations, By what = By::stop) : left(operations), by(what) {}

    bool isOver() const { return left < 0; }
    bool goesOn()
    {
        --left;
        return by == By::stop ? left >= 0 : left != -1;
    }
    bool move(const std::string& from, const std::string& to) override
    {
        return goesOn() && PictureFileWork::move(from, to);
    }
    bool copy(const std::string& from, const std::string& to) override
    {
        return goesOn() && PictureFileWork::copy(from, to);
    }
    bool write(const std::string& path, const std::string& text) override
    {
        return goesOn() && PictureFileWork::write(path, text);
    }
    bool remove(const std::string& path) override
    {
        return goesOn() && PictureFileWork::remove(path);
    }

private:
    int left;
    By by;
};

constexpr int kNever = 1 << 20;

Oid::PICTURE pageWith(const std::string& name)
{
    Oid::POLY area;
    area.name = name;
    area.points = {{1, 1}, {5, 1}, {5, 5}};
    Oid::PICTURE page;
    page.polys.push_back(area);
    return page;
}

std::string pictureOf(const Oid::OidProject& project, int page)
{
    const std::string file = Platform::nativePath(project.pathImageSource(page));
    return Platform::fileExists(file) ? readFile(file) : "none";
}

// Each page's first area with what its picture holds: "cow=cow hen=hen".
std::string shown(const Oid::OidProject& project)
{
    std::string text;
    for (std::size_t i = 0; i < project.pictures.size(); ++i) {
        const auto& areas = project.pictures[i].polys;
        text += (i > 0 ? " " : "") + (areas.empty() ? "-" : areas[0].name) + "=" +
                pictureOf(project, static_cast<int>(i));
    }
    return text;
}

// A book whose pictures hold the names of their pages' areas; the page "none" has no picture.
class Book
{
public:
    explicit Book(const TemporaryFolder& place, int number = 900) : path(place.file("book.oidpro"))
    {
        Oid::OidProject project;
        project.print = CapturedMessages::print;
        project.productId = number;
        for (const char* const name : {"cow", "hen", "none", "pig"}) {
            project.pictures.push_back(pageWith(name));
        }
        project.updateUsedOIDs();
        EXPECT_TRUE(project.save(path));
        for (const int page : {0, 1, 3}) {
            writeFile(Platform::nativePath(project.pathImageSource(page)),
                      project.pictures[static_cast<std::size_t>(page)].polys[0].name);
        }
    }

    // As the command line reads it.
    Oid::OidProject opened() const
    {
        setDefaultPrintf(CapturedMessages::print);
        Oid::OidProject project;
        EXPECT_TRUE(Oid::openProject(project, path));
        setDefaultPrintf(nullptr);
        return project;
    }
    std::string path;
};

// What a window does to pages and pictures, without the rest of a document.
class Desk
{
public:
    Desk(const Book& book, PictureFileWork& fileWork)
        : project(book.opened()), pictures(project, kept, fileWork)
    {
        for (std::size_t i = 0; i < project.pictures.size(); ++i) {
            all.push_back(project.pictures[i]);
            ids.push_back(PageId(i + 1));
        }
        pictures.restart(ids);
    }

    bool arrange(const std::vector<int>& pages)
    {
        std::vector<PageId> wanted;
        for (const int page : pages) {
            wanted.push_back(PageId(page + 1));
        }
        if (!pictures.arrange(wanted)) {
            return false;
        }
        ids = wanted;
        project.pictures.clear();
        for (const int page : pages) {
            project.pictures.push_back(all[static_cast<std::size_t>(page)]);
        }
        return true;
    }
    bool save(const std::function<bool()>& goesOn)
    {
        if (!pictures.beforeSaving(ids) || !goesOn()) {
            return false;
        }
        EXPECT_TRUE(project.save(std::string(project.projectPath)));
        pictures.saved(ids);
        return true;
    }

    KeptFiles kept;
    Oid::OidProject project;
    PagePictures pictures;
    std::vector<Oid::PICTURE> all;
    std::vector<PageId> ids;
};

// An afternoon with a book: pages are moved, removed, brought back, before and after saves.
void workOn(const Book& book, Interrupted& work)
{
    Desk desk(book, work);
    const auto goesOn = [&] { return work.goesOn(); };
    desk.arrange({3, 0, 1, 2}) && desk.arrange({2, 3, 0}) && desk.save(goesOn) &&
        desk.arrange({1, 2, 3, 0}) && desk.arrange({3, 1}) && desk.save(goesOn) &&
        desk.arrange({0, 1, 2, 3});
}

bool everyPageHasItsPicture(const Oid::OidProject& project)
{
    for (std::size_t i = 0; i < project.pictures.size(); ++i) {
        if (pictureOf(project, static_cast<int>(i)) != project.pictures[i].polys[0].name) {
            return false;
        }
    }
    return true;
}

std::string filesOf(const Oid::OidProject& project)
{
    std::string files;
    for (std::size_t i = 0; i < project.pictures.size(); ++i) {
        if (project.pictures[i].polys[0].name != "none") {
            files += "900-bkgnd" + std::to_string(i) + ".jpg ";
        }
    }
    return files + "book.oidpro";
}

// The pictures of pages that were never saved lie behind those of the saved ones, for unsaved work
// that is restored.
std::string withoutUnsaved(std::string listing, const Oid::OidProject& project)
{
    for (std::size_t page = project.pictures.size(); page < 8; ++page) {
        const std::string name = "900-bkgnd" + std::to_string(page) + ".jpg ";
        const std::size_t place = listing.find(name);
        if (place != std::string::npos) {
            listing.erase(place, name.size());
        }
    }
    return listing;
}

class PagePicturesTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    Book book{folder};
};

}  // namespace

// Stopped after each single operation on a file there is: the command line sees the pictures of
// the saved pages, and the next window has them in order, with nothing lost, and no trace of the
// move.
TEST_F(PagePicturesTest, WhereverAProgramIsStoppedTheSavedPagesKeepTheirPictures)
{
    int operations = 0;
    for (bool over = true; over; ++operations) {
        SCOPED_TRACE(operations);
        const TemporaryFolder place;
        const Book stopped(place);
        Interrupted work(operations);
        workOn(stopped, work);
        over = work.isOver();

        const Oid::OidProject seen = stopped.opened();
        ASSERT_TRUE(everyPageHasItsPicture(seen)) << shown(seen);
        PictureFileWork next;
        const Desk desk(stopped, next);
        ASSERT_TRUE(everyPageHasItsPicture(desk.project)) << shown(desk.project);
        ASSERT_TRUE(desk.project.movedPictures.empty());
        ASSERT_EQ(withoutUnsaved(place.listing(), desk.project), filesOf(desk.project));
    }
    EXPECT_GT(operations, 40);
}

// Also while what a stopped program left is put in order, the program may be stopped.
TEST_F(PagePicturesTest, PuttingThemInOrderMayBeStoppedToo)
{
    for (const int first : {6, 14, 21}) {
        bool over = true;
        for (int second = 0; over; ++second) {
            SCOPED_TRACE(std::to_string(first) + " " + std::to_string(second));
            const TemporaryFolder place;
            const Book stopped(place);
            Interrupted work(first);
            workOn(stopped, work);
            Interrupted again(second);
            {
                const Desk desk(stopped, again);
            }
            over = again.isOver();
            const Oid::OidProject seen = stopped.opened();
            ASSERT_TRUE(everyPageHasItsPicture(seen)) << shown(seen);
            PictureFileWork next;
            const Desk desk(stopped, next);
            ASSERT_EQ(withoutUnsaved(place.listing(), desk.project), filesOf(desk.project));
        }
    }
}

TEST_F(PagePicturesTest, AnOperationThatFailsLeavesAllAsItWas)
{
    bool failed = true;
    for (int operations = 0; failed; ++operations) {
        SCOPED_TRACE(operations);
        const TemporaryFolder place;
        const Book here(place);
        PictureFileWork always;
        Interrupted work(operations, Interrupted::By::failure);
        Desk desk(here, work);
        failed = !desk.arrange({3, 0, 2});
        if (failed) {
            EXPECT_EQ(shown(desk.project), "cow=cow hen=hen none=none pig=pig");
            EXPECT_EQ(place.listing(), filesOf(desk.project));
            EXPECT_NE(desk.pictures.problem().file.find("900-bkgnd"), std::string::npos);
            EXPECT_FALSE(desk.pictures.problem().cause.empty());
        }
        EXPECT_TRUE(desk.arrange({3, 0, 2}));
        EXPECT_EQ(shown(desk.project), "pig=pig cow=cow none=none");
    }
}

TEST_F(PagePicturesTest, APictureOfAPageThatIsGoneIsThereUntilTheSave)
{
    PictureFileWork work;
    Desk desk(book, work);
    ASSERT_TRUE(desk.arrange({0, 3}));
    EXPECT_EQ(folder.listing(), "900-bkgnd-moved.lock 900-bkgnd-moved.txt 900-bkgnd-moved1.jpg "
                                "900-bkgnd0.jpg 900-bkgnd1.jpg book.oidpro");
    EXPECT_EQ(readFile(folder.file("900-bkgnd-moved.txt")), "Plinkett picture order 1\n"
                                                            "project book.oidpro\n"
                                                            "picture 0 0\n"
                                                            "picture 1 -\n"
                                                            "picture 2 2\n"
                                                            "picture 3 1\n"
                                                            "end\n");
    ASSERT_TRUE(desk.save([] { return true; }));
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd1.jpg book.oidpro");
    EXPECT_EQ(shown(book.opened()), "cow=cow pig=pig");
}

TEST_F(PagePicturesTest, LeavingWithoutASavePutsAllBack)
{
    PictureFileWork work;
    {
        Desk desk(book, work);
        ASSERT_TRUE(desk.arrange({3, 0}));
    }
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd1.jpg 900-bkgnd3.jpg book.oidpro");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(PagePicturesTest, OthersSeeTheSavedPagesWhileAWindowHasMovedThem)
{
    PictureFileWork work;
    Desk desk(book, work);
    ASSERT_TRUE(desk.arrange({3, 1, 0}));
    EXPECT_EQ(shown(desk.project), "pig=pig hen=hen cow=cow");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(PagePicturesTest, AnotherWindowSeesTheSavedPagesAndMovesNoneMeanwhile)
{
    PictureFileWork work;
    auto first = std::make_unique<Desk>(book, work);
    ASSERT_TRUE(first->arrange({3, 1, 0}));
    Desk second(book, work);
    EXPECT_EQ(shown(second.project), "cow=cow hen=hen none=none pig=pig");
    EXPECT_FALSE(second.arrange({1, 0}));
    EXPECT_EQ(second.pictures.problem().file, folder.file("900-bkgnd-moved.lock"));
    EXPECT_EQ(second.pictures.problem().cause,
              "Another window has moved pages of this book and not saved that yet.");
    EXPECT_FALSE(second.save([] { return true; }));
    first.reset();
    EXPECT_TRUE(second.arrange({1, 0}));
    EXPECT_EQ(shown(second.project), "hen=hen cow=cow");
}

TEST_F(PagePicturesTest, AnotherWindowShowsItsPicturesWhereverTheyAreMeanwhile)
{
    PictureFileWork work;
    Desk second(book, work);
    {
        Desk first(book, work);
        ASSERT_TRUE(first.arrange({3, 1, 0}));
        EXPECT_TRUE(second.pictures.followOthers());
        EXPECT_EQ(shown(second.project), "cow=cow hen=hen none=none pig=pig");
        EXPECT_FALSE(second.pictures.isOutdated());
        EXPECT_FALSE(second.pictures.followOthers());
    }
    EXPECT_TRUE(second.pictures.followOthers());
    EXPECT_EQ(shown(second.project), "cow=cow hen=hen none=none pig=pig");
    EXPECT_TRUE(second.save([] { return true; }));
}

TEST_F(PagePicturesTest, WhatAnotherWindowHasMovedAndSavedIsNotSavedOver)
{
    PictureFileWork work;
    Desk second(book, work);
    Desk first(book, work);
    ASSERT_TRUE(first.arrange({3, 1, 0}));
    ASSERT_TRUE(first.save([] { return true; }));
    const std::string files = folder.listing();
    for (const auto& change : {std::vector<int>{1, 0}, std::vector<int>{0, 1, 2, 3}}) {
        EXPECT_FALSE(second.arrange(change));
        EXPECT_EQ(second.pictures.problem().file, folder.file("book.oidpro"));
        EXPECT_EQ(second.pictures.problem().cause,
                  "Another window has moved pages of this book and saved that. Open the book "
                  "again.");
    }
    EXPECT_FALSE(second.save([] { return true; }));
    EXPECT_TRUE(second.pictures.isOutdated());
    EXPECT_EQ(shown(second.project), "cow=cow hen=hen none=none pig=pig");
    EXPECT_EQ(shown(book.opened()), "pig=pig hen=hen cow=cow");
    EXPECT_EQ(folder.listing(), files);
}

TEST_F(PagePicturesTest, APageThatAnotherWindowRemovedAndSavedHasNoPictureButTheOthersHave)
{
    PictureFileWork work;
    Desk second(book, work);
    Desk first(book, work);
    ASSERT_TRUE(first.arrange({1, 2, 3}));
    ASSERT_TRUE(first.save([] { return true; }));
    EXPECT_TRUE(second.pictures.followOthers());
    EXPECT_EQ(shown(second.project), "cow=none hen=hen none=none pig=pig");
    EXPECT_TRUE(second.pictures.isOutdated());
}

// With another program, or in this one.
TEST_F(PagePicturesTest, PicturesThatWereEditedAreNotMovedOnes)
{
    PictureFileWork work;
    Desk desk(book, work);
    writeFile(folder.file("900-bkgnd0.jpg"), "hen");
    writeFile(folder.file("900-bkgnd1.jpg"), "red hen");
    writeFile(folder.file("900-bkgnd3.jpg"), "red pig");
    desk.pictures.wasReplaced(desk.ids[1]);
    EXPECT_FALSE(desk.pictures.followOthers());
    EXPECT_FALSE(desk.pictures.isOutdated());
    EXPECT_TRUE(desk.save([] { return true; }));
}

TEST_F(PagePicturesTest, PagesThatLookAlikeKeepTheirPicturesWhenTheSaveIsStopped)
{
    const TemporaryFolder place;
    Book alike(place);
    {
        Oid::OidProject project = alike.opened();
        for (Oid::PICTURE& page : project.pictures) {
            page.polys[0].name = "same";
        }
        ASSERT_TRUE(project.save(std::string(alike.path)));
    }
    Interrupted work(kNever);
    {
        Desk desk(alike, work);
        ASSERT_TRUE(desk.arrange({1, 0, 2, 3}));
        ASSERT_TRUE(desk.pictures.beforeSaving(desk.ids));
        ASSERT_TRUE(desk.project.save(std::string(alike.path)));
        work = Interrupted(0);
    }
    EXPECT_EQ(shown(alike.opened()), "same=hen same=cow same=none same=pig");
}

TEST_F(PagePicturesTest, ASaveThatFailedMakesNothingFinal)
{
    Interrupted work(kNever);
    {
        Desk desk(book, work);
        ASSERT_TRUE(desk.arrange({1, 0, 2, 3}));
        ASSERT_TRUE(desk.pictures.beforeSaving(desk.ids));
        desk.pictures.couldNotSave();
        ASSERT_TRUE(desk.project.save(folder.file("other.oidpro")));
        work = Interrupted(0);
    }
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(PagePicturesTest, AFileInTheWayIsNotOverwritten)
{
    PictureFileWork work;
    Desk desk(book, work);
    ASSERT_TRUE(desk.arrange({1, 3}));
    writeFile(folder.file("900-bkgnd3.jpg"), "stranger");
    EXPECT_FALSE(desk.arrange({0, 1, 2, 3}));
    EXPECT_EQ(desk.pictures.problem().file, folder.file("900-bkgnd3.jpg"));
    EXPECT_EQ(desk.pictures.problem().cause, "File exists");
    EXPECT_EQ(readFile(folder.file("900-bkgnd3.jpg")), "stranger");
    EXPECT_EQ(shown(desk.project), "hen=hen pig=pig");
    Platform::removeFile(folder.file("900-bkgnd3.jpg"));
    EXPECT_TRUE(desk.arrange({0, 1, 2, 3}));
    EXPECT_EQ(shown(desk.project), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(PagePicturesTest, ABookWithAnotherNumberHasToBeSavedFirst)
{
    PictureFileWork work;
    Desk desk(book, work);
    desk.project.productId = 901;
    EXPECT_FALSE(desk.arrange({1, 0, 2, 3}));
    EXPECT_EQ(desk.pictures.problem().cause,
              "The book has another number now. Save it before that.");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(PagePicturesTest, ADamagedOrderIsToldAndLeftAlone)
{
    writeFile(folder.file("900-bkgnd-moved.txt"), "Plinkett picture order 1\npicture 0 1\n");
    const CapturedMessages messages;
    const Oid::OidProject seen = book.opened();
    EXPECT_EQ(messages.text(),
              "Warning: 900-bkgnd-moved.txt: "
              "The file that tells where moved pictures are is damaged. The pictures are "
              "shown as they are named.\n");
    EXPECT_EQ(shown(seen), "cow=cow hen=hen none=none pig=pig");
    PictureFileWork work;
    Desk desk(book, work);
    EXPECT_FALSE(desk.arrange({1, 0}));
    EXPECT_EQ(desk.pictures.problem().file, folder.file("900-bkgnd-moved.txt"));
    EXPECT_EQ(desk.pictures.problem().cause,
              "It is damaged. Put the pictures in order, then remove it.");
}

TEST_F(PagePicturesTest, RestoredWorkHasItsPicturesInItsOrder)
{
    PictureFileWork work;
    PagesMoved moved;
    {
        Desk desk(book, work);
        ASSERT_TRUE(desk.arrange({3, 1, 0}));
        moved = desk.pictures.moved(desk.ids);
    }
    EXPECT_EQ(moved.saved, 4);
    EXPECT_EQ(moved.pictures, (std::vector<int>{3, 1, 0}));
    Desk desk(book, work);
    desk.project.pictures = {desk.all[3], desk.all[1], desk.all[0]};
    desk.ids = {PageId(11), PageId(12), PageId(13)};
    ASSERT_TRUE(desk.pictures.restart(desk.ids, moved));
    EXPECT_EQ(shown(desk.project), "pig=pig hen=hen cow=cow");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

// The document's edits on top of it.
class MovedPages : public PagePicturesTest
{
protected:
    MovedPages()
    {
        document.projectRecord() = book.opened();
        document.projectRecord().print = CapturedMessages::print;
        document.restart();
    }
    std::string now() const { return shown(document.project()); }

    Document document;
};

TEST_F(MovedPages, ARemovedPageTakesItsAreasAndItsPictureAlongAndComesBackWithThem)
{
    document.select(3, 0);
    ASSERT_TRUE(document.apply(edit::RemovePage{1}));
    EXPECT_EQ(now(), "cow=cow none=none pig=pig");
    EXPECT_EQ(document.currentPage(), 2);
    EXPECT_EQ(document.selectedIndex(), 0);
    ASSERT_TRUE(document.undo());
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    EXPECT_EQ(document.currentPage(), 3);
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd1.jpg 900-bkgnd3.jpg book.oidpro");
    ASSERT_TRUE(document.redo());
    EXPECT_EQ(now(), "cow=cow none=none pig=pig");
}

TEST_F(MovedPages, AnAreaOfARemovedPageKeepsItsNameForTheDocument)
{
    const AreaId hen = document.areaAt(1, 0);
    document.apply(edit::RemovePage{1});
    EXPECT_EQ(document.placeOf(hen).page, -1);
    EXPECT_FALSE(document.apply(edit::RemoveArea{hen}));
    document.undo();
    EXPECT_EQ(document.areaAt(1, 0), hen);
}

TEST_F(MovedPages, WhenTheShownPageGoesTheOneInItsPlaceIsShown)
{
    document.select(1, 0);
    document.apply(edit::RemovePage{1});
    EXPECT_EQ(document.currentPage(), 1);
    EXPECT_EQ(document.selectedIndex(), -1);
    document.select(2, 0);
    document.apply(edit::RemovePage{2});
    EXPECT_EQ(document.currentPage(), 1);
}

TEST_F(MovedPages, AllPagesCanGoAndComeBack)
{
    for (int left = 4; left > 0; --left) {
        ASSERT_TRUE(document.apply(edit::RemovePage{0}));
    }
    EXPECT_EQ(now(), "");
    for (int back = 0; back < 4; ++back) {
        ASSERT_TRUE(document.undo());
    }
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(MovedPages, APageMovesWithItsPaperAndTheAuthorStaysOnHis)
{
    document.apply(edit::SetPaper{3, 100, 200, 300});
    document.select(0, 0);
    ASSERT_TRUE(document.apply(edit::MovePage{3, 0}));
    EXPECT_EQ(now(), "pig=pig cow=cow hen=hen none=none");
    EXPECT_EQ(document.project().pictures[0].dpi, 300);
    EXPECT_EQ(document.currentPage(), 1);
    EXPECT_EQ(document.selectedIndex(), 0);
    ASSERT_TRUE(document.undo());
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    EXPECT_EQ(document.currentPage(), 0);
    ASSERT_TRUE(document.redo());
    EXPECT_EQ(now(), "pig=pig cow=cow hen=hen none=none");
}

TEST_F(MovedPages, APageThatIsNotThereCannotBeMovedOrRemoved)
{
    EXPECT_FALSE(document.apply(edit::RemovePage{4}));
    EXPECT_FALSE(document.apply(edit::RemovePage{-1}));
    EXPECT_FALSE(document.apply(edit::MovePage{0, 4}));
    EXPECT_FALSE(document.apply(edit::MovePage{4, 0}));
    EXPECT_TRUE(document.apply(edit::MovePage{1, 1}));
    EXPECT_FALSE(document.canUndo());
    EXPECT_TRUE(document.isClean());
}

TEST_F(MovedPages, ARemovedPageComesBackWithItsPictureAlsoAfterASave)
{
    document.apply(edit::RemovePage{0});
    ASSERT_TRUE(document.save(book.path));
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd2.jpg book.oidpro");
    ASSERT_TRUE(document.undo());
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    EXPECT_EQ(shown(book.opened()), "hen=hen none=none pig=pig");
    ASSERT_TRUE(document.save(book.path));
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
    ASSERT_TRUE(document.redo());
    EXPECT_EQ(now(), "hen=hen none=none pig=pig");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
}

TEST_F(MovedPages, ANewPictureOnAMovedPageIsUndoneWhereItIs)
{
    document.apply(edit::MovePage{3, 0});
    document.apply(edit::ReplacePicture{0, "sow"});
    EXPECT_EQ(now(), "pig=sow cow=cow hen=hen none=none");
    document.undo();
    document.undo();
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    document.redo();
    document.redo();
    EXPECT_EQ(now(), "pig=sow cow=cow hen=hen none=none");
}

// A picture that comes to another page by an undo is none that another window has moved there.
TEST_F(MovedPages, APictureThatWentToAnotherPageTogetherWithANewPageIsUndone)
{
    const Gesture gesture = document.newGesture();
    document.apply(edit::ReplacePicture{2, "cow"}, gesture);
    document.apply(edit::ReplacePicture{0, "sow"}, gesture);
    document.apply(edit::AddPage{pageWith("owl"), {}}, gesture);
    EXPECT_EQ(now(), "cow=sow hen=hen none=cow pig=pig owl=none");
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(document.problem().cause, "");
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    EXPECT_TRUE(document.redo());
    EXPECT_EQ(now(), "cow=sow hen=hen none=cow pig=pig owl=none");
}

TEST_F(MovedPages, ANewPageBehindRemovedOnesTakesNoPictureOfTheSavedProject)
{
    document.apply(edit::RemovePage{3});
    ASSERT_TRUE(document.apply(edit::AddPage{pageWith("owl"), "owl"}));
    EXPECT_EQ(now(), "cow=cow hen=hen none=none owl=owl");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
    document.apply(edit::MovePage{3, 0});
    EXPECT_EQ(now(), "owl=owl cow=cow hen=hen none=none");
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
    document.undo();
    document.undo();
    document.undo();
    EXPECT_EQ(now(), "cow=cow hen=hen none=none pig=pig");
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(document.redo());
    }
    EXPECT_EQ(now(), "owl=owl cow=cow hen=hen none=none");
    ASSERT_TRUE(document.save(book.path));
    EXPECT_EQ(shown(book.opened()), "owl=owl cow=cow hen=hen none=none");
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd1.jpg 900-bkgnd2.jpg book.oidpro");
}

TEST_F(MovedPages, ASaveInAnotherFolderLeavesTheOldBookWithItsPictures)
{
    const TemporaryFolder other;
    document.apply(edit::MovePage{3, 0});
    document.apply(edit::RemovePage{2});
    ASSERT_TRUE(document.save(other.file("book.oidpro")));
    const auto renamed = document.wentElsewhere();
    EXPECT_EQ(renamed.size(), 3U);
    EXPECT_EQ(shown(book.opened()), "cow=cow hen=hen none=none pig=pig");
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg 900-bkgnd1.jpg 900-bkgnd3.jpg book.oidpro");
    for (const int page : {0, 1}) {
        writeFile(Platform::nativePath(document.project().pathImageSource(page)),
                  document.project().pictures[static_cast<std::size_t>(page)].polys[0].name);
    }
    ASSERT_TRUE(document.undo());
    EXPECT_EQ(now(), "pig=pig cow=cow hen=hen none=none");
    document.leave();
}

TEST_F(MovedPages, TellsWhereThePagesWereBefore)
{
    std::vector<int> from;
    unsigned what = 0;
    QObject::connect(&document, &Document::pagesArranged,
                     [&](const std::vector<int>& pages) { from = pages; });
    QObject::connect(&document, &Document::changed,
                     [&](const Change& change) { what = change.what; });
    document.apply(edit::RemovePage{1});
    EXPECT_EQ(from, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(what & (Change::pages | Change::pictureFile | Change::areas | Change::selection),
              unsigned(Change::pages | Change::pictureFile | Change::areas | Change::selection));
    document.undo();
    EXPECT_EQ(from, (std::vector<int>{0, -1, 1, 2}));
    document.apply(edit::MovePage{0, 3});
    EXPECT_EQ(from, (std::vector<int>{1, 2, 3, 0}));
}

TEST_F(PagePicturesTest, AnOrderThatNamesAProjectElsewhereIsDamaged)
{
    EXPECT_TRUE(Oid::parsePictureOrder("Plinkett picture order 1\nproject book.oidpro\nend\n"));
    for (const char* project : {"../secret", "/etc/passwd", "..\\secret"}) {
        EXPECT_FALSE(Oid::parsePictureOrder(std::string("Plinkett picture order 1\nproject ") +
                                            project + "\nend\n"))
            << project;
    }
}

TEST_F(PagePicturesTest, NothingIsWrittenThroughALinkInThePlaceOfTheOrder)
{
    PictureFileWork work;
    Desk desk(book, work);
    std::filesystem::create_symlink("../no-such-order", folder.file("900-bkgnd-moved.txt"));
    EXPECT_FALSE(desk.arrange({3, 0, 2}));
    EXPECT_EQ(desk.pictures.problem().file, folder.file("900-bkgnd-moved.txt"));
    EXPECT_EQ(desk.pictures.problem().cause,
              "It is a link to a file outside of the project's folder.");
}
