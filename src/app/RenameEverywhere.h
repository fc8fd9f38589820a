#pragma once

#include "app/SharedRenames.h"
#include "editor/assist/RenameDialog.h"

class QAction;

// "Rename everywhere": the selected area's name changes on all pages and in the script. The action
// stands in the page's context menu and under F2 there.
class RenameEverywhere : public QObject
{
    Q_OBJECT

public:
    // All outlive it; the page owns it.
    RenameEverywhere(Document& document, KVQtHighlightEditCtrlInlay& script, QWidget* page);

    // For other widgets that show the selected area, such as a list of areas.
    QAction* action() { return renameAction; }
    // Asks for the new name of the areas and the sub of that name.
    void askFor(const QString& before);
    // Gives the areas and the sub of a name the new one, unless something speaks against it, which
    // is told then. Asks where the name is taken.
    void give(const QString& before, const QString& name);

signals:
    // What came of it, in one sentence.
    void told(const QString& text);

private:
    void ask();
    QString selectedName() const;
    QString placesOf(const std::string& name) const;
    RenameDialog::Verdict judge(const std::string& from, const QString& name) const;
    bool isTaken(const std::string& name) const;
    bool mayJoin(const QString& name);

    Document& document;
    QWidget* page;
    SharedRenames renames;
    QAction* renameAction;
};
