// What is told beside the product's name while it is typed.
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include <random>

namespace {

QString note(WindowFixture& w)
{
    return w.get<QLabel>("lbProjectNameProblems")->text();
}

QString noteFor(const QString& name)
{
    WindowFixture w;
    w.type("txProjectName", name);
    return note(w);
}

}  // namespace

class ProductNameNoteTest : public QObject
{
    Q_OBJECT

private slots:
    void aNameThatFitsIsNotTalkedAbout()
    {
        QCOMPARE(noteFor(""), "");
        QCOMPARE(noteFor("Tim's Zoo: Lions & Co. (2)"), "");
        QCOMPARE(noteFor(QString(49, 'n')), "");
    }

    void charactersThatNoFileCanHaveAreToldEachOnce()
    {
        QCOMPARE(noteFor("a\"b"), "Not possible in the name: \"");
        QCOMPARE(noteFor("a\\b"), "Not possible in the name: \\");
        QCOMPARE(noteFor("a/b"), "Not possible in the name: /");
        QCOMPARE(noteFor("a#b"), "Not possible in the name: #");
        QCOMPARE(noteFor("/\"a\"/#\\"), "Not possible in the name: / \" # \\");
    }

    void aPastedLineBreakIsTold()
    {
        WindowFixture w;
        w.get<QLineEdit>("txProjectName")->insert("a\nb");
        QCOMPARE(note(w), u8"Not possible in the name: \u21B5");
    }

    void moreThan49CharactersAreTold()
    {
        QCOMPARE(noteFor(QString(50, 'n')), "50 characters, at most 49");
        WindowFixture w;
        QString owls;
        for (int i = 0; i < 49; ++i) {
            owls += u8"\U0001F989";  // one character each, though two units of the field
        }
        w.get<QLineEdit>("txProjectName")->setText(owls);
        QCOMPARE(note(w), "");
    }

    void allProblemsAreTold()
    {
        QCOMPARE(noteFor(QString(50, '/')), "Not possible in the name: /\n"
                                            "50 characters, at most 49");
    }

    void isToldWithTheKeyAndGoesWithIt()
    {
        WindowFixture w;
        QLineEdit* const name = w.get<QLineEdit>("txProjectName");
        w.type("txProjectName", "Zoo/");
        QCOMPARE(note(w), "Not possible in the name: /");
        QTest::keyClick(name, Qt::Key_Backspace);
        QCOMPARE(note(w), "");
    }

    void aProjectThatIsOpenedWithSuchANameIsTold()
    {
        WindowFixture w;
        w.open(projectFile({}, "", "PRODUCT 900, \"Zoo/Farm\""));
        QCOMPARE(note(w), "Not possible in the name: /");
    }

    void screenReadersReadItAtTheField()
    {
        WindowFixture w;
        w.type("txProjectName", "Zoo/");
        QAccessibleInterface* const read =
            QAccessible::queryAccessibleInterface(w.get<QLineEdit>("txProjectName"));
        QCOMPARE(read->text(QAccessible::Description), "Not possible in the name: /");
        w.type("txProjectName", "Zoo");
        QCOMPARE(read->text(QAccessible::Description),
                 w.get<QLineEdit>("txProjectName")->toolTip());
    }

    void aNameThatIsNotTalkedAboutComesBackFromItsFile()
    {
        WindowFixture w;
        w.open(projectFile({}));
        std::mt19937 random(14);
        const QString characters = u8"ab \t.-'!%:;()_~äß\"#/\\";
        for (int i = 0; i < 100; ++i) {
            QString name;
            for (unsigned length = 1 + random() % 8; length > 0; --length) {
                name += characters[static_cast<int>(random() % unsigned(characters.size()))];
            }
            w.get<QLineEdit>("txProjectName")->setText(name);
            if (note(w).isEmpty()) {
                w.saved();
                w.window.openProject(w.path("book.oidpro"));
                QCOMPARE(w.field("txProjectName"), name);
            }
        }
    }
};

QTEST_MAIN(ProductNameNoteTest)
#include "ProductNameNoteTest.moc"
