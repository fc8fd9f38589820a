#include "document/Document.h"

#include "base/PlatformFiles.h"
#include "tests/document/Snapshot.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

Oid::POLY area(const std::string& name, std::vector<Oid::PNT> corners = {{1, 1}, {5, 1}, {5, 5}})
{
    Oid::POLY made;
    made.name = name;
    made.points = std::move(corners);
    return made;
}

class DocumentTest : public testing::Test
{
protected:
    DocumentTest()
    {
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().print = CapturedMessages::print;
        document.apply(edit::AddPage{});
        document.restart();
        QObject::connect(&document, &Document::changed, [this](const Change& change) {
            told |= change.what;
            lastChange = change;
        });
    }

    AreaId add(const std::string& name, int page = 0)
    {
        EXPECT_TRUE(document.apply(edit::AddArea{page, area(name)}));
        const auto& areas = document.project().pictures[static_cast<std::size_t>(page)].polys;
        return document.areaAt(page, static_cast<int>(areas.size()) - 1);
    }
    const Oid::POLY& at(int index, int page = 0) const
    {
        return document.project()
            .pictures[static_cast<std::size_t>(page)]
            .polys[static_cast<std::size_t>(index)];
    }
    std::string names(int page = 0) const
    {
        std::string text;
        for (const Oid::POLY& one :
             document.project().pictures[static_cast<std::size_t>(page)].polys) {
            text += (text.empty() ? "" : " ") + one.name;
        }
        return text;
    }
    int oid(const std::string& name) const
    {
        const auto entry = document.project().oids.find(name);
        return entry != document.project().oids.end() ? entry->second.oid : -1;
    }
    TemporaryFolder folder;
    Document document;
    unsigned told = 0;
    Change lastChange;
};

}  // namespace

TEST_F(DocumentTest, AnAreaIsUnmadeAsIfItHadNeverBeen)
{
    const std::string before = snapshot(document);
    const AreaId made = add("gate");
    document.apply(edit::SetCorners{made, {{1, 1}, {2, 2}}});
    document.apply(edit::RenameArea{made, "door"});
    document.apply(edit::SetNumber{made, 77});
    document.undo();
    EXPECT_TRUE(document.unmake(made));
    EXPECT_EQ(snapshot(document), before);
    EXPECT_FALSE(document.canUndo());
    EXPECT_FALSE(document.canRedo());
    EXPECT_TRUE(document.isClean());
    EXPECT_FALSE(document.unmake(made));
}

TEST_F(DocumentTest, StepsBeforeAnUnmadeAreaStay)
{
    add("cow");
    const AreaId made = add("gate");
    EXPECT_TRUE(document.unmake(made));
    EXPECT_EQ(names(), "cow");
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(names(), "");
    EXPECT_FALSE(document.canUndo());
}

// Whatever it is: another area, the paper, the number of another name.
TEST_F(DocumentTest, AnAreaIsNotUnmadeWhenSomethingElseWasDoneSince)
{
    const AreaId cow = add("cow");
    const std::vector<Edit> others = {edit::MoveAreas{{cow}, {1, 1}},
                                      edit::SetPaper{0, 10, 10, 600}, edit::SetNumber{cow, 99},
                                      edit::RenameArea{cow, "hen"}, edit::AddArea{0, area("pig")}};
    for (const Edit& other : others) {
        const AreaId made = add("gate");
        document.apply(other);
        const std::string before = snapshot(document);
        EXPECT_FALSE(document.unmake(made));
        EXPECT_EQ(snapshot(document), before);
    }
}

TEST_F(DocumentTest, ANewAreaGetsANumberAndLosesItWhenUndone)
{
    add("cow");
    EXPECT_EQ(oid("cow"), 1001);
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(names(), "");
    EXPECT_EQ(oid("cow"), -1);
    EXPECT_TRUE(document.redo());
    EXPECT_EQ(names(), "cow");
    EXPECT_EQ(oid("cow"), 1001);
}

TEST_F(DocumentTest, AnAreaCanComeBetweenOthers)
{
    add("cow");
    add("pig");
    document.apply(edit::AddArea{0, area("hen"), 1});
    EXPECT_EQ(names(), "cow hen pig");
    document.undo();
    EXPECT_EQ(names(), "cow pig");
}

