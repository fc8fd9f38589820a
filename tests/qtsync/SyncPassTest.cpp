#include "qtsync/KVQtSync.h"
#include "tests/helpers/Locales.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <climits>

namespace {

// Counts its calls and, like a form does, begins a pass of its own in each.
class Listener : public QObject
{
    Q_OBJECT

public:
    int calls = 0;
    QString readInside = "untouched";
    QLineEdit* edit = nullptr;

public slots:
    void changed()
    {
        ++calls;
        KVQtSync(KVQtSync::FromWidgets).syncS(readInside, edit);
    }
};

}  // namespace

class SyncPassTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        KVQtSync::DocumentIsModified(false);
        KVQtSync::disconnectChangeEventSlot();
    }

    void theModesHaveFixedNumbers()
    {
        QCOMPARE(int(KVQtSync::Inactive), -1);
        QCOMPARE(int(KVQtSync::ToWidgets), 0);
        QCOMPARE(int(KVQtSync::FromWidgets), 1);
    }

    void aFlagChoosesTheDirection()
    {
        QCOMPARE(KVQtSync(true).mode(), KVQtSync::FromWidgets);
        QCOMPARE(KVQtSync(false).mode(), KVQtSync::ToWidgets);
        KVQtSync sync(KVQtSync::Inactive);
        sync.mode(true);
        QCOMPARE(sync.mode(), KVQtSync::FromWidgets);
        sync.mode(false);
        QCOMPARE(sync.mode(), KVQtSync::ToWidgets);
    }

    void aPassMadeWhileAnotherIsAliveDoesNothing()
    {
        QLineEdit edit("cow");
        QString text = "goat";
        const KVQtSync outer(KVQtSync::FromWidgets);
        KVQtSync toWidgets(KVQtSync::ToWidgets);
        toWidgets.syncS(text, &edit);
        QCOMPARE(edit.text(), QString("cow"));
        KVQtSync fromWidgets(KVQtSync::FromWidgets);
        fromWidgets.syncS(text, &edit);
        QCOMPARE(text, QString("goat"));
        QCOMPARE(fromWidgets.mode(), KVQtSync::Inactive);
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    void theOuterPassGoesOnWhileANestedOneLives()
    {
        QLineEdit edit("cow");
        QString text;
        KVQtSync outer(KVQtSync::FromWidgets);
        const KVQtSync nested(KVQtSync::FromWidgets);
        outer.syncS(text, &edit);
        QCOMPARE(text, QString("cow"));
    }

    void aModeCannotBeSetWhileAnotherPassIsAlive()
    {
        KVQtSync outer(KVQtSync::FromWidgets);
        KVQtSync nested(KVQtSync::FromWidgets);
        nested.mode(KVQtSync::ToWidgets);
        QCOMPARE(nested.mode(), KVQtSync::Inactive);
        outer.mode(KVQtSync::ToWidgets);
        QCOMPARE(outer.mode(), KVQtSync::Inactive);
    }

    void aNestedPassWorksWhenTheOuterOneIsGoneAndItsModeIsSetAgain()
    {
        auto outer = std::make_unique<KVQtSync>(KVQtSync::FromWidgets);
        KVQtSync nested(KVQtSync::FromWidgets);
        outer.reset();
        QCOMPARE(nested.mode(), KVQtSync::Inactive);
        nested.mode(KVQtSync::ToWidgets);
        QCOMPARE(nested.mode(), KVQtSync::ToWidgets);
    }

    void aStoppedPassDoesNothingAndLetsTheNextOneBegin()
    {
        QLineEdit edit("cow");
        QString text = "goat";
        KVQtSync stopped(KVQtSync::FromWidgets);
        stopped.stop();
        stopped.stop();
        stopped.mode(KVQtSync::FromWidgets);
        stopped.syncS(text, &edit);
        QCOMPARE(text, QString("goat"));
        const KVQtSync next(KVQtSync::FromWidgets);
        QCOMPARE(next.mode(), KVQtSync::FromWidgets);
    }

    void theEndOfAStoppedPassIsNotCountedTwice()
    {
        auto stopped = std::make_unique<KVQtSync>(KVQtSync::FromWidgets);
        stopped->stop();
        const KVQtSync alive(KVQtSync::FromWidgets);
        stopped.reset();
        QCOMPARE(KVQtSync(KVQtSync::FromWidgets).mode(), KVQtSync::Inactive);
    }

    void aPassInsideAChangeHandlerOfAPassDoesNothing()
    {
        QLineEdit edit("cow");
        Listener listener;
        listener.edit = &edit;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        const KVQtSync outer(KVQtSync::FromWidgets);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.calls, 1);
        QCOMPARE(listener.readInside, QString("untouched"));
    }

    void aPassInsideAHandlerOfTheUsersEditWorks()
    {
        QLineEdit edit("cow");
        Listener listener;
        listener.edit = &edit;
        KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
        KVQtSync::connectChangeEvent(&edit);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(listener.readInside, QString("cow"));
    }

    // --- the flag of the document ---

    void fillingAndReadingBackUnchangedLeavesTheDocumentUnmodified()
    {
        QLineEdit edit;
        QString text = "cow";
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        QVERIFY(!KVQtSync::DocumentIsModified());
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    void readingAChangedTextMarksTheDocument()
    {
        QLineEdit edit;
        QString text = "cow";
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        edit.setCursorPosition(3);
        QTest::keyClicks(&edit, "s");
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        QCOMPARE(text, QString("cows"));
        QVERIFY(KVQtSync::DocumentIsModified());
    }

    void onlyTheApplicationClearsTheMark()
    {
        KVQtSync::DocumentIsModified(true);
        QLineEdit edit("cow");
        QString text = "cow";
        KVQtSync(KVQtSync::FromWidgets).syncS(text, &edit);
        KVQtSync(KVQtSync::ToWidgets).syncS(text, &edit);
        QVERIFY(KVQtSync::DocumentIsModified());
        KVQtSync::DocumentIsModified(false);
        QVERIFY(!KVQtSync::DocumentIsModified());
    }

    // --- numbers as text ---

    void numbersAreWrittenWithAPointWhateverTheLocale()
    {
        const GermanLocale german("UTF-8");
        QCOMPARE(KVQtSync::_from_double(1234.5), QString("1234.5"));
        QCOMPARE(KVQtSync::_from_double(1.5e-7), QString("1.5e-07"));
        QCOMPARE(KVQtSync::_from_double(0.1 + 0.2), QString("0.3"));
        QCOMPARE(KVQtSync::_from_int(INT_MIN), QString("-2147483648"));
    }

    void decimalNumbersOfFifteenDigitsComeBack()
    {
        for (const double value :
             {297.01, 1234567.89012345, 1e-300, -0.000123456789012345, 1e300}) {
            QCOMPARE(KVQtSync::_to_double(KVQtSync::_from_double(value)), value);
        }
    }

    void numbersAreReadWithAPointWhateverTheLocale()
    {
        const GermanLocale german("UTF-8");
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(KVQtSync::_to_double(" 1234.5 "), 1234.5);
        QCOMPARE(KVQtSync::_to_double("1.234"), 1.234);
        QCOMPARE(KVQtSync::_to_int("1.234"), 1);
        QLocale::setDefault(before);
    }

    void damagedNumbersReadAsZero()
    {
        for (const char* text : {"", "cow", "12,5", "12 5", "1.2.3", "12x", "--1", "1,000"}) {
            QCOMPARE(KVQtSync::_to_double(text), 0.0);
            QCOMPARE(KVQtSync::_to_int(text), 0);
        }
        QCOMPARE(KVQtSync::_to_int("nan"), 0);
    }

    void integersAreCutBehindThePointAndEndAtTheirLimits()
    {
        QCOMPARE(KVQtSync::_to_int("12.9"), 12);
        QCOMPARE(KVQtSync::_to_int("-12.9"), -12);
        QCOMPARE(KVQtSync::_to_int("1e3"), 1000);
        QCOMPARE(KVQtSync::_to_int("2147483647"), INT_MAX);
        QCOMPARE(KVQtSync::_to_int("99999999999999999999"), INT_MAX);
        QCOMPARE(KVQtSync::_to_int("-99999999999999999999"), INT_MIN);
        QCOMPARE(KVQtSync::_to_int("1e999"), INT_MAX);
    }

    // --- one value of one widget ---

    void oneValueIsReadInOneCall()
    {
        QLineEdit edit(QString::fromUtf8("12.5"));
        QCOMPARE(QString(KVQt::getS(&edit)), QString("12.5"));
        QCOMPARE(KVQt::getD(&edit), 12.5);
        edit.setText(QString::fromUtf8("K\xC3\xBChe"));
        QCOMPARE(QString(KVQt::getS(&edit)), QString::fromUtf8("K\xC3\xBChe"));
        QCOMPARE(KVQt::getD(&edit), 0.0);
    }

    void oneValueIsWrittenInOneCall()
    {
        QLineEdit edit;
        KVQt::setI(42, &edit);
        QCOMPARE(edit.text(), QString("42"));
        KVQt::setD(297.01, &edit);
        QCOMPARE(edit.text(), QString("297.01"));
    }

    void aCheckBoxIsSetAndReadAsAnInteger()
    {
        QCheckBox box;
        KVQt::setI(1, &box);
        QCOMPARE(box.checkState(), Qt::Checked);
        int backwards = 0;
        KVQtSync(KVQtSync::FromWidgets).syncI(backwards, &box);
        QCOMPARE(backwards, 1);
        KVQt::setI(0, &box);
        QCOMPARE(box.checkState(), Qt::Unchecked);
    }

    void aComboBoxIsSetByItsIndex()
    {
        QComboBox box;
        box.addItems({"cow", "goat"});
        KVQt::setI(1, &box);
        QCOMPARE(box.currentText(), QString("goat"));
        QCOMPARE(QString(KVQt::getS(&box)), QString("goat"));
    }

    void theAccessorsDoNothingWhileAPassIsAlive()
    {
        QLineEdit edit("12.5");
        const KVQtSync outer(KVQtSync::ToWidgets);
        QCOMPARE(QString(KVQt::getS(&edit)), QString());
        QCOMPARE(KVQt::getD(&edit), 0.0);
        KVQt::setI(1, &edit);
        KVQt::setD(1, &edit);
        QCOMPARE(edit.text(), QString("12.5"));
    }

    void theAccessorsLeaveUnknownAndMissingWidgetsAlone()
    {
        QLabel label("12.5");
        QCOMPARE(QString(KVQt::getS(&label)), QString());
        QCOMPARE(KVQt::getD(nullptr), 0.0);
        KVQt::setD(1, &label);
        KVQt::setI(1, nullptr);
        QCOMPARE(label.text(), QString("12.5"));
    }
};

QTEST_MAIN(SyncPassTest)
#include "SyncPassTest.moc"
