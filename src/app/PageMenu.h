#pragma once

#include "document/Document.h"

#include <QObject>
#include <QPoint>

#include <optional>

class PolyEditorWidget;
class QMenu;

// The context menu of the page: which areas lie there, and the actions that were added to the page,
// in their order.
class PageMenu : public QObject
{
    Q_OBJECT

public:
    // The page owns it; the document outlives it.
    PageMenu(Document& document, PolyEditorWidget* page);

private:
    void show(QPoint globalPos, const std::optional<Oid::PNT>& point);
    void selectAt(const Oid::PNT& point);
    void listAreasAt(const Oid::PNT& point, QMenu& menu);

    Document& document;
    PolyEditorWidget* page;
};
