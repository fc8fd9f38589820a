// F1 and "Why?": what they open, and that it is there.
#include "base/Manual.h"
#include "app/PlaceInManual.h"
#include "app/ProblemList.h"
#include "hints/Hint.h"
#include "qtsync/WhyButton.h"
#include "tests/app/ManualPlaces.h"
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

namespace {

WhyButton* whyOf(QWidget& box)
{
    return box.findChild<WhyButton*>();
}

}  // namespace

class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { cache.reset(new ChangedVariable(kUserCache, folder.path())); }
    void cleanupTestCase() { cache.reset(); }

    void f1OpensThePlaceOfEachTab_data();
    void f1OpensThePlaceOfEachTab();
    void aClickOnTheButtonOpensThePlaceOfTheTab();
    void f1WorksWhileOneWrites();
    void aClickOnWhyOpensThePlaceOfTheHint();
    void f1InTheListTellsOfTheProblemThere();
    void everyHintHasItsPlace();
    void anErrorHasAPlace_data();
    void anErrorHasAPlace();
    void whyInABoxOpensItsPlaceAndLeavesTheBoxOpen();
    void f1InABoxTellsOfTheBox();
    void whyChangesNeitherEnterNorEscape_data();
    void whyChangesNeitherEnterNorEscape();
    void whyIsReachedByTab();
    void aBoxTellsWhenThereIsNoManual();
    void theQuestionBeforeAnotherOneIsOverwrittenHasItsPlace();
    void theEditorsBoxHasItsPlace();

private:
    TemporaryFolder folder;
    std::unique_ptr<ChangedVariable> cache;
};

void ManualTest::f1OpensThePlaceOfEachTab_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("place");
    QTest::newRow("Project") << "tabProject"
                             << "pages-project";
    QTest::newRow("Areas") << "tabAreas"
                           << "areas";
    QTest::newRow("Script") << "tabScript"
                            << "writing";
    QTest::newRow("Build") << "tabBuild"
                           << "pen-build";
    QTest::newRow("Try") << "tabTry"
                         << "try";
    QTest::newRow("Speech") << "tabSpeech"
                            << "speech-tab";
}

void ManualTest::f1OpensThePlaceOfEachTab()
{
    QFETCH(QString, tab);
    QFETCH(QString, place);
    Browser browser;
    WindowFixture author;
    author.get<QTabWidget>("ribbonTab")
        ->setCurrentWidget(author.get<QWidget>(tab.toUtf8().constData()));
    QTest::keyClick(&author.window, Qt::Key_F1);
    QCOMPARE(browser.place, place);
    QVERIFY(isInManual(place));
    QCOMPARE(browser.file, manualFile(QLocale::system().uiLanguages()));
}

void ManualTest::aClickOnTheButtonOpensThePlaceOfTheTab()
{
    Browser browser;
    WindowFixture author;
    QWidget* const button =
        author.get<QToolBar>("editBar")->widgetForAction(author.get<QAction>("actionManual"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(browser.place, QString("areas"));
}

void ManualTest::f1WorksWhileOneWrites()
{
    Browser browser;
    WindowFixture author;
    author.get<QTabWidget>("ribbonTab")->setCurrentWidget(author.get<QWidget>("tabScript"));
    auto& script = author.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
    script.setFocus();
    QTest::keyClick(&script, Qt::Key_F1);
    QCOMPARE(browser.place, QString("writing"));
    QCOMPARE(author.script(), QString());
}

void ManualTest::aClickOnWhyOpensThePlaceOfTheHint()
{
    Browser browser;
    WindowFixture author;
    author.open("PRODUCT 900, \"Zoo\"\nIMAGE\nSCRIPT\nsub cow\ncount = 1\nend sub\n");
    author.window.resize(1000, 800);
    auto& view = *author.get<QTreeView>("problemsView");
    const auto rowOf = [&](const QString& words) {
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (view.model()->index(row, ProblemList::words).data().toString().contains(words)) {
                return row;
            }
        }
        return -1;
    };
    TRY_VERIFY(rowOf("never read") >= 0);
    TRY_VERIFY(view.isVisible());
    const QModelIndex why = view.model()->index(rowOf("never read"), ProblemList::why);
    QCOMPARE(why.data().toString(), QString("Why?"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(why).center());
    QCOMPARE(browser.place, QString("hints-never-read"));
}

void ManualTest::f1InTheListTellsOfTheProblemThere()
{
    Browser browser;
    WindowFixture author;
    author.open("PRODUCT 900, \"Zoo\"\nIMAGE\nSCRIPT\nsub cow\nelse\nend sub\n");
    author.window.resize(1000, 800);
    auto& view = *author.get<QTreeView>("problemsView");
    TRY_VERIFY(view.model()->rowCount() > 0);
    TRY_VERIFY(view.isVisible());
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 0));
    QTest::keyClick(&view, Qt::Key_F1);
    QCOMPARE(browser.place, QString("script-messages"));
}

