// Opening and saving projects, and the way of what was typed into them.
#include "base/PlatformFiles.h"
#include "publish/console/KVQtStdoutWidget.h"
#include "tests/app/WindowFixture.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QSpinBox>
#include <QTabWidget>
#include <QUrl>

#include <utility>

namespace {

const std::string kCow = "OID 1001\r\nPOLY cow\r\n"
                         "       10.00    10.00\r\n       50.00    10.00\r\n"
                         "       50.00    40.00\r\nEND\r\n\r\n";

QWidget& editor(WindowFixture& w)
{
    return w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
}

std::pair<int, int> caret(WindowFixture& w)
{
    const auto end = w.get<KVQtHighlightEditCtrl>("codeEditor")->editor().selection.end;
    return {end.line, end.column};
}

// Types a line, then a second one; bookmarks the first; leaves the caret behind "end".
void typeTwoLines(WindowFixture& w)
{
    QTest::keyClicks(&editor(w), "big cow");
    QTest::keyClick(&editor(w), Qt::Key_Return);
    QTest::keyClicks(&editor(w), "end sub");
    QTest::keyClick(&editor(w), Qt::Key_Up);
    QTest::keyClick(&editor(w), Qt::Key_F2, Qt::ControlModifier);
    QTest::keyClick(&editor(w), Qt::Key_Down);
    QTest::keyClick(&editor(w), Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&editor(w), Qt::Key_Left);
}

void theCaretAndTheBookmarkAreStillThere(WindowFixture& w)
{
    QCOMPARE(w.script(), "big cow\r\nend sub");
    QCOMPARE(caret(w), std::make_pair(1, 3));
    QTest::keyClick(&editor(w), Qt::Key_F2);
    QCOMPARE(caret(w), std::make_pair(0, 0));
}

void everythingOfTheEditorIsStillThere(WindowFixture& w)
{
    theCaretAndTheBookmarkAreStillThere(w);
    QTest::keyClick(&editor(w), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(w.script(), "big cow\r\nend");
    QTest::keyClick(&editor(w), Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(w.script(), "big cow\r\nend sub");
}

}  // namespace

class ProjectFileTest : public QObject
{
    Q_OBJECT

private slots:
    void aGoodProjectShowsItsProjectTab()
    {
        WindowFixture w;
        w.open(projectFile({kCow}, "sub cow\r\nend sub\r\n"), 1);
        QCOMPARE(w.tab(), "Project");
        QCOMPARE(w.field("txProjectName"), "Zoo");
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 900);
        QCOMPARE(w.field("txProjPaperWidth"), "200");
        QCOMPARE(w.field("txProjPaperHeight"), "100");
        QCOMPARE(w.field("txProjDPI"), "300");
        QCOMPARE(w.script(), "sub cow\r\nend sub\r\n");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 0);
        QCOMPARE(w.console(), "");
    }

