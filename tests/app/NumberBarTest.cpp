// The bar that says that two books of one folder have the same number.
#include "app/NoticeBar.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>

namespace {

QString barText(WindowFixture& w)
{
    return w.get<NoticeBar>("numberBar")->isVisible() ? w.get<QLabel>("numberBarText")->text() : "";
}

void saveAs(WindowFixture& w, const QString& path)
{
    w.dialogs.chooseFile(path);
    w.trigger("action_Save_As");
}

const char* const kShared = "The number 900 is also that of zoo.oidpro in this folder: the books "
                            "would use the same pictures.";

}  // namespace

class NumberBarTest : public QObject
{
    Q_OBJECT

private slots:
    void aNewBookBesideOneOfItsNumberIsTold()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        saveAs(w, w.path("book.oidpro"));
        QCOMPARE(barText(w), kShared);
        QCOMPARE(w.get<QPushButton>("btTakeNumber")->text(), "Take number 901");
        QCOMPARE(QAccessible::queryAccessibleInterface(w.get<NoticeBar>("numberBar"))
                     ->text(QAccessible::Name),
                 kShared);
    }

    void theBarStandsAboveTheTabs()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        saveAs(w, w.path("book.oidpro"));
        QCoreApplication::processEvents();
        QVERIFY(w.get<NoticeBar>("numberBar")->geometry().bottom() <
                w.get<QTabWidget>("ribbonTab")->geometry().top());
    }

    void theFreeNumberIsTakenAndSavedByTheNextSave()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        w.type("txProjectName", "Farm");
        saveAs(w, w.path("book.oidpro"));
        w.click("btTakeNumber");
        QCOMPARE(barText(w), "");
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 901);
        QCOMPARE(w.window.statusBar()->currentMessage(),
                 "This book has the number 901 now. Save it to keep that.");
        QCOMPARE(w.saved(), projectFile({}, "", "PRODUCT 901, \"Farm\""));
        QCOMPARE(barText(w), "");
    }

    void picturesBroughtInAfterwardsHaveTheNumberTaken()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        w.makePicture("900-bkgnd0.jpg");
        w.makePicture("scan.png", {60, 60});
        saveAs(w, w.path("book.oidpro"));
        w.click("btTakeNumber");
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        QCOMPARE(QImage(w.path("901-bkgnd0.jpg")).size(), QSize(60, 60));
        QCOMPARE(QImage(w.path("900-bkgnd0.jpg")).size(), QSize(200, 100));
    }

    void theKeyboardTakesTheNumber()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        saveAs(w, w.path("book.oidpro"));
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QTest::keyClick(&w.window, Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(w.get<QSpinBox>("txProjectId")->value(), 901);
    }

    void keepingTheNumberClosesTheBar()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        saveAs(w, w.path("book.oidpro"));
        w.click("btKeepNumber");
        QCOMPARE(barText(w), "");
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 900);
        w.trigger("actionSave");
        QCOMPARE(barText(w), "");
    }

    void aBookThatGetsTheNumberOfAnotherIsTold()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        w.get<QSpinBox>("txProjectId")->setValue(7);
        saveAs(w, w.path("book.oidpro"));
        QCOMPARE(barText(w), "");
        w.get<QSpinBox>("txProjectId")->setValue(900);
        w.trigger("actionSave");
        QCOMPARE(barText(w), kShared);
    }

    void aBookThatComesIntoAnotherFolderIsTold()
    {
        WindowFixture w;
        w.open(projectFile({}));
        const TemporaryFolder other;
        writeFile(other.file("zoo.oidpro"), projectFile({}));
        saveAs(w, QString::fromStdString(other.file("book.oidpro")));
        QCOMPARE(barText(w), kShared);
    }

    void anotherVersionOfABookSharesItsPicturesQuietly()
    {
        WindowFixture w;
        w.open(projectFile({}));
        saveAs(w, w.path("second try.oidpro"));
        QCOMPARE(barText(w), "");
    }

    void openingAnotherProjectClosesTheBar()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        saveAs(w, w.path("book.oidpro"));
        w.window.openProject(w.path("zoo.oidpro"));
        QCOMPARE(barText(w), "");
    }

    void whereNoNumberIsFreeNoneIsOffered()
    {
        WindowFixture w;
        writeFile(w.folder.file("zoo.oidpro"), projectFile({}));
        for (int number = 901; number <= 999; ++number) {
            writeFile(w.folder.file(std::to_string(number) + "-bkgnd0.jpg"), "");
        }
        saveAs(w, w.path("book.oidpro"));
        QCOMPARE(barText(w), kShared);
        QVERIFY(!w.get<QPushButton>("btTakeNumber")->isVisible());
    }
};

QTEST_MAIN(NumberBarTest)
#include "NumberBarTest.moc"