void ManualTest::everyHintHasItsPlace()
{
    for (const hints::Hint& hint : hints::allHints()) {
        Diagnostic problem;
        problem.severity = Severity::hint;
        problem.kind = hint.name;
        QVERIFY2(isInManual(placeInManual(problem)), hint.name);
    }
}

void ManualTest::anErrorHasAPlace_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("page");
    QTest::newRow("of the script") << 3 << 0;
    QTest::newRow("of an area") << 0 << 1;
    QTest::newRow("of the book") << 0 << 0;
}

void ManualTest::anErrorHasAPlace()
{
    QFETCH(int, line);
    QFETCH(int, page);
    Diagnostic problem;
    problem.line = line;
    problem.page = page;
    QVERIFY(isInManual(placeInManual(problem)));
}

void ManualTest::whyInABoxOpensItsPlaceAndLeavesTheBoxOpen()
{
    Browser browser;
    WindowFixture author;
    bool isOpen = false;
    author.dialogs.look([&](QWidget& box) {
        QTest::mouseClick(whyOf(box), Qt::LeftButton);
        isOpen = box.isVisible();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    author.click("btNextPicture");
    QVERIFY(isOpen);
    QCOMPARE(browser.place, QString("questions-save-first"));
    QVERIFY(isInManual(browser.place));
}

// Not of the tab behind it.
void ManualTest::f1InABoxTellsOfTheBox()
{
    Browser browser;
    WindowFixture author;
    bool isOpen = false;
    author.dialogs.look([&](QWidget& box) {
        QApplication::setActiveWindow(&box);
        QTest::keyClick(&box, Qt::Key_F1);
        isOpen = box.isVisible();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    author.click("btNextPicture");
    QVERIFY(isOpen);
    QCOMPARE(browser.place, QString("questions-save-first"));
}

void ManualTest::whyChangesNeitherEnterNorEscape_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

// All of them are OK, as in a box without "Why?".
void ManualTest::whyChangesNeitherEnterNorEscape()
{
    QFETCH(int, key);
    Browser browser;
    WindowFixture author;
    QMessageBox::StandardButton pressed = QMessageBox::NoButton;
    bool isClosed = false;
    author.dialogs.look([&](QWidget& dialog) {
        auto& box = *qobject_cast<QMessageBox*>(&dialog);
        QApplication::setActiveWindow(&box);
        QPushButton* const ok = qobject_cast<QPushButton*>(box.button(QMessageBox::Ok));
        QVERIFY(ok->isDefault());
        QVERIFY(ok->hasFocus());
        QTest::keyClick(ok, static_cast<Qt::Key>(key));
        pressed = box.standardButton(box.clickedButton());
        isClosed = !box.isVisible();
    });
    author.click("btNextPicture");
    QVERIFY(isClosed);
    QCOMPARE(pressed, QMessageBox::Ok);
    QCOMPARE(browser.place, QString());
}

void ManualTest::whyIsReachedByTab()
{
    Browser browser;
    WindowFixture author;
    author.dialogs.look([](QWidget& box) {
        QApplication::setActiveWindow(&box);
        QTest::keyClick(&box, Qt::Key_Tab);
        QVERIFY(whyOf(box)->hasFocus());
        QTest::keyClick(whyOf(box), Qt::Key_Space);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    author.click("btNextPicture");
    QCOMPARE(browser.place, QString("questions-save-first"));
}

// Tests run on a screen of no desktop, which opens no page.
void ManualTest::aBoxTellsWhenThereIsNoManual()
{
    WindowFixture author;
    QStringList told;
    author.dialogs.look([&](QWidget& dialog) {
        auto& box = *qobject_cast<QMessageBox*>(&dialog);
        for (int time = 0; time < 2; ++time) {
            QTest::mouseClick(whyOf(box), Qt::LeftButton);
            told << box.informativeText();
        }
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    author.click("btNextPicture");
    const QString once = "The manual cannot be shown: it is not installed, or there is no browser.";
    QCOMPARE(told, QStringList({once, once}));
}

void ManualTest::theQuestionBeforeAnotherOneIsOverwrittenHasItsPlace()
{
    WindowFixture author;
    author.open(projectFile({""}), 1);
    writeFile(author.folder.file("book.oidpro"), projectFile({""}, "sub cow\nend sub\n"));
    QString place;
    author.dialogs.look([&](QWidget& box) {
        place = whyOf(box)->place();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    author.trigger("actionSave");
    QVERIFY2(isInManual(place), qPrintable(place));
    QCOMPARE(author.status(), QString("Not saved: book.oidpro"));
}

// It says so in a test of the editor, which knows no manual.
void ManualTest::theEditorsBoxHasItsPlace()
{
    QVERIFY(isInManual("questions-too-large"));
}

QTEST_MAIN(ManualTest)
#include "ManualTest.moc"
