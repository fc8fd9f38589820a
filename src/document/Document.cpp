#include "document/Document.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <set>
#include <utility>

#include "base/PrintFunction.h"
#include "oid/OidTable.h"

// The history: which step is being made, going back and forth, and what is told of it. How each
// edit is carried out stands in DocumentEdits.cpp.

constexpr int kNoPage = -2;  // for what belongs to no page

Document::Document(QObject* parent)
    : QObject(parent),
      contents(record),
      history([this](const Step& step, bool forward) { forgetStep(step, forward); }),
      naming(record)
{
    typeProduct(record.productName, record.productId);
    setClean();
}

Document::~Document() = default;

void Document::restart()
{
    naming.finish();
    open.reset();  // its pages and areas are those of the project that was here before
    openGesture = Gesture::none;
    history.clear();
    contents.restart();
    pictures.restart(contents.pages());
    // Intended: the index of the area stays, as it does on another page.
    selection = {0, selection.area, {}};
    state = ++states;
    typeProduct(record.productName, record.productId);
    setClean();
    note(Change::everything, -1);
    tell();
}

bool Document::apply(const Edit& edit, Gesture gesture)
{
    const bool movesPages = std::holds_alternative<edit::RemovePage>(edit) ||
                            std::holds_alternative<edit::MovePage>(edit);
    if (movesPages || gesture == Gesture::none || gesture != openGesture) {
        endGesture();
    }
    pictures.forgetProblem();
    asked = movesPages ? Gesture::none : gesture;
    const bool done = std::visit([this](const auto& one) { return carryOut(one); }, edit);
    if (movesPages) {
        endGesture();  // what a step does to files is by their pages' places
    }
    tell();
    return done;
}

bool Document::applyTogether(const std::vector<Edit>& edits)
{
    endGesture();
    asked = newGesture();
    together = true;
    const bool done = std::all_of(edits.begin(), edits.end(), [this](const Edit& edit) {
        return std::visit([this](const auto& one) { return carryOut(one); }, edit);
    });
    together = false;
    const bool anyNew = std::any_of(edits.begin(), edits.end(), [](const Edit& edit) {
        return std::holds_alternative<edit::AddArea>(edit);
    });
    if (done && anyNew) {
        numberNewAreas();  // at once: it looks at all areas
    }
    if (done) {
        endGesture();
    } else {
        takeBack(asked);
    }
    tell();
    return done;
}

Gesture Document::newGesture()
{
    return Gesture(++gestures);
}

void Document::endGesture()
{
    naming.finish();
    closeStep();
    openGesture = Gesture::none;
}

void Document::takeBack(Gesture gesture)
{
    if (gesture == Gesture::none || gesture != openGesture) {
        return;
    }
    naming.finish();
    openGesture = Gesture::none;
    if (open) {
        Step step = contents.stepOf(*open);
        open.reset();
        if (carryOver(step, false)) {
            forgetStep(step, true);
        }
        tell();
    }
}

namespace {

bool makes(const Step& step, AreaId area)
{
    return std::any_of(step.orders.begin(), step.orders.end(), [&](const AreaOrderChange& order) {
        return order.areas.before.empty() && order.areas.after == std::vector<AreaId>{area};
    });
}

// Whether the step does nothing but make the area, change its corners, name it, or change the
// number of one of its names. These are those of its later steps; the step may bring more.
bool concernsOnly(const Step& step, AreaId area, std::set<std::string>& areaNames)
{
    const bool isMaking = makes(step, area);
    for (const auto& change : step.names) {
        areaNames.insert({change.before, change.after});
    }
    return step.pages.empty() && step.papers.empty() && step.files.empty() &&
           step.orders.size() == (isMaking ? 1 : 0) &&
           std::all_of(step.corners.begin(), step.corners.end(),
                       [&](const CornersChange& change) { return change.area == area; }) &&
           std::all_of(step.names.begin(), step.names.end(),
                       [&](const auto& change) { return change.key == area; }) &&
           std::all_of(step.numbers.begin(), step.numbers.end(), [&](const auto& change) {
               return isMaking || areaNames.count(change.key) > 0;
           });
}

}  // namespace

