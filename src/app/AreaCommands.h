#pragma once

#include "document/Document.h"

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class PolyEditorWidget;
class QAction;

// What is done to the selected areas of the current page: copying and pasting between pages and
// windows, duplicating, deleting, and their order. The commands are actions of the page, under
// keys while the page has the focus.
class AreaCommands : public QObject
{
    Q_OBJECT

public:
    using Tell = std::function<void(const QString&)>;
    // Document and page outlive it; what there is to be said goes to tell.
    AreaCommands(Document& edited, PolyEditorWidget& shown, Tell say, QObject* parent = nullptr);

    void cut();
    void copy();
    void paste();
    void duplicate();
    void remove();
    void bringForward() { reorder(true); }
    void sendBackward() { reorder(false); }
    void selectAll();

private:
    QAction* add(const char* name, const QString& text, const QString& tip, const char* key,
                 void (AreaCommands::*command)());
    void addActions();
    void addSeparator();
    void updateActions();
    void reorder(bool forward);
    void copyAreas();
    QByteArray pageMark() const;

    Document& document;
    PolyEditorWidget& page;
    const Tell tell;
    const QByteArray windowMark;  // of this one among all that run
    std::vector<QAction*> forSelected;
    std::vector<QAction*> forPage;
};
