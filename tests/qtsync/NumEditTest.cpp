#include "qtsync/KVQtNumEdit.h"

#include "tests/helpers/Locales.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

namespace {

QString lineText(const KVQtNumEdit& edit)
{
    return edit.findChild<QLineEdit*>()->text();
}

QString shown(double value)
{
    return KVQtNumEdit().textFromValue(value);
}

double stepped(double value, double stepSize, int steps)
{
    KVQtNumEdit edit;
    edit.setSingleStep(stepSize);
    edit.setValue(value);
    edit.stepBy(steps);
    return edit.value();
}

// A window with two fields, the second one focused, so that the first can gain the focus.
struct FocusForm
{
    QWidget window;
    KVQtNumEdit edit;
    QLineEdit other;

    FocusForm()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&edit);
        layout->addWidget(&other);
        window.show();
        QApplication::setActiveWindow(&window);
        other.setFocus();
        QCoreApplication::processEvents();
    }
};

}  // namespace

class NumEditTest : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithSevenDecimalsAWideRangeAndRightAlignment()
    {
        const KVQtNumEdit edit;
        QCOMPARE(edit.decimals(), 7);
        QCOMPARE(edit.minimum(), -1e99);
        QCOMPARE(edit.maximum(), 1e99);
        QCOMPARE(edit.alignment(), Qt::AlignRight);
        QVERIFY(edit.select_on_focus);
    }

    void everyTextIsAcceptable()
    {
        const KVQtNumEdit edit;
        for (QString text : {"", "12,5 mm", "abc", "--", "1e"}) {
            int position = 0;
            QCOMPARE(edit.validate(text, position), QValidator::Acceptable);
        }
    }

    void readsNumbersWithAPoint()
    {
        const KVQtNumEdit edit;
        QCOMPARE(edit.valueFromText("12.5"), 12.5);
        QCOMPARE(edit.valueFromText(" -1e3"), -1000.0);
        QCOMPARE(edit.valueFromText("12,5"), 12.0);
        QCOMPARE(edit.valueFromText("3 apples"), 3.0);
    }

    void readsTextThatIsNoNumberAsZero()
    {
        const KVQtNumEdit edit;
        QCOMPARE(edit.valueFromText(""), 0.0);
        QCOMPARE(edit.valueFromText("apples"), 0.0);
        QCOMPARE(edit.valueFromText("."), 0.0);
    }

    void removesPrefixAndSuffixWhereTheyStand()
    {
        KVQtNumEdit edit;
        edit.setPrefix("1. ");
        edit.setSuffix(" mm");
        QCOMPARE(edit.valueFromText("1. 12.5 mm"), 12.5);
        QCOMPARE(edit.valueFromText("12.5 mm"), 12.5);
        QCOMPARE(edit.valueFromText("1. 12.5"), 12.5);
        QCOMPARE(edit.valueFromText("12.5"), 12.5);
    }

    void showsTheDigitsBeforeThePointAndAllDecimals()
    {
        QCOMPARE(shown(123.4), QString("123.4"));
        QCOMPARE(shown(123.45678912), QString("123.4567891"));
        QCOMPARE(shown(297.01), QString("297.01"));
        QCOMPARE(shown(12345678.123456789), QString("12345678.123457"));
    }

    void showsEightDigitsOfValuesBelowOne()
    {
        QCOMPARE(shown(0.123456789), QString("0.12345679"));
        QCOMPARE(shown(0.001234567891), QString("0.0012345679"));
        QCOMPARE(shown(1.5e-7), QString("1.5e-07"));
    }

    void showsAsManyDigitsAsItsDecimalsAskFor()
    {
        KVQtNumEdit edit;
        edit.setDecimals(2);
        QCOMPARE(edit.textFromValue(123.456), QString("123.46"));
        QCOMPARE(edit.textFromValue(0.123456), QString("0.123"));
        edit.setDecimals(0);
        QCOMPARE(edit.textFromValue(123.456), QString("123"));
        QCOMPARE(edit.textFromValue(0.25), QString("0.2"));
    }

    void showsZeroAndValuesWithoutLogarithm()
    {
        QCOMPARE(shown(0), QString("0"));
        QCOMPARE(shown(-0.0), QString("0"));
        QCOMPARE(shown(qInf()), QString("inf"));
        QCOMPARE(shown(qQNaN()), QString("nan"));
        QCOMPARE(shown(-1e99), QString("-1e+99"));
    }

    void showsAPointWhateverTheLocale()
    {
        const GermanLocale german("UTF-8");
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        KVQtNumEdit edit;
        edit.setValue(1234.5);
        QCOMPARE(lineText(edit), QString("1234.5"));
        QCOMPARE(edit.valueFromText("1234.5"), 1234.5);
        QLocale::setDefault(before);
    }

    void steppingAddsTheStep()
    {
        QCOMPARE(stepped(1, 0.5, 3), 2.5);
        QCOMPARE(stepped(1, 0.5, -4), -1.0);
    }

    void steppingDownFromThreeTenthsThriceShowsZero()
    {
        KVQtNumEdit edit;
        edit.setSingleStep(0.1);
        edit.setValue(0.3);
        edit.stepBy(-1);
        edit.stepBy(-1);
        edit.stepBy(-1);
        QCOMPARE(lineText(edit), QString("0"));
        QVERIFY(!std::signbit(edit.value()));
    }

    void steppingIntoATinyNegativeValueGivesZero()
    {
        KVQtNumEdit edit;
        edit.setDecimals(30);
        edit.setSingleStep(1e-21);
        edit.stepBy(-1);
        QCOMPARE(edit.value(), 0.0);
        QCOMPARE(lineText(edit), QString("0"));
    }

    void steppingIntoATinyPositiveValueKeepsIt()
    {
        KVQtNumEdit edit;
        edit.setDecimals(30);
        edit.setSingleStep(1e-21);
        edit.stepBy(1);
        QCOMPARE(edit.value(), 1e-21);
    }

    void steppingEndsAtMinimumAndMaximum()
    {
        KVQtNumEdit edit;
        edit.setRange(-1, 2);
        edit.stepBy(100);
        QCOMPARE(edit.value(), 2.0);
        edit.stepBy(-100);
        QCOMPARE(edit.value(), -1.0);
    }

    void theArrowKeysStep()
    {
        KVQtNumEdit edit;
        edit.setValue(5);
        QTest::keyClick(&edit, Qt::Key_Up);
        QCOMPARE(edit.value(), 6.0);
        QTest::keyClick(&edit, Qt::Key_Down);
        QTest::keyClick(&edit, Qt::Key_Down);
        QCOMPARE(edit.value(), 4.0);
    }

    void theCommaKeyTypesAPoint()
    {
        KVQtNumEdit edit;
        edit.selectAll();
        QTest::keyClicks(&edit, "12,5");
        QCOMPARE(lineText(edit), QString("12.5"));
        QCOMPARE(edit.value(), 12.5);
    }

    void aNumberCanBeTypedWithCommaAndSuffix()
    {
        KVQtNumEdit edit;
        edit.setSuffix(" mm");
        edit.selectAll();
        QTest::keyClicks(&edit, "12,5 mm");
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.value(), 12.5);
        QCOMPARE(lineText(edit), QString("12.5 mm"));
    }

    void lettersCanBeTypedAndCountAsZero()
    {
        KVQtNumEdit edit;
        edit.setValue(7);
        edit.selectAll();
        QTest::keyClicks(&edit, "abc");
        QCOMPARE(lineText(edit), QString("abc"));
        QCOMPARE(edit.value(), 0.0);
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(lineText(edit), QString("0"));
    }

    void gainingTheFocusSelectsTheWholeTextOnTheNextTurn()
    {
        FocusForm form;
        form.edit.setValue(12.5);
        form.edit.findChild<QLineEdit*>()->deselect();
        form.edit.setFocus();
        QTRY_COMPARE(form.edit.findChild<QLineEdit*>()->selectedText(), QString("12.5"));
    }

    void clickingIntoTheFieldSelectsTheWholeText()
    {
        FocusForm form;
        form.edit.setValue(12.5);
        auto* const line = form.edit.findChild<QLineEdit*>();
        QTest::mouseClick(line, Qt::LeftButton, Qt::NoModifier, line->rect().center());
        QTRY_COMPARE(line->selectedText(), QString("12.5"));
    }

    void gainingTheFocusSelectsNothingWhenThatIsNotWanted()
    {
        FocusForm form;
        form.edit.setValue(12.5);
        form.edit.select_on_focus = false;
        auto* const line = form.edit.findChild<QLineEdit*>();
        line->deselect();
        QTest::mouseClick(line, Qt::LeftButton, Qt::NoModifier, line->rect().center());
        QVERIFY(form.edit.hasFocus());
        QCoreApplication::processEvents();
        QCOMPARE(line->selectedText(), QString());
    }

    void aFieldThatDiesBeforeTheSelectionDoesNoHarm()
    {
        QWidget window;
        auto* const edit = new KVQtNumEdit(&window);
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
        delete edit;
        QCoreApplication::processEvents();
        QCOMPARE(window.findChild<KVQtNumEdit*>(), nullptr);
    }
};

QTEST_MAIN(NumEditTest)
#include "NumEditTest.moc"
