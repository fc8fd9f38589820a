// The lists of pages and areas beside the page.
#include "tests/app/WindowFixture.h"

#include "app/AreaTableModel.h"
#include "app/Translations.h"
#include "tests/helpers/RunProgram.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>
#include <QToolBar>
#include <QTranslator>

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
    // What the command line prints of a page of the saved book.
    std::string printOf(int page)
    {
        const ProgramRun run =
            runProgram(PLINKETT_BIN_DIR "/plinkett-cli", {"print", folder.file("book.oidpro")});
        return run.status != 0
                   ? run.out + run.err
                   : readFile(folder.file("900-print" + std::to_string(page) + ".tiff"));
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

    void manyAreasAreDeletedAtOnce()
    {
        Lists w;
        w.clickRow(0);
        QTest::keyClick(&w.table(), Qt::Key_A, Qt::ControlModifier);
        QSignalSpy removed(w.window.findChild<AreaTableModel*>(), &QAbstractItemModel::rowsRemoved);
        QTest::keyClick(&w.table(), Qt::Key_Delete);
        QCOMPARE(removed.count(), 1);
        QCOMPARE(w.names(), QString("hen"));
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

    void theCommandLinePrintsTheSavedPagesWhileOthersAreShown()
    {
        Lists w;
        w.makePicture("900-bkgnd0.jpg", {300, 100});
        w.saved();
        const std::string first = w.printOf(0);
        const std::string second = w.printOf(1);
        QVERIFY(first != second);
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Down, Qt::ControlModifier);
        QVERIFY(w.printOf(0) == first);
        QVERIFY(w.printOf(1) == second);
        w.saved();
        QVERIFY(w.printOf(0) != first);
    }

    void aPageWithoutAreasMovesWithItsPaperAndPicture()
    {
        Lists w;
        w.open(projectFile({area("cow", 1001), "", area("hen", 1002)}), 3);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.makePicture("900-bkgnd1.jpg", {300, 100});
        const std::string bare = w.picture(1);
        w.click("btNextPicture");
        w.window.activateWindow();  // the dialog was active
        QTest::qWait(10);
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Up, Qt::ControlModifier);
        w.saved();
        QCOMPARE(w.picture(0), bare);
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Open");
        QCOMPARE(w.text("lbPageOfPages"), QString("Page 1 of 3"));
        QCOMPARE(w.names(), QString("cow hen"));
        QCOMPARE(w.cell(0, 2), QString("2"));
    }

    void pagesThatAnotherWindowMovedAndSavedAreToldAndNotSavedOver()
    {
        Lists w;
        w.makePicture("900-bkgnd0.jpg", {300, 100});
        w.saved();
        MainWindow other;
        other.openProject(w.path("book.oidpro"));
        other.findChild<QAction*>("actionPageDown")->trigger();
        other.findChild<QAction*>("actionSave")->trigger();
        const std::string theirs = readFile(w.folder.file("book.oidpro"));

        w.type("txPolyName", "ox");
        w.dialogs.press("OK");
        w.dialogs.cancel();  // of Save As
        w.trigger("actionSave");
        QCOMPARE(w.dialogs.seen().value(1),
                 "Warning: The pictures could not be brought to their pages.\n\n" +
                     w.path("book.oidpro") +
                     "\nAnother window has moved pages of this book and saved that. Open the book "
                     "again.");
        QCOMPARE(readFile(w.folder.file("book.oidpro")), theirs);
    }

    void comingBackToAWindowTellsThatAnotherOneHasMovedPages()
    {
        Lists w;
        w.makePicture("900-bkgnd0.jpg", {300, 100});
        w.saved();
        const std::string first = w.picture(0);
        {
            MainWindow other;
            other.openProject(w.path("book.oidpro"));
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            other.findChild<QAction*>("actionPageDown")->trigger();
            other.findChild<QAction*>("actionSave")->trigger();
            QCOMPARE(w.picture(1), first);
            w.window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&w.window));
        }
        QCOMPARE(w.status(), QString("book.oidpro: another window has moved pages and saved that. "
                                     "Open the book again."));
    }

    void anEditOfOneOf2000AreasIsThatOfOneRow()
    {
        std::string many;
        for (int i = 0; i < 2000; ++i) {
            many += area(("area" + std::to_string(i)).c_str(), 1000 + i);
        }
        Lists w;
        w.open(projectFile({many}), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        QAbstractItemModel& list = *w.table().model();
        QCOMPARE(list.rowCount(), 2000);
        w.clickRow(3);
        QCOMPARE(w.field("txPolyName"), QString("area3"));
        QTest::qWait(600);  // the check of the script

        auto* const source = w.window.findChild<AreaTableModel*>();
        QSignalSpy resets(source, &QAbstractItemModel::modelReset);
        QSignalSpy inserted(source, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(source, &QAbstractItemModel::rowsRemoved);
        QSignalSpy changed(source, &QAbstractItemModel::dataChanged);
        w.get<PolyEditorWidget>("polyArea")->setFocus();
        QTest::keyClick(w.get<PolyEditorWidget>("polyArea"), Qt::Key_Right);
        QCOMPARE(changed.size(), 0);  // where an area lies is not in the list
        Document& document = *w.get<PolyEditorWidget>("polyArea")->shownDocument();
        document.apply(edit::SetCorners{document.selectedArea(), {{1, 1}, {2, 2}}});
        QCOMPARE(w.cell(3, AreaTableModel::warnings),
                 QString("Fewer than three corners, Not in the script"));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex().row(), 3);
        QCOMPARE(changed[0][1].toModelIndex().row(), 3);
        w.trigger("actionUndo");
        QCOMPARE(w.cell(3, AreaTableModel::warnings), QString("Not in the script"));
        QCOMPARE(changed.size(), 2);
        QTest::keyClick(w.get<PolyEditorWidget>("polyArea"), Qt::Key_Delete);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(list.rowCount(), 1999);
        w.trigger("actionUndo");
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(list.rowCount(), 2000);
        QCOMPARE(resets.size(), 0);

        w.table().sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(w.cell(0, 0), QString("area999"));
        w.type("areaFilter", "a199");
        QCOMPARE(list.rowCount(), 11);
        QCOMPARE(w.cell(10, 0), QString("area199"));
    }

    void anAreaWithAWarningHasItsIconBesideItsName()
    {
        Lists w;
        QTRY_COMPARE(w.cell(0, 3), QString("yes"));
        const auto iconOf = [&](int row) {
            return w.table().model()->index(row, 0).data(Qt::DecorationRole);
        };
        QVERIFY(iconOf(0).isNull());
        QVERIFY(!iconOf(2).isNull());
        QCOMPARE(w.table().model()->index(2, 0).data(Qt::ToolTipRole).toString(),
                 QString("hen\nNot in the script"));
    }

    void docksRememberTheirPlaces()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("s.ini")), QSettings::IniFormat);
        const auto placeIn = [](MainWindow& window) {
            auto* const dock = window.findChild<QDockWidget*>("dockAreas");
            return qobject_cast<QMainWindow*>(dock->parentWidget())->dockWidgetArea(dock);
        };
        {
            MainWindow window;
            window.keepSettingsIn(settings);
            auto* const dock = window.findChild<QDockWidget*>("dockAreas");
            qobject_cast<QMainWindow*>(dock->parentWidget())
                ->addDockWidget(Qt::LeftDockWidgetArea, dock);
        }
        MainWindow window;
        QCOMPARE(placeIn(window), Qt::RightDockWidgetArea);
        window.keepSettingsIn(settings);
        QCOMPARE(placeIn(window), Qt::LeftDockWidgetArea);
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

    void aClickOnAPageLeavesTheKeysToIt()
    {
        Lists w;
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        const QRect place = w.pages().visualRect(w.pages().model()->index(1, 0));
        w.pages().setFocus();
        QTest::mouseClick(w.pages().viewport(), Qt::LeftButton, {}, place.center());
        QVERIFY(page->hasFocus());
        QTest::keyClick(page, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(page, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(w.names(), QString("cow ant hen hen2"));
    }

    void theListHasTheKeysForItsAreasUntilEscape()
    {
        Lists w;
        const std::string before = w.saved();
        w.table().setFocus();
        w.clickRow(0);
        QVERIFY(w.table().hasFocus());
        const auto press = [&](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        };
        press(Qt::Key_D);
        QCOMPARE(w.names(), QString("cow ant cow2 hen"));
        press(Qt::Key_X);
        QCOMPARE(w.names(), QString("cow ant hen"));
        press(Qt::Key_Z);
        press(Qt::Key_Z);
        QCOMPARE(w.saved(), before);
        w.clickRow(0);
        press(Qt::Key_C);
        w.clickRow(2);
        press(Qt::Key_V);
        QCOMPARE(w.names(), QString("cow ant hen cow"));
        w.clickRow(0);
        press(Qt::Key_PageDown);
        QCOMPARE(w.names(), QString("ant cow hen cow"));
        QTest::keyClick(&w.table(), Qt::Key_Escape);
        QVERIFY(w.get<PolyEditorWidget>("polyArea")->hasFocus());
    }

    void keysStayInTheList()
    {
        Lists w;
        w.pages().setFocus();
        QTest::keyClick(&w.pages(), Qt::Key_Down);
        QVERIFY(w.pages().hasFocus());
        w.table().setFocus();
        QTest::keyClick(&w.table(), Qt::Key_Up);
        QVERIFY(w.table().hasFocus());
    }

    void aKeyOpensAListAndGoesIntoItOrClosesIt_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QByteArray>("dock");
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("areas") << int(Qt::Key_A) << QByteArray("actionDockAreas")
                               << QByteArray("dockAreas") << QByteArray("areaTable");
        QTest::newRow("pages") << int(Qt::Key_P) << QByteArray("actionDockPages")
                               << QByteArray("dockPages") << QByteArray("pageList");
    }

    void aKeyOpensAListAndGoesIntoItOrClosesIt()
    {
        QFETCH(int, key);
        QFETCH(QByteArray, action);
        QFETCH(QByteArray, dock);
        QFETCH(QByteArray, list);
        Lists w;
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        const auto press = [&] {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key),
                            Qt::ControlModifier | Qt::ShiftModifier);
        };
        page->setFocus();
        press();
        QVERIFY(!w.get<QDockWidget>(dock)->isVisible());
        QVERIFY(page->hasFocus());
        press();
        QVERIFY(w.get<QDockWidget>(dock)->isVisible());
        QCOMPARE(QApplication::focusWidget(), w.get<QWidget>(list));
        press();
        QVERIFY(!w.get<QDockWidget>(dock)->isVisible());
        QVERIFY(page->hasFocus());
        const QString keys = QString("(Ctrl+Shift+%1)").arg(QChar(key));
        QVERIFY2(w.get<QAction>(action)->toolTip().endsWith(keys),
                 qPrintable(w.get<QAction>(action)->toolTip()));
    }

    void theMouseOpensAListAndThePageKeepsTheKeys()
    {
        Lists w;
        w.get<PolyEditorWidget>("polyArea")->setFocus();
        QAction* const action = w.get<QAction>("actionDockAreas");
        QWidget* const button = w.get<QToolBar>("editBar")->widgetForAction(action);
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(w.get<PolyEditorWidget>("polyArea")->hasFocus());
        }
        QVERIFY(w.get<QDockWidget>("dockAreas")->isVisible());
    }

    void headingsAreWholeInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTest::newRow(language) << QString(language);
        }
    }

    void headingsAreWholeInEveryLanguage()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        Lists w;
        QHeaderView* const header = w.table().horizontalHeader();
        QVERIFY(!header->highlightSections());
        const QFontMetrics letters = header->fontMetrics();
        const int arrow = header->style()->pixelMetric(QStyle::PM_HeaderMarkSize);
        for (int column = 0; column < AreaTableModel::warnings; ++column) {
            const QString heading =
                w.table().model()->headerData(column, Qt::Horizontal).toString();
            QVERIFY2(header->sectionSize(column) >= letters.horizontalAdvance(heading) + arrow,
                     qPrintable(heading));
        }
        QVERIFY(header->length() - header->sectionSize(AreaTableModel::warnings) <
                w.table().viewport()->width());
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
