// The lists of pages and areas beside the page.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QDockWidget>
#include <QLineEdit>
#include <QListView>
#include <QSettings>
#include <QTableView>

namespace {

std::string area(const char* name, int number)
{
    return "OID " + std::to_string(number) + "\nPOLY " + name + "\n 10 10\n 50 10\n 50 50\nEND\n";
}

class Lists : public WindowFixture
{
public:
    Lists()
    {
        open(projectFile({area("cow", 1001) + area("ant", 1003), area("hen", 1002)},
                         "sub cow\nsay \"moo\"\nend sub\n"),
             2);
        get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        get<QAction>("actionDockAreas")->setChecked(true);
        get<QAction>("actionDockPages")->setChecked(true);
        window.activateWindow();
        QTest::qWait(10);
    }
    QTableView& table() { return *get<QTableView>("areaTable"); }
    QListView& pages() { return *get<QListView>("pageList"); }
    QString cell(int row, int column)
    {
        return table().model()->index(row, column).data().toString();
    }
    QString names()
    {
        QStringList all;
        for (int row = 0; row < table().model()->rowCount(); ++row) {
            all << cell(row, 0);
        }
        return all.join(' ');
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QRect place = table().visualRect(table().model()->index(row, 0));
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, place.center());
    }
    std::string picture(int page)
    {
        return readFile(folder.file("900-bkgnd" + std::to_string(page) + ".jpg"));
    }
};

}  // namespace

class DocksTest : public QObject
{
    Q_OBJECT

private slots:
    void theDocksAreThereOnTheTabAreasOnly()
    {
        Lists w;
        QVERIFY(w.get<QDockWidget>("dockAreas")->isVisible());
        QVERIFY(w.get<QDockWidget>("dockPages")->isVisible());
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(2);
        QVERIFY(!w.get<QDockWidget>("dockAreas")->isVisible());
        QVERIFY(!w.get<QDockWidget>("dockPages")->isVisible());
    }

    void aDockThatWasClosedStaysClosedUntilItsActionOpensIt()
    {
        Lists w;
        w.get<QDockWidget>("dockAreas")->close();
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(2);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        QVERIFY(!w.get<QDockWidget>("dockAreas")->isVisible());
        w.trigger("actionDockAreas");
        QVERIFY(w.get<QDockWidget>("dockAreas")->isVisible());
    }

    void areasOfAllPagesAreListedWithTheirNumbersPagesAndCode()
    {
        Lists w;
        QCOMPARE(w.names(), QString("cow ant hen"));
        QTRY_COMPARE(w.cell(0, 3), QString("yes"));
        QCOMPARE(w.cell(2, 1), QString("1002"));
        QCOMPARE(w.cell(2, 2), QString("2"));
        QCOMPARE(w.cell(0, 4), QString());
        QCOMPARE(w.cell(2, 3), QString("no"));
        QCOMPARE(w.cell(2, 4), QString("Not in the script"));
    }

