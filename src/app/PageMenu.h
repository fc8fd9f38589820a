#pragma once

#include <QObject>
#include <QPoint>

class PolyEditorWidget;

// The context menu of the page: the actions that were added to it, in their order.
class PageMenu : public QObject
{
    Q_OBJECT

public:
    // The page owns it.
    explicit PageMenu(PolyEditorWidget* page);

private:
    void show(QPoint globalPos);

    PolyEditorWidget* page;
};
