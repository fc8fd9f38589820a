#include "app/AreaCommands.h"

#include "app/AreaClipboard.h"
#include "document/SelectedAreas.h"
#include "page/PolyEditorWidget.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QUuid>

#include <utility>

AreaCommands::AreaCommands(Document& edited, PolyEditorWidget& shown, Tell say, QObject* parent)
    : QObject(parent),
      document(edited),
      page(shown),
      tell(std::move(say)),
      windowMark(QUuid::createUuid().toByteArray(QUuid::WithoutBraces))
{
    addActions();
    connect(&document, &Document::changed, this, &AreaCommands::updateActions);
    updateActions();
}

void AreaCommands::addActions()
{
    forSelected.push_back(add("actionCutAreas", tr("Cu&t"),
                              tr("Takes the selected areas to the clipboard"), "Ctrl+X",
                              &AreaCommands::cut));
    forSelected.push_back(add("actionCopyAreas", tr("&Copy"),
                              tr("Copies the selected areas to the clipboard"), "Ctrl+C",
                              &AreaCommands::copy));
    forPage.push_back(
        add("actionPasteAreas", tr("&Paste"),
            tr("Brings the areas on the clipboard onto this page: under their names, which are "
               "counted up on the page that they come from"),
            "Ctrl+V", &AreaCommands::paste));
    forSelected.push_back(add("actionDuplicateAreas", tr("D&uplicate"),
                              tr("Copies the selected areas beside themselves"), "Ctrl+D",
                              &AreaCommands::duplicate));
    forSelected.push_back(add("actionDeleteAreas", tr("&Delete"), tr("Deletes the selected areas"),
                              "Del", &AreaCommands::remove));
    addSeparator();
    const QString first = tr("Where areas overlap, the one that comes first speaks");
    forSelected.push_back(add("actionBringForward", tr("Bring &forward"), first, "Ctrl+PgUp",
                              &AreaCommands::bringForward));
    forSelected.push_back(add("actionSendBackward", tr("Send &backward"), first, "Ctrl+PgDown",
                              &AreaCommands::sendBackward));
    addSeparator();
    forPage.push_back(add("actionSelectAllAreas", tr("Select &all"),
                          tr("Selects all areas of the page"), "Ctrl+A", &AreaCommands::selectAll));
}

void AreaCommands::addSeparator()
{
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    page.addAction(separator);
}

// The keys belong to the page alone: in a field they are the field's.
QAction* AreaCommands::add(const char* name, const QString& text, const QString& tip,
                           const char* key, void (AreaCommands::*command)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setToolTip(tip);
    action->setShortcut(QKeySequence(key));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, command);
    page.addAction(action);
    return action;
}

void AreaCommands::updateActions()
{
    const bool anySelected = document.selectedArea() != AreaId::none;
    for (QAction* const action : forSelected) {
        action->setEnabled(anySelected);
    }
    const bool anyPage = document.pageAt(document.currentPage()) != PageId::none;
    for (QAction* const action : forPage) {
        action->setEnabled(anyPage);
    }
}

QByteArray AreaCommands::pageMark() const
{
    const auto number = static_cast<quint64>(document.pageAt(document.currentPage()));
    return windowMark + '/' + QByteArray::number(number);
}

void AreaCommands::copyAreas()
{
    AreaClipboard copied;
    copied.page = pageMark();
    for (const AreaId area : document.selectedAreas()) {
        const auto index = static_cast<std::size_t>(document.placeOf(area).index);
        copied.areas.push_back(page.picture()->polys[index]);
    }
    auto* const data = new QMimeData;
    data->setData(AreaClipboard::kMimeType, copied.toText());
    QApplication::clipboard()->setMimeData(data);
}

void AreaCommands::copy()
{
    const auto count = document.selectedAreas().size();
    copyAreas();
    tell(tr("Areas copied: %1").arg(count));
}

void AreaCommands::cut()
{
    const auto count = document.selectedAreas().size();
    copyAreas();
    removeSelectedAreas(document);
    tell(tr("Areas cut: %1").arg(count));
}

void AreaCommands::paste()
{
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    if (data == nullptr || !data->hasFormat(AreaClipboard::kMimeType)) {
        tell(tr("The clipboard holds no areas."));
        return;
    }
    int brokenLine = 0;
    const AreaClipboard pasted =
        AreaClipboard::fromText(data->data(AreaClipboard::kMimeType), brokenLine);
    if (brokenLine > 0) {
        tell(tr("The areas on the clipboard cannot be read: line %1 is not as it should be.")
                 .arg(brokenLine));
        return;
    }
    pasteAreas(document, pasted.areas, pasted.page == pageMark());
    tell(tr("Areas pasted: %1").arg(pasted.areas.size()));
}

void AreaCommands::duplicate()
{
    duplicateSelectedAreas(document);
}

void AreaCommands::remove()
{
    removeSelectedAreas(document);
}

void AreaCommands::reorder(bool forward)
{
    reorderSelectedAreas(document, forward);
    const auto index = static_cast<std::size_t>(document.selectedIndex());
    const std::vector<Oid::POLY>& areas = page.picture()->polys;
    tell(tr("%1 is area %2 of %3. Where areas overlap, the one that comes first speaks.")
             .arg(QString::fromStdString(areas[index].name))
             .arg(index + 1)
             .arg(areas.size()));
}

void AreaCommands::selectAll()
{
    selectAllAreas(document);
}
