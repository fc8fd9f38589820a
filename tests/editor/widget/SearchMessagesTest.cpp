// What the editor says of a search that finds nothing or goes on from the other end.
#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

QString description(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description);
}

// The visible message of the dialog or, where there is none, an empty text.
QString besideTheField(EditorWindow& window)
{
    const QLabel* const label = window.findDialog().findChild<QLabel*>("lbMessage");
    return label->isVisible() ? label->text() : QString();
}

QString inTheCorner(EditorWindow& window)
{
    const QLabel* const note = window.surface.findChild<QLabel*>("searchNote");
    return note->isVisible() ? note->text() : QString();
}

void find(EditorWindow& window, const QString& text, bool backwards = false)
{
    window.findDialog().open_for(false);
    window.findDialog().set_find_text(text);
    window.findDialog().set_backwards(backwards);
    QTest::mouseClick(window.findDialog().btFind, Qt::LeftButton);
}

}  // namespace

class SearchMessagesTest : public QObject
{
    Q_OBJECT

private slots:
    void aSearchInVainSaysSoBesideTheField()
    {
        EditorWindow window("|duck");
        find(window, "cow");
        QCOMPARE(besideTheField(window), QString("Nothing found."));
        QCOMPARE(inTheCorner(window), QString());
    }

    void aSearchThatGoesOnFromTheBeginningSaysSo()
    {
        EditorWindow window("cow duck|");
        find(window, "cow");
        QCOMPARE(window.shown(), QString("^cow| duck"));
        QCOMPARE(besideTheField(window), QString("Went on from the beginning."));
    }

    void aSearchThatGoesOnFromTheEndSaysSo()
    {
        EditorWindow window("|duck cow");
        find(window, "cow", true);
        QCOMPARE(window.shown(), QString("duck ^cow|"));
        QCOMPARE(besideTheField(window), QString("Went on from the end."));
    }

    void aHitTakesTheMessageAway()
    {
        EditorWindow window("cow duck cow|");
        find(window, "cow");
        QVERIFY(!besideTheField(window).isEmpty());
        QTest::mouseClick(window.findDialog().btFind, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cow duck ^cow|"));
        QCOMPARE(besideTheField(window), QString());
    }

    void typingAnotherTextAndOpeningAgainTakeItAway()
    {
        EditorWindow window("|duck");
        find(window, "cow");
        QTest::keyClicks(window.findDialog().txFind, "s");
        QCOMPARE(besideTheField(window), QString());

        QTest::mouseClick(window.findDialog().btFind, Qt::LeftButton);
        QVERIFY(!besideTheField(window).isEmpty());
        window.findDialog().close();
        window.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(besideTheField(window), QString());
    }

    void theDialogKeepsItsSizeWhenItSaysSomething()
    {
        EditorWindow window("|duck");
        window.findDialog().open_for(false);
        const QSize before = window.findDialog().sizeHint();
        find(window, "cow");
        QCOMPARE(window.findDialog().sizeHint().height(), before.height());
    }

    void withTheDialogClosedTheCornerOfTheTextSaysIt()
    {
        EditorWindow window("|duck");
        window.findDialog().set_find_text("cow");
        window.key(Qt::Key_F3);
        QCOMPARE(inTheCorner(window), QString("Nothing found."));
        const QWidget* const note = window.surface.findChild<QLabel*>("searchNote");
        QVERIFY(window.surface.rect().contains(note->geometry()));
        QVERIFY(window.surface.hasFocus());
    }

    void inTheCornerItGoesWithAHitOrByItself()
    {
        EditorWindow window("cow|");
        window.findDialog().set_find_text("cow");
        window.key(Qt::Key_F3);
        QCOMPARE(inTheCorner(window), QString("Went on from the beginning."));
        window.key(Qt::Key_Home);
        window.key(Qt::Key_F3);
        QCOMPARE(inTheCorner(window), QString());

        window.key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(inTheCorner(window), QString("Went on from the end."));
        QTRY_COMPARE_WITH_TIMEOUT(inTheCorner(window), QString(), 10000);
    }

    void openingTheDialogTakesTheMessageOutOfTheCorner()
    {
        EditorWindow window("|duck");
        window.findDialog().set_find_text("cow");
        window.key(Qt::Key_F3);
        find(window, "duck");
        QCOMPARE(inTheCorner(window), QString());
    }

    void replacingAllOfNothingSaysSo()
    {
        EditorWindow window("|duck");
        window.surface.OnEditReplace();
        window.findDialog().set_find_text("cow");
        QTest::mouseClick(window.findDialog().btReplaceAll, Qt::LeftButton);
        QCOMPARE(besideTheField(window), QString("Nothing found."));
        window.findDialog().set_find_text("duck");
        QTest::mouseClick(window.findDialog().btReplaceAll, Qt::LeftButton);
        QCOMPARE(besideTheField(window), QString());
    }

    // A screen reader reads a new description of what has the focus.
    void screenReadersHearItAsTheDescriptionOfTheField()
    {
        EditorWindow window("|duck");
        find(window, "cow");
        QCOMPARE(description(*window.findDialog().txFind), QString("Nothing found."));
        find(window, "duck");
        QCOMPARE(description(*window.findDialog().txFind), window.findDialog().txFind->toolTip());
    }

    void withTheDialogClosedTheyHearItAsTheDescriptionOfTheText()
    {
        EditorWindow window("duck|");
        window.findDialog().set_find_text("duck");
        window.key(Qt::Key_F3);
        QCOMPARE(description(window.surface), QString("Went on from the beginning."));
        window.key(Qt::Key_Home);
        window.key(Qt::Key_F3);
        QCOMPARE(description(window.surface), QString());
    }
};

QTEST_MAIN(SearchMessagesTest)
#include "SearchMessagesTest.moc"
