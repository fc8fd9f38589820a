// The name of an area is changed on all pages and in the script, with real keys, and taken back
// from either side.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

#include <random>

namespace {

std::string area(const char* name, int oid, int left, int top)
{
    char text[300];
    std::snprintf(text, sizeof text,
                  "OID %d\r\nPOLY %s\r\n"
                  "    %8.2f %8.2f\r\n    %8.2f %8.2f\r\n    %8.2f %8.2f\r\nEND\r\n\r\n",
                  oid, name, double(left), double(top), double(left + 20), double(top),
                  double(left), double(top + 20));
    return text;
}

const char* const kScript = "sub cow # cow\r\n"
                            "  say \"cow\"\r\n"
                            "end sub\r\n"
                            "sub pig\r\n"
                            "  cow = 1\r\n"
                            "  GOTO cow\r\n"
                            "end sub\r\n";

QString renamedScript(const char* name)
{
    return QString("sub %1 # cow\n"
                   "  say \"cow\"\n"
                   "end sub\n"
                   "sub pig\n"
                   "  cow = 1\n"
                   "  GOTO %1\n"
                   "end sub\n")
        .arg(name);
}

// Two pages; the cow stands on both, and its area on the first one is selected.
struct Book : WindowFixture
{
    explicit Book(const std::string& script = kScript)
    {
        open(projectFile(
                 {area("cow", 1001, 10, 10) + area("pig", 1002, 50, 10), area("cow", 1001, 10, 10)},
                 script),
             2);
        show("tabAreas");
        clickAt(get<PolyEditorWidget>("polyArea")->toPix({14, 14}));
        before = saved();
    }

