#include "app/RenameEverywhere.h"

#include "app/StorableName.h"
#include "app/SubNameNote.h"

#include <QAction>
#include <QLineEdit>
#include <QMessageBox>

#include <set>

RenameEverywhere::RenameEverywhere(Document& renamed, KVQtHighlightEditCtrlInlay& script,
                                   QWidget* pageWidget)
    : QObject(pageWidget),
      document(renamed),
      page(pageWidget),
      renames(renamed, script),
      renameAction(new QAction(tr("Rename &everywhere..."), this))
{
    renameAction->setObjectName("actionRenameEverywhere");
    renameAction->setShortcut(QKeySequence(Qt::Key_F2));
    renameAction->setShortcutContext(Qt::WidgetShortcut);
    renameAction->setToolTip(tr("Changes the name on all pages and in the script"));
    page->addAction(renameAction);
    const auto enable = [this] {
        renameAction->setEnabled(document.selectedArea() != AreaId::none);
    };
    connect(&document, &Document::changed, this, enable);
    enable();
    connect(renameAction, &QAction::triggered, this, &RenameEverywhere::ask);
    connect(&renames, &SharedRenames::scriptKept, this, [this](const QString& name) {
        emit told(tr("The script keeps the name \"%1\": both names stand there now.").arg(name));
    });
}

QString RenameEverywhere::selectedName() const
{
    const Contents::Place place = document.placeOf(document.selectedArea());
    const Oid::PICTURE& picture = document.project().pictures[static_cast<std::size_t>(place.page)];
    return QString::fromStdString(picture.polys[static_cast<std::size_t>(place.index)].name);
}

void RenameEverywhere::ask()
{
    if (document.selectedArea() != AreaId::none) {
        askFor(selectedName());
    }
}

void RenameEverywhere::askFor(const QString& before)
{
    document.endGesture();
    const std::string from = before.toStdString();
    RenameDialog dialog(page->window(), before, placesOf(from),
                        [&](const QString& name) { return judge(from, name); });
    new StorableName(&dialog.field());
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    give(before, dialog.name());
}

void RenameEverywhere::give(const QString& before, const QString& name)
{
    const std::string from = before.toStdString();
    const RenameDialog::Verdict verdict = judge(from, name);
    if (!verdict.isPossible) {
        emit told(verdict.note);
    } else if (name == before) {
        return;
    } else if (!isTaken(name.toStdString()) || mayJoin(name)) {
        renames.rename(from, name.toStdString());
        emit told(tr("\"%1\" is \"%2\" everywhere now.").arg(before, name));
    }
}

// "Areas: 3 (pages: 1, 2)" and "Places in the script: 2".
QString RenameEverywhere::placesOf(const std::string& name) const
{
    const std::vector<AreaId> areas = renames.areasOf(name);
    std::set<int> pages;
    for (const AreaId area : areas) {
        pages.insert(document.placeOf(area).page + 1);
    }
    QStringList numbers;
    for (const int number : pages) {
        numbers << QString::number(number);
    }
    QString places = tr("Places in the script: %1").arg(renames.placesOf(name).size());
    if (areas.empty()) {
        return places;
    }
    return tr("Areas: %1 (pages: %2)").arg(areas.size()).arg(numbers.join(", ")) + '\n' + places;
}

// Two subs of one name would be an error of the script.
RenameDialog::Verdict RenameEverywhere::judge(const std::string& from, const QString& name) const
{
    const std::string to = name.toStdString();
    if (to == from) {
        return {};
    }
    if (!SubNameNote::isPossible(name)) {
        return {false, SubNameNote::problemOf(name)};
    }
    if (renames.hasSub(to) && renames.hasSub(from)) {
        return {false,
                tr("The script has a sub of this name already, and can have only one. Choose "
                   "another name.")};
    }
    if (isTaken(to)) {
        return {true, tr("This name is taken already.") + '\n' + placesOf(to)};
    }
    return {true, SubNameNote::problemOf(name)};
}

bool RenameEverywhere::isTaken(const std::string& name) const
{
    return !renames.areasOf(name).empty() || !renames.placesOf(name).empty();
}

bool RenameEverywhere::mayJoin(const QString& name)
{
    const QString question =
        tr("The name \"%1\" is taken already. The areas would share one number "
           "and one sub. Rename?")
            .arg(name);
    return QMessageBox::question(page->window(), tr("Rename everywhere"),
                                 question + '\n' + placesOf(name.toStdString()),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}