TEST_F(DocumentTest, ARemovedAreaLeavesItsNumberBehindAndComesBackAsItself)
{
    const AreaId cow = add("cow");
    add("pig");
    EXPECT_TRUE(document.apply(edit::RemoveArea{cow}));
    EXPECT_EQ(names(), "pig");
    EXPECT_EQ(oid("cow"), 1001);
    EXPECT_EQ(document.placeOf(cow).page, -1);
    document.undo();
    EXPECT_EQ(names(), "cow pig");
    EXPECT_EQ(document.areaAt(0, 0), cow);
    EXPECT_EQ(at(0).points.size(), 3U);
}

TEST_F(DocumentTest, ANameStaysWithItsAreaWhenOthersComeAndGo)
{
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    document.apply(edit::RemoveArea{cow});
    EXPECT_EQ(document.placeOf(pig).index, 0);
    document.apply(edit::RenameArea{pig, "sow"});
    EXPECT_EQ(names(), "sow");
}

TEST_F(DocumentTest, ADragIsOneStep)
{
    const AreaId cow = add("cow");
    const std::string before = snapshot(document);
    const Gesture drag = document.newGesture();
    for (int i = 0; i < 50; ++i) {
        document.apply(edit::MoveAreas{{cow}, {0.1, 0.2}}, drag);
    }
    EXPECT_NEAR(at(0).points[0].x, 6, 1e-4);
    EXPECT_NEAR(at(0).points[0].y, 11, 1e-4);
    const std::string after = snapshot(document);
    document.undo();
    EXPECT_EQ(snapshot(document), before);
    document.redo();
    EXPECT_EQ(snapshot(document), after);
}

TEST_F(DocumentTest, TwoDragsAreTwoSteps)
{
    const AreaId cow = add("cow");
    document.apply(edit::MoveAreas{{cow}, {1, 0}}, document.newGesture());
    document.apply(edit::MoveAreas{{cow}, {1, 0}}, document.newGesture());
    document.undo();
    EXPECT_EQ(at(0).points[0].x, 2);
}

TEST_F(DocumentTest, ADragThatEndsWhereItBeganIsNoStep)
{
    const AreaId cow = add("cow");
    const Gesture drag = document.newGesture();
    document.apply(edit::MoveAreas{{cow}, {1, 0}}, drag);
    document.apply(edit::MoveAreas{{cow}, {-1, 0}}, drag);
    document.undo();
    EXPECT_EQ(names(), "");
}

TEST_F(DocumentTest, ADragThatIsGivenUpNeverWas)
{
    const AreaId cow = add("cow");
    document.apply(edit::RenameArea{cow, "bull"});
    document.undo();
    const std::string before = snapshot(document);
    const Gesture drag = document.newGesture();
    document.apply(edit::MoveAreas{{cow}, {1, 0}}, drag);
    document.takeBack(drag);
    EXPECT_EQ(snapshot(document), before);
    EXPECT_TRUE(document.canRedo());
    document.redo();
    EXPECT_EQ(names(), "bull");
}

TEST_F(DocumentTest, TypingANameIsOneStepAndLeavesThePassedNumbersAlone)
{
    const AreaId cow = add("cow");
    const AreaId calf = add("x");
    const Gesture typing = document.newGesture();
    for (const char* const name : {"", "c", "co", "cow", "cow2"}) {
        document.apply(edit::RenameArea{calf, name}, typing);
    }
    EXPECT_EQ(oid("cow"), 1001);
    EXPECT_EQ(oid("cow2"), 1002);
    EXPECT_EQ(document.areaAt(0, 0), cow);
    document.undo();
    EXPECT_EQ(names(), "cow x");
    EXPECT_EQ(oid("x"), 1002);
    EXPECT_EQ(oid("cow2"), -1);
}

TEST_F(DocumentTest, ChoosingAnotherAreaEndsTheTyping)
{
    const AreaId cow = add("cow");
    add("pig");
    const Gesture typing = document.newGesture();
    document.apply(edit::RenameArea{cow, "cows"}, typing);
    document.select(0, 1);
    document.apply(edit::RenameArea{cow, "cowss"}, typing);
    document.undo();
    EXPECT_EQ(names(), "cows pig");
}

