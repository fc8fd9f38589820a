#pragma once

#include "document/Document.h"
#include "page/PageMarks.h"
#include "page/PageView.h"

#include <QRect>

#include <optional>

class QKeyEvent;

// What the mouse did on the page.
struct PageMouse
{
    Oid::PNT at;                            // in percent of the picture's width
    PageView view;                          // for what is measured on the screen
    Qt::MouseButton button = Qt::NoButton;  // that went down or up
    Qt::MouseButtons buttons;               // that are down now
    Qt::KeyboardModifiers modifiers;
    QPoint pixel;  // of the widget, the nearest one
};

// What mouse and keys do to the areas of the current page: a tool turns them into edits of the
// document. The page has one tool at a time. After each call the page shows the tool's cursor and
// marks as they are then.
class PageTool
{
public:
    // The document outlives the tool.
    explicit PageTool(Document& edited) : document(edited) {}
    virtual ~PageTool() = default;
    PageTool(const PageTool&) = delete;
    PageTool& operator=(const PageTool&) = delete;

    // The bitmap cursor stands for that which the page was given.
    virtual Qt::CursorShape cursor() const = 0;
    // What the tool shows over the page; what lies outside the seen pixels may be left out.
    virtual PageMarks marks(const PageView& /*view*/, const QRect& /*seen*/) const { return {}; }

    virtual void press(const PageMouse& /*mouse*/) {}
    // With and without a button.
    virtual void move(const PageMouse& /*mouse*/) {}
    // The page was scrolled or zoomed under the mouse, which is here now.
    virtual void pageMoved(const PageMouse& /*mouse*/) {}
    // True when this ends a drag: then no click comes behind it.
    virtual bool release(const PageMouse& /*mouse*/) { return false; }
    // The left button was released here: comes behind each such release, unless that ended a drag
    // or belongs to a double click of the tool's.
    virtual void click(const Oid::PNT& at) = 0;
    // Each comes instead of a press; when it returns true it is the tool's, and neither a press nor
    // a click (or, for the right button, a menu) follows.
    virtual bool doubleClick(const PageMouse& /*mouse*/) { return false; }
    virtual bool rightClick(const PageMouse& /*mouse*/) { return false; }
    // The mouse is over the page no more.
    virtual void leave() {}

    // Whether what the mouse has begun to drag follows it. Until the button goes up or this is
    // given up, the page hears no other key and no other button.
    virtual bool isDragging() const { return false; }

    // The wheel was turned by so many steps, away from the author. True when that is the tool's.
    virtual bool wheel(int /*steps*/) { return false; }
    // True when the key is the tool's; any other goes on to the window.
    virtual bool key(const QKeyEvent& /*event*/, const PageView& /*view*/) { return false; }
    // Where such a key has left the author: the page is scrolled there.
    virtual std::optional<Oid::PNT> place() const { return std::nullopt; }
    // Gives up what has been begun, as Escape asks for. False when there is nothing to give up.
    virtual bool giveUp() { return false; }
    // Another tool comes, or the window is left: what has been done stays.
    virtual void stop() {}

protected:
    // The current page; null when there is none.
    const Oid::PICTURE* page() const;

    Document& document;
};
