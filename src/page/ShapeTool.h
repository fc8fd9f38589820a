#pragma once

#include "page/AreaMaker.h"

// A drag from corner to corner makes an area of that shape. By keys: a click at the one corner and
// one at the other.
class ShapeTool : public AreaMaker
{
public:
    using AreaMaker::AreaMaker;

    PageMarks marks(const PageView& view, const QRect& seen) const override;
    void press(const PageMouse& mouse) override;
    bool release(const PageMouse& mouse) override;
    void click(const Oid::PNT& /*at*/) override {}
    bool isDragging() const override { return begun && byMouse; }
    bool giveUp() override;
    void stop() override;
    void finish() override;

protected:
    void put(const Oid::PNT& at, const PageView& view) override;
    void takeBack() override { begun.reset(); }
    void pointTo(const Oid::PNT& at, const PageView& view,
                 Qt::KeyboardModifiers modifiers) override;

    // The shape between two corners that lie across.
    virtual std::vector<Oid::PNT> shape(const Oid::PNT& a, const Oid::PNT& b) const = 0;

private:
    bool isLargeEnough(const PageView& view) const;

    std::optional<Oid::PNT> begun;  // the first corner
    Oid::PNT end;
    bool byMouse = false;  // the button is held since then
};

// Shift: a square.
class BoxTool : public ShapeTool
{
public:
    using ShapeTool::ShapeTool;

protected:
    std::vector<Oid::PNT> shape(const Oid::PNT& a, const Oid::PNT& b) const override;
};

// With 24 corners. Shift: a circle.
class EllipseTool : public ShapeTool
{
public:
    using ShapeTool::ShapeTool;

protected:
    std::vector<Oid::PNT> shape(const Oid::PNT& a, const Oid::PNT& b) const override;
};