TEST_F(DocumentTest, AllAreasOfANameGetAnotherOneWithTheirNumberInOneStep)
{
    document.apply(edit::AddPage{});
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    const AreaId further = add("cow", 1);
    const std::string before = snapshot(document);
    EXPECT_TRUE(document.apply(edit::RenameAreas{{cow, further}, "bull"}));
    EXPECT_EQ(names(0), "bull pig");
    EXPECT_EQ(names(1), "bull");
    EXPECT_EQ(oid("bull"), 1001);
    EXPECT_EQ(oid("cow"), -1);
    EXPECT_EQ(oid("pig"), 1002);
    const std::string after = snapshot(document);
    document.undo();
    EXPECT_EQ(snapshot(document), before);
    document.redo();
    EXPECT_EQ(snapshot(document), after);
    EXPECT_EQ(document.placeOf(pig).index, 1);
}

TEST_F(DocumentTest, AreasThatGetTheNameOfOthersShareTheirNumberWithThem)
{
    const AreaId cow = add("cow");
    const AreaId further = add("cow");
    add("pig");
    EXPECT_TRUE(document.apply(edit::RenameAreas{{cow, further}, "pig"}));
    EXPECT_EQ(names(), "pig pig pig");
    EXPECT_EQ(oid("pig"), 1001);
    document.undo();
    EXPECT_EQ(oid("pig"), 1002);
    EXPECT_EQ(oid("cow"), 1001);
}

TEST_F(DocumentTest, AreasOfAPageThatIsNotThereAreNotRenamed)
{
    const AreaId cow = add("cow");
    const AreaId gone = add("cow");
    document.apply(edit::RemoveArea{gone});
    EXPECT_FALSE(document.apply(edit::RenameAreas{{cow, gone}, "bull"}));
    EXPECT_EQ(names(), "cow");
    EXPECT_TRUE(document.apply(edit::RenameAreas{{cow, cow}, "bull"}));
    EXPECT_EQ(oid("bull"), 1001);
}

TEST_F(DocumentTest, AStepWithACompanionSaysSoWhenItGoesBackAndForth)
{
    std::vector<std::string> moved;
    QObject::connect(&document, &Document::linkedStepMoved, [&](StepLink link, bool forward) {
        moved.push_back(std::to_string(static_cast<int>(link)) + (forward ? " done" : " undone"));
    });
    const AreaId cow = add("cow");
    const Gesture gesture = document.newGesture();
    document.apply(edit::RenameAreas{{cow}, "bull"}, gesture);
    document.linkStep(gesture, StepLink(7));
    document.orientAreas(0);  // follows the step
    EXPECT_EQ(document.linkToUndo(), StepLink(7));
    EXPECT_EQ(document.linkToRedo(), StepLink::none);
    document.undo();
    EXPECT_EQ(document.linkToUndo(), StepLink::none);
    EXPECT_EQ(document.linkToRedo(), StepLink(7));
    document.undo();
    document.redo();
    document.redo();
    EXPECT_EQ(document.linkToUndo(), StepLink(7));
    EXPECT_EQ(moved, (std::vector<std::string>{"7 undone", "7 done"}));
    document.linkStep(gesture, StepLink(8));  // the gesture is over
    EXPECT_EQ(document.linkToUndo(), StepLink(7));
}

TEST_F(DocumentTest, TheNumberIsThatOfAllAreasOfTheName)
{
    const AreaId cow = add("cow");
    add("cow");
    document.apply(edit::SetNumber{cow, 1234});
    EXPECT_EQ(oid("cow"), 1234);
    document.undo();
    EXPECT_EQ(oid("cow"), 1001);
}

TEST_F(DocumentTest, AreasChangeTheirOrderBothWays)
{
    const AreaId a = add("a");
    add("b");
    add("c");
    const AreaId d = add("d");
    document.apply(edit::ReorderArea{a, 2});
    EXPECT_EQ(names(), "b c a d");
    document.apply(edit::ReorderArea{d, 0});
    EXPECT_EQ(names(), "d b c a");
    document.undo();
    document.undo();
    EXPECT_EQ(names(), "a b c d");
}

