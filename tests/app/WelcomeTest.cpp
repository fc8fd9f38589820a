// What an empty window shows: the ways to a book, and when it goes.
#include "app/Translations.h"
#include "app/WelcomePage.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTranslator>

namespace {

// In a file of the test's own; they outlive the window.
struct OwnSettings
{
    TemporaryFolder ofSettings;
    QSettings settings{QString::fromStdString(ofSettings.file("settings.ini")),
                       QSettings::IniFormat};
};

class Author : public OwnSettings, public WindowFixture
{
public:
    explicit Author(const QStringList& recent = {})
    {
        settings.setValue("books/recent", recent);
        window.keepSettingsIn(settings);
        auto* const tabs = get<QTabWidget>("ribbonTab");
        tabs->setCurrentWidget(get<QWidget>("tabScript"));
        tabs->setCurrentWidget(get<QWidget>("tabAreas"));  // shows it anew
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QWidget& page() { return *get<QWidget>("welcomePage"); }
    QListWidget& list() { return *get<QListWidget>("recentBooks"); }
    QStringList listed()
    {
        QStringList rows;
        for (int row = 0; row < list().count(); ++row) {
            rows << list().item(row)->text().remove(QDir::toNativeSeparators(path("")));
        }
        return rows;
    }
    void clickRow(int row)
    {
        const QRect place = list().visualItemRect(list().item(row));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
    QString write(const char* name)
    {
        writeFile(folder.file(name), projectFile({}));
        return path(name);
    }
    QStringList kept() { return settings.value("books/recent").toStringList(); }
};

bool isWhollySeen(const QWidget& control, const QWidget& page)
{
    const QRect place(control.mapTo(&page, QPoint()), control.size());
    return control.isVisible() && place.left() >= 0 && place.right() < page.width() &&
           control.width() >= control.minimumSizeHint().width();
}

}  // namespace

class WelcomeTest : public QObject
{
    Q_OBJECT

private slots:
    void standsInThePlaceOfThePictureOfAnEmptyWindow()
    {
        Author author;
        QVERIFY(author.page().isVisible());
        const QWidget* const view = author.get<QScrollArea>("pictureScroll")->viewport();
        const QRect place(author.page().mapTo(&author.window, QPoint()), author.page().size());
        QCOMPARE(place, QRect(view->mapTo(&author.window, QPoint()), view->size()));
        author.window.resize(1100, 760);
        QTRY_COMPARE(author.page().size(), view->size());
        author.get<QTabWidget>("ribbonTab")->setCurrentWidget(author.get<QWidget>("tabScript"));
        QVERIFY(!author.page().isVisible());
    }

    void isTheSameWhereNoSettingsAreKept()
    {
        WindowFixture w;
        QVERIFY(w.get<QWidget>("welcomePage")->isVisible());
        QVERIFY(!w.get<QWidget>("recentBooks")->isVisible());
    }

    void goesWhenAProjectIsOpened()
    {
        Author author;
        author.open(projectFile({}));
        author.get<QTabWidget>("ribbonTab")->setCurrentWidget(author.get<QWidget>("tabAreas"));
        QVERIFY(!author.page().isVisible());
    }

    void goesWhenTheProjectIsSaved()
    {
        Author author;
        author.dialogs.chooseFile(author.path("book.oidpro"));
        author.trigger("action_Save_As");
        QVERIFY(!author.page().isVisible());
    }

    void staysWhenNothingCouldBeOpened()
    {
        Author author;
        author.window.openProject(author.path("missing.oidpro"));
        author.get<QTabWidget>("ribbonTab")->setCurrentWidget(author.get<QWidget>("tabAreas"));
        QVERIFY(author.page().isVisible());
        QCOMPARE(author.listed(), QStringList());
    }

    void isNotThereForAWindowThatBeginsWithAProject()
    {
        const TemporaryFolder folder;
        writeFile(folder.file("book.oidpro"), projectFile({}));
        MainWindow window;
        window.openProject(QString::fromStdString(folder.file("book.oidpro")));
        window.show();
        QVERIFY(!window.findChild<QWidget*>("welcomePage")->isVisibleTo(&window));
    }

    void opensWhatTheAuthorChooses()
    {
        Author author;
        author.dialogs.chooseFile(author.write("zoo.oidpro"));
        author.click("btOpenBook");
        QCOMPARE(author.dialogs.seen(), QStringList("Open project"));
        QCOMPARE(author.status(), QString("Opened: zoo.oidpro"));
    }

