#include "oid/OidProject.h"

#include <gtest/gtest.h>

#include "tests/oid/Builders.h"

using Oid::OidProject;

namespace {

int otherPrint(const char*, ...)
{
    return 0;
}

}  // namespace

TEST(OidProject, AFreshProjectHasTheseDefaults)
{
    const OidProject project;
    EXPECT_EQ(project.productName, "my project");
    EXPECT_EQ(project.productId, 900);
    EXPECT_EQ(project.projectPath, "");
    EXPECT_TRUE(project.pictures.empty());
    EXPECT_TRUE(project.oids.empty());
    EXPECT_EQ(project.compiler.source, "");
    EXPECT_EQ(project.print, &printToStandardOutput);
}

TEST(OidProject, AFreshPictureHasTheLoadersPaper)
{
    const Oid::PICTURE picture;
    EXPECT_EQ(picture.paperWidth, 297.01);
    EXPECT_EQ(picture.paperHeight, 209.97);
    EXPECT_EQ(picture.dpi, 1200);
    EXPECT_TRUE(picture.polys.empty());
}

TEST(OidProject, FilesLieBesideTheProjectFile)
{
    OidProject project;
    project.projectPath = "C:\\w\\zoo.oidpro";
    EXPECT_EQ(project.pathYaml(), "C:\\w\\900-my project.yaml");
    EXPECT_EQ(project.pathGme(), "C:\\w\\900-my project.gme");
    EXPECT_EQ(project.pathImageSource(0), "C:\\w\\900-bkgnd0.jpg");
    EXPECT_EQ(project.pathImageOutput(0), "C:\\w\\900-print0.tiff");
    EXPECT_EQ(project.pathImageSource(12), "C:\\w\\900-bkgnd12.jpg");
}

TEST(OidProject, TheSeparatorStaysABackslashInNativePaths)
{
    OidProject project;
    project.projectPath = "/home/a/book.oidpro";
    project.productId = 7;
    EXPECT_EQ(project.pathYaml(), "/home/a\\7-my project.yaml");
    EXPECT_EQ(project.pathImageOutput(1), "/home/a\\7-print1.tiff");
}

TEST(OidProject, AProjectWithoutDirectoryOrPathLiesInThePoint)
{
    OidProject project;
    EXPECT_EQ(project.pathGme(), ".\\900-my project.gme");
    project.projectPath = "book.oidpro";
    EXPECT_EQ(project.pathGme(), ".\\900-my project.gme");
}

TEST(OidProject, TheProductNameGoesIntoFileNamesUnchanged)
{
    OidProject project;
    project.projectPath = "C:\\w\\zoo.oidpro";
    project.productName = "a/b: \"c\" *%s?";
    EXPECT_EQ(project.pathYaml(), "C:\\w\\900-a/b: \"c\" *%s?.yaml");
    EXPECT_EQ(project.pathGme(), "C:\\w\\900-a/b: \"c\" *%s?.gme");
}

TEST(OidProject, AnIdOutOfRangeStandsInFileNames)
{
    OidProject project;
    project.productId = -2147483647 - 1;
    EXPECT_EQ(project.pathImageSource(-1), ".\\-2147483648-bkgnd-1.jpg");
}

TEST(OidProject, RedirectingSetsThePrintFunctionOfTheCompilerToo)
{
    OidProject project;
    project.redirectPrintf(otherPrint);
    EXPECT_EQ(project.print, &otherPrint);
    EXPECT_EQ(ttbasic::myprintf, &otherPrint);
    project.redirectPrintf(printToStandardOutput);
    EXPECT_EQ(ttbasic::myprintf, &printToStandardOutput);
}

TEST(OidProject, RedirectingToNothingMeansTheDefault)
{
    OidProject project;
    project.redirectPrintf(otherPrint);
    project.redirectPrintf(nullptr);
    EXPECT_EQ(project.print, &printToStandardOutput);
    EXPECT_EQ(ttbasic::myprintf, &printToStandardOutput);
}

TEST(OidProject, ClearingBringsAllDefaultsBack)
{
    OidProject project = projectWith({square("cow", 0, 0, 1)});
    project.productName = "zoo";
    project.productId = 3;
    project.projectPath = "a/b";
    project.oids["cow"] = {5, 6};
    project.compiler.source = "sub cow\n";
    project.print = otherPrint;
    project.clear();
    EXPECT_EQ(project.productName, "my project");
    EXPECT_EQ(project.productId, 900);
    EXPECT_EQ(project.projectPath, "");
    EXPECT_TRUE(project.pictures.empty());
    EXPECT_TRUE(project.oids.empty());
    EXPECT_EQ(project.compiler.source, "");
    EXPECT_EQ(project.print, &printToStandardOutput);
}

TEST(OidProject, AClearedProjectPrintsWhereTheProcessSays)
{
    OidProject project;
    setDefaultPrintf(otherPrint);
    project.clear();
    setDefaultPrintf(nullptr);
    EXPECT_EQ(project.print, &otherPrint);
}

TEST(OidProject, MovingTakesOverEveryFieldAndLeavesTheSourceItsNames)
{
    OidProject from = projectWith({square("cow", 0, 0, 1)});
    from.productName = "zoo";
    from.productId = 3;
    from.projectPath = "a/b";
    from.oids["cow"] = {5, 6};
    from.compiler.source = "sub cow\n";
    from.print = otherPrint;
    OidProject to;
    to = std::move(from);
    EXPECT_EQ(to.productName, "zoo");
    EXPECT_EQ(to.productId, 3);
    EXPECT_EQ(to.projectPath, "a/b");
    EXPECT_EQ(areasOf(to), "0: cow 5 (0,0) (1,0) (1,1) (0,1)\n");
    EXPECT_EQ(to.compiler.source, "sub cow\n");
    EXPECT_EQ(to.print, &otherPrint);
    EXPECT_EQ(from.productName, "zoo");  // NOLINT(bugprone-use-after-move): copied on purpose
    EXPECT_EQ(from.projectPath, "a/b");
}

TEST(OidProject, AreasCanBeCopiedAndMovedWithTheirTiles)
{
    Oid::POLY cow = square("cow", 0, 0, 1);
    cow.minX = 3;
    cow.tile.create(0, 16, false);
    const Oid::POLY copy = cow;
    EXPECT_TRUE(cow.tile.at(0, 0));
    const Oid::POLY moved = std::move(cow);
    for (const Oid::POLY* poly : {&copy, &moved}) {
        EXPECT_EQ(poly->name, "cow");
        EXPECT_EQ(poly->points.size(), 4U);
        EXPECT_EQ(poly->minX, 3);
        EXPECT_TRUE(poly->tile.at(0, 0));
    }
}