    void show(const char* tab)
    {
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>(tab));
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        focus();
    }
    KVQtHighlightEditCtrl& editor() { return *get<KVQtHighlightEditCtrl>("codeEditor"); }
    bool scriptIsShown() { return tab() == "Script"; }
    QWidget* focus()
    {
        QWidget* const widget = scriptIsShown() ? static_cast<QWidget*>(&editor().surface())
                                                : get<PolyEditorWidget>("polyArea");
        widget->setFocus();
        return widget;
    }
    QString text() { return editor().text().replace("\r\n", "\n"); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QApplication::setActiveWindow(&window);
        QTest::keyClick(focus(), key, modifiers);
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    void undoOn(const char* tab)
    {
        show(tab);
        undo();
    }
    void redoOn(const char* tab)
    {
        show(tab);
        redo();
    }

    // F2, the name typed over the old one, Enter; then the answers that were given before.
    void rename(const QString& name)
    {
        typeInDialog(name);
        press(Qt::Key_F2);
    }
    void typeInDialog(const QString& name)
    {
        dialogs.look([name](QWidget& dialog) {
            QLineEdit* const field = dialog.findChild<QLineEdit*>("renameField");
            QTest::keyClicks(field, name);
            QTest::keyClick(field, Qt::Key_Return);
        });
    }
    // What the dialog shows under the name, and whether it can be taken; nothing is changed.
    QString notesOn(const QString& name, bool* isPossible = nullptr)
    {
        QString notes;
        dialogs.look([&](QWidget& dialog) {
            QLineEdit* const field = dialog.findChild<QLineEdit*>("renameField");
            field->selectAll();
            QTest::keyClicks(field, name);
            notes = dialog.findChild<QLabel*>("renameNote")->text();
            if (isPossible != nullptr) {
                *isPossible = dialog.findChild<QPushButton*>("renameButton")->isEnabled();
            }
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        press(Qt::Key_F2);
        return notes;
    }

    // Names of the areas on both pages: "cow pig|cow".
    QString areas()
    {
        const QString file = QString::fromStdString(saved());
        QString names;
        for (const QString& line : file.split("\r\n")) {
            if (line == "IMAGE") {
                names += names.isEmpty() ? "" : "|";
            } else if (line.startsWith("POLY ")) {
                names += (names.isEmpty() || names.endsWith('|') ? "" : " ") + line.mid(5);
            }
        }
        return names;
    }
    void typeInScript(const QString& typed, int line)
    {
        show("tabScript");
        editor().editor().selection.set(line, 0);
        for (const QChar c : typed) {
            c == '\n' ? QTest::keyClick(focus(), Qt::Key_Return)
                      : QTest::keyClick(focus(), c.toLatin1());
        }
    }

    std::string before;
};

}  // namespace

class RenameTest : public QObject
{
    Q_OBJECT

private slots:
    void theNameChangesOnAllPagesAndInTheScript()
    {
        Book w;
        w.rename("bull");
        QCOMPARE(w.status(), "\"cow\" is \"bull\" everywhere now.");
        QCOMPARE(w.areas(), "bull pig|bull");
        QCOMPARE(w.text(), renamedScript("bull"));
        QCOMPARE(w.field("txPolyName"), "bull");
        QVERIFY(QString::fromStdString(w.saved()).contains("OID 1001\r\nPOLY bull"));
    }

    void theDialogSaysHowManyPlacesChange()
    {
        Book w;
        QString places;
        w.dialogs.look([&](QWidget& dialog) {
            places = dialog.findChild<QLabel*>("renamePlaces")->text();
            QCOMPARE(dialog.findChild<QLineEdit*>("renameField")->text(), "cow");
            QVERIFY(!dialog.findChild<QPushButton*>("renameButton")->isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.press(Qt::Key_F2);
        QCOMPARE(places, "Areas: 2 (pages: 1, 2)\nPlaces in the script: 2");
        QCOMPARE(w.saved(), w.before);
    }

    void oneUndoOnTheAreasTakesBothBackAndRedoDoesThemAgain()
    {
        Book w;
        w.rename("bull");
        const std::string after = w.saved();
        w.undo();
        QCOMPARE(w.saved(), w.before);
        w.redo();
        QCOMPARE(w.saved(), after);
        w.undo();
        QCOMPARE(w.saved(), w.before);
    }

    void oneUndoOnTheScriptTakesBothBackAndRedoDoesThemAgain()
    {
        Book w;
        w.rename("bull");
        const std::string after = w.saved();
        w.undoOn("tabScript");
        QCOMPARE(w.saved(), w.before);
        w.redo();
        QCOMPARE(w.saved(), after);
    }

    void whatOneSideTookBackTheOtherDoesAgain()
    {
        Book w;
        w.rename("bull");
        const std::string after = w.saved();
        w.undoOn("tabAreas");
        w.redoOn("tabScript");
        QCOMPARE(w.saved(), after);
        w.undoOn("tabScript");
        w.redoOn("tabAreas");
        QCOMPARE(w.saved(), after);
    }

    void whatWasTypedInBetweenStays()
    {
        Book w;
        w.rename("bull");
        const std::string after = w.saved();
        w.typeInScript("goto bull\n", 0);
        w.undoOn("tabAreas");
        QCOMPARE(w.areas(), "cow pig|cow");
        QCOMPARE(w.text(), "goto cow\n" + renamedScript("cow"));
        w.redoOn("tabAreas");
        QCOMPARE(w.text(), "goto bull\n" + renamedScript("bull"));
        w.undoOn("tabAreas");
        w.undoOn("tabScript");  // the renaming back, which was the script's last step
        QCOMPARE(w.areas(), "bull pig|bull");
        QCOMPARE(w.text(), "goto bull\n" + renamedScript("bull"));
        w.undo();  // what was typed, in three steps
        w.undo();
        w.undo();
        QCOMPARE(w.saved(), after);
        w.undoOn("tabScript");
        QCOMPARE(w.saved(), w.before);
    }

    void whatWasDrawnInBetweenStays()
    {
        Book w;
        w.rename("bull");
        w.get<QSpinBox>("txOidOfArea")->setValue(1500);
        w.undoOn("tabScript");
        QCOMPARE(w.areas(), "cow pig|cow");
        QCOMPARE(w.text(), renamedScript("cow"));
        QVERIFY(QString::fromStdString(w.saved()).contains("OID 1500\r\nPOLY cow"));
        w.undoOn("tabAreas");  // the renaming back
        QCOMPARE(w.areas(), "bull pig|bull");
        QCOMPARE(w.text(), renamedScript("bull"));
        w.undo();  // the number
        w.undo();  // the renaming
        QCOMPARE(w.saved(), w.before);
    }

    void whatIsTypedRightBehindIsNotLostWithTheRenaming()
    {
        Book w;
        w.rename("bull");
        w.typeInScript("x", 1);
        w.undoOn("tabAreas");
        QCOMPARE(w.areas(), "cow pig|cow");
        QVERIFY(w.text().contains("\nx  say"));
        QVERIFY(w.text().startsWith("sub cow"));
    }

    void twoRenamingsComeBackOneAfterTheOther()
    {
        Book w;
        w.rename("bull");
        const std::string first = w.saved();
        w.rename("ox");
        const std::string second = w.saved();
        QCOMPARE(w.text(), renamedScript("ox"));
        w.undoOn("tabScript");
        QCOMPARE(w.saved(), first);
        w.undoOn("tabAreas");
        QCOMPARE(w.saved(), w.before);
        w.redoOn("tabScript");
        w.redoOn("tabAreas");
        QCOMPARE(w.saved(), second);
    }

    void everyOrderOfUndoAndRedoKeepsBothSidesTogether()
    {
        Book w;
        w.rename("bull");
        std::mt19937 random(16);
        int changes = 0;
        bool wasDone = true;
        for (int step = 0; step < 80; ++step) {
            const char* const tab = random() % 2 == 0 ? "tabAreas" : "tabScript";
            random() % 2 == 0 ? w.undoOn(tab) : w.redoOn(tab);
            const bool isDone = w.areas() == "bull pig|bull";
            QVERIFY2(isDone || w.areas() == "cow pig|cow", qPrintable(w.areas()));
            QCOMPARE(w.text(), renamedScript(isDone ? "bull" : "cow"));
            changes += isDone != wasDone ? 1 : 0;
            wasDone = isDone;
        }
        QVERIFY(changes > 20);
    }

    void aNameThatOnlyAreasHaveIsTakenBackThereAlone()
    {
        Book w("sub pig\r\nend sub\r\n");
        w.rename("bull");
        QCOMPARE(w.areas(), "bull pig|bull");
        w.typeInScript("x = 1 ", 1);
        w.undoOn("tabAreas");
        QCOMPARE(w.areas(), "cow pig|cow");
        QCOMPARE(w.text(), "sub pig\nx = 1 end sub\n");
    }

    void aSubOfTheNewNameForbidsIt()
    {
        Book w;
        bool isPossible = true;
        QCOMPARE(w.notesOn("pig", &isPossible),
                 "The script has a sub of this name already, and can have only one. Choose another "
                 "name.");
        QVERIFY(!isPossible);
        w.typeInDialog("pig");
        w.dialogs.cancel();  // Enter did nothing, the dialog is still there
        w.press(Qt::Key_F2);
        QCOMPARE(w.saved(), w.before);
    }

    void theReasonIsShownWhole()
    {
        Book w;
        w.dialogs.look([](QWidget& dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit*>("renameField"), "pig");
            QCoreApplication::processEvents();
            const QLabel* const note = dialog.findChild<QLabel*>("renameNote");
            QVERIFY(note->height() >= note->heightForWidth(note->width()));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        w.press(Qt::Key_F2);
    }

    void areasOfTheNewNameAreJoinedWhenTheAuthorSaysSo()
    {
        Book w("sub cow\r\nend sub\r\n");
        QCOMPARE(w.notesOn("pig"), "This name is taken already.\nAreas: 1 (pages: 1)\n"
                                   "Places in the script: 0");
        w.typeInDialog("pig");
        w.dialogs.press("No");
        w.press(Qt::Key_F2);
        QCOMPARE(w.dialogs.seen().last(),
                 "Rename everywhere: The name \"pig\" is taken already. The areas would share one "
                 "number and one sub. Rename?\nAreas: 1 (pages: 1)\nPlaces in the script: 0");
        QCOMPARE(w.saved(), w.before);
    }

    void joinedAreasComeApartAgain()
    {
        Book w("sub cow\r\nend sub\r\n");
        w.typeInDialog("pig");
        w.dialogs.press("Yes");
        w.press(Qt::Key_F2);
        QCOMPARE(w.areas(), "pig pig|pig");
        QCOMPARE(w.text(), "sub pig\nend sub\n");
        const std::string after = w.saved();
        w.undo();
        QCOMPARE(w.saved(), w.before);
        w.redo();
        QCOMPARE(w.saved(), after);
        w.get<QSpinBox>("txOidOfArea")->setValue(1500);
        w.undoOn("tabScript");  // an edit of its own there: only those that were renamed
        QCOMPARE(w.areas(), "cow pig|cow");
    }

    void namesThatTheScriptCannotTakeAreRefusedWithTheirReason()
    {
        Book w;
        bool isPossible = true;
        QCOMPARE(w.notesOn("[x]", &isPossible),
                 "A name cannot begin with \"[\". Begin with a letter.");
        QVERIFY(!isPossible);
        QCOMPARE(w.notesOn("a-b", &isPossible),
                 "No \"goto\" can lead to a name with \"-\". Take letters, digits and \"_\".");
        QVERIFY(isPossible);
        QCOMPARE(w.notesOn("bull", &isPossible), "");
        QVERIFY(isPossible);
    }

    void aNameThatIsTypedOverInTheListChangesEverywhere()
    {
        Book w;
        auto* const table = w.get<QTableView>("areaTable");
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table->visualRect(table->model()->index(0, 0)).center());
        const auto typeOver = [&](const QString& name) {
            QTest::keyClick(table, Qt::Key_F2);
            auto* const field = table->viewport()->findChild<QLineEdit*>();
            QVERIFY(field != nullptr);
            field->selectAll();
            QTest::keyClicks(field, name);
            QTest::keyClick(field, Qt::Key_Return);
        };
        typeOver("pig");
        QTRY_COMPARE(w.status(),
                     "The script has a sub of this name already, and can have only one. "
                     "Choose another name.");
        QCOMPARE(w.saved(), w.before);
        typeOver("bull");
        QTRY_COMPARE(w.field("txPolyName"), "bull");
        QCOMPARE(w.areas(), "bull pig|bull");
        QCOMPARE(w.text(), renamedScript("bull"));
        w.undo();
        QCOMPARE(w.saved(), w.before);
    }

    void theMenuOfThePageOffersIt()
    {
        Book w;
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, page->mapToGlobal({20, 20}));
        QApplication::sendEvent(page, &event);
        QMenu* const menu = w.get<QMenu>("pageMenu");
        QTRY_VERIFY(menu->isVisible());
        QVERIFY(menu->actions().contains(w.get<QAction>("actionRenameEverywhere")));
        menu->close();
    }

    void withoutASelectedAreaThereIsNothingToRename()
    {
        Book w;
        QVERIFY(w.get<QAction>("actionRenameEverywhere")->isEnabled());
        w.click("btPickPoly");
        QVERIFY(!w.get<QAction>("actionRenameEverywhere")->isEnabled());
        w.press(Qt::Key_F2);
        QCOMPARE(w.saved(), w.before);
    }

    void aProjectThatIsOpenedKnowsNothingOfEarlierRenamings()
    {
        Book w;
        w.rename("bull");
        w.window.openProject(w.path("book.oidpro"));
        w.undoOn("tabScript");
        QVERIFY(w.text() == renamedScript("bull") || w.text() == renamedScript("cow"));
    }
};

QTEST_MAIN(RenameTest)
#include "RenameTest.moc"
