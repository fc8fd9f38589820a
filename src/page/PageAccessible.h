#pragma once

#include "document/Document.h"

#include <QAccessibleWidget>

#include <unordered_map>
#include <vector>

class PolyEditorWidget;

// The page for screen readers: a list whose children are the areas of the current page, in their
// order, each with its name, its number and its place.
class PageAccessible : public QAccessibleWidget
{
public:
    // Makes the page of every PolyEditorWidget known to Qt.
    static void install();
    // What a change of the document means for a screen reader.
    struct News
    {
        QAccessibleInterface* of;
        QAccessible::Event what;
    };
    static std::vector<News> newsOf(PolyEditorWidget& page, const Change& change);
    // Says so, when there is one.
    static void announce(PolyEditorWidget& page, const Change& change);

    explicit PageAccessible(PolyEditorWidget* page);
    ~PageAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    PolyEditorWidget& page() const;

    mutable std::unordered_map<AreaId, QAccessible::Id> children;  // that were asked for
};