TEST_F(DocumentTest, PaperComesBack)
{
    document.apply(edit::SetPaper{0, 210, 148.5, 600});
    EXPECT_EQ(document.project().pictures[0].dpi, 600);
    document.undo();
    EXPECT_EQ(document.project().pictures[0].dpi, 1200);
    EXPECT_EQ(document.project().pictures[0].paperWidth, 297.01);
}

TEST_F(DocumentTest, AnotherPictureComesAndGoesWithItsFile)
{
    const std::string file = document.project().pathImageSource(0);
    writeFile(Platform::nativePath(file), "first");
    document.apply(edit::ReplacePicture{0, "second"});
    document.apply(edit::ReplacePicture{0, "third"});
    EXPECT_EQ(readFile(Platform::nativePath(file)), "third");
    document.undo();
    EXPECT_EQ(readFile(Platform::nativePath(file)), "second");
    document.undo();
    EXPECT_EQ(readFile(Platform::nativePath(file)), "first");
    document.redo();
    document.redo();
    EXPECT_EQ(readFile(Platform::nativePath(file)), "third");
}

TEST_F(DocumentTest, ANewPageIsUndoneWithItsFileAndComesBackWithIt)
{
    document.apply(edit::AddPage{{}, "picture"});
    document.apply(edit::AddArea{1, area("cow")});
    const std::string file = document.project().pathImageSource(1);
    EXPECT_EQ(readFile(Platform::nativePath(file)), "picture");
    document.undo();
    document.undo();
    EXPECT_EQ(document.project().pictures.size(), 1U);
    EXPECT_FALSE(Platform::fileExists(file));
    document.redo();
    document.redo();
    EXPECT_EQ(readFile(Platform::nativePath(file)), "picture");
    EXPECT_EQ(names(1), "cow");
}

TEST_F(DocumentTest, UndoingAPageLeavesThePictureThatTheSavedProjectHas)
{
    document.apply(edit::AddPage{{}, "picture"});
    document.setClean();
    const std::string file = document.project().pathImageSource(1);
    document.undo();
    EXPECT_EQ(document.project().pictures.size(), 1U);
    EXPECT_EQ(readFile(Platform::nativePath(file)), "picture");
    document.redo();
    EXPECT_EQ(document.project().pictures.size(), 2U);
    EXPECT_EQ(readFile(Platform::nativePath(file)), "picture");
}

TEST_F(DocumentTest, APageThatWasUndoneAfterASaveComesBackWithItsPictureAndNotWithALaterOne)
{
    document.apply(edit::AddPage{{}, "picture"});
    document.setClean();
    const std::string file = document.project().pathImageSource(1);
    document.undo();
    writeFile(Platform::nativePath(file), "other");
    document.redo();
    EXPECT_EQ(readFile(Platform::nativePath(file)), "picture");
}

TEST_F(DocumentTest, APictureThatReplacedNoneIsUndoneAlsoOnAPageThatIsSaved)
{
    document.apply(edit::ReplacePicture{0, "picture"});
    document.setClean();
    document.undo();
    EXPECT_FALSE(Platform::fileExists(document.project().pathImageSource(0)));
}

TEST_F(DocumentTest, APictureThatCannotBeWrittenChangesNothing)
{
    document.projectRecord().projectPath = folder.file("missing/book.oidpro");
    EXPECT_FALSE(document.apply(edit::ReplacePicture{0, "new"}));
    EXPECT_FALSE(document.apply(edit::AddPage{{}, "new"}));
    EXPECT_EQ(document.project().pictures.size(), 1U);
    EXPECT_FALSE(document.canUndo());
    EXPECT_TRUE(document.isClean());
}

TEST_F(DocumentTest, OnAFullDiskThePictureThatIsThereStays)
{
    const std::string file = Platform::nativePath(document.project().pathImageSource(0));
    writeFile(file, "old");
    const SmallDisk disk(4000);
    EXPECT_FALSE(document.apply(edit::ReplacePicture{0, QByteArray(5000, 'x')}));
    EXPECT_EQ(readFile(file), "old");
    EXPECT_EQ(folder.listing(), "900-bkgnd0.jpg");
    EXPECT_FALSE(document.canUndo());
}

