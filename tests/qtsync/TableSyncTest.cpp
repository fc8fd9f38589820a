#include "qtsync/KVQtCheckboxItemDelegate.h"
#include "tests/qtsync/AnimalTable.h"

#include <QComboBox>
#include <QtTest>

namespace {

QString header(const QTableView& view, int column)
{
    return view.model()->headerData(column, Qt::Horizontal).toString();
}

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
