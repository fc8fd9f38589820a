#pragma once

#include "app/PageListModel.h"

#include <QDockWidget>

class QAction;
class QLabel;
class QListView;

// The pages as small pictures: a click shows one, dragging or keys change their order, and pages
// can be removed.
class PagesDock : public QDockWidget
{
    Q_OBJECT

public:
    // The document outlives the dock.
    PagesDock(Document& document, QWidget* parent);

    // "Page 2 of 3", to stand beside the buttons of the pages. Whoever shows it owns it.
    QLabel* makeLabel();

signals:
    void pageAsked(int page);
    // It was chosen with the mouse: the author goes on on the page. By keys one stays in the list.
    void clicked();
    // A page could not be moved or removed; the document says why.
    void failed();
    void told(const QString& message);

private:
    QAction* add(const char* name, const QString& text, const QList<QKeySequence>& keys);
    void move(int page, int to);
    void moveBy(int way);
    void remove();
    void showCurrent();
    void showLabel();

    Document& document;
    PageListModel* model;
    QListView* list;
    QLabel* label = nullptr;
    bool showing = false;
};