TEST_F(DocumentTest, AnUndoWhoseFileCannotBeWrittenChangesNothing)
{
    document.apply(edit::ReplacePicture{0, "new"});
    document.apply(edit::AddArea{0, area("cow")});
    document.undo();
    document.projectRecord().projectPath = folder.file("missing/book.oidpro");
    EXPECT_FALSE(document.undo());
    EXPECT_TRUE(document.canUndo());
    document.projectRecord().projectPath = folder.file("book.oidpro");
    EXPECT_TRUE(document.undo());
    EXPECT_FALSE(Platform::fileExists(document.project().pathImageSource(0)));
}

TEST_F(DocumentTest, WhatIsNotThereCannotBeEdited)
{
    const AreaId cow = add("cow");
    document.apply(edit::RemoveArea{cow});
    const std::string before = snapshot(document);
    EXPECT_FALSE(document.apply(edit::RemoveArea{cow}));
    EXPECT_FALSE(document.apply(edit::RenameArea{cow, "x"}));
    EXPECT_FALSE(document.apply(edit::SetCorners{cow, {}}));
    EXPECT_FALSE(document.apply(edit::MoveAreas{{cow}, {1, 1}}));
    EXPECT_FALSE(document.apply(edit::SetNumber{cow, 3}));
    EXPECT_FALSE(document.apply(edit::ReorderArea{cow, 0}));
    EXPECT_FALSE(document.apply(edit::AddArea{7, area("x")}));
    EXPECT_FALSE(document.apply(edit::SetPaper{-1, 1, 1, 1}));
    EXPECT_FALSE(document.apply(edit::ReplacePicture{1, "x"}));
    EXPECT_EQ(snapshot(document), before);
}

TEST_F(DocumentTest, AnEditThatChangesNothingIsNoStepAndKeepsWhatWasUndone)
{
    const AreaId cow = add("cow");
    document.apply(edit::RenameArea{cow, "bull"});
    document.undo();
    document.apply(edit::RenameArea{cow, "cow"});
    document.apply(edit::SetCorners{cow, at(0).points});
    document.apply(edit::SetNumber{cow, 1001});
    document.apply(edit::ReorderArea{cow, 0});
    document.apply(edit::SetPaper{0, 297.01, 209.97, 1200});
    EXPECT_TRUE(document.canRedo());
}

TEST_F(DocumentTest, ANewEditForgetsWhatWasUndone)
{
    add("cow");
    document.undo();
    add("pig");
    EXPECT_FALSE(document.canRedo());
    EXPECT_FALSE(document.redo());
}

TEST_F(DocumentTest, IsCleanWhereItWasSaved)
{
    EXPECT_TRUE(document.isClean());
    const AreaId cow = add("cow");
    EXPECT_FALSE(document.isClean());
    document.setClean();
    EXPECT_TRUE(document.isClean());
    document.apply(edit::RenameArea{cow, "bull"});
    EXPECT_FALSE(document.isClean());
    document.undo();
    EXPECT_TRUE(document.isClean());
    document.undo();
    EXPECT_FALSE(document.isClean());
    document.redo();
    EXPECT_TRUE(document.isClean());
}

TEST_F(DocumentTest, SavingInTheMiddleOfANameEndsTheStepButNotTheTyping)
{
    add("cow");
    const AreaId calf = add("x");
    const Gesture typing = document.newGesture();
    document.apply(edit::RenameArea{calf, "cow"}, typing);
    EXPECT_EQ(oid("cow"), 1002);
    document.setClean();
    document.apply(edit::RenameArea{calf, "cow2"}, typing);
    EXPECT_EQ(oid("cow"), 1001);
    document.undo();
    EXPECT_TRUE(document.isClean());
    EXPECT_EQ(names(), "cow cow");
}

TEST_F(DocumentTest, AnotherStepAfterAnUndoIsNotTheSavedOne)
{
    add("cow");
    document.setClean();
    document.undo();
    add("pig");
    EXPECT_FALSE(document.isClean());
}

TEST_F(DocumentTest, TheProductIsPartOfTheFile)
{
    document.setProduct("Zoo", 901);
    EXPECT_FALSE(document.isClean());
    document.setProduct("my project", 900);
    EXPECT_TRUE(document.isClean());
}

