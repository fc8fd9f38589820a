#pragma once

#include "page/PageTool.h"

// Each click is the next corner of the page's last area.
class DrawTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }
    void click(const Oid::PNT& at) override;

    // Adds an area without corners to the current page. Its index; -1 without a page.
    int begin();
    // Whether the area of the last begin is on any page.
    bool hasArea() const { return document.placeOf(area).page >= 0; }

private:
    AreaId area = AreaId::none;
};
