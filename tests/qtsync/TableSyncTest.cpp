#include "qtsync/TableSync.h"

#include "qtsync/KVQtCheckboxItemDelegate.h"
#include "qtsync/KVQtComboEnumItemDelegate.h"
#include "qtsync/KVQtNumEdit.h"
#include "qtsync/KVQtNumEditItemDelegate.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTableWidget>
#include <QtTest>

namespace {

struct Animal
{
    KVString name;
    double speed = 0;
    int food = 0;
    int legs = 4;
    bool tame = false;

    bool operator==(const Animal& other) const
    {
        return name == other.name && speed == other.speed && food == other.food &&
               legs == other.legs && tame == other.tame;
    }
};

using Animals = std::vector<Animal>;

enum Column { kName, kSpeed, kFood, kLegs, kTame, kColumns };

void syncAnimal(KVQtSync::TableSync& table, Animal& animal)
{
    table.syncS(animal.name, "Name", "What the pen says");
    table.syncD(animal.speed, "Speed [km/h]");
    table.syncI(animal.food, "Food", "", {"hay", "grass", "corn"});
    table.syncI(animal.legs, "Legs");
    table.syncB(animal.tame, "Tame");
}

void fill(QTableView& view, Animals& animals)
{
    KVQtSync sync(KVQtSync::ToWidgets);
    KVQtSync::TableSync table(sync, &view);
    Animal header;
    syncAnimal(table, header);
    for (Animal& animal : animals) {
        table.nextRow();
        syncAnimal(table, animal);
    }
    table.finish();
}

// Reads all rows, those too that were added since filling.
Animals read(QTableView& view, Animals animals)
{
    KVQtSync sync(KVQtSync::FromWidgets);
    KVQtSync::TableSync table(sync, &view);
    Animal header;
    syncAnimal(table, header);
    while (table.nextRow()) {
        if (animals.size() <= size_t(table.currentRow())) {
            animals.emplace_back();
        }
        syncAnimal(table, animals[size_t(table.currentRow())]);
    }
    return animals;
}

Animals manyAnimals(int count)
{
    Animals animals;
    for (int i = 0; i < count; ++i) {
        Animal animal;
        animal.name.Format("animal %d", i);
        animal.speed = i / 8.0;
        animal.food = i % 3;
        animal.legs = i % 5;
        animal.tame = i % 2 == 1;
        animals.push_back(animal);
    }
    return animals;
}

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

// Both kinds of tables that know header items.
struct Views
{
    QTableWidget widget;
    QStandardItemModel model;
    QTableView view;

    Views() { view.setModel(&model); }
    std::array<QTableView*, 2> both() { return {&widget, &view}; }
};

void clickOn(QTableView& view, const QModelIndex& cell, QPoint offset = {})
{
    view.scrollTo(cell);
    const QPoint place =
        offset.isNull() ? view.visualRect(cell).center() : view.visualRect(cell).topLeft() + offset;
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void typeInto(QTableView& view, const QModelIndex& cell, const QString& text)
{
    view.setCurrentIndex(cell);
    view.edit(cell);
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
}

void chooseFrom(QTableView& view, const QModelIndex& cell, int item)
{
    clickOn(view, cell);
    QAbstractItemView* const list = qobject_cast<QComboBox*>(view.indexWidget(cell))->view();
    const QPoint place = list->visualRect(list->model()->index(item, 0)).topLeft() + QPoint(5, 5);
    QTest::mouseMove(list->viewport(), place);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void switchBox(QTableView& view, const QModelIndex& cell)
{
    QStyleOptionViewItem option;
    option.widget = &view;
    option.rect = view.visualRect(cell);
    const QRect box = KVQtCheckboxItemDelegate::GetCheckboxRect(option);
    clickOn(view, cell, box.center() - option.rect.topLeft());
}

}  // namespace

class TableSyncTest : public QObject
{
    Q_OBJECT

private slots:
    // A click in a list counts only when it is no second click of the one that opened the list.
    void initTestCase() { QApplication::setDoubleClickInterval(0); }

    void init()
    {
        KVQtSync::DocumentIsModified(false);
        KVQtSync::disconnectChangeEventSlot();
    }

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

    // --- records ---

    void everyRecordHasItsRow()
    {
        QTableWidget view;
        Animals animals = manyAnimals(3);
        fill(view, animals);
        QCOMPARE(view.rowCount(), 3);
        QCOMPARE(view.item(2, kName)->text(), QString("animal 2"));
        QCOMPARE(view.item(2, kSpeed)->data(Qt::EditRole), QVariant(0.25));
        QCOMPARE(view.item(2, kFood)->data(Qt::EditRole), QVariant(2));
        QCOMPARE(view.item(2, kTame)->checkState(), Qt::Unchecked);
        QCOMPARE(view.item(1, kTame)->checkState(), Qt::Checked);
    }

    void fillingFewerRecordsRemovesRows()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals animals = manyAnimals(5);
            fill(*view, animals);
            animals.resize(1);
            fill(*view, animals);
            QCOMPARE(view->model()->rowCount(), 1);
            animals.clear();
            fill(*view, animals);
            QCOMPARE(view->model()->rowCount(), 0);
        }
    }

