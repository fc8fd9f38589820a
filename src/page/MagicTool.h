#pragma once

#include "page/AreaMaker.h"

#include <QImage>

#include <functional>
#include <utility>

// A click proposes the area of like colour around it; the wheel, or plus and minus, change what is
// like. Enter or a click inside make it an area, a click elsewhere proposes another one.
class MagicTool : public AreaMaker
{
public:
    // The picture of the current page; null when there is none to see.
    using Picture = std::function<QImage()>;

    MagicTool(Document& edited, MakingListener& told, Picture shown)
        : AreaMaker(edited, told), picture(std::move(shown))
    {}

    PageMarks marks(const PageView& view, const QRect& seen) const override;
    void click(const Oid::PNT& at) override;
    bool rightClick(const PageMouse& mouse) override;
    bool doubleClick(const PageMouse& mouse) override;
    bool wheel(int steps) override;
    bool key(const QKeyEvent& event, const PageView& view) override;
    bool giveUp() override;
    void stop() override;
    void finish() override;

protected:
    void put(const Oid::PNT& at, const PageView& /*view*/) override { click(at); }
    void takeBack() override { forget(); }

private:
    void propose();
    void forget();
    bool isProposed() const;

    Picture picture;
    QImage small;  // what is looked at
    qint64 smallOf = 0;
    int tolerance = 32;
    Oid::PNT spot;
    PageId proposedOn = PageId::none;  // where it is
    std::vector<Oid::PNT> proposed;
};
