#include "qtsync/KVQtSync.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest>

namespace {

int readInt(QWidget& widget, int value = 4711)
{
    KVQtSync(KVQtSync::FromWidgets).syncI(value, &widget);
    return value;
}

void writeInt(QWidget& widget, int value)
{
    KVQtSync(KVQtSync::ToWidgets).syncI(value, &widget);
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

class SyncRadioButtonsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KVQtSync::DocumentIsModified(false); }

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
};

QTEST_MAIN(SyncRadioButtonsTest)
#include "SyncRadioButtonsTest.moc"
