#pragma once

#include "page/PageTool.h"

#include <optional>

// Whoever has chosen a tool that makes areas hears what becomes of them.
class MakingListener
{
public:
    // The area is whole.
    virtual void areaMade(AreaId area) = 0;
    // Nothing is being made any more.
    virtual void makingGivenUp() = 0;
    // The area was to be whole, and is not.
    virtual void tooFewCorners(AreaId area) = 0;
    // A corner has come to an area that was there before.
    virtual void otherAreaGrew(AreaId area) = 0;
    // What lies around the point is shown to be taken; or nothing does. The tolerance goes from 0
    // to 255.
    virtual void areaProposed(bool found, int tolerance) = 0;
    // It is no longer shown: taken or given up.
    virtual void proposalEnded() = 0;

protected:
    ~MakingListener() = default;
};

// A tool that makes a new area. By keys alone: arrows move a cross-hair by one pixel of the picture
// (Shift: ten, Ctrl: a twentieth of the page's width), Space or Insert is a click there.
class AreaMaker : public PageTool
{
public:
    AreaMaker(Document& edited, MakingListener& told) : PageTool(edited), listener(told) {}

    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }
    // The cross-hair.
    PageMarks marks(const PageView& view, const QRect& seen) const override;
    void move(const PageMouse& mouse) override;
    void pageMoved(const PageMouse& mouse) override;
    void leave() override;
    bool key(const QKeyEvent& event, const PageView& view) override;
    std::optional<Oid::PNT> place() const override { return cross; }
    void stop() override;

    // Ends the area, as Enter asks for.
    virtual void finish() = 0;

protected:
    // Like a click there.
    virtual void put(const Oid::PNT& at, const PageView& view) = 0;
    // As Backspace asks for.
    virtual void takeBack() = 0;
    // Cross-hair or mouse have come to the spot.
    virtual void pointTo(const Oid::PNT& /*at*/, const PageView& /*view*/,
                         Qt::KeyboardModifiers /*modifiers*/)
    {}

    // One without corners, with the next name.
    Oid::POLY newArea() const;
    // Adds one to the current page, as one step.
    AreaId add(std::vector<Oid::PNT> corners);

    MakingListener& listener;
    std::optional<Oid::PNT> pointer;  // where mouse or cross-hair are on the page

private:
    bool moveCross(const QKeyEvent& event, const PageView& view);

    std::optional<Oid::PNT> cross;  // while keys are used
};
