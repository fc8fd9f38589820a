#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QtTest>

namespace {

// Opens the menu with the right button and hands it to the caller while it is open.
template <class LOOK>
void withMenu(EditorWindow& window, LOOK look)
{
    bool opened = false;
    QTimer::singleShot(0, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        opened = menu != nullptr;
        if (opened) {
            look(*menu);
            menu->close();
        }
    });
    const QPoint place = window.point(0, 0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, window.surface.mapToGlobal(place));
    QApplication::sendEvent(&window.surface, &event);
    QVERIFY(opened);
}

QStringList entries(EditorWindow& window)
{
    QStringList texts;
    withMenu(window, [&](QMenu& menu) {
        for (const QAction* action : menu.actions()) {
            texts << (action->isSeparator() ? "-" : action->text());
        }
    });
    return texts;
}

void choose(EditorWindow& window, const QString& text)
{
    withMenu(window, [&](QMenu& menu) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text) {
                menu.setActiveAction(action);
                QTest::keyClick(&menu, Qt::Key_Return);
                return;
            }
        }
        QFAIL(qPrintable("no entry " + text));
    });
}

const QStringList kEdit = {"Cu&t\tCtrl+X", "&Copy\tCtrl+C", "&Paste\tCtrl+V", "Select &All\tCtrl+A",
                           "-"};
const QStringList kFind = {"&Find...\tCtrl+F3", "Find Ne&xt\tF3", "&Replace...\tCtrl+H", "-"};
const QStringList kBookmarks = {"Toggle Bookmark\tCtrl+F2", "Next Bookmark\tF2",
                                "Previous Bookmark\tShift+F2"};

}  // namespace

class ContextMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::clipboard()->setText("before"); }

    void withNothingToUndoItHasTheseEntries()
    {
        EditorWindow window("a");
        QCOMPARE(entries(window), kEdit + kFind + kBookmarks);
    }

    void undoIsThereWhenThereIsSomethingToUndo()
    {
        EditorWindow window("a");
        window.type("b");
        QCOMPARE(entries(window), kEdit + kFind + QStringList({"Undo\tCtrl+Z", "-"}) + kBookmarks);
    }

    void redoIsThereWhenThereIsSomethingToRedo()
    {
        EditorWindow window("a");
        window.type("b");
        window.surface.OnEditUndo();
        QCOMPARE(entries(window), kEdit + kFind + QStringList({"Redo\tCtrl+Y", "-"}) + kBookmarks);
    }

    void bothAreThereInTheMiddleOfTheHistory()
    {
        EditorWindow window("a");
        window.type("b c");
        window.surface.OnEditUndo();
        QCOMPARE(entries(window),
                 kEdit + kFind + QStringList({"Undo\tCtrl+Z", "Redo\tCtrl+Y", "-"}) + kBookmarks);
    }

    void itHasATitleAndItsEntriesHaveDifferentPicturesOfTwoColours()
    {
        EditorWindow window("a");
        window.type("b c");
        window.surface.OnEditUndo();
        withMenu(window, [](QMenu& menu) {
            QCOMPARE(menu.title(), QString("Context menu"));
            QVector<QImage> pictures;
            for (const QAction* action : menu.actions()) {
                if (!action->isSeparator()) {
                    const QImage picture = action->icon().pixmap(16, 16).toImage();
                    QCOMPARE(picture.size(), QSize(16, 16));
                    QVERIFY(!pictures.contains(picture));
                    QSet<QRgb> colors;
                    for (int i = 0; i < 16 * 16; ++i) {
                        colors << picture.pixel(i % 16, i / 16);
                    }
                    QCOMPARE(colors.size(), 2);
                    pictures << picture;
                }
            }
            QCOMPARE(pictures.size(), 12);
        });
    }

    void itOpensWhereItWasAskedFor()
    {
        EditorWindow window("a");
        withMenu(window, [&](QMenu& menu) {
            QCOMPARE(menu.pos(), window.surface.mapToGlobal(window.point(0, 0)));
        });
    }

    void cutCuts()
    {
        EditorWindow window("a^b|c");
        choose(window, "Cu&t\tCtrl+X");
        QCOMPARE(window.shown(), QString("a|c"));
        QCOMPARE(QApplication::clipboard()->text(), QString("b"));
    }

    void copyCopies()
    {
        EditorWindow window("a^b|c");
        choose(window, "&Copy\tCtrl+C");
        QCOMPARE(QApplication::clipboard()->text(), QString("b"));
    }

    void pastePastes()
    {
        EditorWindow window("a|c");
        choose(window, "&Paste\tCtrl+V");
        QCOMPARE(window.shown(), QString("abefore|c"));
    }

    void selectAllSelectsAll()
    {
        EditorWindow window("a\n|c");
        choose(window, "Select &All\tCtrl+A");
        QCOMPARE(window.shown(), QString("^a\nc|"));
    }

    void findOpensTheDialogToFind()
    {
        EditorWindow window("a");
        choose(window, "&Find...\tCtrl+F3");
        QVERIFY(window.findDialog().isVisible());
        QVERIFY(!window.findDialog().txReplace->isVisible());
    }

    void findNextFinds()
    {
        EditorWindow window("|a cow");
        window.findDialog().set_find_text("cow");
        choose(window, "Find Ne&xt\tF3");
        QCOMPARE(window.shown(), QString("a ^cow|"));
    }

    void replaceOpensTheDialogToReplace()
    {
        EditorWindow window("a");
        choose(window, "&Replace...\tCtrl+H");
        QVERIFY(window.findDialog().txReplace->isVisible());
    }

    void undoAndRedoGoBackAndForth()
    {
        EditorWindow window("|");
        window.type("ab");
        choose(window, "Undo\tCtrl+Z");
        QCOMPARE(window.text(), QString(""));
        choose(window, "Redo\tCtrl+Y");
        QCOMPARE(window.text(), QString("ab"));
    }

    void bookmarksAreSetAndReached()
    {
        EditorWindow window("a\nb\nc|");
        choose(window, "Toggle Bookmark\tCtrl+F2");
        QVERIFY(window.surface.buffer.line(2).bookmark);
        window.surface.ToggleBookmark(0);
        window.surface.ToggleBookmark(1);
        choose(window, "Next Bookmark\tF2");
        QCOMPARE(window.shown(), QString("|a\nb\nc"));
        choose(window, "Previous Bookmark\tShift+F2");
        QCOMPARE(window.shown(), QString("a\nb\n|c"));
    }
};

QTEST_MAIN(ContextMenuTest)
#include "ContextMenuTest.moc"