    void aSampleBookIsCopiedAndOpened()
    {
        Author author;
        for (const char* const copy : {"farm", "farm-2"}) {
            MainWindow window;
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            author.dialogs.chooseFile(author.path(""));
            QTest::mouseClick(window.findChild<QPushButton*>("btSample_farm"), Qt::LeftButton);
            const QString folder = author.path(copy);
            QVERIFY(QDir(folder).entryList().contains("901-bkgnd0.jpg"));
            QCOMPARE(window.findChild<QStatusBar*>("statusbar")->currentMessage(),
                     "Your copy of the book lies in " + QDir::toNativeSeparators(folder) + ".");
            QVERIFY(!window.findChild<QLineEdit*>("txProjectName")->text().isEmpty());
        }
        QCOMPARE(author.dialogs.seen(), QStringList({"Folder for your copy of the book",
                                                     "Folder for your copy of the book"}));
    }

    void aSampleBookThatCannotBeCopiedIsTold()
    {
        Author author;
        const SmallDisk disk(1000);
        author.dialogs.chooseFile(author.path(""));
        author.dialogs.press("OK");
        author.click("btSample_farm");
        QCOMPARE(author.dialogs.seen().value(1), "Warning: The book could not be copied to " +
                                                     QDir::toNativeSeparators(author.path("farm")) +
                                                     ".");
        QVERIFY(author.page().isVisible());
        QVERIFY(!QFileInfo::exists(author.path("farm")));
    }

    void aSampleBookThatNobodyWantsAnywhereIsNotCopied()
    {
        Author author;
        author.dialogs.cancel();
        author.click("btSample_farm");
        QVERIFY(author.page().isVisible());
        QCOMPARE(author.status(), QString());
    }

    void asksForANewBook()
    {
        Author author;
        author.dialogs.cancel();
        author.click("btNewBook");
        QCOMPARE(author.dialogs.seen(), QStringList("New book"));
        QVERIFY(author.page().isVisible());
    }

    void remembersBooksThatWereOpenedAndSaved()
    {
        Author author;
        author.open(projectFile({}));
        author.dialogs.chooseFile(author.path("zoo.oidpro"));
        author.trigger("action_Save_As");
        const QStringList both = {author.path("zoo.oidpro"), author.path("book.oidpro")};
        QCOMPARE(author.kept(), both);
        author.window.openProject(author.path("book.oidpro"));
        QCOMPARE(author.kept(), QStringList({both[1], both[0]}));
    }

    void doesNotRememberWhatCouldNotBeOpened()
    {
        Author author;
        author.window.openProject(author.path("missing.oidpro"));
        QCOMPARE(author.kept(), QStringList());
    }

    void remembersTen()
    {
        Author author;
        QStringList files;
        for (int i = 0; i < 12; ++i) {
            files.prepend(author.write(qPrintable(QString("book%1.oidpro").arg(i))));
            author.window.openProject(files.front());
        }
        QCOMPARE(author.kept(), files.mid(0, 10));
    }

    void showsTheLastBooksByFileAndFolder()
    {
        const TemporaryFolder books;
        const QString there = QString::fromStdString(books.file("zoo.oidpro"));
        writeFile(there.toStdString(), projectFile({}));
        Author author({there, "/nowhere/farm.oidpro"});
        const QString folder = QDir::toNativeSeparators(QString::fromStdString(books.path()));
        const QString nowhere = QDir::toNativeSeparators("/nowhere");
        QCOMPARE(author.listed(),
                 QStringList({"zoo.oidpro in " + folder,
                              "farm.oidpro in " + nowhere + " (not there any more)"}));
        QCOMPARE(author.list().item(0)->toolTip(), QDir::toNativeSeparators(there));
        QCOMPARE(author.list().item(1)->toolTip(),
                 QDir::toNativeSeparators("/nowhere/farm.oidpro"));
    }

    void aClickOpensABook()
    {
        const TemporaryFolder books;
        const QString zoo = QString::fromStdString(books.file("zoo.oidpro"));
        writeFile(zoo.toStdString(), projectFile({}));
        Author author({"/nowhere/farm.oidpro", zoo});
        author.clickRow(1);
        QCOMPARE(author.status(), QString("Opened: zoo.oidpro"));
        QVERIFY(!author.page().isVisible());
    }

    void enterOpensTheBookOfTheRow()
    {
        const TemporaryFolder books;
        const QString zoo = QString::fromStdString(books.file("zoo.oidpro"));
        writeFile(zoo.toStdString(), projectFile({}));
        Author author({"/nowhere/farm.oidpro", zoo});
        author.list().setFocus();
        QTest::keyClick(&author.list(), Qt::Key_Down);
        QTest::keyClick(&author.list(), Qt::Key_Down);
        QTest::keyClick(&author.list(), Qt::Key_Return);
        QCOMPARE(author.status(), QString("Opened: zoo.oidpro"));
    }

