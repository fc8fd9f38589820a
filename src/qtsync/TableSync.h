#pragma once

#include "qtsync/KVQtSync.h"

class QTableView;

// A table with one row per record and one column per field. One routine names the fields of a
// record, and the same routine makes the header (with a record that only lends its type):
//
//   template <class Table> void syncAnimal(Table& table, Animal& animal)
//   {
//       table.syncS(animal.name, "Name", "What the pen says");
//       table.syncD(animal.speed, "Speed [km/h]");
//       table.syncI(animal.food, "Food", "", {"hay", "fish"});
//       table.syncB(animal.tame, "Tame");
//   }
//
//   KVQtSync sync(mode);
//   KVQtSync::TableSync table(sync, ui->tableView);
//   syncAnimal(table, header);
//   for (Animal& animal : animals) {
//       table.nextRow();
//       syncAnimal(table, animal);
//   }
//   table.finish();
//
// When the user may add rows, reading goes "while (table.nextRow())" and makes a record for each.
class KVQtSync::TableSync
{
public:
    // Begins with the header. Owner and view must outlive this object.
    TableSync(KVQtSync& owner, QTableView* view);

    // --- from record to record ---

    void beginHeader();
    // Goes to the next record's row, which filling adds when it is missing. False when reading has
    // come to the end of the table, and always in an inactive pass.
    bool nextRow();
    // After the last record: filling then removes the rows behind it and fits the columns to their
    // contents.
    void finish();
    int currentRow() const { return row; }  // -1: the header
    int currentColumn() const { return column; }

    // --- fields, in the order of the columns ---

    void syncS(KVString& text, const QString& header, const QString& tooltip = {});
    void syncS(QString& text, const QString& header, const QString& tooltip = {});
    // With item texts, the cells show and offer these instead of the numbers from 0.
    void syncI(int& value, const QString& header, const QString& tooltip = {},
               const QStringList& itemTexts = {});
    void syncB(bool& value, const QString& header, const QString& tooltip = {});
    void syncD(double& value, const QString& header, const QString& tooltip = {});

    // Filling aligns every row of the current column: the first one centred, the others to the left
    // (kind -1), to the right (1) or centred; all of them vertically centred.
    void _align_current_coloumn(int kind);

private:
    bool atHeader() const { return row < 0; }
    void _add_header(const QString& header, const QString& tooltip);
    void _grow_grid();
    void setHeaderItem(const QString& text, const QString& tooltip);
    void _set_combo_delegate(const QStringList& itemTexts);
    void _set_checkbox_delegate();
    void _set_double_delegate();
    void _resize_table_columns();
    // Ends a field that was synchronised: repaints, since the model told nobody, and goes on.
    void advance();

    KVQtSync& sync;
    QTableView* table;
    int row = -1;
    int column = 0;
};
