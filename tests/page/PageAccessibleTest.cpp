// What a screen reader gets of the page and its areas.
#include "page/PageAccessible.h"

#include "page/PolyEditorWidget.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QApplication>
#include <QMap>
#include <QTest>

namespace {

// What a screen reader hears of a change.
QStringList heardOf(PolyEditorWidget& page, const Change& change)
{
    static const QMap<int, QString> names = {{QAccessible::Focus, "focus"},
                                             {QAccessible::Selection, "selection"},
                                             {QAccessible::NameChanged, "name"},
                                             {QAccessible::LocationChanged, "place"},
                                             {QAccessible::ObjectReorder, "areas"}};
    QStringList heard;
    for (const PageAccessible::News& news : PageAccessible::newsOf(page, change)) {
        heard << names[news.what] + " " + news.of->text(QAccessible::Name);
    }
    return heard;
}

Oid::POLY square(const char* name, double left, double top)
{
    Oid::POLY area;
    area.name = name;
    area.points = {{left, top}, {left + 20, top}, {left + 20, top + 20}, {left, top + 20}};
    return area;
}

struct Page
{
    Page()
    {
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().pictures.resize(2);
        document.restart();
        document.apply(edit::AddArea{0, square("cow", 10, 5)});
        document.apply(edit::AddArea{0, square("pig", 20, 15)});
        document.apply(edit::AddArea{1, square("hen", 10, 10)});
        widget.setDocument(&document);
        widget.setAccessibleName("Page");
        widget.resize(400, 300);
        widget.show();
        QApplication::setActiveWindow(&widget);
        QVERIFY(QTest::qWaitForWindowActive(&widget));
        widget.setFocus();
        QObject::connect(&document, &Document::changed, &widget,
                         [this](const Change& change) { heard += heardOf(widget, change); });
    }

    QAccessibleInterface* told() { return QAccessible::queryAccessibleInterface(&widget); }
    QAccessibleInterface* area(int index) { return told()->child(index); }

    TemporaryFolder folder;
    Document document;
    PolyEditorWidget widget;
    QStringList heard;
};

}  // namespace

class PageAccessibleTest : public QObject
{
    Q_OBJECT

private slots:
    void theAreasAreChildrenOfThePage()
    {
        Page page;
        QCOMPARE(page.told()->role(), QAccessible::List);
        QCOMPARE(page.told()->childCount(), 2);
        QCOMPARE(page.area(1)->text(QAccessible::Name), "pig");
        QCOMPARE(page.area(1)->role(), QAccessible::ListItem);
        QCOMPARE(page.area(1)->parent(), page.told());
        QCOMPARE(page.told()->indexOfChild(page.area(1)), 1);
        QCOMPARE(page.area(2), nullptr);
        QCOMPARE(page.area(-1), nullptr);
    }

    void anAreaTellsItsNumberAndItsPlace()
    {
        Page page;
        QCOMPARE(page.area(0)->text(QAccessible::Description),
                 "number 1001, area 1 of 2, 10 % from the left, 5 % from the top");
        QCOMPARE(page.area(0)->rect(), QRect(page.widget.mapToGlobal({40, 20}), QSize(81, 81)));
    }

    void theFirstAreaAtASpotIsFound()
    {
        Page page;
        const auto at = [&](int x, int y) {
            const QPoint place = page.widget.mapToGlobal({x, y});
            return page.told()->childAt(place.x(), place.y());
        };
        QCOMPARE(at(90, 70), page.area(0));  // both
        QCOMPARE(at(150, 120), page.area(1));
        QCOMPARE(at(5, 5), nullptr);
    }

    void selectedAreasSayThatTheyAre()
    {
        Page page;
        QVERIFY(!page.area(0)->state().selected);
        page.document.selectAreas(0, {page.document.areaAt(0, 0), page.document.areaAt(0, 1)});
        QVERIFY(page.area(0)->state().selected);
        QVERIFY(page.area(1)->state().selected);
        QVERIFY(!page.area(0)->state().focused);
        QVERIFY(page.area(1)->state().focused);
        QCOMPARE(page.told()->focusChild(), page.area(1));
    }

    void aSelectionIsToldAndHasTheFocus()
    {
        Page page;
        page.document.select(0, 1);
        QCOMPARE(page.heard, QStringList({"selection pig", "focus pig"}));
        page.heard.clear();
        page.document.select(0, -1);
        QCOMPARE(page.heard, QStringList({"selection Page"}));
    }

    void whatIsDoneToTheSelectedAreaIsTold()
    {
        Page page;
        page.document.select(0, 0);
        page.heard.clear();
        page.document.apply(edit::RenameArea{page.document.areaAt(0, 0), "bull"});
        QCOMPARE(page.heard, QStringList({"name bull"}));
        page.heard.clear();
        page.document.apply(edit::MoveAreas{{page.document.areaAt(0, 0)}, {10, 0}});
        QCOMPARE(page.heard, QStringList({"place bull"}));
        page.heard.clear();
        page.document.apply(edit::RemoveArea{page.document.areaAt(0, 1)});
        QCOMPARE(page.heard, QStringList({"areas Page"}));
    }

    void anAreaStaysTheSameForAsLongAsItIsThere()
    {
        Page page;
        QAccessibleInterface* const pig = page.area(1);
        page.document.apply(edit::RemoveArea{page.document.areaAt(0, 0)});
        QCOMPARE(page.area(0), pig);
        page.document.apply(edit::RemoveArea{page.document.areaAt(0, 0)});
        QVERIFY(!pig->isValid());
        QVERIFY(pig->state().invalid);
        QCOMPARE(pig->text(QAccessible::Name), QString());
        page.document.undo();
        QVERIFY(pig->isValid());
    }

    void anotherPageHasItsOwnAreas()
    {
        Page page;
        QAccessibleInterface* const cow = page.area(0);
        page.document.select(1, -1);
        QCOMPARE(page.told()->childCount(), 1);
        QCOMPARE(page.area(0)->text(QAccessible::Name), "hen");
        QVERIFY(!cow->isValid());
    }

    void aScreenReaderCanSelectAnArea()
    {
        Page page;
        QAccessibleActionInterface* const actions = page.area(1)->actionInterface();
        QCOMPARE(actions->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(page.document.selectedIndex(), 1);
    }

    void aPageWithoutADocumentHasNoAreas()
    {
        PolyEditorWidget widget;
        QCOMPARE(QAccessible::queryAccessibleInterface(&widget)->childCount(), 0);
    }
};

QTEST_MAIN(PageAccessibleTest)
#include "PageAccessibleTest.moc"
