#include "qtsync/ChangeEvents.h"

#include "qtsync/KVQtSync.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

class Listener : public QObject
{
    Q_OBJECT

public:
    int changes = 0;
    int otherCalls = 0;

public slots:
    void changed() { ++changes; }
    void changedToo() { ++otherCalls; }
    void numberChanged(int /*number*/) {}
};

// How many changes a receiver hears of while the user does something with a widget.
template <typename Action>
int changesHeard(QObject& widget, Action userDoes)
{
    Listener listener;
    KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
    KVQtSync::connectChangeEvent(&widget);
    userDoes();
    return listener.changes;
}

size_t connectedCount()
{
    return ChangeEvents::instance().connectedCount();
}

}  // namespace

class ChangeEventsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KVQtSync::disconnectChangeEventSlot(); }

    // --- each type of widget ---

    void aLineEditReportsTheEndOfEditing()
    {
        QLineEdit edit;
        QCOMPARE(changesHeard(edit, [&] { QTest::keyClicks(&edit, "cow"); }), 0);
        QCOMPARE(changesHeard(edit, [&] { QTest::keyClick(&edit, Qt::Key_Return); }), 1);
    }

    void aTextEditReportsEveryChange()
    {
        QTextEdit edit;
        QCOMPARE(changesHeard(edit, [&] { QTest::keyClicks(&edit, "cow"); }), 3);
        QPlainTextEdit plain;
        QCOMPARE(changesHeard(plain, [&] { QTest::keyClicks(&plain, "cow"); }), 3);
    }

    void aSpinBoxReportsTheEndOfEditing()
    {
        QSpinBox spin;
        QCOMPARE(changesHeard(spin, [&] { QTest::keyClicks(&spin, "5"); }), 0);
        QCOMPARE(changesHeard(spin, [&] { QTest::keyClick(&spin, Qt::Key_Return); }), 1);
        QDoubleSpinBox doubleSpin;
        QCOMPARE(changesHeard(doubleSpin, [&] { QTest::keyClick(&doubleSpin, Qt::Key_Return); }),
                 1);
    }

    void aComboBoxReportsAnotherChoice()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        QCOMPARE(changesHeard(box, [&] { QTest::keyClick(&box, Qt::Key_Down); }), 1);
    }

    void anEditableComboBoxReportsEachTypedCharacterTwice()
    {
        QComboBox box;
        box.setEditable(true);
        QCOMPARE(changesHeard(box, [&] { QTest::keyClicks(&box, "x"); }), 2);
    }

    void aButtonReportsItsRelease()
    {
        QPushButton push;
        QCheckBox check;
        QRadioButton radio;
        for (QAbstractButton* button :
             std::initializer_list<QAbstractButton*>{&push, &check, &radio}) {
            button->setText("cow");
            button->resize(button->sizeHint());
            QCOMPARE(changesHeard(*button, [&] { QTest::mousePress(button, Qt::LeftButton); }), 0);
            QCOMPARE(changesHeard(*button, [&] { QTest::mouseRelease(button, Qt::LeftButton); }),
                     1);
        }
    }

    void aModelReportsItsData()
    {
        QStandardItemModel model(1, 1);
        QCOMPARE(changesHeard(model, [&] { model.setData(model.index(0, 0), "cow"); }), 1);
    }

    void aWidgetOfUnknownTypeReportsNothing()
    {
        QLabel label;
        QCOMPARE(changesHeard(label, [&] { label.setText("cow"); }), 0);
    }

    // --- filling connects ---

    void fillingConnectsAndReportsNothing()
    {
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        QWidget window;
        auto* const radio = new QRadioButton(&window);
        auto* const secondRadio = new QRadioButton("cow", &window);
        secondRadio->resize(secondRadio->sizeHint());
        QLineEdit edit;
        QComboBox box;
        QStandardItemModel model(1, 1);
        QString text = "cow";
        int number = 0;
        {
            KVQtSync sync(KVQtSync::ToWidgets);
            sync.syncS(text, &edit);
            sync.syncI(number, &box, {"cow", "goat"});
            sync.syncI(number, radio);
            sync.gridS(text, &model, 0, 0);
        }
        QCOMPARE(listener.changes, 0);
        QCOMPARE(connectedCount(), size_t(5));
        QVERIFY(ChangeEvents::instance().isConnected(secondRadio));
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::mouseClick(secondRadio, Qt::LeftButton);
        model.setData(model.index(0, 0), "goat");
        QCOMPARE(listener.changes, 3);
    }

    void readingConnectsNothing()
    {
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        QLineEdit edit;
        QString text;
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        QCOMPARE(connectedCount(), size_t(0));
    }

    void fillingTwiceConnectsOnce()
    {
        QLineEdit edit;
        QString text = "cow";
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.changes, 1);
    }

    void withoutAReceiverNothingIsConnected()
    {
        QLineEdit edit;
        KVQtSync::connectChangeEvent(&edit);
        QCOMPARE(connectedCount(), size_t(0));
    }

    void aMissingWidgetIsIgnored()
    {
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(nullptr);
        QCOMPARE(connectedCount(), size_t(0));
    }

    // --- the receiver changes ---

    void anotherReceiverTakesTheOldOnesPlace()
    {
        QLineEdit edit;
        Listener first;
        Listener second;
        KVQtSync::connectChangeEventSlot(&first, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        KVQtSync::connectChangeEventSlot(&second, SLOT(changed()));
        QCOMPARE(connectedCount(), size_t(0));
        QTest::keyClick(&edit, Qt::Key_Return);
        KVQtSync::connectChangeEvent(&edit);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(first.changes, 0);
        QCOMPARE(second.changes, 1);
    }

    void anotherSlotTakesTheOldOnesPlace()
    {
        QLineEdit edit;
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changedToo()));
        KVQtSync::connectChangeEvent(&edit);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.changes, 0);
        QCOMPARE(listener.otherCalls, 1);
    }

    void theSameReceiverAndSlotKeepTheirWidgets()
    {
        QLineEdit edit;
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        QVERIFY(ChangeEvents::instance().isConnected(&edit));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.changes, 1);
    }

    void disconnectingEndsAllReports()
    {
        QLineEdit edit;
        QComboBox box;
        box.setEditable(true);
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        KVQtSync::connectChangeEvent(&box);
        KVQtSync::disconnectChangeEventSlot();
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::keyClicks(&box, "x");
        QCOMPARE(listener.changes, 0);
        QCOMPARE(connectedCount(), size_t(0));
        KVQtSync::connectChangeEvent(&edit);
        QCOMPARE(connectedCount(), size_t(0));
    }

    void otherConnectionsBetweenWidgetAndReceiverStay()
    {
        QLineEdit edit;
        Listener listener;
        connect(&edit, SIGNAL(editingFinished()), &listener, SLOT(changedToo()));
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        KVQtSync::disconnectChangeEventSlot();
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.changes, 0);
        QCOMPARE(listener.otherCalls, 1);
    }

    // --- what dies is forgotten ---

    void aWidgetThatDiesLeavesTheTable()
    {
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        QLineEdit survivor;
        KVQtSync::connectChangeEvent(&survivor);
        {
            QLineEdit edit;
            KVQtSync::connectChangeEvent(&edit);
            QCOMPARE(connectedCount(), size_t(2));
        }
        QCOMPARE(connectedCount(), size_t(1));
        QVERIFY(ChangeEvents::instance().isConnected(&survivor));
        KVQtSync::disconnectChangeEventSlot();
    }

    void aWidgetThatDiesAfterTheReceiverChangedDoesNoHarm()
    {
        Listener first;
        Listener second;
        auto edit = std::make_unique<QLineEdit>();
        KVQtSync::connectChangeEventSlot(&first, SLOT(changed()));
        KVQtSync::connectChangeEvent(edit.get());
        KVQtSync::connectChangeEventSlot(&second, SLOT(changed()));
        edit.reset();
        QCOMPARE(connectedCount(), size_t(0));
    }

    void aNewWidgetAtTheAddressOfADeadOneIsConnected()
    {
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        alignas(QLineEdit) char place[sizeof(QLineEdit)];
        for (int i = 0; i < 2; ++i) {
            auto* const edit = new (place) QLineEdit;
            KVQtSync::connectChangeEvent(edit);
            QTest::keyClick(edit, Qt::Key_Return);
            edit->~QLineEdit();
        }
        QCOMPARE(listener.changes, 2);
    }

    void aReceiverThatDiesIsForgottenWithItsWidgets()
    {
        QLineEdit edit;
        {
            Listener listener;
            KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
            KVQtSync::connectChangeEvent(&edit);
        }
        QCOMPARE(connectedCount(), size_t(0));
        KVQtSync::connectChangeEvent(&edit);
        QCOMPARE(connectedCount(), size_t(0));
        Listener next;
        KVQtSync::connectChangeEventSlot(&next, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(next.changes, 1);
    }

    void aReceiverThatDiesAfterItWasReplacedChangesNothing()
    {
        QLineEdit edit;
        Listener next;
        {
            Listener listener;
            KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
            KVQtSync::connectChangeEventSlot(&next, SLOT(changed()));
            KVQtSync::connectChangeEvent(&edit);
        }
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(next.changes, 1);
    }

    void aReceiverMayBeTheWidgetItself()
    {
        {
            QLineEdit edit;
            KVQtSync::connectChangeEventSlot(&edit, SLOT(clear()));
            KVQtSync::connectChangeEvent(&edit);
            QTest::keyClicks(&edit, "cow");
            QTest::keyClick(&edit, Qt::Key_Return);
            QCOMPARE(edit.text(), QString());
        }
        QCOMPARE(connectedCount(), size_t(0));
    }

    // --- failures ---

    void aSlotThatDoesNotFitIsReportedWithTheWidgetsName()
    {
        QLineEdit edit;
        edit.setObjectName("txName");
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(numberChanged(int)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Incompatible sender/receiver"));
        testing::internal::CaptureStdout();
        KVQtSync::connectChangeEvent(&edit);
        QCOMPARE(testing::internal::GetCapturedStdout(),
                 std::string("Failed to connectd change event for widget: txName\n"));
        QVERIFY(ChangeEvents::instance().isConnected(&edit));
    }

    void aComboBoxThatCannotBeConnectedIsNotReported()
    {
        QComboBox box;
        Listener listener;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(missing()));
        for (int i = 0; i < 3; ++i) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such slot"));
        }
        testing::internal::CaptureStdout();
        KVQtSync::connectChangeEvent(&box);
        QCOMPARE(testing::internal::GetCapturedStdout(), std::string());
    }
};

QTEST_MAIN(ChangeEventsTest)
#include "ChangeEventsTest.moc"
