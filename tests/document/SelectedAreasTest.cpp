#include "document/SelectedAreas.h"

#include "tests/document/Snapshot.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

Oid::POLY area(const std::string& name, std::vector<Oid::PNT> corners = {{1, 1}, {5, 1}, {5, 5}})
{
    Oid::POLY made;
    made.name = name;
    made.points = std::move(corners);
    return made;
}

class SelectedAreasTest : public testing::Test
{
protected:
    SelectedAreasTest()
    {
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.projectRecord().pictures.resize(2);
        document.restart();
    }

    void add(const std::vector<std::string>& names, int page = 0)
    {
        double place = 0;
        for (const std::string& name : names) {
            document.apply(
                edit::AddArea{page, area(name, {{place, 1}, {place + 5, 1}, {place, 5}})});
            place += 10;
        }
    }
    void select(const std::vector<int>& indices)
    {
        std::vector<AreaId> areas;
        for (const int index : indices) {
            areas.push_back(document.areaAt(0, index));
        }
        document.selectAreas(0, areas);
    }
    const std::vector<Oid::POLY>& areas(std::size_t page = 0) const
    {
        return document.project().pictures[page].polys;
    }
    std::string names(std::size_t page = 0) const
    {
        std::string text;
        for (const Oid::POLY& one : areas(page)) {
            text += (text.empty() ? "" : " ") + one.name;
        }
        return text;
    }
    // The names of the selected areas.
    std::string selected() const
    {
        std::string text;
        for (const AreaId one : document.selectedAreas()) {
            text += (text.empty() ? "" : " ") +
                    areas()[static_cast<std::size_t>(document.placeOf(one).index)].name;
        }
        return text;
    }
    // What is done is one step.
    void expectOneStep(const std::function<bool()>& command)
    {
        const std::string before = snapshot(document) + savedBytes(document);
        EXPECT_TRUE(command());
        const std::string after = snapshot(document) + savedBytes(document);
        EXPECT_NE(before, after);
        EXPECT_TRUE(document.undo());
        EXPECT_EQ(snapshot(document) + savedBytes(document), before);
        EXPECT_TRUE(document.redo());
        EXPECT_EQ(snapshot(document) + savedBytes(document), after);
    }

    TemporaryFolder folder;
    Document document;
};

}  // namespace

TEST_F(SelectedAreasTest, AreRemovedInOneStep)
{
    add({"cow", "pig", "hen"});
    select({2, 0});
    expectOneStep([&] { return removeSelectedAreas(document); });
    EXPECT_EQ(names(), "pig");
    EXPECT_EQ(selected(), "");
    EXPECT_FALSE(removeSelectedAreas(document));
}

TEST_F(SelectedAreasTest, AreTakenTogetherWithOneSignal)
{
    add({"cow", "pig", "hen"});
    select({0, 1, 2});
    int told = 0;
    QObject::connect(&document, &Document::changed,
                     [&](const Change& change) { told += change.has(Change::areas) ? 1 : 0; });
    removeSelectedAreas(document);
    EXPECT_EQ(told, 1);
}

TEST_F(SelectedAreasTest, ThousandsAreDuplicatedWithNumbersInTheirOrder)
{
    Oid::PICTURE page;
    for (int i = 0; i < 2000; ++i) {
        page.polys.push_back(area("area" + std::to_string(i)));
    }
    document.projectRecord().pictures[0] = page;
    document.restart();
    document.numberAllAreas();
    selectAllAreas(document);
    duplicateSelectedAreas(document);
    EXPECT_EQ(areas().size(), 4000U);
    EXPECT_EQ(document.project().oids.at(areas()[3999].name).oid, 5000);
}

TEST_F(SelectedAreasTest, AreDuplicatedBesideThemselvesInTheirOrder)
{
    add({"cow", "pig2", "hen"});
    select({1, 0});
    expectOneStep([&] { return duplicateSelectedAreas(document); });
    EXPECT_EQ(names(), "cow pig2 hen cow2 pig3");
    EXPECT_EQ(selected(), "cow2 pig3");
    EXPECT_EQ(areas()[3].points[1].x, 7);
    EXPECT_EQ(areas()[3].points[1].y, 3);
    EXPECT_EQ(document.project().oids.at("cow2").oid, 1004);
}

