#pragma once

#include "document/Document.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <map>

// Names that areas and subs have in common, changed in both at once. Areas are in the history of
// the document, subs in that of the script; when a renaming is undone or redone in one of them, it
// is in the other one, too: as a step of its history where it is the next one there, else as an
// edit of its own. So what the author did in between stays.
class SharedRenames : public QObject
{
    Q_OBJECT

public:
    // Both outlive it.
    SharedRenames(Document& document, KVQtHighlightEditCtrlInlay& script);

    // The areas of that name, and where the script has it.
    std::vector<AreaId> areasOf(const std::string& name) const;
    std::vector<KVQtHighlightEditCtrlInlay::Part> placesOf(const std::string& name) const;
    bool hasSub(const std::string& name) const;

    // One step of undo.
    void rename(const std::string& from, const std::string& to);

signals:
    // The renaming could not be undone or redone in the script, where both names stand now.
    void scriptKept(const QString& name);

private:
    struct Renaming
    {
        std::string from;
        std::string to;
        std::vector<AreaId> areas;
        // Of others before, which cannot be told from those that got it.
        bool joinsAreas = false;
        bool joinsPlaces = false;
        bool areasDone = true;
        bool placesDone = true;

        const std::string& source(bool done) const { return done ? from : to; }
        const std::string& target(bool done) const { return done ? to : from; }
    };

    void documentMoved(StepLink link, bool forward);
    void scriptMoved(quint64 link, bool forward);
    void bringAreas(std::uint64_t id, Renaming& renaming, bool done);
    void bringPlaces(std::uint64_t id, Renaming& renaming, bool done);
    void renameAreas(const std::vector<AreaId>& areas, const std::string& name, std::uint64_t link);
    void forgetAll(const Change& change);

    Document& document;
    KVQtHighlightEditCtrlInlay& script;
    std::map<std::uint64_t, Renaming> renamings;
    std::uint64_t ids = 0;
    bool following = false;  // what moves now does so at our word
};
