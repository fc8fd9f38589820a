#pragma once

#include "page/PageTool.h"

#include <functional>
#include <string>

// The pointer is the pen: a click taps the area that lies there, and nothing of the page changes.
// By keys: the arrows go from area to area, Enter or Space taps, Page Up and Page Down turn the
// pages.
class TapTool : public PageTool
{
public:
    using PageTool::PageTool;

    // The area that speaks where the page was tapped; empty where there is none.
    std::function<void(const std::string& area)> tapped;
    // The page beside this one is asked for: -1 for the one before, 1 for the next.
    std::function<void(int way)> turned;

    // Lights the area up, on every page, until it is called with an empty name.
    void light(const std::string& area);

    // Whoever sets the tool gives the page its cursor, the pen.
    Qt::CursorShape cursor() const override { return Qt::BitmapCursor; }
    PageMarks marks(const PageView& view, const QRect& seen) const override;
    void click(const Oid::PNT& at) override;
    bool key(const QKeyEvent& event, const PageView& view) override;
    std::optional<Oid::PNT> place() const override;

    // The area that a key has led to on this page, if one has.
    std::optional<std::string> keyArea() const;

private:
    bool goOn(int way);

    std::string lit;
    AreaId reached = AreaId::none;  // by keys
};
