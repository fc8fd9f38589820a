#pragma once

#include "page/DrawTool.h"
#include "page/MagicTool.h"
#include "page/PickTool.h"
#include "page/ShapeTool.h"

#include <QKeySequence>
#include <QObject>

#include <map>
#include <optional>

class PolyEditorWidget;
class QAction;
class QLineEdit;
class QToolBar;

// Which tool the page has, and the buttons, keys and menu entries of those that make areas. What
// the chosen tool does is told. A made area is selected, and its name is ready to be typed over.
class AreaTools : public QObject, private MakingListener
{
    Q_OBJECT

public:
    // Everything outlives the tools. Their buttons come to the end of the bar and into the page's
    // menu.
    AreaTools(Document& edited, PickTool& pickTool, PolyEditorWidget& page, QLineEdit& name,
              QToolBar& bar);

    PageTool& current() const { return *chosen; }
    void pick();
    // Begins an area that is drawn corner by corner. Its index on the page; -1 without a page.
    int draw();

signals:
    // For the author.
    void told(const QString& text);

private:
    void areaMade(AreaId area) override;
    void makingGivenUp() override;
    void tooFewCorners(AreaId area) override;
    void otherAreaGrew(AreaId area) override;
    void areaProposed(bool found, int tolerance) override;
    void proposalEnded() override;

    void addButton(QToolBar& bar, const char* name, const QString& icon, const QString& text,
                   PageTool& tool);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void addHint(PageTool& tool, const QString& hint, const QKeySequence& key = {});
    void choose(PageTool& tool, bool silently = false);
    void pageShown();
    void areasCameOrWent();
    // Whether there was one, and it was told.
    bool tellUnfinished();
    QString unfinishedText() const;
    void tellGoingOn();
    void tellTool();
    QString nameOf(AreaId area) const;

    Document& document;
    PickTool& picker;
    PolyEditorWidget& shownPage;
    QLineEdit& nameField;
    DrawTool drawer;
    BoxTool box;
    EllipseTool ellipse;
    MagicTool magic;
    PageTool* chosen;
    PageId lastPage = PageId::none;  // that was shown
    std::optional<AreaId> growing;   // to which drawing adds corners; none on a page without areas
    std::map<PageTool*, QAction*> buttons;
    std::map<PageTool*, QString> hints;
};
