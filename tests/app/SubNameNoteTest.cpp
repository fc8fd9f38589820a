// What is told beside the name of an area while it is typed.
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

struct Named : WindowFixture
{
    Named()
    {
        open(projectFile({"POLY cow\r\n 10 10 30 10 10 30 END\r\n"}, "sub cow\r\nend sub\r\n"), 1);
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabAreas"));
        clickAt(get<PolyEditorWidget>("polyArea")->toPix({14, 14}));
    }
    QLabel* label() { return get<QLabel>("lbPolyNameProblems"); }
    QString noteFor(const QString& name)
    {
        type("txPolyName", name);
        return label()->text();
    }
};

}  // namespace

class SubNameNoteTest : public QObject
{
    Q_OBJECT

private slots:
    void aNameThatIsFineIsNotTalkedAbout()
    {
        Named w;
        QVERIFY(!w.label()->isVisible());
        QCOMPARE(w.noteFor("calf_2"), "");
        w.get<QLineEdit>("txPolyName")->setText(u8"Kälbchen");
        QCOMPARE(w.label()->text(), "");
        QVERIFY(!w.label()->isVisible());
    }

    void eachProblemIsToldWithItsCure()
    {
        Named w;
        QCOMPARE(w.noteFor("a-b"),
                 "No \"goto\" can lead to a name with \"-\". Take letters, digits and \"_\".");
        QVERIFY(w.label()->isVisible());
        QCOMPARE(w.noteFor("2nd"), "No \"goto\" can lead to a name that begins with a digit. Begin "
                                   "with a letter.");
        QCOMPARE(w.noteFor("&x"), "A name cannot begin with \"&\". Begin with a letter.");
        QCOMPARE(w.noteFor("1001"),
                 "The name would be taken for a number of dots. Begin with a letter.");
        QCOMPARE(w.noteFor("asm7"),
                 "\"asm\" with a number belongs to the compiler. Choose another name.");
        w.get<QLineEdit>("txPolyName")->clear();
        QCOMPARE(w.label()->text(), "An area needs a name. Type one.");
        w.get<QLineEdit>("txPolyName")->setText(u8"a\u2028b");
        QCOMPARE(w.label()->text(), "\"U+2028\" cannot stand in a name. Leave it out.");
    }

    void theNameIsTakenAllTheSame()
    {
        Named w;
        w.noteFor("a-b");
        QVERIFY(QString::fromStdString(w.saved()).contains("POLY a-b"));
    }

    void screenReadersReadItAtTheField()
    {
        Named w;
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(name);
        const QString note = w.noteFor("a-b");
        QCOMPARE(read->text(QAccessible::Description), note);
        w.noteFor("ab");
        QCOMPARE(read->text(QAccessible::Description), name->toolTip());
    }

    void aNameThatIsTypedForNoAreaIsTold()
    {
        Named w;
        const std::string before = w.saved();
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({60, 40}));
        QCOMPARE(w.field("txPolyName"), "cow");
        QVERIFY(!w.label()->isVisible());
        QCOMPARE(w.noteFor("ox"),
                 "No area is selected, so this names none. Click one, then type its name.");
        QVERIFY(w.label()->isVisible());
        QCOMPARE(w.saved(), before);
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({14, 14}));
        QTRY_VERIFY(!w.label()->isVisible());
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.noteFor("ox"), "");
        QVERIFY(w.saved() != before);
    }

    void aNameThatIsTypedBeforeAnythingElseIsToldToo()
    {
        WindowFixture w;
        w.type("txPolyName", "ox");
        QCOMPARE(w.get<QLabel>("lbPolyNameProblems")->text(),
                 "No area is selected, so this names none. Click one, then type its name.");
    }

    void aNumberThatIsTypedForNoAreaIsTold()
    {
        Named w;
        const std::string before = w.saved();
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({60, 40}));
        QTest::keyClick(w.get<QSpinBox>("txOidOfArea"), Qt::Key_Up);
        QCOMPARE(w.status(),
                 "No area is selected, so this numbers none. Click one, then type its number.");
        QCOMPARE(w.saved(), before);
    }

    void anEmptyFieldWithoutAnAreaIsNotTalkedAbout()
    {
        WindowFixture w;
        QCOMPARE(w.get<QLabel>("lbPolyNameProblems")->text(), "");
    }
};

QTEST_MAIN(SubNameNoteTest)
#include "SubNameNoteTest.moc"
