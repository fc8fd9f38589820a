#include "qtsync/KVQtComboEnumItemDelegate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

namespace {

// Three rows of one cell with the delegate, which offers "cow", "goat" and "hen".
struct Column
{
    QStandardItemModel model{3, 1};
    KVQtComboEnumItemDelegate delegate{{"cow", "goat", "hen"}};
    QTableView view;

    explicit Column(const QVariant& value = 1)
    {
        for (int row = 0; row < 3; ++row) {
            model.setData(model.index(row, 0), value);
        }
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.show();
        QApplication::setActiveWindow(&view);
    }

    QModelIndex cell(int row = 0) const { return model.index(row, 0); }
    QVariant value(int row = 0) const { return cell(row).data(Qt::EditRole); }
    QComboBox* editor(int row = 0) const
    {
        return qobject_cast<QComboBox*>(view.indexWidget(cell(row)));
    }
    bool listIsOpen(int row = 0) const
    {
        return editor(row) != nullptr && editor(row)->view()->isVisible();
    }
    void click(int row = 0, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view.viewport(), button, Qt::NoModifier,
                          view.visualRect(cell(row)).center());
    }
    void choose(int item, int row = 0) const
    {
        QAbstractItemView* const list = editor(row)->view();
        const QPoint place =
            list->visualRect(list->model()->index(item, 0)).topLeft() + QPoint(5, 5);
        QTest::mouseMove(list->viewport(), place);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    QImage painted(QSize size = {120, 30}) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = image.rect();
        delegate.paint(&painter, option, cell());
        return image;
    }
};

}  // namespace

class ComboEnumItemDelegateTest : public QObject
{
    Q_OBJECT

private slots:
    // A click in a list counts only when it is no second click of the one that opened the list.
    void initTestCase() { QApplication::setDoubleClickInterval(0); }

    void aValueStandsForTheTextAtItsPlace()
    {
        const KVQtComboEnumItemDelegate delegate({"cow", "goat", "hen"});
        QCOMPARE(delegate.getItemString(0), QString("cow"));
        QCOMPARE(delegate.getItemString(2), QString("hen"));
        QCOMPARE(delegate.getItemString("1"), QString("goat"));
        QCOMPARE(delegate.displayText(1, QLocale()), QString("goat"));
    }

    void aValueOutsideTheListHasAnEmptyText()
    {
        const KVQtComboEnumItemDelegate delegate({"cow", "goat", "hen"});
        QCOMPARE(delegate.getItemString(-1), QString());
        QCOMPARE(delegate.getItemString(3), QString());
        QCOMPARE(delegate.displayText(-1, QLocale()), QString());
        QCOMPARE(KVQtComboEnumItemDelegate({}).getItemString(0), QString());
    }

    void theEditorIsAComboBoxWithAllTexts()
    {
        Column column(2);
        column.view.edit(column.cell());
        QVERIFY(column.editor() != nullptr);
        QCOMPARE(column.editor()->count(), 3);
        QCOMPARE(column.editor()->itemText(0), QString("cow"));
        QCOMPARE(column.editor()->itemText(2), QString("hen"));
        QCOMPARE(column.editor()->currentIndex(), 2);
        QVERIFY(!column.listIsOpen());
    }

    void openingTheEditorChangesNoValue()
    {
        Column column(2);
        QSignalSpy changes(&column.model, &QAbstractItemModel::dataChanged);
        column.view.edit(column.cell());
        QCOMPARE(changes.count(), 0);
        QCOMPARE(column.value(), QVariant(2));
    }

    void aValueOutsideTheListOpensWithoutSelection()
    {
        for (const int value : {-1, 3}) {
            Column column(value);
            column.click();
            QCOMPARE(column.editor()->currentIndex(), -1);
            QCOMPARE(column.editor()->currentText(), QString());
            QCOMPARE(column.value(), QVariant(value));
        }
    }

    void theEditorTakesTheCellsRectangle()
    {
        Column column;
        column.view.edit(column.cell());
        QCOMPARE(column.editor()->geometry(), column.view.visualRect(column.cell()));
    }