TEST_F(DocumentTest, EveryChangeIsAnotherRevisionAndUndoGoesBackToTheOneBefore)
{
    std::set<std::uint64_t> revisions{document.revision()};
    const AreaId cow = add("cow");
    revisions.insert(document.revision());
    document.apply(edit::MoveAreas{{cow}, {1, 1}});
    revisions.insert(document.revision());
    document.orientAreas(0);
    document.typeProduct("Zo", 900);
    revisions.insert(document.revision());
    document.setProduct("Zoo", 901);
    revisions.insert(document.revision());
    EXPECT_EQ(revisions.size(), 5U);
    document.undo();
    document.undo();
    document.setProduct("my project", 900);
    EXPECT_EQ(revisions.count(document.revision()), 1U);
    const std::uint64_t revision = document.revision();
    document.select(0, 0);
    document.setClean();
    EXPECT_EQ(document.revision(), revision);
}

TEST_F(DocumentTest, WhatWouldBeSavedHasTheTypedProductAndNumbersForAllAreas)
{
    const AreaId cow = add("cow");
    document.apply(edit::SetNumber{cow, 0});
    document.typeProduct("Zoo", 901);
    const Oid::OidProject saved = document.projectToSave();
    EXPECT_EQ(saved.productName, "Zoo");
    EXPECT_EQ(saved.productId, 901);
    EXPECT_EQ(saved.pictures[0].polys[0].name, "cow");
    EXPECT_EQ(saved.oids.at("cow").oid, 1001);
    EXPECT_EQ(document.project().productId, 900);
    EXPECT_EQ(oid("cow"), 0);
}

TEST_F(DocumentTest, UndoAndRedoLeadToWhatWasChosenThen)
{
    add("cow");
    document.select(0, 0);
    add("pig");
    document.select(0, 1);
    document.undo();
    EXPECT_EQ(document.selectedIndex(), 0);
    document.redo();
    EXPECT_EQ(document.selectedIndex(), 1);
}

TEST_F(DocumentTest, SeveralAreasAreSelectedInTheirOrderAndTheLastOneIsTheOne)
{
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    const AreaId hen = add("hen");
    document.selectAreas(0, {hen, cow});
    EXPECT_EQ(document.selectedAreas(), (std::vector<AreaId>{hen, cow}));
    EXPECT_EQ(document.selectedArea(), cow);
    EXPECT_EQ(document.selectedIndex(), 0);
    EXPECT_EQ(lastChange.what, unsigned(Change::selection));
    document.select(0, 1);
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{pig});
    document.selectAreas(0, {});
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{});
    EXPECT_EQ(document.selectedIndex(), -1);
}

TEST_F(DocumentTest, OnlyAreasOfThePageAreSelectedEachOnce)
{
    document.apply(edit::AddPage{});
    const AreaId cow = add("cow");
    const AreaId far = add("far", 1);
    document.selectAreas(0, {cow, far, AreaId::none, cow});
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{cow});
}

TEST_F(DocumentTest, AnotherPageHasNoOtherSelectedAreas)
{
    document.apply(edit::AddPage{});
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    const AreaId far = add("far", 1);
    document.selectAreas(0, {pig, cow});
    document.select(1, document.selectedIndex());
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{far});
    document.selectAreas(0, {pig, cow});
    document.restart();
    EXPECT_EQ(document.selectedAreas().size(), 1U);
}

TEST_F(DocumentTest, TheSelectedAreasStaySelectedWhenOthersComeGoAndChangePlaces)
{
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    const AreaId hen = add("hen");
    const std::vector<AreaId> both{hen, pig};
    document.selectAreas(0, both);
    document.apply(edit::AddArea{0, area("dog"), 0});
    EXPECT_EQ(document.selectedAreas(), both);
    EXPECT_TRUE(lastChange.has(Change::selection));
    document.apply(edit::RemoveArea{cow});
    EXPECT_EQ(document.selectedAreas(), both);
    document.apply(edit::ReorderArea{pig, 0});
    EXPECT_EQ(document.selectedAreas(), both);
    EXPECT_EQ(document.selectedIndex(), 0);
    document.apply(edit::RemoveArea{hen});
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{pig});
    for (int i = 0; i < 4; ++i) {
        document.undo();
    }
    EXPECT_EQ(document.selectedAreas(), both);
    EXPECT_EQ(names(), "cow pig hen");
}