bool Document::unmake(AreaId area)
{
    endGesture();
    const Oid::POLY* const now = living(area);
    if (now == nullptr) {
        return false;
    }
    const std::deque<Step>& done = history.doneSteps();
    std::set<std::string> areaNames = {now->name};
    const auto last = std::find_if(done.rbegin(), done.rend(), [&](const Step& step) {
        return makes(step, area) || !concernsOnly(step, area, areaNames);
    });
    if (last == done.rend() || !concernsOnly(*last, area, areaNames)) {
        return false;
    }
    for (auto count = last - done.rbegin() + 1; count > 0; --count) {
        carryOver(*history.toUndo(), false);  // cannot fail: there are no files in it
        history.moveToUndone();
    }
    history.forgetUndone();
    tell();
    return true;
}

bool Document::follow(const Edit& edit)
{
    const Following all(*this);
    return std::visit([this](const auto& one) { return carryOut(one); }, edit);
}

// A step in which the author still works takes part in what follows; else there is one of its own
// kind. Before the first step there is nothing to go back to.
Document::Following::Following(Document& followed) : document(followed)
{
    document.following = true;
}

Document::Following::~Following()
{
    if (document.open && document.open->silent) {
        document.closeStep();
    }
    document.following = false;
    document.tell();
}

Recording& Document::beginStep()
{
    if (!open) {
        open.emplace();
        open->selection = selection;
        open->state = state;
        open->silent = following;
        openGesture = following ? Gesture::none : asked;
    }
    state = ++states;
    note(Change::history, kNoPage);
    return *open;
}

void Document::forgetUnchangedFiles(Recording& recording)
{
    std::vector<KeptFile>& files = recording.files;
    const auto unchanged = [this](const KeptFile& file) {
        const bool same = keptFiles.isAsKept(record.pathImageSource(file.page), file);
        if (same) {
            keptFiles.forget(file);
        }
        return same;
    };
    files.erase(std::remove_if(files.begin(), files.end(), unchanged), files.end());
}

void Document::closeStep()
{
    if (!open) {
        return;
    }
    forgetUnchangedFiles(*open);
    Step step = contents.stepOf(*open);
    step.link = open->link;
    open.reset();
    if (step.empty()) {
        state = step.stateBefore;
        return;
    }
    step.selectionAfter = selection;
    step.stateAfter = state;
    if (step.silent && !history.canUndo()) {
        history.forgetUndone();
        forgetStep(step, false);
        return;
    }
    history.add(std::move(step));
    while (history.isTooLarge(contents.parkedBytes())) {
        history.dropOldest();
    }
}

void Document::forgetStep(const Step& step, bool forward)
{
    for (const PageId page : contents.forget(step, forward)) {
        pictures.forget(page);
    }
    for (const KeptFile& file : step.files) {
        keptFiles.forget(file);
    }
}

bool Document::canUndo() const
{
    return open.has_value() || history.canUndo();
}

bool Document::canRedo() const
{
    return !open && history.canRedo();
}

bool Document::undo()
{
    endGesture();
    while (const Step* const last = history.lastDone()) {
        const bool silent = last->silent;
        const StepLink link = last->link;
        if (!carryOver(*history.toUndo(), false)) {
            break;
        }
        history.moveToUndone();
        if (!silent) {
            tell();
            tellOfLink(link, false);
            return true;
        }
    }
    tell();
    return false;
}

bool Document::redo()
{
    const StepLink link = linkToRedo();
    bool done = false;
    while (history.canRedo() && (!done || history.redoGoesOn()) &&
           carryOver(*history.toRedo(), true)) {
        history.moveToDone();
        done = true;
    }
    tell();
    if (done) {
        tellOfLink(link, true);
    }
    return done;
}

void Document::linkStep(Gesture gesture, StepLink link)
{
    if (open && gesture != Gesture::none && gesture == openGesture) {
        open->link = link;
    }
}

StepLink Document::linkToUndo()
{
    endGesture();
    return history.linkToUndo();
}

