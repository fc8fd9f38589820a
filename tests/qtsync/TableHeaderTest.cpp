#include "qtsync/KVQtCheckboxItemDelegate.h"
#include "qtsync/KVQtComboEnumItemDelegate.h"
#include "qtsync/KVQtNumEditItemDelegate.h"
#include "tests/qtsync/AnimalTable.h"

#include <QStringListModel>
#include <QtTest>

namespace {

QString header(const QTableView& view, int column, int role = Qt::DisplayRole)
{
    return view.model()->headerData(column, Qt::Horizontal, role).toString();
}

// The header that a column gets when its field is named so.
QString headerFor(const QString& text)
{
    QTableWidget view;
    KVQtSync sync(KVQtSync::ToWidgets);
    QString field;
    KVQtSync::TableSync(sync, &view).syncS(field, text);
    return header(view, 0);
}

}  // namespace

// What TableSync makes of a table's columns: headers, delegates, alignment.
class TableHeaderTest : public QObject
{
    Q_OBJECT

private slots:
    // --- the header ---

    void theHeaderComesFromTheFields()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals none;
            fill(*view, none);
            QCOMPARE(view->model()->columnCount(), int(kColumns));
            QCOMPARE(header(*view, kName), QString("Name"));
            QCOMPARE(header(*view, kTame), QString("Tame"));
        }
    }

    void aUnitStandsOnALineOfItsOwn()
    {
        QCOMPARE(headerFor("Speed [km/h]"), QString("Speed\n[km/h]"));
        QCOMPARE(headerFor("Speed[km/h]"), QString("Speed\n[km/h]"));
        QCOMPARE(headerFor(" Top  speed   [ km/h ]"), QString("Top  speed\n[ km/h ]"));
    }

    void anotherHeaderIsLeftAsItIs()
    {
        for (const char* text :
             {"[x] y", "[km/h]", "Speed", "Speed [km/h] ", "a [b] c", "a]", ""}) {
            QCOMPARE(headerFor(text), QString(text));
        }
    }

    void aTooltipIsSetWhenThereIsOne()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals none;
            fill(*view, none);
            QCOMPARE(header(*view, kName, Qt::ToolTipRole), QString("What the pen says"));
            QVERIFY(!view->model()->headerData(kSpeed, Qt::Horizontal, Qt::ToolTipRole).isValid());
        }
    }

    void theHeaderGrowsTheGridToTwoRowsAndItsColumns()
    {
        QTableWidget view;
        KVQtSync sync(KVQtSync::ToWidgets);
        KVQtSync::TableSync table(sync, &view);
        QCOMPARE(table.currentRow(), -1);
        QString text;
        table.syncS(text, "Name");
        QCOMPARE(view.rowCount(), 2);
        QCOMPARE(view.columnCount(), 1);
        table.syncS(text, "Voice");
        QCOMPARE(view.columnCount(), 2);
        QCOMPARE(table.currentColumn(), 2);
    }

    void readingLeavesTheHeader()
    {
        QTableWidget view(1, 1);
        view.setHorizontalHeaderLabels({"old"});
        KVQtSync sync(KVQtSync::FromWidgets);
        KVQtSync::TableSync table(sync, &view);
        QString text;
        table.syncS(text, "new");
        table.syncS(text, "more");
        QCOMPARE(header(view, 0), QString("old"));
        QCOMPARE(view.columnCount(), 1);
        QCOMPARE(view.rowCount(), 1);
        QCOMPARE(table.currentColumn(), 2);
    }

    void aModelWithoutHeaderItemsKeepsItsHeader()
    {
        QStringListModel model({"cow", "goat"});
        QTableView view;
        view.setModel(&model);
        QString text = "hen";
        KVQtSync sync(KVQtSync::ToWidgets);
        KVQtSync::TableSync table(sync, &view);
        table.syncS(text, "Name");
        table.nextRow();
        table.syncS(text, "Name");
        QCOMPARE(header(view, 0), QString("1"));
        QCOMPARE(model.stringList(), QStringList({"hen", "goat"}));
    }

    // --- delegates ---

    void columnsGetTheDelegatesOfTheirTypes()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals animals = manyAnimals(2);
            fill(*view, animals);
            QVERIFY(view->itemDelegateForColumn(kName) == nullptr);
            QVERIFY(qobject_cast<KVQtNumEditItemDelegate*>(view->itemDelegateForColumn(kSpeed)));
            QVERIFY(view->itemDelegateForColumn(kLegs) == nullptr);
            QVERIFY(qobject_cast<KVQtCheckboxItemDelegate*>(view->itemDelegateForColumn(kTame)));
            auto* const food =
                qobject_cast<KVQtComboEnumItemDelegate*>(view->itemDelegateForColumn(kFood));
            QVERIFY(food != nullptr);
            QCOMPARE(food->getItemString(1), QString("grass"));
        }
    }

    void aDelegateOfTheKindStays()
    {
        QTableWidget view;
        Animals animals = manyAnimals(2);
        fill(view, animals);
        const QList<QAbstractItemDelegate*> before = {view.itemDelegateForColumn(kSpeed),
                                                      view.itemDelegateForColumn(kFood),
                                                      view.itemDelegateForColumn(kTame)};
        fill(view, animals);
        const QList<QAbstractItemDelegate*> after = {view.itemDelegateForColumn(kSpeed),
                                                     view.itemDelegateForColumn(kFood),
                                                     view.itemDelegateForColumn(kTame)};
        QCOMPARE(after, before);
    }

    void aDelegateOfAnotherKindIsReplaced()
    {
        QTableWidget view(2, kColumns);
        QStyledItemDelegate other;
        view.setItemDelegateForColumn(kSpeed, &other);
        Animals none;
        fill(view, none);
        QVERIFY(qobject_cast<KVQtNumEditItemDelegate*>(view.itemDelegateForColumn(kSpeed)));
    }

    // --- alignment ---

    void aColumnIsAlignedBelowItsFirstRow()
    {
        const int centred = int(Qt::AlignHCenter | Qt::AlignVCenter);
        const std::map<int, int> expected = {{-1, int(Qt::AlignLeft | Qt::AlignVCenter)},
                                             {0, centred},
                                             {1, int(Qt::AlignRight | Qt::AlignVCenter)},
                                             {2, centred},
                                             {-2, centred}};
        for (const auto& [kind, alignment] : expected) {
            QTableWidget view(3, 2);
            KVQtSync sync(KVQtSync::ToWidgets);
            KVQtSync::TableSync table(sync, &view);
            QString text;
            table.syncS(text, "Name");
            table._align_current_coloumn(kind);
            QVERIFY(view.item(0, 0) == nullptr);
            QCOMPARE(view.item(0, 1)->textAlignment(), centred);
            QCOMPARE(view.item(1, 1)->textAlignment(), alignment);
            QCOMPARE(view.item(2, 1)->textAlignment(), alignment);
        }
    }

    void readingAlignsNothing()
    {
        QTableWidget view(3, 2);
        KVQtSync sync(KVQtSync::FromWidgets);
        KVQtSync::TableSync(sync, &view)._align_current_coloumn(1);
        QVERIFY(view.item(0, 0) == nullptr);
    }
};

QTEST_MAIN(TableHeaderTest)
#include "TableHeaderTest.moc"