TEST_F(SelectedAreasTest, NamesAreCountedUpToOneThatNoPageHas)
{
    add({"cow", "page9", "x0", "y01", "a1234567890"});
    add({"cow2", "page10"}, 1);
    select({0, 1, 2, 3, 4});
    duplicateSelectedAreas(document);
    EXPECT_EQ(names(), "cow page9 x0 y01 a1234567890 cow3 page11 x1 y012 a12345678902");
}

TEST_F(SelectedAreasTest, AreasThatShareANameShareTheNewOne)
{
    add({"cow", "cow"});
    select({0, 1});
    duplicateSelectedAreas(document);
    EXPECT_EQ(names(), "cow cow cow2 cow2");
}

TEST_F(SelectedAreasTest, OnAnotherPageTheyKeepTheirNamesAndPlaces)
{
    add({"cow", "pig"});
    const std::vector<Oid::POLY> copied = areas();
    document.select(1, -1);
    expectOneStep([&] { return pasteAreas(document, copied, false); });
    EXPECT_EQ(names(1), "cow pig");
    EXPECT_EQ(areas(1)[0].points[1].x, 5);
    EXPECT_EQ(document.selectedAreas().size(), 2U);
}

TEST_F(SelectedAreasTest, OnAnotherPageOnlyACopyIsNotHidden)
{
    add({"cow"});
    add({"pig"}, 1);
    const std::vector<Oid::POLY> copied = areas();
    document.select(1, -1);
    pasteAreas(document, copied, false);
    pasteAreas(document, copied, false);
    EXPECT_EQ(names(1), "pig cow cow");
    EXPECT_EQ(areas(1)[1].points[1].x, 5);
    EXPECT_EQ(areas(1)[2].points[1].x, 7);
}

TEST_F(SelectedAreasTest, AreNotPastedOntoOneThatWouldHideThem)
{
    add({"cow"});
    const std::vector<Oid::POLY> copied = areas();
    pasteAreas(document, copied, true);
    pasteAreas(document, copied, true);
    EXPECT_EQ(names(), "cow cow2 cow3");
    EXPECT_EQ(areas()[2].points[1].x, 9);
}

TEST_F(SelectedAreasTest, ANameThatThePageHasNoMoreIsKept)
{
    add({"cow", "pig"});
    const std::vector<Oid::POLY> copied{areas()[0]};
    select({0});
    removeSelectedAreas(document);
    pasteAreas(document, copied, true);
    EXPECT_EQ(names(), "pig cow");
    EXPECT_EQ(areas()[1].points[1].x, 5);
    EXPECT_EQ(document.project().oids.at("cow").oid, 1001);
}

TEST_F(SelectedAreasTest, NothingIsPastedWithoutAPageOrAreas)
{
    EXPECT_FALSE(pasteAreas(document, {}, false));
    document.select(7, -1);
    EXPECT_FALSE(pasteAreas(document, {area("cow")}, false));
    EXPECT_FALSE(document.canUndo());
}

TEST_F(SelectedAreasTest, ComeOnePlaceForward)
{
    add({"a", "b", "c", "d", "e"});
    select({4, 2});
    expectOneStep([&] { return reorderSelectedAreas(document, true); });
    EXPECT_EQ(names(), "a c b e d");
    EXPECT_EQ(selected(), "e c");
    reorderSelectedAreas(document, true);
    EXPECT_EQ(names(), "c a e b d");
    reorderSelectedAreas(document, true);
    EXPECT_EQ(names(), "c e a b d");
    EXPECT_FALSE(reorderSelectedAreas(document, true));
    EXPECT_EQ(names(), "c e a b d");
}

TEST_F(SelectedAreasTest, GoOnePlaceBackward)
{
    add({"a", "b", "c", "d"});
    select({0, 1});
    expectOneStep([&] { return reorderSelectedAreas(document, false); });
    EXPECT_EQ(names(), "c a b d");
    reorderSelectedAreas(document, false);
    EXPECT_EQ(names(), "c d a b");
    EXPECT_FALSE(reorderSelectedAreas(document, false));
}

TEST_F(SelectedAreasTest, AreAllOfThePageAndTheOneBeforeStaysTheLast)
{
    add({"a", "b", "c"});
    add({"d"}, 1);
    select({1});
    selectAllAreas(document);
    EXPECT_EQ(selected(), "a c b");
    document.select(0, -1);
    selectAllAreas(document);
    EXPECT_EQ(selected(), "a b c");
}