    // The page behind it would show its picture.
    void aPageWithoutAreasIsThereAgain()
    {
        WindowFixture w;
        const std::string saved = projectFile({kCow, "", kCow});
        w.open(saved, 3);
        w.click("btNextPicture");
        w.click("btNextPicture");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 2);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        QTRY_COMPARE(Platform::nativePath(w.get<PolyEditorWidget>("polyArea")->loadedPath),
                     w.folder.file("900-bkgnd2.jpg"));
        QCOMPARE(w.saved(), saved);
    }

    void theNumberOfTheProductIsShown()
    {
        WindowFixture w;
        w.open(projectFile({kCow}, "", "PRODUCT 7, \"Zoo\""));
        QCOMPARE(w.get<QSpinBox>("txProjectId")->value(), 7);
    }

    void openingEmptiesTheConsole()
    {
        WindowFixture w;
        w.window.openProject(w.path("none.oidpro"));
        w.open(projectFile({kCow}), 1);
        QCOMPARE(w.console(), "");
    }

    // The newest console gets all messages; one that is gone gets none.
    void openingBringsTheMessagesBackIntoTheConsole()
    {
        WindowFixture w;
        {
            const KVQtStdoutWidget other;
        }
        w.window.openProject(w.path("none.oidpro"));
        QCOMPARE(w.console(), "Error: Can't open file '" + w.path("none.oidpro") + "'");
    }

    void theLoadersMessagesStandInTheConsole()
    {
        WindowFixture w;
        w.open("PRODUCT 1000, \"Zoo\"\r\n");
        QCOMPARE(w.console(), "Error: PRODUCT id is not in range [1..999]");
        QCOMPARE(w.tab(), "Project");
    }

    void aFailedOpenShowsTheConsole()
    {
        WindowFixture w;
        w.window.openProject(w.path("none.oidpro"));
        QCOMPARE(w.tab(), "Build");
        QCOMPARE(w.console(), "Error: Can't open file '" + w.path("none.oidpro") + "'");
        QCOMPARE(w.field("txProjectName"), "my project");
    }

    void theDialogsShowProjectFiles()
    {
        WindowFixture w;
        for (const char* const action : {"action_Open", "action_Save_As"}) {
            QStringList filters;
            w.dialogs.look([&](QWidget& dialog) {
                filters = static_cast<QFileDialog&>(dialog).nameFilters();
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
            w.trigger(action);
            QCOMPARE(filters, QStringList({"Project files (*.oidpro)"}));
        }
    }

    void cancellingOpenChangesNothing()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        w.dialogs.cancel();
        w.trigger("action_Open");
        QCOMPARE(w.field("txProjectName"), "Farm");
        QCOMPARE(w.dialogs.seen(), QStringList({"Open project", "Open project"}));
    }

    void theStatusBarSaysThatAProjectWasOpenedOrSaved()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        QCOMPARE(w.status(), "Opened: book.oidpro");
        w.trigger("actionSave");
        QCOMPARE(w.status(), "Saved: book.oidpro");
        w.dialogs.chooseFile(w.path("farm.oidpro"));
        w.trigger("action_Save_As");
        QCOMPARE(w.status(), "Saved: farm.oidpro");
    }

    void theStatusBarSaysThatAProjectCouldNotBeOpened()
    {
        WindowFixture w;
        w.window.openProject(w.path("none.oidpro"));
        QCOMPARE(w.status(), "Not opened: none.oidpro");
    }

    void saveOfAFreshWindowAsksForAName()
    {
        WindowFixture w;
        w.type("txProjectName", "Farm");
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("actionSave");
        QCOMPARE(w.dialogs.seen(), QStringList({"Save project"}));
        QCOMPARE(readFile(w.folder.file("book.oidpro")),
                 projectFile({}, "", "PRODUCT 900, \"Farm\""));
    }

    void aNameWithoutASuffixGetsIt()
    {
        WindowFixture w;
        w.dialogs.chooseFile(w.path("book"));
        w.trigger("action_Save_As");
        QCOMPARE(QString::fromStdString(w.folder.listing()), "book.oidpro");
    }

    void cancellingSaveAsKeepsWhatWasTyped()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjectName", "Farm");
        w.dialogs.cancel();
        w.trigger("action_Save_As");
        QCOMPARE(w.field("txProjectName"), "Farm");
        QCOMPARE(w.saved(), projectFile({kCow}, "", "PRODUCT 900, \"Farm\""));
    }

    void saveAsThatFailsIsReported()
    {
        WindowFixture w;
        QDir(QString::fromStdString(w.folder.path())).mkdir("folder.oidpro");
        w.dialogs.look([&](QWidget& dialog) {
            // A file dialog would not let a folder through; the folder takes the file's place.
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(w.path("book.oidpro"));
            QDir().mkdir(w.path("book.oidpro"));
            QMetaObject::invokeMethod(&dialog, "done", Q_ARG(int, 1));
        });
        w.dialogs.press("OK");
        w.trigger("action_Save_As");
        QCOMPARE(w.dialogs.seen().last(), "Warning: The file could not be saved to the drive");
        QCOMPARE(w.status(), "Not saved: book.oidpro");
    }

    void afterSaveAsTheFormShowsTheNumbersAsTheyAreStored()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjDPI", "0600");
        w.type("txProjPaperWidth", "210.50");
        w.dialogs.chooseFile(w.path("other.oidpro"));
        w.trigger("action_Save_As");
        QCOMPARE(w.field("txProjDPI"), "600");
        QCOMPARE(w.field("txProjPaperWidth"), "210.5");
    }

    void picturesAndAudioFilesFollowAnotherNumber()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        QVERIFY(QDir(QString::fromStdString(w.folder.path())).mkdir("900-audio"));
        writeFile(w.folder.file("900-audio/moo.ogg"), "moo!");
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("905-bkgnd0.jpg")),
                 readFile(w.folder.file("900-bkgnd0.jpg")));
        QVERIFY(QFile::exists(w.path("905-bkgnd1.jpg")));
        QCOMPARE(readFile(w.folder.file("905-audio/moo.ogg")), std::string("moo!"));
        QCOMPARE(w.dialogs.seen(), QStringList({"Open project"}));
    }

    void thePictureIsShownAgainAfterSavingUnderAnotherNumber()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        PolyEditorWidget* const picture = w.get<PolyEditorWidget>("polyArea");
        const auto shown = [&] { return picture->grab().toImage().pixelColor(5, 5); };
        const QColor before = shown();
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.type("txProjDPI", "600");  // carries the number into the project
        QVERIFY(shown() != before);
        w.trigger("actionSave");
        QCOMPARE(shown(), before);
    }

    void picturesFollowIntoAnotherFolder()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        QVERIFY(QDir(QString::fromStdString(w.folder.path())).mkdir("copy"));
        w.dialogs.chooseFile(w.path("copy/book.oidpro"));
        w.trigger("action_Save_As");
        QCOMPARE(readFile(w.folder.file("copy/900-bkgnd0.jpg")),
                 readFile(w.folder.file("900-bkgnd0.jpg")));
    }

    void picturesInTheWayAreAskedAboutOneByOneOrAllAtOnce()
    {
        for (const char* const answer : {"Yes to All", "No to All"}) {
            WindowFixture w;
            for (const char* const name : {"905-bkgnd0.jpg", "905-bkgnd1.jpg", "905-bkgnd2.jpg"}) {
                writeFile(w.folder.file(name), "another book");
            }
            w.open(projectFile({kCow, kCow, kCow}), 3);
            w.get<QSpinBox>("txProjectId")->setValue(905);
            QString named;
            w.dialogs.look([&](QWidget& dialog) {
                named = static_cast<QMessageBox&>(dialog).informativeText();
                QTest::keyClick(&dialog, Qt::Key_Return);  // No is the default
            });
            w.dialogs.press(answer);
            w.trigger("actionSave");
            QCOMPARE(named, w.path("905-bkgnd0.jpg"));
            const QString question =
                "Overwrite Picture: Do you want to overwrite the picture in the cache?";
            QCOMPARE(w.dialogs.seen().mid(1), QStringList({question, question}));
            const bool yes = answer == std::string("Yes to All");
            for (const char* const name : {"905-bkgnd0.jpg", "905-bkgnd1.jpg", "905-bkgnd2.jpg"}) {
                const bool first = name == std::string("905-bkgnd0.jpg");
                const bool kept = readFile(w.folder.file(name)) == "another book";
                QCOMPARE(kept, first || !yes);
            }
        }
    }

    void escapeOverwritesNoPicture()
    {
        WindowFixture w;
        writeFile(w.folder.file("905-bkgnd0.jpg"), "another book");
        w.open(projectFile({kCow, kCow}), 2);
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.dialogs.cancel();
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("905-bkgnd0.jpg")), std::string("another book"));
        QVERIFY(QFile::exists(w.path("905-bkgnd1.jpg")));
    }

    void picturesThatCannotBeCopiedAreNamed()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        QVERIFY(QDir().mkdir(w.path("905-bkgnd0.jpg")));
        w.get<QSpinBox>("txProjectId")->setValue(905);
        w.dialogs.press("Yes");
        w.dialogs.press("OK");
        w.trigger("actionSave");
        QCOMPARE(w.dialogs.seen().last(),
                 "Warning: These files could not be copied along. The old ones are still where "
                 "they were.\n\n" +
                     w.path("905-bkgnd0.jpg"));
    }

    void saveLeavesTheFormAsItWasTyped()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.type("txProjDPI", "0600");
        QVERIFY(w.saved().find("DPI   600\r\n") != std::string::npos);
        QCOMPARE(w.field("txProjDPI"), "0600");
        QCOMPARE(w.dialogs.seen(), QStringList({"Open project"}));
    }

    void saveThatFailsAsksForAnotherName()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        QVERIFY(QFile::remove(w.path("book.oidpro")));
        QVERIFY(QDir().mkdir(w.path("book.oidpro")));
        w.dialogs.chooseFile(w.path("other.oidpro"));
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("other.oidpro")), projectFile({kCow}));
    }

    void saveOfAProjectThatHasVanishedAsksForAName()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        QVERIFY(QFile::remove(w.path("book.oidpro")));
        w.dialogs.chooseFile(w.path("other.oidpro"));
        w.trigger("actionSave");
        QCOMPARE(w.dialogs.seen().last(), "Save project");
        QCOMPARE(readFile(w.folder.file("other.oidpro")), projectFile({kCow}));
    }

    // The program may go to another folder later, for one to make print images.
    void aRelativePathLeadsToTheProjectEverAfter()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}));
        const QString before = QDir::currentPath();
        QDir::setCurrent(QString::fromStdString(w.folder.path()));
        w.window.openProject("book.oidpro");
        QDir::setCurrent(before);
        w.type("txProjectName", "Farm");
        QCOMPARE(w.saved(), projectFile({kCow}, "", "PRODUCT 900, \"Farm\""));
    }

    void whatIsTypedAboutThePaperGoesIntoTheProjectAtOnce()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        w.type("txProjPaperWidth", "123.4");
        w.type("txProjPaperHeight", "56");
        w.type("txProjDPI", "600");
        w.click("btNextPicture");
        QCOMPARE(w.field("txProjDPI"), "300");
        w.click("btPreviousPicture");
        QCOMPARE(w.field("txProjPaperWidth"), "123.4");
        QCOMPARE(w.field("txProjPaperHeight"), "56");
        QCOMPARE(w.field("txProjDPI"), "600");
    }

    void aDecimalCommaInThePaperSizeBecomesAPoint()
    {
        WindowFixture w;
        w.open(projectFile({""}), 1);
        w.type("txProjPaperWidth", "210,5");
        QCOMPARE(w.field("txProjPaperWidth"), QString("210.5"));
        w.type("txProjPaperHeight", "148,4");
        QVERIFY(w.saved().find("PAPER 210.5 148.4\r\n") != std::string::npos);
    }

    void paperFieldsWithoutAPictureChangeNoPicture()
    {
        WindowFixture w;
        w.type("txProjDPI", "77");
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Save_As");
        QCOMPARE(readFile(w.folder.file("book.oidpro")), projectFile({}, "", "PRODUCT 900, \"\""));
        QCOMPARE(w.field("txProjDPI"), "77");
    }

    // Those of another picture would be written into the first one by the next transfer.
    void openingShowsThePaperOfTheFirstPicture()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        w.click("btNextPicture");
        std::string other = projectFile({kCow, kCow});
        other.replace(other.rfind("DPI   300"), 9, "DPI   600");
        w.open(other, 2);
        QCOMPARE(w.field("txProjDPI"), "300");
        QCOMPARE(w.saved(), other);
    }

    void openingAnotherProjectStartsAtItsFirstPicture()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        w.click("btNextPicture");
        w.open(projectFile({"OID 7\r\nPOLY hen\r\nEND\r\n\r\n", kCow}), 2);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 0);
        QCOMPARE(w.saved(), projectFile({"OID 7\r\nPOLY hen\r\nEND\r\n\r\n", kCow}));
    }

    void typedScriptAndNameSurviveGoingToAnotherPicture()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        w.type("txProjectName", "Farm");
        QTest::keyClicks(&w.get<KVQtHighlightEditCtrl>("codeEditor")->surface(), "sub cow");
        w.click("btNextPicture");
        QCOMPARE(w.script(), "sub cow");
        QCOMPARE(w.field("txProjectName"), "Farm");
    }

    void goingToAnotherPictureKeepsUndoBookmarksAndCaretOfTheScript()
    {
        WindowFixture w;
        w.open(projectFile({kCow, kCow}), 2);
        typeTwoLines(w);
        w.click("btNextPicture");
        everythingOfTheEditorIsStillThere(w);
    }

    void saveAsKeepsUndoBookmarksAndCaretOfTheScript()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeTwoLines(w);
        w.dialogs.chooseFile(w.path("second.oidpro"));
        w.trigger("action_Save_As");
        QVERIFY(QFile::exists(w.path("second.oidpro")));
        everythingOfTheEditorIsStillThere(w);
    }

    void cancellingSaveAsKeepsUndoBookmarksAndCaretOfTheScript()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeTwoLines(w);
        w.dialogs.cancel();
        w.trigger("action_Save_As");
        everythingOfTheEditorIsStillThere(w);
    }

    void openingTheSavedProjectAgainKeepsUndoBookmarksAndCaretOfTheScript()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeTwoLines(w);
        w.saved();
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Open");
        everythingOfTheEditorIsStillThere(w);
    }

    // Undo would lead back into the other book.
    void openingAnotherProjectOfTheSameScriptKeepsBookmarksAndCaretButNoUndo()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeTwoLines(w);
        writeFile(w.folder.file("other.oidpro"), projectFile({kCow}, "big cow\nend sub"));
        w.dialogs.chooseFile(w.path("other.oidpro"));
        w.trigger("action_Open");
        theCaretAndTheBookmarkAreStillThere(w);
        QTest::keyClick(&editor(w), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.script(), "big cow\r\nend sub");
    }

    void aScriptWithTabsAndAnyLineEndsIsTheSameWhenItIsOpenedAgain()
    {
        WindowFixture w;
        const std::string project = projectFile({kCow}, "sub cow\n\tsay\tMoo\rend sub\r\n");
        w.open(project, 1);
        QTest::keyClick(&editor(w), Qt::Key_Down);
        QTest::keyClick(&editor(w), Qt::Key_End);
        const auto behindMoo = std::make_pair(1, 11);
        QCOMPARE(caret(w), behindMoo);
        w.open(project);
        QCOMPARE(caret(w), behindMoo);
    }

    void anotherScriptIsShownFromItsTopAndHasNoUndo()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        typeTwoLines(w);
        w.open(projectFile({kCow}, "sub hen\nend sub"));
        QCOMPARE(caret(w), std::make_pair(0, 0));
        QTest::keyClick(&editor(w), Qt::Key_F2);
        QCOMPARE(caret(w), std::make_pair(0, 0));
        QTest::keyClick(&editor(w), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.script(), "sub hen\r\nend sub");
    }

    void whatWasTypedBeforeTheFirstPictureDoesNotSpoilItsPaper()
    {
        WindowFixture w;
        w.dialogs.chooseFile(w.path("book.oidpro"));
        w.trigger("action_Save_As");
        QTest::keyClicks(&w.get<KVQtHighlightEditCtrl>("codeEditor")->surface(), "sub cow");
        w.makePicture("scan.png", {600, 300}, 11811);
        w.dialogs.chooseFile(w.path("scan.png"));
        w.click("btNextPicture");
        QCOMPARE(w.field("txProjDPI"), "300");
        QCOMPARE(w.script(), "sub cow");
    }

    void ctrlSInTheScriptEditorSaves()
    {
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(2);
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QWidget& surface = w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
        surface.setFocus();
        QTest::keyClicks(&surface, "sub cow");
        QTest::keyClick(&surface, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(readFile(w.folder.file("book.oidpro")), projectFile({kCow}, "sub cow"));
    }

    // The project itself stays where it is, also when the file manager offers to move it.
    void aDroppedProjectFileIsNotMoved()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(w.path("book.oidpro"))});
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({5, 5}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        enter.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&w.window, &enter);
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDropEvent drop({5, 5}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&w.window, &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QCOMPARE(w.field("txProjectName"), "Zoo");
    }

    // As text the path would be typed into the field.
    void aProjectFileDroppedOntoAFieldIsOpened()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(w.path("book.oidpro"))});
        data.setText(w.path("book.oidpro"));
        for (QLineEdit* const field : w.window.findChildren<QLineEdit*>()) {
            if (field->window() != &w.window) {
                continue;
            }
            w.type("txProjectName", "Farm");
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &enter);
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(field, &drop);
            QCOMPARE(w.field("txProjectName"), "Zoo");
        }
    }

    void aProjectFileDroppedOntoTheWindowIsOpened()
    {
        WindowFixture w;
        writeFile(w.folder.file("book.oidpro"), projectFile({kCow}));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(w.path("book.oidpro"))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&w.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&w.window, &drop);
        QCOMPARE(w.field("txProjectName"), "Zoo");
    }

    void whileADialogIsOpenNoProjectIsTaken()
    {
        WindowFixture w;
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(w.path("book.oidpro"))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        w.dialogs.look([&](QWidget& dialog) {
            QCoreApplication::sendEvent(&w.window, &enter);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.trigger("action_Open");
        QVERIFY(!enter.isAccepted());
    }

    void onlyOneProjectFileIsTaken_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<bool>("taken");
        QTest::newRow("one") << QStringList{"book.oidpro"} << true;
        QTest::newRow("in capitals") << QStringList{"BOOK.OIDPRO"} << true;
        QTest::newRow("two") << QStringList{"book.oidpro", "zoo.oidpro"} << false;
        QTest::newRow("a picture") << QStringList{"picture.png"} << false;
        QTest::newRow("none") << QStringList() << false;
    }

    void onlyOneProjectFileIsTaken()
    {
        QFETCH(QStringList, files);
        WindowFixture w;
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls << QUrl::fromLocalFile(w.path(file.toLatin1()));
        }
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&w.window, &enter);
        QTEST(enter.isAccepted(), "taken");
    }
};

QTEST_MAIN(ProjectFileTest)
#include "ProjectFileTest.moc"
