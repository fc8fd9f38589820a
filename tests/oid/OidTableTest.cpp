#include <gtest/gtest.h>

#include "oid/OidTable.h"
#include "tests/oid/Builders.h"

namespace {

// What updateUsedOIDs prints.
std::string numbered(Oid::OidProject& project)
{
    CapturedMessages captured;
    project.redirectPrintf(CapturedMessages::print);
    project.updateUsedOIDs();
    project.redirectPrintf(nullptr);
    return captured.take();
}

}  // namespace

TEST(OidTable, AnEmptyProjectStaysAsItIs)
{
    Oid::OidProject project;
    EXPECT_EQ(numbered(project), "");
    EXPECT_TRUE(project.oids.empty());
}

TEST(OidTable, TheFirstNamesGetNumbersFrom1001InPictureAndAreaOrder)
{
    Oid::OidProject project = projectWith({area("zebra"), area("cow")});
    project.pictures.push_back(picture({area("ape"), area("cow")}));
    EXPECT_EQ(numbered(project), "OID  1001 assigned to 'zebra'\n"
                                 "OID  1002 assigned to 'cow'\n"
                                 "OID  1003 assigned to 'ape'\n");
    EXPECT_EQ(areasOf(project), "0: zebra 1001\n0: cow 1002\n1: ape 1003\n1: cow 1002\n");
    EXPECT_EQ(project.oids.at("zebra").rawCode, 14857);
}

TEST(OidTable, NewNumbersFollowTheLargestInUse)
{
    Oid::OidProject project = projectWith({area("new")});
    project.oids["a"] = {1500, 0};
    project.oids["b"] = {1001, 0};
    EXPECT_EQ(numbered(project), "OID  1501 assigned to 'new'\n");
}

TEST(OidTable, SmallNumbersInUseDoNotMoveTheFirst)
{
    Oid::OidProject project = projectWith({area("new")});
    project.oids["a"] = {7, 0};
    project.oids["b"] = {-3, 0};
    project.oids["c"] = {1000, 0};
    EXPECT_EQ(numbered(project), "OID  1001 assigned to 'new'\n");
}

TEST(OidTable, NumbersOfDeletedAreasStayReserved)
{
    Oid::OidProject project = projectWith({area("A"), area("B")});
    numbered(project);
    project.pictures[0].polys.clear();
    EXPECT_EQ(numbered(project), "");
    EXPECT_EQ(project.oids.at("A").oid, 1001);
    project.pictures[0].polys.push_back(area("C"));
    project.pictures[0].polys.push_back(area("A"));
    EXPECT_EQ(numbered(project), "OID  1003 assigned to 'C'\n");
    EXPECT_EQ(areasOf(project), "0: C 1003\n0: A 1001\n");
}

TEST(OidTable, NamesAreComparedByteByByteAndMayBeEmpty)
{
    Oid::OidProject project = projectWith({area("cow"), area("Cow"), area("")});
    EXPECT_EQ(numbered(project), "OID  1001 assigned to 'cow'\n"
                                 "OID  1002 assigned to 'Cow'\n"
                                 "OID  1003 assigned to ''\n");
}

TEST(OidTable, EveryRawCodeIsComputedAnew)
{
    Oid::OidProject project;
    project.oids["a"] = {1000, 1};
    project.oids["none"] = {16384, 1};
    project.oids["typed"] = {-1, 1};
    EXPECT_EQ(numbered(project), "");
    EXPECT_EQ(project.oids.at("a").rawCode, 14844);
    EXPECT_EQ(project.oids.at("none").rawCode, 0);
    EXPECT_EQ(project.oids.at("typed").rawCode, 0);
}

TEST(OidTable, NumbersStopAtTheLargestInteger)
{
    Oid::OidProject project = projectWith({area("x"), area("y")});
    project.oids["a"] = {2147483646, 0};
    EXPECT_EQ(numbered(project), "OID 2147483647 assigned to 'x'\n"
                                 "OID 2147483647 assigned to 'y'\n");
    project.pictures[0].polys.push_back(area("z"));
    EXPECT_EQ(numbered(project), "OID 2147483647 assigned to 'z'\n");
}

TEST(OidTable, ZeroCountsAsNoNumberWhenAllAreasAreNumbered)
{
    CapturedMessages captured;
    Oid::OidProject project = projectWith({area("cow"), area("hen"), area("cow")});
    project.redirectPrintf(CapturedMessages::print);
    project.oids["cow"] = {0, 0};
    project.oids["hen"] = {1500, 0};
    project.oids["deleted"] = {0, 0};
    EXPECT_TRUE(Oid::numberAllAreas(project));
    EXPECT_EQ(captured.take(), "OID  1501 assigned to 'cow'\n");
    EXPECT_EQ(areasOf(project), "0: cow 1501\n0: hen 1500\n0: cow 1501\n");
    EXPECT_EQ(project.oids.count("deleted"), 0U);
    EXPECT_FALSE(Oid::numberAllAreas(project));
    EXPECT_EQ(captured.take(), "");
}

TEST(OidTable, AfterLoadingNumbersGoOnAboveTheLoadedOnes)
{
    Loaded loaded("POLY cow\nEND\n");
    loaded.project.pictures[0].polys.push_back(area("cat"));
    EXPECT_EQ(numbered(loaded.project), "OID 10001 assigned to 'cat'\n");
}

TEST(OidTable, AfterSavingAndReloadingOnlyDrawnNamesHaveNumbers)
{
    Oid::OidProject project = projectWith({area("A"), area("B")});
    numbered(project);
    project.pictures[0].polys.erase(project.pictures[0].polys.begin());
    const Loaded loaded(savedText(project));
    EXPECT_EQ(loaded.project.oids.count("A"), 0U);
    EXPECT_EQ(loaded.project.oids.at("B").oid, 1002);
}
