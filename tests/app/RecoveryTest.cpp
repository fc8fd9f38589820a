// Work that was not saved is there again when its project, or an empty window, is opened.
#include "app/RecoveryBar.h"
#include "app/Translations.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTranslator>

#include <filesystem>

namespace {

constexpr int kAtLatest = 5000;  // ms after a change

const std::string kCow = "OID 1001\r\nPOLY cow\r\n"
                         "       10.00    10.00\r\n       50.00    10.00\r\n"
                         "       50.00    40.00\r\nEND\r\n\r\n";

QWidget& surface(WindowFixture& w)
{
    return w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
}

void typeScript(WindowFixture& w, const QString& text)
{
    QTest::keyClicks(&surface(w), text);
}

// What the bar says, its date and time as "TIME".
QString barText(MainWindow& window)
{
    const RecoveryBar* const bar = window.findChild<RecoveryBar*>("recoveryBar");
    const QString text = bar->findChild<QLabel*>("recoveryBarText")->text();
    const QString time = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    QString pattern = QRegularExpression::escape(time);
    pattern.replace(QRegularExpression("\\d+"), "\\d+");
    return bar->isVisibleTo(&window) ? QString(text).replace(QRegularExpression(pattern), "TIME")
                                     : QString();
}

QStringList copies(const WindowFixture& w)
{
    const QDir folder(QString::fromStdString(w.userData.recovery()));
    QStringList paths;
    for (const QString& name : folder.entryList({"*.oidpro"})) {
        paths << folder.filePath(name);
    }
    return paths;
}

// A window that is closed without saving what it does with the project; an empty path begins
// without one.
void leaveUnsaved(const QString& path, const std::function<void(MainWindow&)>& work)
{
    MainWindow window;
    if (!path.isEmpty()) {
        window.openProject(path);
    }
    work(window);
}

void rename(MainWindow& window, const QString& name)
{
    QLineEdit* const field = window.findChild<QLineEdit*>("txProjectName");
    field->selectAll();
    QTest::keyClicks(field, name);
}

// A fixture whose project was left with another name.
struct LeftZoo : WindowFixture
{
    LeftZoo()
    {
        writeFile(folder.file("book.oidpro"), projectFile({kCow}));
        leaveUnsaved(path("book.oidpro"), [](MainWindow& other) { rename(other, "Farm"); });
        window.openProject(path("book.oidpro"));
    }
};

const char* const kOffer = "There is unsaved work on this project since TIME.";

}  // namespace

class RecoveryTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsTypedIsCopiedFiveSecondsLaterAtLatest()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeScript(w, "sub cow");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w).size(), 1, kAtLatest);
        const std::string copy = readFile(copies(w)[0].toStdString());
        QVERIFY(QString::fromStdString(copy).endsWith("\r\nsub cow"));
        QCOMPARE(readFile(w.folder.file("book.oidpro")), projectFile({kCow}));
    }

    void typingOnAndOnDoesNotPutTheCopyOff()
    {
        WindowFixture w;
        QElapsedTimer time;
        time.start();
        while (copies(w).isEmpty() && time.elapsed() < kAtLatest) {
            typeScript(w, "x");
            QTest::qWait(50);
        }
        QCOMPARE(copies(w).size(), 1);
    }

    void whileADialogIsOpenTheCopyIsMade()
    {
        WindowFixture w;
        typeScript(w, "sub cow");
        bool copied = false;
        w.dialogs.look([&](QWidget& dialog) {
            copied = QTest::qWaitFor([&] { return !copies(w).isEmpty(); }, kAtLatest);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.trigger("action_Open");
        QVERIFY(copied);
    }

    void withoutAChangeThereIsNoCopy_data()
    {
        QTest::addColumn<QString>("project");
        QTest::newRow("as saved") << QString::fromStdString(projectFile({kCow}, "x = 100%\r\n"));
        QTest::newRow("written by hand")
            << "PRODUCT 0900 Zoo\nBOX cow 1.234 2 3 4\nSCRIPT\nx = 1\n";
        QTest::newRow("of a number that the form cannot show") << "PRODUCT 1000, Zoo\nSCRIPT\n";
    }

    void withoutAChangeThereIsNoCopy()
    {
        QFETCH(QString, project);
        WindowFixture w;
        w.open(project.toStdString(), 1);
        QTest::qWait(kAtLatest / 2);
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(copies(w), QStringList());
        QCOMPARE(barText(w.window), "");
    }

    // A build's results, and what the form holds of its own, outlast the copy.
    void makingTheCopyChangesNothing()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        w.type("txProjDPI", "0600");
        w.type("txProjectName", "Farm");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w).size(), 1, kAtLatest);
        QCOMPARE(w.field("txProjDPI"), "0600");
        QVERIFY(w.get<QLineEdit>("txProjectName")->isModified());
        w.click("btNextPicture");
        QCOMPARE(w.field("txProjectName"), "Farm");
    }

    void savingRemovesTheCopy()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w).size(), 1, kAtLatest);
        w.trigger("actionSave");
        QCOMPARE(copies(w), QStringList());
    }

    void whatIsTakenBackNeedsNoCopy()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w).size(), 1, kAtLatest);
        w.type("txProjectName", "Zoo");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w), QStringList(), kAtLatest);
    }

    void closingTheWindowLosesNothing()
    {
        LeftZoo w;
        QCOMPARE(barText(w.window), kOffer);
        QCOMPARE(w.field("txProjectName"), "Zoo");
        QCOMPARE(readFile(w.folder.file("book.oidpro")), projectFile({kCow}));
    }

    void openingAnotherProjectLosesNothing()
    {
        WindowFixture w;
        writeFile(w.folder.file("other.oidpro"), projectFile({}));
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        w.window.openProject(w.path("other.oidpro"));
        QCOMPARE(barText(w.window), "");
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window), kOffer);
    }

    void openingTheSameProjectAgainLosesNothing()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(w.field("txProjectName"), "Zoo");
        QCOMPARE(barText(w.window), kOffer);
    }

    void theBarStandsAboveTheTabs()
    {
        LeftZoo w;
        QCoreApplication::processEvents();
        QVERIFY(w.get<RecoveryBar>("recoveryBar")->geometry().bottom() <
                w.get<QTabWidget>("ribbonTab")->geometry().top());
    }

    void restoredWorkIsSavedIntoItsProjectByTheNextSave()
    {
        LeftZoo w;
        w.click("btRestore");
        QCOMPARE(barText(w.window), "");
        QCOMPARE(w.field("txProjectName"), "Farm");
        QCOMPARE(w.saved(), projectFile({kCow}, "", "PRODUCT 900, \"Farm\""));
        QCOMPARE(copies(w), QStringList());
    }

    void everythingOfTheWorkComesBack()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow, "", kCow}));
        leaveUnsaved(w.path("book.oidpro"), [](MainWindow& other) {
            rename(other, "\"Farm\" # 1");
            other.findChild<QSpinBox*>("txProjectId")->setValue(905);
            other.findChild<QPushButton*>("btNextPicture")->click();
            rename(other, "\"Farm\" # 2");
            QLineEdit* const width = other.findChild<QLineEdit*>("txProjPaperWidth");
            width->selectAll();
            QTest::keyClicks(width, "123.4");
            KVQtHighlightEditCtrl* const editor = other.findChild<KVQtHighlightEditCtrl*>();
            editor->setText("sub cow\r\n\tx = 7 %% 2 # \u00e4\r\nend sub");
        });
        w.window.openProject(w.path("book.oidpro"));
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "\"Farm\" # 2");
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 905);
        QCOMPARE(w.script(), "sub cow\r\n\tx = 7 %% 2 # \u00e4\r\nend sub");
        QCOMPARE(w.field("txProjPaperWidth"), "200");
        w.click("btNextPicture");
        QCOMPARE(w.field("txProjPaperWidth"), "123.4");
        w.click("btNextPicture");
        QCOMPARE(w.field("txProjPaperWidth"), "200");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 2);
    }

    // They are named by the number that the file has, until the work is saved.
    void thePicturesOfRestoredWorkFollowItsNumber()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        leaveUnsaved(w.path("book.oidpro"), [](MainWindow& other) {
            other.findChild<QSpinBox*>("txProjectId")->setValue(905);
        });
        w.window.openProject(w.path("book.oidpro"));
        w.click("btRestore");
        w.trigger("actionSave");
        QCOMPARE(QString::fromStdString(w.folder.listing()),
                 "900-bkgnd0.jpg 905-bkgnd0.jpg book.oidpro");
    }

    void restoredWorkIsStillKept()
    {
        LeftZoo w;
        w.click("btRestore");
        QCOMPARE(copies(w).size(), 1);
        w.type("txProjectName", "Sea");
        w.window.openProject(w.path("book.oidpro"));
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Sea");
        QCOMPARE(copies(w).size(), 1);
    }

    void whatIsInTheWindowIsKeptBeforeOtherWorkIsRestored()
    {
        LeftZoo w;
        w.type("txProjectName", "Sea");
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Farm");
        w.trigger("actionSave");
        w.window.openProject(w.path("book.oidpro"));
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Sea");
    }

    void forgottenWorkIsGone()
    {
        LeftZoo w;
        w.click("btForget");
        QCOMPARE(barText(w.window), "");
        QCOMPARE(copies(w), QStringList());
        QCOMPARE(w.field("txProjectName"), "Zoo");
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window), "");
    }

    void afterForgettingTheWorkBeforeItIsOffered()
    {
        LeftZoo w;
        leaveUnsaved(w.path("book.oidpro"), [](MainWindow& other) { rename(other, "Sea"); });
        w.window.openProject(w.path("book.oidpro"));
        w.click("btForget");
        QCOMPARE(barText(w.window), kOffer);
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Farm");
    }

    void theBarGoesWithTheNextSaveAndTheWorkIsKept()
    {
        LeftZoo w;
        w.trigger("actionSave");
        QCOMPARE(barText(w.window), "");
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window), kOffer);
    }

    void openingAProjectWithoutSuchWorkClosesTheBar()
    {
        LeftZoo w;
        writeFile(w.folder.file("other.oidpro"), projectFile({}));
        w.window.openProject(w.path("other.oidpro"));
        QCOMPARE(barText(w.window), "");
    }

    void workThatWasSavedAfterAllIsNotOffered()
    {
        LeftZoo w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}, "", "PRODUCT 900, \"Farm\""));
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window), "");
        QCOMPARE(copies(w), QStringList());
    }

    void theWorkOfAWindowThatIsOpenIsNotOffered()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}));
        MainWindow other;
        other.openProject(w.path("book.oidpro"));
        rename(other, "Farm");
        QTRY_COMPARE_WITH_TIMEOUT(copies(w).size(), 1, kAtLatest);
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window), "");
    }

    void workThatAnotherWindowHasRestoredMeanwhileIsSaidToBeGone()
    {
        LeftZoo w;
        MainWindow other;
        other.openProject(w.path("book.oidpro"));
        other.findChild<QPushButton*>("btRestore")->click();
        w.click("btRestore");
        QCOMPARE(w.window.statusBar()->currentMessage(),
                 "That work is not there any more, or another window has it.");
        QCOMPARE(barText(w.window), "");
        QCOMPARE(w.field("txProjectName"), "Zoo");
    }

    void workThatNeverHadAFileIsOfferedToANewWindow()
    {
        WindowFixture w;
        leaveUnsaved("", [](MainWindow& other) { rename(other, "Farm"); });
        w.window.offerUnsavedWork();
        QCOMPARE(barText(w.window), "There is work since TIME that was never saved.");
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Farm");
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("book.oidpro")),
                 projectFile({}, "", "PRODUCT 900, \"Farm\""));
        QCOMPARE(copies(w), QStringList());
    }

    void workOfProjectsIsNotOfferedToANewWindow()
    {
        LeftZoo w;
        MainWindow other;
        other.offerUnsavedWork();
        QCOMPARE(barText(other), "");
    }

    void workOfAProjectThatIsGoneIsOfferedToANewWindow()
    {
        LeftZoo w;
        QVERIFY(QFile::remove(w.path("book.oidpro")));
        MainWindow other;
        other.offerUnsavedWork();
        QCOMPARE(barText(other), "There is unsaved work since TIME on a project that is not there "
                                 "any more: " +
                                     w.path("book.oidpro"));
    }

    void workOfAProjectThatIsGoneIsOfferedWhenItIsOpenedInVain()
    {
        LeftZoo w;
        QVERIFY(QFile::remove(w.path("book.oidpro")));
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(w.tab(), "Build");
        w.click("btRestore");
        QCOMPARE(w.field("txProjectName"), "Farm");
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("book.oidpro")),
                 projectFile({kCow}, "", "PRODUCT 900, \"Farm\""));
    }

    void aDamagedCopyIsToldAndKept()
    {
        LeftZoo w;
        const QString copy = copies(w)[0];
        const std::string whole = readFile(copy.toStdString());
        writeFile(copy.toStdString(), whole.substr(0, whole.size() / 2));
        w.window.openProject(w.path("book.oidpro"));
        QCOMPARE(barText(w.window),
                 "The copy of the unsaved work of TIME is damaged and cannot be restored. It stays "
                 "here: " +
                     copy);
        QVERIFY(!w.get<QPushButton>("btRestore")->isVisible());
        QCOMPARE(copies(w), QStringList{copy});
    }

    void aCopyThatIsDamagedMeanwhileIsToldAndKept()
    {
        LeftZoo w;
        const QString copy = copies(w)[0];
        writeFile(copy.toStdString(), "");
        w.click("btRestore");
        QVERIFY(barText(w.window).contains("is damaged"));
        QCOMPARE(w.field("txProjectName"), "Zoo");
        QCOMPARE(copies(w), QStringList{copy});
    }

    void workThatCannotBeKeptIsSaidOnce()
    {
        WindowFixture w;
        const std::filesystem::path folder = w.userData.recovery();
        std::filesystem::create_directories(folder.parent_path());
        writeFile(folder.string(), "in the way");
        w.type("txProjectName", "Farm");
        QTRY_COMPARE_WITH_TIMEOUT(w.window.statusBar()->currentMessage(),
                                  "Unsaved work cannot be kept in " +
                                      QString::fromStdString(folder.string()) + ". Save it soon.",
                                  kAtLatest);
        w.window.statusBar()->clearMessage();
        QTest::qWait(kAtLatest / 2);
        QCOMPARE(w.window.statusBar()->currentMessage(), "");
    }

    void theKeyboardRestores()
    {
        LeftZoo w;
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QTest::keyClick(&w.window, Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(w.field("txProjectName"), "Farm");
    }

    void theKeyboardForgets()
    {
        LeftZoo w;
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QTest::keyClick(&w.window, Qt::Key_F, Qt::AltModifier | Qt::ShiftModifier);
        QTRY_COMPARE(copies(w), QStringList());
    }

    void theBarIsReachedByTab()
    {
        LeftZoo w;
        w.window.activateWindow();
        w.get<QTabWidget>("ribbonTab")->setFocus();
        QStringList reached;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
            reached << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(reached, QStringList({"btAbout", "btForget", "btRestore"}));
    }

    void screenReadersAreToldOfTheBar()
    {
        LeftZoo w;
        const QString name =
            QAccessible::queryAccessibleInterface(w.get<RecoveryBar>("recoveryBar"))
                ->text(QAccessible::Name);
        QCOMPARE(name, w.get<QLabel>("recoveryBarText")->text());
        QCOMPARE(QAccessible::queryAccessibleInterface(w.get<QPushButton>("btRestore"))
                     ->text(QAccessible::Name),
                 "Restore");
    }

    void withTheBarTheWindowFitsOnASmallScreen_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* const language : {"en", "de", "fr", "nl"}) {
            QTest::newRow(language) << QString(language);
        }
    }

    void withTheBarTheWindowFitsOnASmallScreen()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(loadTranslation(translator, {language}));
        QCoreApplication::installTranslator(&translator);
        LeftZoo w;
        QCoreApplication::processEvents();
        QVERIFY(!barText(w.window).isEmpty());
        const QSize smallest = w.window.minimumSizeHint();
        QVERIFY2(smallest.width() <= 640, qPrintable(QString::number(smallest.width())));
        QVERIFY2(smallest.height() <= 360, qPrintable(QString::number(smallest.height())));
        w.window.resize(640, 360);
        QCOMPARE(w.window.size(), QSize(640, 360));
    }
};

QTEST_MAIN(RecoveryTest)
#include "RecoveryTest.moc"
