#include "qtsync/KVQtSync.h"

#include "qtsync/KVQtNumEdit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>
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

// Three radio buttons, between whom another field gets the focus, and one of another group.
struct RadioForm
{
    QWidget window;
    QGroupBox* box = new QGroupBox(&window);
    QRadioButton* cow = new QRadioButton("cow", box);
    QLineEdit* between = new QLineEdit(box);
    QRadioButton* goat = new QRadioButton("goat", box);
    QRadioButton* other = new QRadioButton("other", &window);
    QRadioButton* hen = new QRadioButton("hen", box);

    QString checked() const
    {
        QStringList names;
        for (const QRadioButton* button : window.findChildren<QRadioButton*>()) {
            if (button->isChecked()) {
                names << button->text();
            }
        }
        names.sort();
        return names.join(' ');
    }
};

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

    // --- radio buttons ---

    void anIntegerIsTheNumberOfTheCheckedRadioButton()
    {
        RadioForm form;
        for (int number = 0; number < 3; ++number) {
            writeInt(*form.cow, number);
            QCOMPARE(form.checked(), QStringList({"cow", "goat", "hen"})[number]);
            QCOMPARE(readInt(*form.cow), number);
        }
    }

    void noCheckedRadioButtonReadsAsMinusOne()
    {
        RadioForm form;
        QCOMPARE(readInt(*form.cow), -1);
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void aNumberOutsideTheGroupUnchecksAllRadioButtons()
    {
        RadioForm form;
        for (const int number : {-1, 3}) {
            form.goat->setChecked(true);
            writeInt(*form.cow, number);
            QCOMPARE(form.checked(), QString());
        }
    }

    void theGivenButtonIsNumberZero()
    {
        RadioForm form;
        form.cow->setChecked(true);
        QCOMPARE(readInt(*form.goat), 2);
        QCOMPARE(readInt(*form.hen), 1);
    }

    void theFocusChainGivesTheOrder()
    {
        RadioForm form;
        QWidget::setTabOrder(form.hen, form.goat);
        form.goat->setChecked(true);
        QCOMPARE(readInt(*form.cow), 2);
        QWidget::setTabOrder(form.cow, form.goat);
        QCOMPARE(readInt(*form.cow), 1);
    }

    void aRadioButtonOfAnotherParentIsAnotherGroup()
    {
        RadioForm form;
        form.other->setChecked(true);
        writeInt(*form.cow, 1);
        QCOMPARE(form.checked(), QString("goat other"));
        QCOMPARE(readInt(*form.other), 0);
    }

    void aRadioButtonWithoutParentIsNotHandled()
    {
        QRadioButton button;
        writeInt(button, 0);
        QVERIFY(!button.isChecked());
        QCOMPARE(readInt(button, 7), 7);
    }

    void aGroupBoxIsNoRadioGroup()
    {
        RadioForm form;
        writeInt(*form.box, 1);
        QCOMPARE(form.checked(), QString());
        QCOMPARE(readInt(*form.box, 7), 7);
    }

    void fillingRadioButtonsSendsNoSignals()
    {
        RadioForm form;
        form.cow->setChecked(true);
        QSignalSpy cow(form.cow, &QRadioButton::toggled);
        QSignalSpy goat(form.goat, &QRadioButton::toggled);
        writeInt(*form.cow, 1);
        writeInt(*form.cow, -1);
        QCOMPARE(cow.count() + goat.count(), 0);
    }

    void radioButtonsOfAButtonGroupStayExclusive()
    {
        RadioForm form;
        QButtonGroup group;
        group.addButton(form.cow);
        group.addButton(form.goat);
        group.addButton(form.hen);
        qRegisterMetaType<QAbstractButton*>();
        QSignalSpy toggled(&group,
                           QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled));
        writeInt(*form.cow, 1);
        QCOMPARE(form.checked(), QString("goat"));
        writeInt(*form.cow, -1);
        QCOMPARE(form.checked(), QString());
        QCOMPARE(toggled.count(), 0);
        form.cow->click();
        form.hen->click();
        QCOMPARE(form.checked(), QString("hen"));
        QVERIFY(group.exclusive());
    }

    void theUserChecksOneRadioButtonAfterFilling()
    {
        RadioForm form;
        writeInt(*form.cow, 0);
        QTest::mouseClick(form.hen, Qt::LeftButton);
        QCOMPARE(form.checked(), QString("hen"));
        QCOMPARE(readInt(*form.cow), 2);
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
