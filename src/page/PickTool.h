#pragma once

#include "page/PageTool.h"

// Selects the first area that lies under the click, or none.
class PickTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::ArrowCursor; }
    void click(const Oid::PNT& at) override;
};
