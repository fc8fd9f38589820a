#include "app/PageMenu.h"

#include "page/PolyEditorWidget.h"

#include <QMenu>

#include <algorithm>
#include <memory>

PageMenu::PageMenu(Document& edited, PolyEditorWidget* ofPage)
    : QObject(ofPage), document(edited), page(ofPage)
{
    connect(page, &PolyEditorWidget::menuWanted, this, &PageMenu::show);
}

void PageMenu::show(QPoint globalPos, const std::optional<Oid::PNT>& point)
{
    auto* const menu = new QMenu(page);
    menu->setObjectName("pageMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    if (point && page->picture() != nullptr) {
        selectAt(*point);
        listAreasAt(*point, *menu);
    }
    menu->addActions(page->actions());
    menu->popup(globalPos);
}

// The actions are for the selected areas; when the menu is asked for on another one, that is
// selected.
void PageMenu::selectAt(const Oid::PNT& point)
{
    const std::vector<Oid::POLY>& areas = page->picture()->polys;
    const std::vector<AreaId> selected = document.selectedAreas();
    const bool onSelected = std::any_of(selected.begin(), selected.end(), [&](AreaId area) {
        return areas[static_cast<std::size_t>(document.placeOf(area).index)].isPntInPoly(point);
    });
    const int under = document.project().pntInPoly(document.currentPage(), point);
    if (!onSelected && under >= 0) {
        document.select(document.currentPage(), under);
    }
}

// Where several overlap: the one that speaks first, and a way to those that it hides.
void PageMenu::listAreasAt(const Oid::PNT& point, QMenu& menu)
{
    const std::vector<int> here = page->areasAt(point);
    if (here.size() < 2) {
        return;
    }
    QMenu* const list = menu.addMenu(tr("Areas here"));
    list->setObjectName("areasHereMenu");
    menu.addSeparator();
    for (const int index : here) {
        QString name = page->areaName(index).replace('&', "&&");
        if (index == here.front()) {
            name = tr("%1 (speaks here)").arg(name);
        }
        QAction* const action = list->addAction(name);
        action->setCheckable(true);
        action->setChecked(index == document.selectedIndex());
        const AreaId area = document.areaAt(document.currentPage(), index);
        connect(action, &QAction::triggered, this, [this, area] {
            document.select(document.placeOf(area).page, document.placeOf(area).index);
        });
    }
}
