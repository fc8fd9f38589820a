#pragma once

#include "page/PageTool.h"
#include "page/SnapTargets.h"

#include <functional>
#include <set>

class QString;

// Selects areas, and changes those that are selected: drags them, their corners and edges, moves
// them by keys. Handles and corner keys are those of the area that was selected last.
class PickTool : public PageTool
{
public:
    using PageTool::PageTool;

    // Says something to the author.
    std::function<void(const QString&)> tell = [](const QString&) {};

    Qt::CursorShape cursor() const override;
    PageMarks marks(const PageView& view, const QRect& seen) const override;

    void press(const PageMouse& mouse) override;
    void move(const PageMouse& mouse) override;
    bool release(const PageMouse& mouse) override;
    // Selects the first area that lies there, or none. With Shift, as the button was released, that
    // area comes to the selected ones or leaves them.
    void click(const Oid::PNT& at) override;
    void pageMoved(const PageMouse& mouse) override;
    void leave() override { hover.reset(); }
    bool isDragging() const override { return drag != Drag::none && drag != Drag::over; }

    bool key(const QKeyEvent& event, const PageView& view) override;
    std::optional<Oid::PNT> place() const override;
    bool giveUp() override;
    void stop() override;

private:
    // What of the selected areas lies at a spot.
    struct Hit
    {
        enum What { nothing, corner, edge, inside };

        What what = nothing;
        std::size_t index = 0;  // of the corner, or of the one at which the edge begins
        Oid::PNT at;            // on the edge
    };
    enum class Drag { none, pressed, corners, areas, frame, over };

    Hit hitAt(const PageMouse& mouse) const;
    Hit under() const { return hover ? hitAt(*hover) : Hit(); }
    const std::vector<Oid::PNT>* corners() const;  // of the area selected last, null without one
    const Oid::POLY& areaOf(AreaId area) const;

    // The chosen corners; none when the area has become another one.
    const std::set<std::size_t>& chosenCorners() const;
    void choose(std::set<std::size_t> corners);

    void beginDrag();
    void takeTargets(const std::vector<AreaId>& without);
    void dragTo(const PageMouse& mouse);
    Oid::PNT dragWay(const PageMouse& mouse, const std::vector<Oid::PNT>& snapping) const;
    void dragCorners(const PageMouse& mouse);
    void dragAreas(const PageMouse& mouse);
    void chooseFramed();
    void toggle(int index);

    bool nudge(const QKeyEvent& event, const PageView& view);
    bool removeCorners();
    bool goToArea(int step, bool more);
    bool goToCorner(int step, bool more);

    std::optional<PageMouse> hover;  // where the mouse is while no button is down

    std::set<std::size_t> chosen;
    AreaId chosenOf = AreaId::none;
    std::size_t chosenAmong = 0;  // so many corners the area had then

    Drag drag = Drag::none;
    PageMouse begun;  // where the button went down
    Hit grabbed;      // what was there
    PageMouse now;    // where the mouse is
    Gesture gesture = Gesture::none;
    bool changed = false;           // the gesture has an edit
    AreaId dragged = AreaId::none;  // the selected one, whose corners they are
    std::vector<AreaId> draggedAreas;
    std::vector<Oid::PNT> before;  // its corners, with a new one if there is one
    std::set<std::size_t> moving;
    Oid::PNT moved;  // so far
    SnapTargets targets;

    bool shiftClick = false;
    Gesture nudging = Gesture::none;
    int nudgingKey = 0;
    std::optional<Oid::PNT> wentTo;  // by the last key
};