    void anUnchangedTableReadsAsItWasFilled()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals animals = manyAnimals(20);
            fill(*view, animals);
            QVERIFY(read(*view, animals) == animals);
            QVERIFY(!KVQtSync::DocumentIsModified());
        }
    }

    void readingStopsAtTheEndOfTheTable()
    {
        QTableWidget view;
        Animals animals = manyAnimals(2);
        fill(view, animals);
        KVQtSync sync(KVQtSync::FromWidgets);
        KVQtSync::TableSync table(sync, &view);
        QVERIFY(table.nextRow());
        QVERIFY(table.nextRow());
        QVERIFY(!table.nextRow());
        Animal kept;
        kept.name = "kept";
        syncAnimal(table, kept);
        QCOMPARE(QString(kept.name), QString("kept"));
    }

    void theHeaderCanBeginAgain()
    {
        QTableWidget view;
        KVQtSync sync(KVQtSync::ToWidgets);
        KVQtSync::TableSync table(sync, &view);
        QString text = "cow";
        table.syncS(text, "Name");
        table.nextRow();
        table.syncS(text, "Name");
        table.beginHeader();
        table.syncS(text, "Animal");
        QCOMPARE(header(view, 0), QString("Animal"));
        QCOMPARE(view.item(0, 0)->text(), QString("cow"));
    }

    void anInactivePassLeavesTheTableAlone()
    {
        QTableWidget view(1, kColumns);
        const KVQtSync outer(KVQtSync::ToWidgets);
        KVQtSync nested(KVQtSync::ToWidgets);
        KVQtSync::TableSync table(nested, &view);
        Animal animal;
        syncAnimal(table, animal);
        QVERIFY(!table.nextRow());
        syncAnimal(table, animal);
        table._align_current_coloumn(1);
        table.finish();
        QCOMPARE(view.rowCount(), 1);
        QVERIFY(view.item(0, 0) == nullptr);
        QVERIFY(view.itemDelegateForColumn(kTame) == nullptr);
    }

    void fillingAVisibleTableRepaintsIt()
    {
        QTableWidget view;
        Animals animals = manyAnimals(2);
        fill(view, animals);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QImage before = view.viewport()->grab().toImage();
        animals[0].name = "a quite different animal";
        fill(view, animals);
        QVERIFY(view.viewport()->grab().toImage() != before);
    }

    void columnsFitTheirContentsAfterFilling()
    {
        QTableWidget view;
        Animals animals = manyAnimals(2);
        fill(view, animals);
        const int before = view.columnWidth(kName);
        animals[0].name = "an animal with a name of quite some length";
        fill(view, animals);
        QVERIFY(view.columnWidth(kName) > before);
        QVERIFY(view.columnWidth(kName) >=
                view.fontMetrics().horizontalAdvance(QString(animals[0].name)));
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

    // --- a thousand records, edited by the user ---

    void aThousandRecordsAreFilledEditedAndReadBack()
    {
        Views views;
        for (QTableView* view : views.both()) {
            Animals animals = manyAnimals(1000);
            fill(*view, animals);
            QCOMPARE(view->model()->rowCount(), 1000);
            view->show();
            QApplication::setActiveWindow(view);
            Animals expected = animals;
            for (const int row : {0, 499, 999}) {
                Animal& animal = expected[size_t(row)];
                const auto cell = [&](Column column) { return view->model()->index(row, column); };
                typeInto(*view, cell(kName), "hen");
                animal.name = "hen";
                typeInto(*view, cell(kSpeed), "12,25");
                animal.speed = 12.25;
                chooseFrom(*view, cell(kFood), (animal.food + 1) % 3);
                animal.food = (animal.food + 1) % 3;
                typeInto(*view, cell(kLegs), "2");
                animal.legs = 2;
                switchBox(*view, cell(kTame));
                animal.tame = !animal.tame;
            }
            KVQtSync::DocumentIsModified(false);
            QVERIFY(read(*view, animals) == expected);
            QVERIFY(KVQtSync::DocumentIsModified());
            view->hide();
        }
    }

    void aRowThatTheUserAddedBecomesARecord()
    {
        QTableWidget view;
        Animals animals = manyAnimals(2);
        fill(view, animals);
        view.show();
        QApplication::setActiveWindow(&view);
        view.insertRow(2);
        typeInto(view, view.model()->index(2, kName), "hen");
        typeInto(view, view.model()->index(2, kLegs), "2");
        const Animals after = read(view, animals);
        QCOMPARE(after.size(), size_t(3));
        QCOMPARE(QString(after[2].name), QString("hen"));
        QCOMPARE(after[2].legs, 2);
    }
};

QTEST_MAIN(TableSyncTest)
#include "TableSyncTest.moc"
