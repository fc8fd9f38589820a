#include "qtsync/KVQtNumEditItemDelegate.h"

#include "qtsync/KVQtNumEdit.h"
#include "tests/helpers/Locales.h"

#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

namespace {

// One cell with the delegate, ready for clicks and keys.
struct OneCell
{
    QStandardItemModel model{1, 1};
    KVQtNumEditItemDelegate delegate;
    QTableView view;
    QModelIndex index = model.index(0, 0);

    explicit OneCell(const QVariant& value)
    {
        model.setData(index, value);
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.show();
        QApplication::setActiveWindow(&view);
        view.setCurrentIndex(index);
        view.setFocus();
    }

    KVQtNumEdit* editor() const { return view.findChild<KVQtNumEdit*>(); }

    void typeIntoEditor(const QString& keys)
    {
        view.edit(index);
        QTest::keyClicks(editor(), keys);
        confirm();
    }

    // The view stores the number when it comes back to the event loop.
    void confirm() const
    {
        QTest::keyClick(editor(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

}  // namespace

class NumEditItemDelegateTest : public QObject
{
    Q_OBJECT

private slots:
    void theEditorIsANumEditWithoutButtons()
    {
        const KVQtNumEditItemDelegate delegate;
        QWidget parent;
        auto* const editor =
            qobject_cast<KVQtNumEdit*>(delegate.createEditor(&parent, {}, QModelIndex()));
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->parentWidget(), &parent);
        QCOMPARE(editor->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QVERIFY(!editor->select_on_focus);
    }

    void theEditorHasButtonsWhenTheyAreWanted()
    {
        KVQtNumEditItemDelegate delegate;
        delegate.spin_buttons = true;
        QWidget parent;
        auto* const editor =
            qobject_cast<KVQtNumEdit*>(delegate.createEditor(&parent, {}, QModelIndex()));
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    }

    void theEditorIsFilledWithTheCellsNumber()
    {
        const OneCell cell(297.01);
        KVQtNumEdit editor;
        editor.setPrefix("about ");
        editor.setSuffix(" mm");
        cell.delegate.setEditorData(&editor, cell.index);
        QCOMPARE(editor.value(), 297.01);
        QCOMPARE(editor.text(), QString("about 297.01 mm"));
    }

    void aCellThatHoldsNoNumberFillsTheEditorWithZero()
    {
        const OneCell cell("cow");
        KVQtNumEdit editor;
        editor.setValue(5);
        cell.delegate.setEditorData(&editor, cell.index);
        QCOMPARE(editor.value(), 0.0);
    }

    void theNumberIsStoredAsADouble()
    {
        OneCell cell("old");
        KVQtNumEdit editor;
        editor.setSuffix(" mm");
        editor.setValue(12.5);
        cell.delegate.setModelData(&editor, &cell.model, cell.index);
        QCOMPARE(cell.index.data(Qt::EditRole), QVariant(12.5));
        QCOMPARE(cell.index.data(Qt::EditRole).type(), QVariant::Double);
    }

    void anEditorOfAnotherKindIsLeftToTheBaseClass()
    {
        OneCell cell("cow");
        QLineEdit editor;
        cell.delegate.setEditorData(&editor, cell.index);
        QCOMPARE(editor.text(), QString("cow"));
        editor.setText("goat");
        cell.delegate.setModelData(&editor, &cell.model, cell.index);
        QCOMPARE(cell.index.data().toString(), QString("goat"));
    }

    void cellsShowSevenDigits()
    {
        const KVQtNumEditItemDelegate delegate;
        const QLocale german(QLocale::German);
        QCOMPARE(delegate.displayText(297.01, german), QString("297.01"));
        QCOMPARE(delegate.displayText(1234.56789, german), QString("1234.568"));
        QCOMPARE(delegate.displayText(1.5e-7, german), QString("1.5e-07"));
        QCOMPARE(delegate.displayText("cow", german), QString("0"));
        QCOMPARE(KVQtNumEditItemDelegate::_from_number(12345678), QString("1.234568e+07"));
    }

    void cellsShowAPointWhateverTheLocale()
    {
        const GermanLocale german("UTF-8");
        QCOMPARE(KVQtNumEditItemDelegate::_from_number(1.5), QString("1.5"));
    }

    void aNumberIsTypedIntoACell()
    {
        OneCell cell(1.5);
        cell.typeIntoEditor("12,25");
        QCOMPARE(cell.index.data(Qt::EditRole), QVariant(12.25));
    }

    void typingOverACellBeginsWithTheKeyPressed()
    {
        OneCell cell(1.5);
        QTest::keyClick(&cell.view, Qt::Key_7);
        QVERIFY(cell.editor() != nullptr);
        QTest::keyClicks(cell.editor(), ",5");
        cell.confirm();
        QCOMPARE(cell.index.data(Qt::EditRole), QVariant(7.5));
    }

    void escapeKeepsTheOldNumber()
    {
        OneCell cell(1.5);
        cell.view.edit(cell.index);
        QTest::keyClicks(cell.editor(), "99");
        QTest::keyClick(cell.editor(), Qt::Key_Escape);
        QCOMPARE(cell.index.data(Qt::EditRole), QVariant(1.5));
    }
};

QTEST_MAIN(NumEditItemDelegateTest)
#include "NumEditItemDelegateTest.moc"
