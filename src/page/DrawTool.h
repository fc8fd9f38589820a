#pragma once

#include "page/AreaMaker.h"

// Each click is the next corner of the page's last area. Enter, a double click or a click on the
// first corner end the area that was begun.
class DrawTool : public AreaMaker
{
public:
    using AreaMaker::AreaMaker;

    PageMarks marks(const PageView& view, const QRect& seen) const override;
    void press(const PageMouse& mouse) override;
    void click(const Oid::PNT& at) override;
    bool doubleClick(const PageMouse& mouse) override;
    bool rightClick(const PageMouse& mouse) override;
    bool giveUp() override;
    void finish() override;

    // Adds an area without corners to the current page. Its index; -1 without a page.
    int begin();
    // Whether the area of the last begin is on any page.
    bool hasArea() const { return document.placeOf(area).page >= 0; }
    // Whether it is on another page than the current one, because that was turned.
    bool isElsewhere() const;
    // The one that clicks add corners to; none on a page without areas.
    AreaId lastOnPage() const;
    // The area of the last begin when it is, and has fewer corners than an area needs; else none.
    AreaId unfinished() const;

    static constexpr std::size_t kLeastCorners = 3;

protected:
    void put(const Oid::PNT& at, const PageView& view) override;
    void takeBack() override;

private:
    // The corners of the page's last area; null without one.
    const std::vector<Oid::PNT>* corners() const;
    bool isLastOnPage() const;
    bool closes(const Oid::PNT& at, const PageView& view) const;

    AreaId area = AreaId::none;
    std::optional<PageView> pressedOn;  // the page, as it was when a click began
};
