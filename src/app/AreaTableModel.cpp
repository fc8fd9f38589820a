#include "app/AreaTableModel.h"

#include "document/Splice.h"

#include <QIcon>

#include <algorithm>

namespace {

constexpr int kLargestReadableOid = 15000;

bool hasFewCorners(const Oid::POLY& area)
{
    return area.points.size() < 3;
}

}  // namespace

AreaTableModel::AreaTableModel(Document& shown, QObject* parent)
    : QAbstractTableModel(parent), document(shown)
{
    connect(&document, &Document::changed, this, &AreaTableModel::showChange);
    showRows();
}

void AreaTableModel::setScriptNames(std::unordered_set<std::string> names)
{
    scriptNames = std::move(names);
    tellAll(code, warnings);
}

std::vector<AreaTableModel::Row> AreaTableModel::rowsNow() const
{
    std::vector<Row> now;
    const auto& pictures = document.project().pictures;
    for (int onPage = 0; onPage < static_cast<int>(pictures.size()); ++onPage) {
        int index = 0;
        for (const Oid::POLY& area : pictures[static_cast<std::size_t>(onPage)].polys) {
            now.push_back({document.areaAt(onPage, index++), onPage, hasFewCorners(area)});
        }
    }
    return now;
}

AreaId AreaTableModel::areaOf(int row) const
{
    const bool exists = row >= 0 && row < static_cast<int>(rows.size());
    return exists ? rows[static_cast<std::size_t>(row)].area : AreaId::none;
}

int AreaTableModel::rowOf(AreaId area) const
{
    const auto found = places.find(area);
    return found != places.end() ? found->second : -1;
}

int AreaTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int AreaTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

const Oid::POLY* AreaTableModel::areaAt(int row) const
{
    const Contents::Place place = document.placeOf(areaOf(row));
    return place.page < 0 ? nullptr
                          : &document.project()
                                 .pictures[static_cast<std::size_t>(place.page)]
                                 .polys[static_cast<std::size_t>(place.index)];
}

int AreaTableModel::numberOf(const Oid::POLY& area) const
{
    const auto entry = document.project().oids.find(area.name);
    return entry != document.project().oids.end() ? entry->second.oid : 0;
}

QStringList AreaTableModel::warningsOf(const Oid::POLY& area) const
{
    QStringList all;
    if (hasFewCorners(area)) {
        all << tr("Fewer than three corners");
    }
    if (!hasCode(area)) {
        all << tr("Not in the script");
    }
    if (numberOf(area) > kLargestReadableOid) {
        all << tr("Number above 15000: not known to the pen");
    }
    return all;
}

QVariant AreaTableModel::data(const QModelIndex& index, int role) const
{
    const Oid::POLY* const area = index.isValid() ? areaAt(index.row()) : nullptr;
    if (area == nullptr) {
        return {};
    }
    // At the name it is in sight, however narrow the list is.
    if (role == Qt::DecorationRole && (index.column() == name || index.column() == warnings)) {
        static const QIcon icon(":/icons/warning.svg");
        return warningsOf(*area).isEmpty() ? QVariant() : icon;
    }
    const bool wanted = role == Qt::DisplayRole || role == Qt::EditRole || role == kSortRole ||
                        role == Qt::ToolTipRole;
    return wanted ? shown(index.row(), index.column(), role) : QVariant();
}

QVariant AreaTableModel::shown(int row, int column, int role) const
{
    const Oid::POLY& area = *areaAt(row);
    switch (column) {
    case name:
        return role == Qt::ToolTipRole
                   ? (QStringList(QString::fromStdString(area.name)) + warningsOf(area)).join('\n')
                   : QString::fromStdString(area.name);
    case number:
        return numberOf(area);
    case page:
        return rows[static_cast<std::size_t>(row)].page + 1;
    case code:
        return hasCode(area) ? tr("yes") : tr("no");
    default:
        return warningsOf(area).join(role == Qt::ToolTipRole ? "\n" : ", ");
    }
}

QVariant AreaTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QString titles[] = {tr("Name"), tr("Number"), tr("Page"), tr("Code"), tr("Warnings")};
    return titles[section];
}

Qt::ItemFlags AreaTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == name ? usual | Qt::ItemIsEditable : usual;
}

bool AreaTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const Oid::POLY* const area = areaAt(index.row());
    const bool isName = role == Qt::EditRole && index.column() == name;
    if (!isName || area == nullptr || value.toString().isEmpty()) {
        return false;
    }
    emit renameAsked(QString::fromStdString(area->name), value.toString());
    return true;
}

void AreaTableModel::showChange(const Change& change)
{
    if (change.has(Change::pages) || change.has(Change::areas)) {
        showRows();
    }
    if (change.has(Change::corners)) {
        showFewCorners(change.changed);
    }
    if (change.has(Change::numbers)) {
        tellAll(name, warnings);  // a number is that of all areas of its name
        return;
    }
    if (change.has(Change::names)) {
        for (const AreaId area : change.changed) {
            if (const int row = rowOf(area); row >= 0) {
                emit dataChanged(index(row, name), index(row, warnings));
            }
        }
    }
}

// Of its corners a row shows only whether they are too few: a drag of many areas is no news.
void AreaTableModel::showFewCorners(const std::vector<AreaId>& areas)
{
    for (const AreaId area : areas) {
        const int row = rowOf(area);
        if (row < 0) {
            continue;
        }
        bool& fewCorners = rows[static_cast<std::size_t>(row)].fewCorners;
        if (const bool now = hasFewCorners(*areaAt(row)); now != fewCorners) {
            fewCorners = now;
            emit dataChanged(index(row, name), index(row, warnings));
        }
    }
}

// What came or went is told as a stretch of rows, so that a list stays where it is.
void AreaTableModel::showRows()
{
    const auto same = [](const Row& a, const Row& b) {
        return a.area == b.area && a.page == b.page;
    };
    const std::vector<Row> now = rowsNow();
    const Splice<Row> change = spliceBetween(rows, now, same);
    const auto first = static_cast<int>(change.first);
    if (!change.before.empty()) {
        beginRemoveRows({}, first, first + static_cast<int>(change.before.size()) - 1);
        rows.erase(rows.begin() + first,
                   rows.begin() + first + static_cast<std::ptrdiff_t>(change.before.size()));
        endRemoveRows();
    }
    if (!change.after.empty()) {
        beginInsertRows({}, first, first + static_cast<int>(change.after.size()) - 1);
        rows = now;
        endInsertRows();
    }
    places.clear();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        places[rows[i].area] = static_cast<int>(i);
    }
}

void AreaTableModel::tellAll(int first, int last)
{
    if (!rows.empty()) {
        emit dataChanged(index(0, first), index(rowCount() - 1, last));
    }
}
