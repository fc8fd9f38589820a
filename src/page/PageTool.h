#pragma once

#include "document/Document.h"
#include "page/PageView.h"

class QKeyEvent;

// What the mouse did on the page.
struct PageMouse
{
    Oid::PNT at;                            // in percent of the picture's width
    PageView view;                          // for what is measured on the screen
    Qt::MouseButton button = Qt::NoButton;  // that went down or up
    Qt::MouseButtons buttons;               // that are down now
    Qt::KeyboardModifiers modifiers;
};

// What mouse and keys do to the areas of the current page: a tool turns them into edits of the
// document. The page has one tool at a time.
class PageTool
{
public:
    // The document outlives the tool.
    explicit PageTool(Document& edited) : document(edited) {}
    virtual ~PageTool() = default;
    PageTool(const PageTool&) = delete;
    PageTool& operator=(const PageTool&) = delete;

    virtual Qt::CursorShape cursor() const = 0;

    virtual void press(const PageMouse& /*mouse*/) {}
    virtual void move(const PageMouse& /*mouse*/) {}
    virtual void release(const PageMouse& /*mouse*/) {}
    // The left button was released here: comes behind each such release.
    virtual void click(const Oid::PNT& at) = 0;
    // True when the key is the tool's; any other goes on to the window.
    virtual bool key(const QKeyEvent& /*event*/) { return false; }

protected:
    // The current page; null when there is none.
    const Oid::PICTURE* page() const;

    Document& document;
};

// Selects the first area that lies under the click, or none.
class PickTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::ArrowCursor; }
    void click(const Oid::PNT& at) override;
};

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