StepLink Document::linkToRedo()
{
    endGesture();
    return history.linkToRedo();
}

void Document::tellOfLink(StepLink link, bool forward)
{
    if (link != StepLink::none) {
        emit linkedStepMoved(link, forward);
    }
}

bool Document::carryOver(Step& step, bool forward)
{
    const std::vector<PageId> before = contents.pages();
    if (!carryPagesOver(step, forward)) {
        return false;
    }
    contents.apply(step, forward);
    for (const KeptFile& file : step.files) {
        pictures.wasReplaced(contents.pageAt(file.page));
    }
    notePages(before);
    selection = forward ? step.selectionAfter : step.selectionBefore;
    state = forward ? step.stateAfter : step.stateBefore;
    noteStep(step);
    return true;
}

// All or none. What a step did to the file of a page comes behind the page's coming, and goes
// before its going.
bool Document::carryPagesOver(Step& step, bool forward)
{
    pictures.forgetProblem();
    if (step.pages.empty()) {
        return exchangeFiles(step, forward);
    }
    const std::vector<PageId> before = contents.pages();
    std::vector<PageId> after = before;
    step.pages.apply(after, forward);
    if (forward) {
        if (!pictures.arrange(after)) {
            return false;
        }
        if (!exchangeFiles(step, true)) {
            pictures.arrange(before);
            return false;
        }
        return true;
    }
    if (!exchangeFiles(step, false)) {
        return false;
    }
    if (!pictures.arrange(after)) {
        exchangeFiles(step, true);
        return false;
    }
    for (const KeptFile& file : step.files) {
        const bool isGone = static_cast<std::size_t>(file.page) >= after.size();
        const PageId page = contents.pageAt(file.page);
        if (isGone && !pictures.isSaved(page)) {
            pictures.drop(page);
        }
    }
    return true;
}

// All or none.
bool Document::exchangeFiles(Step& step, bool forward)
{
    const auto exchange = [&](std::size_t i) {
        return keptFiles.exchange(record.pathImageSource(step.files[i].page), step.files[i]);
    };
    const auto keepAsItIs = [&](std::size_t i) {
        return keptFiles.keepAsItIs(record.pathImageSource(step.files[i].page), step.files[i]);
    };
    // Until the next save the file on the disk needs the pictures of its pages.
    const std::size_t pagesBefore =
        contents.pages().size() + step.pages.before.size() - step.pages.after.size();
    const auto isNeeded = [&](std::size_t i) {
        const int page = step.files[i].page;
        return !forward && static_cast<std::size_t>(page) >= pagesBefore &&
               pictures.isSaved(contents.pageAt(page));
    };
    for (std::size_t i = 0; i < step.files.size(); ++i) {
        if (!(isNeeded(i) ? keepAsItIs(i) : exchange(i))) {
            while (i-- > 0) {
                exchange(i);
            }
            return false;
        }
    }
    // At once: another file than the known one looks as if another window had moved pages.
    for (const KeptFile& file : step.files) {
        pictures.wasReplaced(contents.pageAt(file.page));
    }
    return true;
}

bool Document::save(const std::string& path)
{
    Oid::OidProject place;
    place.projectPath = path;
    place.productId = record.productId;
    const bool stays = pictures.isAt(place);
    pictures.forgetProblem();
    if (stays && !pictures.beforeSaving(contents.pages())) {
        return false;
    }
    if (!record.save(path)) {
        pictures.couldNotSave();
        return false;
    }
    record.movedPictures.clear();
    setClean();
    return true;
}

void Document::followOthers()
{
    if (pictures.followOthers()) {
        note(Change::pictureFile, -1);
        tell();
    }
}

void Document::setClean()
{
    closeStep();
    cleanState = state;
    if (pictures.isInPlace()) {
        pictures.saved(contents.pages());
    }
    cleanProductName = record.productName;
    cleanProductId = record.productId;
    note(Change::history, kNoPage);
    tell();
}

bool Document::isClean() const
{
    return state == cleanState && record.productName == cleanProductName &&
           record.productId == cleanProductId;
}

