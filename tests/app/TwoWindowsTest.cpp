// Two windows, or a window and another program, that work on the same project.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

const char* const kQuestion = "Save project: Another window or program has changed the project "
                              "file since this window opened or saved it.";

std::string named(const char* name)
{
    return projectFile({""}, "", std::string("PRODUCT 900, \"") + name + "\"");
}

// A window with the book "Zoo", which is called "Farm" in it, not saved.
struct EditedZoo : WindowFixture
{
    EditedZoo()
    {
        open(named("Zoo"), 1);
        type("txProjectName", "Farm");
    }

    void press(int key, Qt::KeyboardModifiers modifiers)
    {
        window.activateWindow();  // a dialog was active
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key(key), modifiers);
    }
    void save() { press(Qt::Key_S, Qt::ControlModifier); }
    // As another program does.
    void otherWrites(const char* name) { writeFile(folder.file("book.oidpro"), named(name)); }
    std::string inFile() { return readFile(folder.file("book.oidpro")); }
    QStringList asked() { return dialogs.seen().mid(1); }  // behind that of opening

    QString bar()
    {
        const QLabel* const text = get<QLabel>("changedFileBarText");
        return text->isVisibleTo(&window) ? text->text() : QString();
    }
    QString offer()
    {
        const QLabel* const text = get<QLabel>("recoveryBarText");
        return text->isVisibleTo(&window) ? text->text() : QString();
    }
};

const char* const kTold = "Another window or program has changed the project file since this "
                          "window opened or saved it.";

}  // namespace

class TwoWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatNobodyElseWroteIsSavedWithoutAQuestion()
    {
        EditedZoo w;
        w.save();
        QCOMPARE(w.inFile(), named("Farm"));
        w.type("txProjectName", "Sea");
        w.save();
        QCOMPARE(w.inFile(), named("Sea"));
        QCOMPARE(w.asked(), QStringList());
    }

    void theQuestionNamesTheFileAndItsAnswers()
    {
        EditedZoo w;
        w.otherWrites("Cow");
        QString details;
        QStringList buttons;
        QString usual;
        w.dialogs.look([&](QWidget& dialog) {
            const auto& box = static_cast<QMessageBox&>(dialog);
            details = box.informativeText();
            for (const QAbstractButton* const button : box.buttons()) {
                buttons << button->text().remove('&');
            }
            usual = box.defaultButton()->text().remove('&');
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.save();
        QCOMPARE(w.asked(), QStringList(kQuestion));
        QCOMPARE(details, w.path("book.oidpro") +
                              "\n\nOverwriting loses what the file holds now. When you open that, "
                              "your unsaved work is kept and offered.");
        buttons.sort();
        QCOMPARE(buttons,
                 QStringList({"Cancel", "Open the other", "Overwrite", "Save as...", "Why?"}));
        QCOMPARE(usual, QString("Save as..."));
    }

    void escapeKeepsAllAsItIs()
    {
        EditedZoo w;
        w.otherWrites("Cow");
        w.dialogs.cancel();
        w.save();
        QCOMPARE(w.inFile(), named("Cow"));
        QCOMPARE(w.field("txProjectName"), QString("Farm"));
        QCOMPARE(w.status(), QString("Not saved: book.oidpro"));
        w.dialogs.cancel();
        w.save();  // asks again
        QCOMPARE(w.asked(), QStringList({kQuestion, kQuestion}));
    }

    void overwriteSavesAndAsksNoMore()
    {
        EditedZoo w;
        w.otherWrites("Cow");
        w.dialogs.press("Overwrite");
        w.save();
        QCOMPARE(w.inFile(), named("Farm"));
        QCOMPARE(w.status(), QString("Saved: book.oidpro"));
        w.type("txProjectName", "Sea");
        w.save();
        QCOMPARE(w.inFile(), named("Sea"));
        QCOMPARE(w.asked(), QStringList(kQuestion));
    }

    void saveAsLeavesTheOtherAlone()
    {
        EditedZoo w;
        w.otherWrites("Cow");
        w.dialogs.press("Save as...");
        w.dialogs.chooseFile(w.path("mine.oidpro"));
        w.save();
        QCOMPARE(w.inFile(), named("Cow"));
        QCOMPARE(readFile(w.folder.file("mine.oidpro")), named("Farm"));
        QCOMPARE(w.asked(), QStringList({kQuestion, "Save project"}));
        w.type("txProjectName", "Sea");
        w.save();
        QCOMPARE(readFile(w.folder.file("mine.oidpro")), named("Sea"));
    }

    void openingTheOtherShowsItAndOffersTheOwnWork()
    {
        EditedZoo w;
        QTest::keyClicks(&w.get<KVQtHighlightEditCtrl>("codeEditor")->surface(), "sub cow");
        w.otherWrites("Cow");
        w.dialogs.press("Open the other");
        w.save();
        QCOMPARE(w.inFile(), named("Cow"));
        QCOMPARE(w.field("txProjectName"), QString("Cow"));
        QCOMPARE(w.script(), QString());
        QVERIFY2(w.offer().startsWith("There is unsaved work on this project since "),
                 qPrintable(w.offer()));
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), QString("Farm"));
        QCOMPARE(w.script(), QString("sub cow"));
        w.save();  // the author has seen what that overwrites
        QCOMPARE(w.inFile(), projectFile({""}, "sub cow", "PRODUCT 900, \"Farm\""));
        QCOMPARE(w.asked(), QStringList(kQuestion));
    }

    void workThatCannotBeKeptIsNotGivenUpForTheOther()
    {
        EditedZoo w;
        writeFile(w.userData.recovery().substr(0, w.userData.recovery().rfind('/')), "no folder");
        w.otherWrites("Cow");
        w.dialogs.press("Open the other");
        w.dialogs.press("OK");
        w.save();
        QCOMPARE(w.asked(), QStringList({kQuestion, "Warning: Your unsaved work cannot be kept. "
                                                    "Save it under another name first."}));
        QCOMPARE(w.field("txProjectName"), QString("Farm"));
        QCOMPARE(w.inFile(), named("Cow"));
    }

    void ofTwoWindowsTheSecondOneThatSavesAsks()
    {
        EditedZoo w;
        MainWindow other;
        other.openProject(w.path("book.oidpro"));
        other.findChild<QLineEdit*>("txProjectName")->setText("Cow");
        other.findChild<QAction*>("actionSave")->trigger();
        QCOMPARE(w.asked(), QStringList());
        w.dialogs.cancel();
        w.save();
        QCOMPARE(w.asked(), QStringList(kQuestion));
        QCOMPARE(w.inFile(), named("Cow"));
    }

    void whatTheOtherSavedAlikeAsksNothing()
    {
        EditedZoo w;
        w.otherWrites("Farm");
        w.save();
        w.otherWrites("Zoo");
        w.type("txProjectName", "Zoo");
        w.save();
        QCOMPARE(w.asked(), QStringList());
        QCOMPARE(w.inFile(), named("Zoo"));
    }

    void aFileThatVanishedAsksForAName()
    {
        EditedZoo w;
        QVERIFY(QFile::remove(w.path("book.oidpro")));
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.save();
        QCOMPARE(w.asked(), QStringList("Save project"));
        QCOMPARE(w.inFile(), named("Farm"));
    }

    void whatTheOtherWroteIsToldAtOnce()
    {
        EditedZoo w;
        QCOMPARE(w.bar(), QString());
        w.otherWrites("Cow");
        QTRY_COMPARE(w.bar(), QString(kTold));
        QCOMPARE(w.get<QWidget>("changedFileBar")->accessibleName(), QString(kTold));
        w.otherWrites("Zoo");  // as it was
        QTRY_COMPARE(w.bar(), QString());
    }

    // The file that the other one wrote is another one of the same name.
    void aFileThatWasReplacedIsTold()
    {
        EditedZoo w;
        for (const char* const name : {"Cow", "Sea"}) {
            writeFile(w.folder.file("new"), named(name));
            QVERIFY(std::rename(w.folder.file("new").c_str(),
                                w.folder.file("book.oidpro").c_str()) == 0);
            QTRY_COMPARE(w.bar(), QString(kTold));
            w.dialogs.press("Overwrite");
            w.save();
            QCOMPARE(w.bar(), QString());
        }
    }

    void ownSavesAreNotTold()
    {
        EditedZoo w;
        w.save();
        QTest::qWait(500);
        QCOMPARE(w.bar(), QString());
    }

    void theBarOpensTheOther()
    {
        EditedZoo w;
        w.otherWrites("Cow");
        QTRY_COMPARE(w.bar(), QString(kTold));
        w.press(Qt::Key_O, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(w.field("txProjectName"), QString("Cow"));
        QCOMPARE(w.bar(), QString());
        QVERIFY(!w.offer().isEmpty());
        QCOMPARE(w.asked(), QStringList());
    }

    void withoutUnsavedWorkTheOtherIsOpenedAndNothingOffered()
    {
        EditedZoo w;
        w.save();
        w.otherWrites("Cow");
        w.dialogs.press("Open the other");
        w.save();
        QCOMPARE(w.field("txProjectName"), QString("Cow"));
        QCOMPARE(w.offer(), QString());
    }
};

QTEST_MAIN(TwoWindowsTest)

#include "TwoWindowsTest.moc"