    void oneClickOpensTheList()
    {
        Column column;
        column.click();
        QVERIFY(column.listIsOpen());
        QCOMPARE(column.view.currentIndex(), column.cell());
        QCOMPARE(column.editor()->currentIndex(), 1);
    }

    void aClickMakesItsCellCurrentFirst()
    {
        Column column;
        column.view.setCurrentIndex(column.cell(2));
        column.click(1);
        QCOMPARE(column.view.currentIndex(), column.cell(1));
        QVERIFY(column.listIsOpen(1));
    }

    void onlyTheReleaseOfTheLeftButtonOpensTheList()
    {
        Column column;
        column.click(0, Qt::RightButton);
        QCOMPARE(column.editor(), nullptr);
        QTest::mousePress(column.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          column.view.visualRect(column.cell()).center());
        QCOMPARE(column.editor(), nullptr);
    }

    void theReleaseIsConsumedInAnItemViewOnly()
    {
        Column column;
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QStyleOptionViewItem option;
        QVERIFY(!column.delegate.editorEvent(&release, &column.model, option, column.cell()));
        option.widget = &column.view;
        QVERIFY(column.delegate.editorEvent(&release, &column.model, option, column.cell()));
    }

    void aClickOnACellThatCannotBeEditedDoesNotOpenTheNextOne()
    {
        Column column;
        column.model.item(0)->setEditable(false);
        QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
        column.click(0);
        QCOMPARE(column.editor(), nullptr);
        column.view.edit(column.cell(1));
        QVERIFY(column.editor(1) != nullptr);
        QVERIFY(!column.listIsOpen(1));
    }

    void choosingAnEntryStoresItsIndexAtOnce()
    {
        Column column(1);
        column.click();
        column.choose(2);
        QCOMPARE(column.value(), QVariant(2));
        QCOMPARE(column.value().type(), QVariant::Int);
        QCOMPARE(column.value(1), QVariant(1));
        QCOMPARE(column.editor()->currentText(), QString("hen"));
    }

    void anEntryIsChosenWithTheKeyboard()
    {
        Column column(1);
        column.view.edit(column.cell());
        QTest::keyClick(column.editor(), Qt::Key_Down);
        QCOMPARE(column.value(), QVariant(2));
        QTest::keyClick(column.editor(), Qt::Key_Up);
        QTest::keyClick(column.editor(), Qt::Key_Up);
        QCOMPARE(column.value(), QVariant(0));
    }

    void theListOpensByAClickAfterAnEntryWasChosenElsewhere()
    {
        Column column(1);
        column.click(0);
        column.choose(0);
        column.click(1);
        QVERIFY(column.listIsOpen(1));
        column.choose(2, 1);
        QCOMPARE(column.value(0), QVariant(0));
        QCOMPARE(column.value(1), QVariant(2));
    }

    void anEditorOfAnotherKindIsLeftToTheBaseClass()
    {
        Column column("cow");
        QLineEdit editor;
        column.delegate.setEditorData(&editor, column.cell());
        QCOMPARE(editor.text(), QString("cow"));
        editor.setText("goat");
        column.delegate.setModelData(&editor, &column.model, column.cell());
        QCOMPARE(column.value(), QVariant("goat"));
    }

    void aCellLooksLikeAComboBoxWithItsText()
    {
        Column column(0);
        const QImage cow = column.painted();
        column.model.setData(column.cell(), 1);
        const QImage goat = column.painted();
        column.model.setData(column.cell(), -1);
        const QImage none = column.painted();
        QImage white(none.size(), none.format());
        white.fill(Qt::white);
        QVERIFY(cow != goat);
        QVERIFY(cow != none);
        QVERIFY(none != white);

        QComboBox box;
        QStyleOptionComboBox option;
        option.initFrom(&column.view);
        option.rect = none.rect();
        QImage control(none.size(), none.format());
        control.fill(Qt::white);
        QPainter painter(&control);
        column.view.style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter,
                                                &column.view);
        painter.end();
        QCOMPARE(none, control);
    }
};

QTEST_MAIN(ComboEnumItemDelegateTest)
#include "ComboEnumItemDelegateTest.moc"