void Document::typeProduct(const std::string& name, int id)
{
    typedName = name;
    typedId = id;
}

std::uint64_t Document::revision() const
{
    const std::string product = std::to_string(state) + ' ' + std::to_string(typedId) + typedName;
    return std::hash<std::string>()(product);
}

Oid::OidProject Document::projectToSave() const
{
    Oid::OidProject saved;
    saved.print = printNothing;
    saved.productName = typedName;
    saved.productId = typedId;
    saved.pictures = record.pictures;
    saved.oids = record.oids;
    Oid::numberAllAreas(saved);
    return saved;
}

void Document::setProduct(const std::string& name, int id)
{
    typeProduct(name, id);
    if (name == record.productName && id == record.productId) {
        return;
    }
    record.productName = name;
    record.productId = id;
    note(Change::product | Change::history, kNoPage);
    tell();
}

std::vector<AreaId> Document::selectedAreas() const
{
    const AreaId last = selectedArea();
    std::vector<AreaId> areas;
    for (const AreaId area : selection.before) {
        if (area != last && contents.placeOf(area).page == selection.page) {
            areas.push_back(area);
        }
    }
    if (last != AreaId::none) {
        areas.push_back(last);
    }
    return areas;
}

void Document::select(int page, int area)
{
    choose({page, area, {}});
}

void Document::selectAreas(int page, const std::vector<AreaId>& areas)
{
    Selection chosen{page, -1, {}};
    std::set<AreaId> once;
    for (const AreaId area : areas) {
        if (contents.placeOf(area).page == page && once.insert(area).second) {
            chosen.before.push_back(area);
        }
    }
    if (!chosen.before.empty()) {
        chosen.area = contents.placeOf(chosen.before.back()).index;
        chosen.before.pop_back();
    }
    choose(std::move(chosen));
}

void Document::choose(Selection chosen)
{
    if (chosen == selection) {
        return;
    }
    endGesture();
    selection = std::move(chosen);
    if (Step* const last = history.toUndo(); last != nullptr && last->stateAfter == state) {
        last->selectionAfter = selection;  // so redoing leads to what the author chose then
    }
    note(Change::selection, selection.page);
    tell();
}

void Document::noteStep(const Step& step)
{
    note(Change::history, kNoPage);
    note(Change::selection, kNoPage);
    for (const AreaOrderChange& order : step.orders) {
        note(Change::areas, -1);
        news.changed.insert(news.changed.end(), order.areas.before.begin(),
                            order.areas.before.end());
        news.changed.insert(news.changed.end(), order.areas.after.begin(), order.areas.after.end());
    }
    for (const CornersChange& change : step.corners) {
        note(Change::corners, contents.placeOf(change.area).page, change.area);
    }
    for (const auto& change : step.names) {
        note(Change::names, contents.placeOf(change.key).page, change.key);
    }
    if (!step.numbers.empty()) {
        note(Change::numbers, -1);
    }
    if (!step.papers.empty()) {
        note(Change::paper, -1);
    }
    for (const KeptFile& file : step.files) {
        note(Change::pictureFile, file.page);
    }
}

void Document::notePages(const std::vector<PageId>& before)
{
    const std::vector<PageId>& now = contents.pages();
    if (before == now) {
        return;
    }
    note(Change::pages | Change::pictureFile, -1);
    std::vector<int> from;
    for (const PageId page : now) {
        const auto place = std::find(before.begin(), before.end(), page);
        from.push_back(place != before.end() ? static_cast<int>(place - before.begin()) : -1);
    }
    emit pagesArranged(from);
}

void Document::note(unsigned what, int page, AreaId area)
{
    if (page != kNoPage) {
        news.page = newsPageKnown && news.page != page ? -1 : page;
        newsPageKnown = true;
    }
    news.what |= what;
    if (area != AreaId::none) {
        news.changed.push_back(area);
    }
}

void Document::tell()
{
    if (news.what == 0 || following) {
        return;
    }
    // Who hears of it may go on editing.
    const Change told = std::exchange(news, Change());
    newsPageKnown = false;
    emit changed(told);
}