    void aBookThatIsGoneIsTold()
    {
        Author author({"/nowhere/farm.oidpro"});
        author.clickRow(0);
        QCOMPARE(author.status(), QDir::toNativeSeparators("/nowhere/farm.oidpro") +
                                      " is not there any more. It can be removed from the list.");
        QVERIFY(author.page().isVisible());
        QCOMPARE(author.kept(), QStringList("/nowhere/farm.oidpro"));
    }

    void aBookIsRemovedFromTheListByButtonAndKey()
    {
        Author author({"/nowhere/a.oidpro", "/nowhere/b.oidpro", "/nowhere/c.oidpro"});
        QVERIFY(!author.get<QPushButton>("btRemoveRecent")->isEnabled());
        author.clickRow(1);
        author.click("btRemoveRecent");
        QCOMPARE(author.kept(), QStringList({"/nowhere/a.oidpro", "/nowhere/c.oidpro"}));
        QCOMPARE(author.status(), QString("b.oidpro is off the list."));
        QCOMPARE(author.list().currentRow(), 1);
        QTest::keyClick(&author.list(), Qt::Key_Delete);
        QTest::keyClick(&author.list(), Qt::Key_Delete);
        QCOMPARE(author.kept(), QStringList());
        QVERIFY(!author.list().isVisible());
        QCOMPARE(QApplication::focusWidget(), author.get<QPushButton>("btNewBook"));
    }

    void everyWayIsReachedByTabBehindThePage()
    {
        Author author({"/nowhere/a.oidpro"});
        author.get<QWidget>("polyArea")->setFocus();
        QStringList reached;
        for (int i = 0; i < 20 && !reached.contains("btAbout"); ++i) {
            QTest::keyClick(&author.window, Qt::Key_Tab);
            reached << QApplication::focusWidget()->objectName();
        }
        reached.erase(
            std::remove_if(reached.begin(), reached.end(),
                           [](const QString& name) { return name.startsWith("btSample_"); }),
            reached.end());
        QCOMPARE(reached, QStringList({"btNewBook", "btOpenBook", "recentBooks", "btRemoveRecent",
                                       "btAbout"}));
        QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(&author.list());
        QCOMPARE(read->text(QAccessible::Name), QString("Last books"));
    }

    void aRealStartBeginsWithIt()
    {
        Author author;
        author.window.offerUnsavedWork();
        QCOMPARE(QApplication::focusWidget(), author.get<QPushButton>("btNewBook"));
    }

    void nothingIsCut_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QSize>("size");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            for (const QSize size : {QSize(1024, 600), QSize(640, 360)}) {
                QTest::addRow("%s %d", language, size.width()) << QString(language) << size;
            }
        }
    }

    // Up and down one can scroll, as far as to the last button.
    void nothingIsCut()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        QStringList recent;
        for (int i = 0; i < 10; ++i) {
            recent << QString("/a/rather/long/way/to/a/folder/with/a/name/book%1.oidpro").arg(i);
        }
        Author author(recent);
        author.window.resize(size);
        for (const bool docks : {true, false}) {
            author.get<QAction>("actionDockPages")->setChecked(docks && size.width() > 1000);
            author.get<QAction>("actionDockAreas")->setChecked(docks && size.width() > 1000);
            QTest::qWait(10);
            for (const QPushButton* const button : author.page().findChildren<QPushButton*>()) {
                QVERIFY2(isWhollySeen(*button, author.page()), qPrintable(button->text()));
            }
            QVERIFY(isWhollySeen(author.list(), author.page()));
            QCOMPARE(static_cast<QScrollArea&>(author.page()).horizontalScrollBar()->maximum(), 0);
            auto* const last = author.get<QPushButton>("btRemoveRecent");
            author.list().setCurrentRow(9);
            last->setFocus(Qt::TabFocusReason);
            static_cast<QScrollArea&>(author.page()).ensureWidgetVisible(last);
            QCOMPARE(last->visibleRegion().boundingRect().size(), last->size());
        }
    }

    void theRowOfTheListIsScrolledTo()
    {
        QStringList recent;
        for (int i = 0; i < 10; ++i) {
            recent << QString("/nowhere/book%1.oidpro").arg(i);
        }
        Author author(recent);
        author.window.resize(640, 360);
        QTest::qWait(10);
        author.list().setFocus();
        QTest::keyClick(&author.list(), Qt::Key_End);
        const QRect row = author.list().visualItemRect(author.list().item(9));
        QVERIFY(author.list().viewport()->visibleRegion().contains(row.center()));
    }
};

QTEST_MAIN(WelcomeTest)
#include "WelcomeTest.moc"
