#pragma once

#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>

#include "document/Change.h"
#include "document/Contents.h"
#include "document/History.h"
#include "document/PagePictures.h"
#include "oid/AreaNaming.h"

// Edits of one gesture, such as a drag or the typing of a name, are one step of the history.
enum class Gesture : std::uint64_t { none = 0 };

// The project that the author works on, with the selection and the history of its pages and areas.
// They are changed by edits alone. The script has a history of its own, in its editor.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject* parent = nullptr);
    ~Document() override;

    const Oid::OidProject& project() const { return record; }
    // The record for what is no edit: reading, writing, building and printing it. After reading
    // another project into it comes restart; pages and areas are not changed through it.
    Oid::OidProject& projectRecord() { return record; }
    // The record holds another project: it is as in its file, nothing can be undone, and its first
    // page is the current one.
    void restart();

    // Carries the edit out, as a step of the history or, when the last one was of the same gesture,
    // as a part of it; pages are moved and removed by steps of their own. What is like that already
    // makes no step. False, and nothing is changed, when
    // the document has no such page or area, or a picture file could not be written.
    bool apply(const Edit& edit, Gesture gesture = Gesture::none);
    // Which file it was when a page could not be moved, removed or brought back, or the project not
    // be saved because of it, and why. No file when the last edit, undo, redo or save had no such
    // problem.
    const FileProblem& problem() const { return pictures.problem(); }
    // Several edits as one step, told once. False when one of them could not be carried out; then
    // none is.
    bool applyTogether(const std::vector<Edit>& edits);
    // One that no edit had yet.
    Gesture newGesture();
    // Nothing more belongs to the gesture.
    void endGesture();
    // Whether another edit of the gesture would belong to the same step.
    bool goesOn(Gesture gesture) const
    {
        return gesture != Gesture::none && gesture == openGesture;
    }
    // Takes back all that the gesture did, as if it had never been.
    void takeBack(Gesture gesture);
    // Takes back the last steps, as far as to the one that made the area, as if they had never
    // been. False, and nothing is changed, when they did anything else than to make, change, name
    // and number it, or are not in the history any more.
    bool unmake(AreaId area);

    // The step that is being made of this gesture has a companion in another history.
    void linkStep(Gesture gesture, StepLink link);
    // The links of the steps that undo and redo would carry out now; both end the gesture.
    StepLink linkToUndo();
    StepLink linkToRedo();

    // Carries an edit out that the author did not ask for by itself: it comes and goes with the
    // step before it.
    bool follow(const Edit& edit);
    // Turns the corners of the page's areas to the one orientation that print images use; follows.
    void orientAreas(int page);
    // The number of the area's name. A name without one is entered with 0; follows.
    int numberOf(AreaId area);
    // Gives a number to every area that has none or 0; follows.
    void numberAllAreas();

    bool canUndo() const;
    bool canRedo() const;
    // False when there is nothing to undo (or redo), or a picture file could not be written;
    // nothing is changed then.
    bool undo();
    bool redo();

    // Writes the project to the file, and what it holds is what is saved. False, and nothing is
    // changed, when the file cannot be written or problem says what is wrong with the pictures.
    bool save(const std::string& path);
    // Another window may have moved pages of this book: each page shows its own picture, wherever
    // that is now.
    void followOthers();
    // Another window has saved pages it moved. This document can only be saved elsewhere then.
    bool isOutdated() const { return pictures.isOutdated(); }
    // After a save in another folder or under another number, when the pictures have been taken
    // along: those of moved pages go back where the old project file looks for them. Their old and
    // new paths.
    PagePictures::Renamed wentElsewhere() { return pictures.wentElsewhere(contents.pages()); }
    // Before another project is read, or the window closes: pages that were moved and not saved
    // leave no trace on the disk.
    void leave() { pictures.leave(); }
    // Unsaved work was restored; it has moved pages like that. False when their pictures could not
    // be brought to them; they are shown from where they are then.
    bool restoreMoved(const PagesMoved& moved) { return pictures.restart(contents.pages(), moved); }
    PagesMoved pagesMoved() const { return pictures.moved(contents.pages()); }

    // Pages, areas, product are as in the file from now on. A gesture goes on with another step.
    void setClean();
    bool isClean() const;

    void setProduct(const std::string& name, int id);
    // What stands in the form and will be the product with the next setProduct.
    void typeProduct(const std::string& name, int id);

    // Another number once anything changed that saving would write, the script excepted.
    std::uint64_t revision() const;
    // What saving would write now, the typed product included, the script excepted. Prints nothing.
    Oid::OidProject projectToSave() const;

    int currentPage() const { return selection.page; }
    // May be beyond the areas of the page; then no area is selected. The selected area stays
    // selected when others come, go or change places; when it goes itself, the index stays.
    int selectedIndex() const { return selection.area; }
    AreaId selectedArea() const { return contents.areaAt(selection.page, selection.area); }
    // All that are selected, on the current page, in the order in which they were: the last one is
    // the selectedArea.
    std::vector<AreaId> selectedAreas() const;
    void select(int page, int area);
    // Several, each once; those that are not on the page are left out.
    void selectAreas(int page, const std::vector<AreaId>& areas);

    // None where there is no such page or area.
    PageId pageAt(int page) const { return contents.pageAt(page); }
    AreaId areaAt(int page, int index) const { return contents.areaAt(page, index); }
    // Page -1 when the area is not there.
    Contents::Place placeOf(AreaId area) const { return contents.placeOf(area); }