TEST_F(DocumentTest, UndoAndRedoLeadToAllAreasThatWereSelectedThen)
{
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    document.selectAreas(0, {cow, pig});
    const Gesture both = document.newGesture();
    document.apply(edit::RemoveArea{cow}, both);
    document.apply(edit::RemoveArea{pig}, both);
    document.select(0, -1);
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{});
    document.undo();
    EXPECT_EQ(document.selectedAreas(), (std::vector<AreaId>{cow, pig}));
    document.redo();
    EXPECT_EQ(document.selectedAreas(), std::vector<AreaId>{});
}

TEST_F(DocumentTest, EditsThatAreAppliedTogetherAreOneStepOrNone)
{
    const AreaId cow = add("cow");
    const AreaId pig = add("pig");
    const std::string before = snapshot(document);
    EXPECT_TRUE(document.applyTogether({edit::RemoveArea{cow}, edit::RemoveArea{pig}}));
    EXPECT_EQ(names(), "");
    document.undo();
    EXPECT_EQ(snapshot(document), before);
    EXPECT_FALSE(document.applyTogether({edit::RemoveArea{cow}, edit::RemoveArea{cow}}));
    EXPECT_EQ(snapshot(document), before);
    EXPECT_TRUE(document.canRedo());
}

TEST_F(DocumentTest, AGestureGoesOnUntilSomethingElseIsDone)
{
    const AreaId cow = add("cow");
    const Gesture drag = document.newGesture();
    EXPECT_FALSE(document.goesOn(drag));
    document.apply(edit::MoveAreas{{cow}, {1, 1}}, drag);
    EXPECT_TRUE(document.goesOn(drag));
    document.undo();
    EXPECT_FALSE(document.goesOn(drag));
    EXPECT_FALSE(document.goesOn(Gesture::none));
}

TEST_F(DocumentTest, TurningCornersForThePrintGoesWithTheStepBefore)
{
    const std::string empty = snapshot(document);
    document.apply(edit::AddArea{0, area("cow", {{0, 0}, {9, 0}, {9, 9}})});
    const std::vector<Oid::PNT> drawn = at(0).points;
    document.orientAreas(0);
    ASSERT_NE(at(0).points[0].x, drawn[0].x);
    const std::string turned = snapshot(document);
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(snapshot(document), empty);
    EXPECT_FALSE(document.canUndo());
    EXPECT_TRUE(document.redo());
    EXPECT_EQ(snapshot(document), turned);
    EXPECT_FALSE(document.canRedo());
}

TEST_F(DocumentTest, AskingForTheNumberOfANameWithoutOneEntersItWithZero)
{
    const AreaId cow = add("cow");
    document.projectRecord().oids.clear();
    document.restart();
    const AreaId again = document.areaAt(0, 0);
    EXPECT_NE(again, cow);
    EXPECT_EQ(document.numberOf(again), 0);
    EXPECT_EQ(oid("cow"), 0);
    EXPECT_FALSE(document.canUndo());
}

TEST_F(DocumentTest, AreasWithoutANumberGetOneBeforeTheyAreSaved)
{
    const AreaId cow = add("cow");
    add("pig");
    document.apply(edit::SetNumber{cow, 0});
    document.numberAllAreas();
    EXPECT_EQ(oid("cow"), 1003);
    document.undo();
    EXPECT_EQ(oid("cow"), 1001);
    document.redo();
    EXPECT_EQ(oid("cow"), 1003);
}

TEST_F(DocumentTest, AllIsNewAfterARestart)
{
    const AreaId cow = add("cow");
    document.select(0, 0);
    document.restart();
    EXPECT_FALSE(document.canUndo());
    EXPECT_TRUE(document.isClean());
    EXPECT_EQ(document.currentPage(), 0);
    EXPECT_EQ(document.placeOf(cow).page, -1);
    EXPECT_TRUE(lastChange.has(Change::pages));
}

