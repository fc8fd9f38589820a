#include "qtsync/KVQtSync.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QtTest>

namespace {

constexpr int kRightAligned = int(Qt::AlignRight | Qt::AlignVCenter);

// Every operation works on cell (1, 2).
class Cell
{
public:
    QStandardItemModel model{2, 3};

    QVariant value(int role = Qt::EditRole) const { return model.index(1, 2).data(role); }
    void set(const QVariant& value, int role = Qt::EditRole)
    {
        model.setData(model.index(1, 2), value, role);
    }
};

}  // namespace

class SyncGridTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KVQtSync::DocumentIsModified(false); }

    void aTextIsWrittenAndRead()
    {
        Cell cell;
        QString text = "cow";
        KVQtSync(KVQtSync::ToWidgets).gridS(text, &cell.model, 1, 2);
        QCOMPARE(cell.value(), QVariant("cow"));
        KVQtSync(KVQtSync::FromWidgets).gridS(text, &cell.model, 1, 2);
        QVERIFY(!KVQtSync::DocumentIsModified());
        cell.set("goat");
        KVQtSync(KVQtSync::FromWidgets).gridS(text, &cell.model, 1, 2);
        QCOMPARE(text, QString("goat"));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void aKVStringIsWrittenAndRead()
    {
        Cell cell;
        KVString text("cow");
        KVQtSync(KVQtSync::ToWidgets).gridS(text, &cell.model, 1, 2);
        QCOMPARE(cell.value(), QVariant("cow"));
        cell.set(QString::fromUtf8("K\xC3\xBChe"));
        KVQtSync(KVQtSync::FromWidgets).gridS(text, &cell.model, 1, 2);
        QCOMPARE(QString(text), QString::fromUtf8("K\xC3\xBChe"));
    }

    void anIntegerIsWrittenAndRead()
    {
        Cell cell;
        int value = 42;
        KVQtSync(KVQtSync::ToWidgets).gridI(value, &cell.model, 1, 2);
        QCOMPARE(cell.value(), QVariant(42));
        KVQtSync(KVQtSync::FromWidgets).gridI(value, &cell.model, 1, 2);
        QVERIFY(!KVQtSync::DocumentIsModified());
        cell.set("43");
        KVQtSync(KVQtSync::FromWidgets).gridI(value, &cell.model, 1, 2);
        QCOMPARE(value, 43);
        QCOMPARE(cell.value(), QVariant(43));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void aDoubleIsWrittenAndRead()
    {
        Cell cell;
        double value = 1.0 / 3;
        KVQtSync(KVQtSync::ToWidgets).gridD(value, &cell.model, 1, 2);
        QCOMPARE(cell.value(), QVariant(1.0 / 3));
        KVQtSync(KVQtSync::FromWidgets).gridD(value, &cell.model, 1, 2);
        QVERIFY(!KVQtSync::DocumentIsModified());
        cell.set("12.5");
        KVQtSync(KVQtSync::FromWidgets).gridD(value, &cell.model, 1, 2);
        QCOMPARE(value, 12.5);
        QCOMPARE(cell.value(), QVariant(12.5));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void aDamagedNumberReadsAsZeroAndShowsIt()
    {
        Cell cell;
        cell.set("12,5");
        double value = 5;
        KVQtSync(KVQtSync::FromWidgets).gridD(value, &cell.model, 1, 2);
        QCOMPARE(value, 0.0);
        QCOMPARE(cell.value(), QVariant(0.0));
        cell.set("cow");
        int number = 5;
        KVQtSync(KVQtSync::FromWidgets).gridI(number, &cell.model, 1, 2);
        QCOMPARE(number, 0);
        QCOMPARE(cell.value(), QVariant(0));
    }

    void numbersAreAlignedToTheRightInBothDirections()
    {
        for (const auto mode : {KVQtSync::ToWidgets, KVQtSync::FromWidgets}) {
            Cell integers;
            int value = 42;
            KVQtSync(mode).gridI(value, &integers.model, 1, 2);
            QCOMPARE(integers.value(Qt::TextAlignmentRole).toInt(), kRightAligned);
            Cell doubles;
            double number = 42;
            KVQtSync(mode).gridD(number, &doubles.model, 1, 2);
            QCOMPARE(doubles.value(Qt::TextAlignmentRole).toInt(), kRightAligned);
        }
    }

    void aBooleanIsTheCheckState()
    {
        Cell cell;
        bool value = true;
        KVQtSync(KVQtSync::ToWidgets).gridB(value, &cell.model, 1, 2);
        QCOMPARE(cell.model.item(1, 2)->checkState(), Qt::Checked);
        KVQtSync(KVQtSync::FromWidgets).gridB(value, &cell.model, 1, 2);
        QVERIFY(value);
        QVERIFY(!KVQtSync::DocumentIsModified());
        cell.model.item(1, 2)->setCheckState(Qt::Unchecked);
        KVQtSync(KVQtSync::FromWidgets).gridB(value, &cell.model, 1, 2);
        QVERIFY(!value);
        QVERIFY(KVQtSync::DocumentIsModified());
        KVQtSync(KVQtSync::ToWidgets).gridB(value, &cell.model, 1, 2);
        QCOMPARE(cell.model.item(1, 2)->checkState(), Qt::Unchecked);
    }

    void theModelOfATableWidgetWorksToo()
    {
        QTableWidget table(2, 3);
        QString text = "cow";
        int number = 42;
        KVQtSync(KVQtSync::ToWidgets).gridS(text, table.model(), 0, 0);
        KVQtSync(KVQtSync::ToWidgets).gridI(number, table.model(), 0, 1);
        QCOMPARE(table.item(0, 0)->text(), QString("cow"));
        QCOMPARE(table.item(0, 1)->text(), QString("42"));
        table.item(0, 0)->setText("goat");
        KVQtSync(KVQtSync::FromWidgets).gridS(text, table.model(), 0, 0);
        QCOMPARE(text, QString("goat"));
    }

    void writingAndReadingSendNoSignals()
    {
        Cell cell;
        QSignalSpy changes(&cell.model, &QAbstractItemModel::dataChanged);
        for (const auto mode : {KVQtSync::ToWidgets, KVQtSync::FromWidgets}) {
            QString text = "7";
            int integer = 8;
            double number = 9;
            bool flag = true;
            KVQtSync(mode).gridS(text, &cell.model, 1, 2);
            KVQtSync(mode).gridI(integer, &cell.model, 1, 2);
            KVQtSync(mode).gridD(number, &cell.model, 1, 2);
            KVQtSync(mode).gridB(flag, &cell.model, 1, 2);
        }
        QCOMPARE(changes.count(), 0);
        QVERIFY(!cell.model.signalsBlocked());
    }

    void anInactivePassTouchesNothing()
    {
        Cell cell;
        const KVQtSync outer(KVQtSync::ToWidgets);
        KVQtSync nested(KVQtSync::ToWidgets);
        QString text = "cow";
        int integer = 1;
        double number = 1;
        bool flag = true;
        nested.gridS(text, &cell.model, 1, 2);
        nested.gridI(integer, &cell.model, 1, 2);
        nested.gridD(number, &cell.model, 1, 2);
        nested.gridB(flag, &cell.model, 1, 2);
        nested.setTableRows(&cell.model, 9);
        nested.growTableRows(&cell.model, 9);
        nested.setTableRows(&cell.model, 0);
        QVERIFY(!cell.value().isValid());
        QVERIFY(!cell.value(Qt::TextAlignmentRole).isValid());
        QCOMPARE(cell.model.rowCount(), 2);
    }

    void aCellOutsideTheModelIsLeftAlone()
    {
        Cell cell;
        QString text = "cow";
        int integer = 1;
        double number = 1;
        bool flag = true;
        for (const auto mode : {KVQtSync::ToWidgets, KVQtSync::FromWidgets}) {
            KVQtSync sync(mode);
            sync.gridS(text, &cell.model, 2, 0);
            sync.gridI(integer, &cell.model, 0, 3);
            sync.gridD(number, &cell.model, -1, 0);
            sync.gridB(flag, &cell.model, 0, -1);
            sync.gridS(text, nullptr, 0, 0);
        }
        QCOMPARE(text, QString("cow"));
        QCOMPARE(integer, 1);
        QCOMPARE(number, 1.0);
        QVERIFY(flag);
        QCOMPARE(cell.model.rowCount(), 2);
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    // --- rows ---

    void rowsAreAddedAndRemovedAtTheEnd()
    {
        QStandardItemModel model(2, 1);
        model.setData(model.index(0, 0), "first");
        model.setData(model.index(1, 0), "second");
        KVQtSync sync(KVQtSync::ToWidgets);
        sync.setTableRows(&model, 4);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.index(1, 0).data().toString(), QString("second"));
        sync.setTableRows(&model, 1);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, 0).data().toString(), QString("first"));
        sync.setTableRows(&model, 0);
        QCOMPARE(model.rowCount(), 0);
        sync.setTableRows(&model, -3);
        QCOMPARE(model.rowCount(), 0);
    }

    void growingNeverRemovesRows()
    {
        QStandardItemModel model(2, 1);
        KVQtSync sync(KVQtSync::ToWidgets);
        sync.growTableRows(&model, 1);
        QCOMPARE(model.rowCount(), 2);
        sync.growTableRows(&model, 5);
        QCOMPARE(model.rowCount(), 5);
    }

    void aRowIsEmptyWhenNoColumnShowsAText()
    {
        QStandardItemModel model(3, 2);
        model.setData(model.index(1, 1), "cow");
        model.setData(model.index(2, 0), "");
        model.setData(model.index(2, 1), "only a hint", Qt::ToolTipRole);
        QVERIFY(KVQtSync::_is_empty_row(&model, 0));
        QVERIFY(!KVQtSync::_is_empty_row(&model, 1));
        QVERIFY(KVQtSync::_is_empty_row(&model, 2));
        QVERIFY(KVQtSync::_is_empty_row(&model, 99));
        model.setData(model.index(0, 0), 0);
        QVERIFY(!KVQtSync::_is_empty_row(&model, 0));
    }
};

QTEST_MAIN(SyncGridTest)
#include "SyncGridTest.moc"
