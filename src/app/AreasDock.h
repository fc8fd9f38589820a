#pragma once

#include "app/AreaTableModel.h"

#include <QDockWidget>
#include <QSortFilterProxyModel>

class QAction;
class QLineEdit;
class QTableView;

// The list of all areas beside the page: sorted by any column, filtered by a text. What is selected
// in the list is selected on the page, and the other way round.
class AreasDock : public QDockWidget
{
    Q_OBJECT

public:
    // The document outlives the dock.
    AreasDock(Document& document, QWidget* parent);

    // Which names of areas the script knows by now.
    void setScriptNames(const std::unordered_set<std::string>& names);

    // One for the selected areas, under its keys and in the menu of the list, too. Not owned.
    void addCommand(QAction* command);

signals:
    // The author goes on on the page.
    void pageAsked();
    // The area is selected, and the author wants to see its code.
    void codeAsked();
    // A name was typed over.
    void renameAsked(const QString& before, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void prepareTable();
    void prepareColumns();
    void selectInDocument();
    void selectInTable();
    void removeSelected();

    Document& document;
    AreaTableModel* model;
    QSortFilterProxyModel* sorted;
    QLineEdit* filter;
    QTableView* table;
    bool selecting = false;  // one side follows the other
};
