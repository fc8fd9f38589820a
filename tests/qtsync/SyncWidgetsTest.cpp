#include "qtsync/KVQtSync.h"

#include "qtsync/KVQtNumEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QtTest>

namespace {

QString readText(QWidget& widget, QString text = "before")
{
    KVQtSync(KVQtSync::FromWidgets).syncS(text, &widget);
    return text;
}

void writeText(QWidget& widget, QString text)
{
    KVQtSync(KVQtSync::ToWidgets).syncS(text, &widget);
}

int readInt(QWidget& widget, int value = 4711)
{
    KVQtSync(KVQtSync::FromWidgets).syncI(value, &widget);
    return value;
}

void writeInt(QWidget& widget, int value)
{
    KVQtSync(KVQtSync::ToWidgets).syncI(value, &widget);
}

double readDouble(QWidget& widget, double value = 4711)
{
    KVQtSync(KVQtSync::FromWidgets).syncD(value, &widget);
    return value;
}

void writeDouble(QWidget& widget, double value)
{
    KVQtSync(KVQtSync::ToWidgets).syncD(value, &widget);
}

}  // namespace

class SyncWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KVQtSync::DocumentIsModified(false); }

    // --- texts ---

    void aDoubleSpinBoxHoldsANumberAsText()
    {
        QDoubleSpinBox box;
        writeText(box, "12.5");
        QCOMPARE(box.value(), 12.5);
        QCOMPARE(readText(box), QString("12.5"));
        writeText(box, "cow");
        QCOMPARE(box.value(), 0.0);
    }

    void aNumEditHoldsANumberAsText()
    {
        KVQtNumEdit edit;
        writeText(edit, "0.125");
        QCOMPARE(readText(edit), QString("0.125"));
    }

    void anIntegerSpinBoxHoldsANumberAsText()
    {
        QSpinBox box;
        writeText(box, "42");
        QCOMPARE(box.value(), 42);
        QCOMPARE(readText(box), QString("42"));
        writeText(box, "cow");
        QCOMPARE(box.value(), 0);
    }

    void aTextEditHoldsPlainText()
    {
        QTextEdit edit;
        writeText(edit, "two\nlines of <b>text</b>");
        QCOMPARE(edit.toPlainText(), QString("two\nlines of <b>text</b>"));
        QCOMPARE(readText(edit), QString("two\nlines of <b>text</b>"));
    }

    void aPlainTextEditHoldsItsText()
    {
        QPlainTextEdit edit;
        writeText(edit, "two\nlines");
        QCOMPARE(readText(edit), QString("two\nlines"));
    }

    void aLineEditHoldsItsTextAndShowsItsBeginning()
    {
        QLineEdit edit;
        writeText(edit, "cow");
        QCOMPARE(edit.text(), QString("cow"));
        QCOMPARE(edit.cursorPosition(), 0);
        QCOMPARE(readText(edit), QString("cow"));
    }

    void anEditableComboBoxHoldsAnyText()
    {
        QComboBox box;
        box.setEditable(true);
        box.addItems({"cow", "goat"});
        writeText(box, "hen");
        QCOMPARE(box.currentText(), QString("hen"));
        QCOMPARE(readText(box), QString("hen"));
    }

    void aFixedComboBoxSelectsTheText()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        writeText(box, "goat");
        QCOMPARE(box.currentIndex(), 1);
        QCOMPARE(readText(box), QString("goat"));
        writeText(box, "hen");
        QCOMPARE(readText(box), QString("goat"));
    }

    void aCheckBoxIsOneOrZero()
    {
        QCheckBox box;
        writeText(box, "1");
        QCOMPARE(readText(box), QString("1"));
        for (const char* text : {"0", "2", "", "yes", "-1"}) {
            box.setChecked(true);
            writeText(box, text);
            QCOMPARE(box.checkState(), Qt::Unchecked);
            QCOMPARE(readText(box), QString("0"));
        }
    }

    void aPartiallyCheckedBoxReadsAsZero()
    {
        QCheckBox box;
        box.setTristate(true);
        box.setCheckState(Qt::PartiallyChecked);
        QCOMPARE(readText(box), QString("0"));
        writeText(box, "1");
        QCOMPARE(box.checkState(), Qt::Checked);
        box.setCheckState(Qt::PartiallyChecked);
        writeText(box, "0");
        QCOMPARE(box.checkState(), Qt::Unchecked);
    }

    void unknownAndMissingWidgetsAreLeftAlone()
    {
        QLabel label("cow");
        QPushButton button("goat");
        writeText(label, "new");
        writeText(button, "new");
        QCOMPARE(label.text(), QString("cow"));
        QCOMPARE(button.text(), QString("goat"));
        QCOMPARE(readText(label), QString("before"));
        QString text = "before";
        KVQtSync(KVQtSync::FromWidgets).syncS(text, nullptr);
        KVQtSync(KVQtSync::ToWidgets).syncS(text, nullptr);
        QCOMPARE(text, QString("before"));
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    void aKVStringIsFilledAndReadLikeAQString()
    {
        QLineEdit edit;
        KVString text(QString::fromUtf8("K\xC3\xBChe \xF0\x9F\x90\x84"));
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        QCOMPARE(edit.text(), QString::fromUtf8("K\xC3\xBChe \xF0\x9F\x90\x84"));
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        QVERIFY(!KVQtSync::DocumentIsModified());
        edit.setText("cow");
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        QCOMPARE(QString(text), QString("cow"));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void fillingSendsNoSignals()
    {
        QLineEdit edit;
        QSpinBox spin;
        QTextEdit text;
        QCheckBox check;
        QComboBox combo;
        combo.addItems({"0", "1"});
        QSignalSpy edited(&edit, &QLineEdit::textChanged);
        QSignalSpy spun(&spin, QOverload<int>::of(&QSpinBox::valueChanged));
        QSignalSpy typed(&text, &QTextEdit::textChanged);
        QSignalSpy checked(&check, &QCheckBox::stateChanged);
        QSignalSpy chosen(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&edit, &spin, &text, &check, &combo}) {
            writeText(*widget, "1");
            QCOMPARE(readText(*widget), QString("1"));
        }
        QCOMPARE(edited.count() + spun.count() + typed.count() + checked.count() + chosen.count(),
                 0);
        QVERIFY(!edit.signalsBlocked());
    }

    // --- integers ---

    void anIntegerIsTheIndexOfAComboBox()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        QSignalSpy chosen(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        writeInt(box, 1);
        QCOMPARE(box.currentText(), QString("goat"));
        QCOMPARE(readInt(box, 1), 1);
        QVERIFY(!KVQtSync::DocumentIsModified());
        QCOMPARE(chosen.count(), 0);
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(readInt(box, 1), 0);
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void anIndexOutsideTheComboBoxSelectsNothing()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        writeInt(box, 2);
        QCOMPARE(readInt(box), -1);
        writeInt(box, -1);
        QCOMPARE(readInt(box), -1);
    }

    void fillingAComboBoxCanReplaceItsItems()
    {
        QComboBox box;
        box.addItems({"old", "older"});
        QSignalSpy chosen(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        int animal = 2;
        KVQtSync(KVQtSync::ToWidgets).syncI(animal, &box, {"cow", "goat", "hen"});
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentText(), QString("hen"));
        QCOMPARE(chosen.count(), 0);
    }

    void readingAComboBoxLeavesItsItems()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        int animal = 7;
        KVQtSync(KVQtSync::FromWidgets).syncI(animal, &box, {"other"});
        QCOMPARE(animal, 0);
        QCOMPARE(box.count(), 2);
        KVQtSync(KVQtSync::FromWidgets).syncI(animal, nullptr, {"other"});
        KVQtSync(KVQtSync::ToWidgets).syncI(animal, nullptr, {"other"});
        QCOMPARE(animal, 0);
    }

    void anIntegerIsDecimalTextInOtherWidgets()
    {
        QLineEdit edit;
        QSpinBox spin;
        QDoubleSpinBox doubleSpin;
        for (QWidget* widget : std::initializer_list<QWidget*>{&edit, &spin, &doubleSpin}) {
            writeInt(*widget, 42);
            QCOMPARE(readInt(*widget, 42), 42);
        }
        QCOMPARE(edit.text(), QString("42"));
        QVERIFY(!KVQtSync::DocumentIsModified());
        edit.setText("300 dpi");
        QCOMPARE(readInt(edit), 0);
        QVERIFY(KVQtSync::DocumentIsModified());
        QLabel label;
        QCOMPARE(readInt(label, 7), 7);
    }

    // --- doubles ---

    void aDoubleIsScientificTextInEveryWidget()
    {
        QLineEdit edit;
        writeDouble(edit, 297.01);
        QCOMPARE(edit.text(), QString("297.01"));
        QCOMPARE(readDouble(edit), 297.01);
        writeDouble(edit, 1.5e-7);
        QCOMPARE(edit.text(), QString("1.5e-07"));
        edit.setText("12,5");
        QCOMPARE(readDouble(edit), 0.0);
        QDoubleSpinBox spin;
        writeDouble(spin, 12.5);
        QCOMPARE(readDouble(spin), 12.5);
        QLabel label;
        QCOMPARE(readDouble(label, 7), 7.0);
    }

    void aDoubleThatWasNotEditedKeepsAllItsDigits()
    {
        QLineEdit edit;
        writeDouble(edit, 1.0 / 3);
        QVERIFY(readDouble(edit, 1.0 / 3) == 1.0 / 3);
        QVERIFY(!KVQtSync::DocumentIsModified());
    }
};

QTEST_MAIN(SyncWidgetsTest)
#include "SyncWidgetsTest.moc"
