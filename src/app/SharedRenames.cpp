#include "app/SharedRenames.h"

#include "ttbasic/ScriptNames.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

// The link of a step that does a renaming, or of one that takes it back.
std::uint64_t linkOf(std::uint64_t id, bool doesIt)
{
    return id * 2 + (doesIt ? 1 : 0);
}

std::uint64_t idOf(std::uint64_t link)
{
    return link / 2;
}

// Whether the renaming is done once the step has been carried out in that direction.
bool isDoneAfter(std::uint64_t link, bool forward)
{
    const bool doesIt = link % 2 == 1;
    return doesIt == forward;
}

bool leadsThere(std::uint64_t link, bool forward, std::uint64_t id, bool done)
{
    return idOf(link) == id && isDoneAfter(link, forward) == done;
}

}  // namespace

SharedRenames::SharedRenames(Document& renamed, KVQtHighlightEditCtrlInlay& renamedScript)
    : document(renamed), script(renamedScript)
{
    connect(&document, &Document::linkedStepMoved, this, &SharedRenames::documentMoved);
    connect(&document, &Document::changed, this, &SharedRenames::forgetAll);
    connect(&script, &KVQtHighlightEditCtrlInlay::LinkedStepMoved, this,
            &SharedRenames::scriptMoved);
}

std::vector<AreaId> SharedRenames::areasOf(const std::string& name) const
{
    std::vector<AreaId> areas;
    const std::vector<Oid::PICTURE>& pages = document.project().pictures;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        for (std::size_t i = 0; i < pages[page].polys.size(); ++i) {
            if (pages[page].polys[i].name == name) {
                areas.push_back(document.areaAt(static_cast<int>(page), static_cast<int>(i)));
            }
        }
    }
    return areas;
}

std::vector<KVQtHighlightEditCtrlInlay::Part> SharedRenames::placesOf(const std::string& name) const
{
    std::vector<KVQtHighlightEditCtrlInlay::Part> places;
    for (const NameUse& use : usesOf(outlineOf(script.text().toStdString()), NameKind::sub, name)) {
        const ScriptOutline::Place& place = use.word.place;
        places.push_back({place.line, place.column, place.length});
    }
    return places;
}

bool SharedRenames::hasSub(const std::string& name) const
{
    const ScriptOutline outline = outlineOf(script.text().toStdString());
    return std::any_of(outline.subs.begin(), outline.subs.end(),
                       [&](const ScriptOutline::Sub& sub) { return sub.name.text == name; });
}

void SharedRenames::rename(const std::string& from, const std::string& to)
{
    Renaming renaming{from, to, areasOf(from), !areasOf(to).empty(), !placesOf(to).empty()};
    const auto places = placesOf(from);
    const bool isShared = !renaming.areas.empty() && !places.empty();
    const std::uint64_t link = isShared ? linkOf(++ids, true) : 0;
    renameAreas(renaming.areas, to, link);
    script.ReplaceParts(places, QString::fromStdString(to), link);
    if (isShared) {
        renamings[ids] = std::move(renaming);
    }
}

void SharedRenames::renameAreas(const std::vector<AreaId>& areas, const std::string& name,
                                std::uint64_t link)
{
    const Gesture gesture = document.newGesture();
    document.apply(edit::RenameAreas{areas, name}, gesture);
    document.linkStep(gesture, StepLink(link));
    document.endGesture();
}

void SharedRenames::documentMoved(StepLink stepLink, bool forward)
{
    const auto link = static_cast<std::uint64_t>(stepLink);
    const auto found = renamings.find(idOf(link));
    if (!following && found != renamings.end()) {
        found->second.areasDone = isDoneAfter(link, forward);
        bringPlaces(found->first, found->second, found->second.areasDone);
    }
}

void SharedRenames::scriptMoved(quint64 link, bool forward)
{
    const auto found = renamings.find(idOf(link));
    if (!following && found != renamings.end()) {
        found->second.placesDone = isDoneAfter(link, forward);
        bringAreas(found->first, found->second, found->second.placesDone);
    }
}

void SharedRenames::bringAreas(std::uint64_t id, Renaming& renaming, bool done)
{
    const QScopedValueRollback<bool> guard(following, true);
    if (renaming.areasDone == done) {
        return;
    }
    renaming.areasDone = done;
    const auto undoes = static_cast<std::uint64_t>(document.linkToUndo());
    const auto redoes = static_cast<std::uint64_t>(document.linkToRedo());
    if ((leadsThere(undoes, false, id, done) && document.undo()) ||
        (leadsThere(redoes, true, id, done) && document.redo())) {
        return;
    }
    std::vector<AreaId> areas = areasOf(renaming.source(done));
    if (renaming.joinsAreas || !areasOf(renaming.target(done)).empty()) {
        const auto isAnothers = [&](AreaId area) {
            return std::find(renaming.areas.begin(), renaming.areas.end(), area) ==
                   renaming.areas.end();
        };
        areas.erase(std::remove_if(areas.begin(), areas.end(), isAnothers), areas.end());
    }
    renameAreas(areas, renaming.target(done), linkOf(id, done));
}

void SharedRenames::bringPlaces(std::uint64_t id, Renaming& renaming, bool done)
{
    const QScopedValueRollback<bool> guard(following, true);
    if (renaming.placesDone == done) {
        return;
    }
    if (leadsThere(script.editor.link_to_undo(), false, id, done)) {
        script.OnEditUndo();
    } else if (leadsThere(script.editor.link_to_redo(), true, id, done)) {
        script.OnEditRedo();
    } else if (renaming.joinsPlaces || hasSub(renaming.target(done))) {
        emit scriptKept(QString::fromStdString(renaming.source(done)));
        return;
    } else {
        script.ReplaceParts(placesOf(renaming.source(done)),
                            QString::fromStdString(renaming.target(done)), linkOf(id, done));
    }
    renaming.placesDone = done;
}

// Another project has come, and with it other areas.
void SharedRenames::forgetAll(const Change& change)
{
    if (change.what == Change::everything) {
        renamings.clear();
    }
}