    void aScriptThatCannotBeCompiledKeepsTheAreasItNamesSoFar()
    {
        Lists w;
        w.open(projectFile({area("cow", 1001)}, "sub cow\nx = +\nend sub\n"), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        QTRY_COMPARE(w.cell(0, 3), QString("yes"));
    }

    void theListIsSortedAndFiltered()
    {
        Lists w;
        w.table().sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(w.names(), QString("ant cow hen"));
        w.type("areaFilter", "HE");
        QCOMPARE(w.names(), QString("hen"));
    }

    void aClickGoesToPageAndArea()
    {
        Lists w;
        w.clickRow(2);
        QCOMPARE(w.field("txPolyName"), QString("hen"));
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 2 of 2"));
        w.clickRow(0);
        QCOMPARE(w.field("txPolyName"), QString("cow"));
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 1 of 2"));
        w.clickRow(1, Qt::ControlModifier);
        QCOMPARE(w.table().selectionModel()->selectedRows().size(), 2);
    }

    void f2RenamesInOneStep()
    {
        Lists w;
        const std::string before = w.saved();
        w.clickRow(2);
        QTest::keyClick(&w.table(), Qt::Key_F2);
        auto* const field = w.table().viewport()->findChild<QLineEdit*>();
        QVERIFY(field != nullptr);
        field->selectAll();
        QTest::keyClicks(field, "big hen");
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(w.cell(2, 0), QString("big_hen"));
        w.trigger("actionUndo");
        QCOMPARE(w.tab(), QString("Areas"));
        QCOMPARE(w.saved(), before);
        w.trigger("actionRedo");
        QCOMPARE(w.cell(2, 0), QString("big_hen"));
    }

    void deleteRemovesTheSelectedAreasInOneStep()
    {
        Lists w;
        const std::string before = w.saved();
        w.clickRow(0);
        w.clickRow(1, Qt::ControlModifier);
        QTest::keyClick(&w.table(), Qt::Key_Delete);
        QCOMPARE(w.names(), QString("hen"));
        w.trigger("actionUndo");
        QCOMPARE(w.saved(), before);
        QCOMPARE(w.names(), QString("cow ant hen"));
    }

    void aDoubleClickGoesToTheCode()
    {
        Lists w;
        const QRect place = w.table().visualRect(w.table().model()->index(0, 0));
        w.clickRow(0);
        QTest::mouseDClick(w.table().viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(w.tab(), QString("Script"));
    }

    void aClickOnAPageGoesThere()
    {
        Lists w;
        const QRect place = w.pages().visualRect(w.pages().model()->index(1, 0));
        QTest::mouseClick(w.pages().viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 2 of 2"));
        w.click("btPreviousPicture");
        QCOMPARE(w.pages().currentIndex().row(), 0);
    }

    void theListShowsThePicturesOfThePages()
    {
        Lists w;
        const auto colour = [&w](int row) {
            const QImage shown =
                w.pages().model()->index(row, 0).data(Qt::DecorationRole).value<QImage>();
            return shown.pixelColor(shown.rect().center());
        };
        QImage red(400, 300, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(w.path("900-bkgnd0.jpg")));
        w.window.openProject(w.path("book.oidpro"));
        QTRY_VERIFY(colour(0).red() > 240 && colour(0).green() < 20);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Down, Qt::AltModifier);
        QTRY_VERIFY(colour(1).red() > 240 && colour(1).green() < 20);
        QTRY_VERIFY(colour(0).green() > 20 || colour(0).red() < 240);
    }

    void keysMoveAPageWithItsPictureAndUndoBringsAllBack()
    {
        Lists w;
        w.makePicture("900-bkgnd0.jpg", {300, 100});
        const std::string before = w.saved();
        const std::string first = w.picture(0);
        const std::string second = w.picture(1);
        QVERIFY(first != second);
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(w.names(), QString("hen cow ant"));
        QCOMPARE(w.picture(1), first);
        QCOMPARE(w.picture(0), second);
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 2 of 2"));
        w.trigger("actionUndo");
        QCOMPARE(w.picture(0), first);
        QCOMPARE(w.saved(), before);
    }

    void deleteRemovesAPageAndUndoBringsItBack()
    {
        Lists w;
        const std::string before = w.saved();
        const std::string first = w.picture(0);
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Delete);
        QCOMPARE(w.names(), QString("hen"));
        QCOMPARE(w.status(), QString("Page 1 is removed with its areas. Undo brings it back."));
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 1 of 1"));
        w.trigger("actionUndo");
        QCOMPARE(w.picture(0), first);
        QCOMPARE(w.saved(), before);
    }

    void withoutPagesTheLabelSaysSo()
    {
        WindowFixture w;
        QCOMPARE(w.text("lbPageOfPages"), QString("No page"));
    }

    void whichDocksAreOpenIsKept()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("s.ini")), QSettings::IniFormat);
        {
            MainWindow window;
            window.keepSettingsIn(settings);
            window.findChild<QAction*>("actionDockAreas")->setChecked(true);
            window.findChild<QAction*>("actionDockPages")->setChecked(false);
        }
        MainWindow window;
        window.keepSettingsIn(settings);
        QVERIFY(window.findChild<QAction*>("actionDockAreas")->isChecked());
        QVERIFY(!window.findChild<QAction*>("actionDockPages")->isChecked());
    }
};

QTEST_MAIN(DocksTest)
#include "DocksTest.moc"