TEST_F(DocumentTest, AnotherProjectHasNothingOfTheEditThatWasTheLastOne)
{
    const AreaId cow = add("cow");
    document.apply(edit::SetCorners{cow, {{2, 2}, {6, 2}, {6, 6}}}, document.newGesture());
    document.projectRecord().pictures.clear();
    document.projectRecord().oids.clear();
    document.restart();
    EXPECT_FALSE(document.canUndo());
    EXPECT_TRUE(document.isClean());
    EXPECT_EQ(document.placeOf(cow).page, -1);
    document.apply(edit::AddPage{});
    add("pig");
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(names(), "");
}

TEST_F(DocumentTest, TellsWhatChanged)
{
    const AreaId cow = add("cow");
    EXPECT_EQ(lastChange.what, Change::areas | Change::numbers | Change::history);
    document.apply(edit::MoveAreas{{cow}, {1, 1}});
    EXPECT_EQ(lastChange.what, Change::corners | Change::history);
    EXPECT_EQ(lastChange.page, 0);
    EXPECT_EQ(lastChange.changed, std::vector<AreaId>{cow});
    document.apply(edit::RenameArea{cow, "bull"});
    EXPECT_EQ(lastChange.what, Change::names | Change::numbers | Change::history);
    document.select(0, 0);
    EXPECT_EQ(lastChange.what, unsigned(Change::selection));
    document.undo();
    EXPECT_TRUE(lastChange.has(Change::names));
    EXPECT_TRUE(lastChange.has(Change::history));
    EXPECT_EQ(lastChange.changed, std::vector<AreaId>{cow});
}

TEST_F(DocumentTest, TenThousandCornersMovedAThousandTimesCanAllBeUndone)
{
    std::vector<Oid::PNT> corners;
    for (int i = 0; i < 10000; ++i) {
        corners.push_back({i / 77.0, i / 131.0});
    }
    document.apply(edit::AddArea{0, area("cow", corners)});
    const AreaId cow = document.areaAt(0, 0);
    const std::string before = snapshot(document);
    for (int i = 0; i < 1000; ++i) {
        document.apply(edit::MoveAreas{{cow}, {i / 700.0, -i / 1300.0}});
    }
    const std::string after = snapshot(document);
    int undone = 0;
    while (document.project().pictures[0].polys.size() == 1 && document.undo()) {
        ++undone;
        if (undone == 999) {
            EXPECT_TRUE(snapshot(document) == before);  // the first way, of i = 0, led nowhere
        }
    }
    EXPECT_EQ(undone, 1000);  // 999 ways and the area
    while (document.redo()) {}
    EXPECT_TRUE(snapshot(document) == after);
}

TEST_F(DocumentTest, TheOldestStepsGoWhenTheHistoryGrowsTooLarge)
{
    constexpr int kCorners = 100000;  // 3.2 MB a step
    document.apply(edit::AddArea{0, area("cow", std::vector<Oid::PNT>(kCorners))});
    const AreaId cow = document.areaAt(0, 0);
    std::vector<double> lefts{0};
    for (int i = 1; i <= 40; ++i) {
        std::vector<Oid::PNT> corners(kCorners);
        for (int k = 0; k < kCorners; ++k) {
            corners[static_cast<std::size_t>(k)] = {i + k / 3.0, i * k / 7.0};
        }
        document.apply(edit::SetCorners{cow, corners});
        lefts.push_back(i);
    }
    int undone = 0;
    for (; document.undo(); ++undone) {
        lefts.pop_back();
        EXPECT_EQ(at(0).points[0].x, lefts.back());
    }
    EXPECT_GE(undone, 19);
    EXPECT_LE(undone, 21);
    EXPECT_FALSE(document.isClean());
}

TEST_F(DocumentTest, RemovedAreasCountInTheHistory)
{
    for (int i = 0; i < 100; ++i) {
        document.apply(edit::AddArea{0, area("cow", std::vector<Oid::PNT>(100000))});  // 1.6 MB
        document.apply(edit::RemoveArea{document.areaAt(0, 0)});
    }
    int undone = 0;
    while (document.undo()) {
        ++undone;
    }
    EXPECT_GE(undone, 78);
    EXPECT_LE(undone, 82);
}
