#include "app/PageMenu.h"

#include "page/PolyEditorWidget.h"

#include <QMenu>

PageMenu::PageMenu(PolyEditorWidget* ofPage) : QObject(ofPage), page(ofPage)
{
    connect(page, &PolyEditorWidget::menuWanted, this, &PageMenu::show);
}

void PageMenu::show(QPoint globalPos)
{
    auto* const menu = new QMenu(page);
    menu->setObjectName("pageMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(page->actions());
    menu->popup(globalPos);
}
