#pragma once

#include "document/Document.h"

#include <QAbstractTableModel>

#include <string>
#include <unordered_set>
#include <vector>

// All areas of all pages of a document, a row each. Only what a change names is told anew.
class AreaTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { name, number, page, code, warnings, columns };
    // What rows are sorted by.
    static constexpr int kSortRole = Qt::UserRole;

    // The document outlives the model.
    AreaTableModel(Document& document, QObject* parent);

    // Which names of areas the script knows by now; none in the beginning.
    void setScriptNames(std::unordered_set<std::string> names);

    AreaId areaOf(int row) const;
    // -1 for an area that is on no page.
    int rowOf(AreaId area) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Asks for the new name.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    // A name was typed over.
    void renameAsked(const QString& before, const QString& name);

private:
    struct Row
    {
        AreaId area;
        int page;
        bool fewCorners;
    };

    std::vector<Row> rowsNow() const;
    void showChange(const Change& change);
    void showRows();
    void showFewCorners(const std::vector<AreaId>& areas);
    void tellAll(int first, int last);
    const Oid::POLY* areaAt(int row) const;
    int numberOf(const Oid::POLY& area) const;
    bool hasCode(const Oid::POLY& area) const { return scriptNames.count(area.name) > 0; }
    QStringList warningsOf(const Oid::POLY& area) const;
    QVariant shown(int row, int column, int role) const;

    Document& document;
    std::unordered_set<std::string> scriptNames;
    std::vector<Row> rows;
    std::unordered_map<AreaId, int> places;
};
