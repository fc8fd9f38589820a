#include "app/AreaTools.h"

#include "page/PolyEditorWidget.h"
#include "qtsync/ToolTip.h"

#include <QAction>
#include <QEvent>
#include <QLineEdit>
#include <QTimer>
#include <QToolBar>

#include <utility>

AreaTools::AreaTools(Document& edited, PickTool& pickTool, PolyEditorWidget& page, QLineEdit& name,
                     QToolBar& bar)
    : document(edited),
      picker(pickTool),
      shownPage(page),
      nameField(name),
      drawer(edited, *this),
      box(edited, *this),
      ellipse(edited, *this),
      magic(edited, *this, [&page] { return page.loadedImage(); }),
      chosen(&pickTool)
{
    addHint(picker, tr("Click an area to select it; drag it or its corners to change it"));
    addHint(drawer, tr("A new area: click its corners one after the other"));
    bar.addSeparator();
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    page.addAction(separator);
    addButton(bar, "actionAddBox", "add-box", tr("Add rectangle"), box);
    addHint(box, tr("A new area: drag a rectangle, with Shift a square"), QKeySequence("R"));
    addButton(bar, "actionAddEllipse", "add-ellipse", tr("Add ellipse"), ellipse);
    addHint(ellipse, tr("A new area: drag an ellipse, with Shift a circle"), QKeySequence("E"));
    addButton(bar, "actionMagicArea", "magic-area", tr("Area of one colour"), magic);
    addHint(magic, tr("A new area: click what has about the same colour"), QKeySequence("M"));
    connect(&name, &QLineEdit::returnPressed, this, [this] {
        if (chosen == &drawer) {
            drawer.finish();
        }
    });
    page.setTool(chosen);
    page.installEventFilter(this);
    connect(&document, &Document::changed, this, [this](const Change& change) {
        pageShown();
        if (change.has(Change::areas)) {
            areasCameOrWent();
        }
    });
}

void AreaTools::addButton(QToolBar& bar, const char* name, const QString& icon, const QString& text,
                          PageTool& tool)
{
    QAction* const action = new QAction(QIcon(":/icons/" + icon + ".svg"), text, &bar);
    action->setObjectName(name);
    action->setCheckable(true);
    action->setPriority(QAction::LowPriority);  // its icon says it
    action->setEnabled(shownPage.isVisible());
    bar.addAction(action);
    shownPage.addAction(action);
    buttons[&tool] = action;
    connect(action, &QAction::triggered, this, [this, &tool](bool on) {
        const bool isTold = tellUnfinished();
        choose(on && document.pageAt(document.currentPage()) != PageId::none ? tool : picker,
               isTold);
    });
}

// Areas are made where one sees them.
bool AreaTools::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        for (const auto& [tool, button] : buttons) {
            button->setEnabled(shownPage.isVisible());
        }
    }
    return false;
}

// The key is the page's alone: in a field it is a letter.
void AreaTools::addHint(PageTool& tool, const QString& hint, const QKeySequence& key)
{
    hints[&tool] = hint;
    const auto button = buttons.find(&tool);
    if (button != buttons.end()) {
        button->second->setToolTip(withKey(hint, key));
        button->second->setShortcut(key);
        button->second->setShortcutContext(Qt::WidgetShortcut);
    }
}

// Without being told when there is something more important to say.
void AreaTools::choose(PageTool& tool, bool silently)
{
    const bool isAnother = chosen != &tool;
    chosen = &tool;
    for (const auto& [other, button] : buttons) {
        button->setChecked(other == chosen);
    }
    shownPage.setTool(chosen);
    if (chosen != &picker) {
        shownPage.setFocus();  // its keys are the tool's
    }
    if (isAnother && !silently) {
        tellTool();
    }
}

void AreaTools::tellTool()
{
    const QString& hint = hints[chosen];
    emit told(chosen == &picker ? hint : tr("%1. By keys: arrows, Space, Enter").arg(hint));
}

void AreaTools::pick()
{
    const bool isTold = tellUnfinished();
    choose(picker, isTold);
}

int AreaTools::draw()
{
    const bool isTold = tellUnfinished();
    growing.reset();
    const int added = drawer.begin();
    growing = drawer.lastOnPage();
    if (added >= 0) {
        choose(drawer, isTold);
    }
    return added;
}

// What is drawn may be gone, or another one may be the page's last: to that nobody meant to add
// corners.
void AreaTools::areasCameOrWent()
{
    if (chosen != &drawer || !growing || growing == drawer.lastOnPage()) {
        return;
    }
    const bool isUnfinished = drawer.unfinished() != AreaId::none;
    if (isUnfinished) {  // behind what is told of the command that has done it
        const QString text = unfinishedText();
        QTimer::singleShot(0, this, [this, text] { emit told(text); });
    }
    choose(picker, isUnfinished);
}

// It stays: it may be wanted for its name, and can be given corners.
bool AreaTools::tellUnfinished()
{
    const bool isUnfinished = chosen == &drawer && drawer.unfinished() != AreaId::none;
    if (isUnfinished) {
        emit told(unfinishedText());
    }
    return isUnfinished;
}

QString AreaTools::unfinishedText() const
{
    return tr("The area \"%1\" has fewer than three corners. The pen will not find it.")
        .arg(nameOf(drawer.unfinished()));
}

// What is being dragged or proposed belongs to the page it was begun on.
void AreaTools::pageShown()
{
    const PageId page = document.pageAt(document.currentPage());
    if (std::exchange(lastPage, page) == page) {
        return;
    }
    growing = drawer.lastOnPage();
    if (chosen == &drawer) {
        tellGoingOn();
    } else {
        chosen->stop();
        shownPage.showTool();
    }
}

// Intended: corners are added on whatever page is shown. So that nobody does it unawares, it is
// told.
void AreaTools::tellGoingOn()
{
    QStringList sentences;
    if (drawer.isElsewhere() && drawer.unfinished() != AreaId::none) {
        sentences << unfinishedText();
    }
    const AreaId grows = drawer.lastOnPage();
    sentences << (grows == AreaId::none
                      ? tr("This page has no area to draw. \"+\" begins one.")
                      : tr("Clicks now add corners to \"%1\", the last area of this page.")
                            .arg(nameOf(grows)));
    sentences << tr("\"%1\" ends drawing.").arg(QChar(0x2196));
    emit told(sentences.join(' '));
}

void AreaTools::otherAreaGrew(AreaId area)
{
    emit told(tr("\"%1\", which was there before, has one more corner. Undo takes it back.")
                  .arg(nameOf(area)));
}

QString AreaTools::nameOf(AreaId area) const
{
    const Contents::Place place = document.placeOf(area);
    const Oid::PICTURE& page = document.project().pictures[static_cast<std::size_t>(place.page)];
    return QString::fromStdString(page.polys[static_cast<std::size_t>(place.index)].name);
}

void AreaTools::areaMade(AreaId area)
{
    if (chosen != &magic) {  // with which one goes on to the next colour
        choose(picker);
    }
    const Contents::Place place = document.placeOf(area);
    document.select(place.page, place.index);
    nameField.setFocus();
    nameField.selectAll();
}

void AreaTools::makingGivenUp()
{
    pick();
}

void AreaTools::tooFewCorners(AreaId area)
{
    emit told(tr("The area \"%1\" needs three corners.").arg(nameOf(area)));
}

void AreaTools::areaProposed(bool found, int tolerance)
{
    emit told(found ? tr("Enter takes the area, the wheel changes the tolerance: %1").arg(tolerance)
                    : tr("There is no picture here."));
}

void AreaTools::proposalEnded()
{
    emit told(QString());
}