signals:
    void changed(const Change& change);
    // Undo (or, with forward, redo) has carried out a step that has a companion.
    void linkedStepMoved(StepLink link, bool forward);
    // Before changed is: where each page was among the pages before; -1 for one that has come.
    void pagesArranged(const std::vector<int>& from);

private:
    // While it lives, what is done follows the last step.
    class Following
    {
    public:
        explicit Following(Document& followed);
        ~Following();
        Following(const Following&) = delete;
        Following& operator=(const Following&) = delete;

    private:
        Document& document;
    };

    bool carryOut(const edit::AddArea& add);
    bool carryOut(const edit::RemoveArea& remove);
    bool carryOut(const edit::SetCorners& set);
    bool carryOut(const edit::MoveAreas& move);
    bool carryOut(const edit::RenameArea& rename);
    bool carryOut(const edit::RenameAreas& rename);
    bool carryOut(const edit::SetNumber& set);
    bool carryOut(const edit::ReorderArea& reorder);
    bool carryOut(const edit::SetPaper& set);
    bool carryOut(const edit::AddPage& add);
    bool carryOut(const edit::RemovePage& remove);
    bool carryOut(const edit::MovePage& move);
    bool carryOut(const edit::ReplacePicture& replace);

    // Begins a step, unless this belongs to the one that is being made.
    Recording& beginStep();
    void closeStep();
    void touchOrder(int page);
    // The order of areas has changed: the index goes with the area that was selected before.
    void keepSelected(AreaId area);
    void choose(Selection chosen);
    void touchNumber(const std::string& name);
    void setCorners(AreaId area, std::vector<Oid::PNT> corners);
    void numberNewAreas();
    bool replaceFile(int page, const QByteArray& file);
    void touchPages();
    void notePages(const std::vector<PageId>& before);

    // Both leave all as it was when a picture file could not be written.
    bool carryOver(Step& step, bool forward);
    bool exchangeFiles(Step& step, bool forward);
    bool carryPagesOver(Step& step, bool forward);
    void forgetUnchangedFiles(Recording& recording);
    Oid::POLY* living(AreaId area);
    void noteStep(const Step& step);
    void note(unsigned what, int page, AreaId area = AreaId::none);
    void tell();
    void tellOfLink(StepLink link, bool forward);
    void forgetStep(const Step& step, bool forward);

    Oid::OidProject record;
    Contents contents;
    History history;
    Oid::AreaNaming naming;
    KeptFiles keptFiles;
    PictureFileWork pictureWork;
    PagePictures pictures{record, keptFiles, pictureWork};
    Selection selection;

    std::optional<Recording> open;  // the step that is being made
    Gesture openGesture = Gesture::none;
    Gesture asked = Gesture::none;  // of the edit that is being carried out
    bool together = false;          // with others, which are told and numbered at once
    bool following = false;         // it is no step of the author's
    std::uint64_t gestures = 0;
    std::uint64_t states = 0;  // that the project has been in
    std::uint64_t state = 0;
    std::uint64_t cleanState = 0;
    std::string typedName;
    int typedId = 0;
    std::string cleanProductName;
    int cleanProductId = 0;
    Change news;  // since the last signal
    bool newsPageKnown = false;
};
