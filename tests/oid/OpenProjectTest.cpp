// Opening as window and command line do: no page that was saved is lost.
#include "oid/OpenProject.h"

#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/oid/Builders.h"

namespace {

const std::string kShorthands = "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n";
const std::string kHead = "IMAGE\r\nPAPER 100.0 50.0\r\nDPI   600\r\n";
const std::string kCow = "OID 1001\r\nPOLY cow\r\nEND\r\n\r\n";

Oid::PICTURE page(double width, double height, int dpi, std::vector<Oid::POLY> areas = {})
{
    Oid::PICTURE made = picture(std::move(areas));
    made.paperWidth = width;
    made.paperHeight = height;
    made.dpi = dpi;
    return made;
}

// "100x50 600: cow cat", one line a page.
std::string pagesOf(const Oid::OidProject& project)
{
    std::ostringstream text;
    for (const Oid::PICTURE& made : project.pictures) {
        text << made.paperWidth << "x" << made.paperHeight << " " << made.dpi << ":";
        for (const Oid::POLY& poly : made.polys) {
            text << " " << poly.name;
        }
        text << "\n";
    }
    return text.str();
}

std::string pagesOf(const std::string& file)
{
    return pagesOf(Loaded(file, Oid::openProject).project);
}

// Any project with a page; the pages' sizes and the vertices as the file can hold them.
class AnyProject
{
public:
    explicit AnyProject(unsigned seed) : random(seed) {}

    Oid::OidProject next()
    {
        Oid::OidProject project;
        project.productId = 1 + below(999);
        for (int pages = 1 + below(6); pages > 0; --pages) {
            project.pictures.push_back(page(below(9000) / 10.0, below(9000) / 10.0, below(2401)));
            const bool empty = below(2) == 0;
            for (int areas = empty ? 0 : below(4); areas > 0; --areas) {
                addArea(project);
            }
        }
        project.compiler.source = below(2) == 0 ? "" : "IMAGE\r\nsub cow\nend sub\n" + kShorthands;
        return project;
    }

private:
    int below(int limit)
    {
        return static_cast<int>(static_cast<unsigned>(random()) % static_cast<unsigned>(limit));
    }

    void addArea(Oid::OidProject& project)
    {
        static const std::string kNames[] = {"cow", "cat", "IMAGE", "END", "SCRIPT", "BOX", ""};
        Oid::POLY made = area(kNames[below(std::size(kNames))]);
        for (int points = below(5); points > 0; --points) {
            made.points.push_back({below(10000) / 100.0, below(20000) / 100.0 - 50});
        }
        project.oids.try_emplace(made.name, Oid::OidProject::OID{1001 + below(9000), 0});
        project.pictures.back().polys.push_back(std::move(made));
    }

    std::mt19937 random;
};

}  // namespace

TEST(OpenProject, EverySavedPageWithoutAreasIsThereAtItsPlaceWithItsOwnPaper)
{
    Oid::OidProject project;
    project.pictures = {page(100, 50, 600), page(210, 297, 1200, {area("cow")}), page(20, 30, 72),
                        page(40, 50, 300, {area("cat")}), page(60, 70, 150)};
    const std::string text = savedText(project);
    EXPECT_EQ(pagesOf(text), "100x50 600:\n"
                             "210x297 1200: cow\n"
                             "20x30 72:\n"
                             "40x50 300: cat\n"
                             "60x70 150:\n");
}

TEST(OpenProject, ThreePagesWithoutAreasAreThreePages)
{
    Oid::OidProject project;
    project.pictures = {page(100, 50, 600), page(20, 30, 72), page(40, 50, 300)};
    EXPECT_EQ(pagesOf(savedText(project)), "100x50 600:\n20x30 72:\n40x50 300:\n");
}

// Their numbers name the pictures' files.
TEST(OpenProject, PagesBehindAPageWithoutAreasKeepTheirPictureFiles)
{
    Oid::OidProject project;
    project.pictures = {page(100, 50, 600), page(100, 50, 600, {area("cow")})};
    const Loaded loaded(savedText(project), Oid::openProject);
    ASSERT_EQ(loaded.project.pictures.size(), 2U);
    EXPECT_EQ(loaded.project.pictures[1].polys[0].name, "cow");
}

TEST(OpenProject, OpeningTheProjectAloneStillDropsThem)
{
    Oid::OidProject project;
    project.pictures = {page(100, 50, 600), page(210, 297, 1200, {area("cow")})};
    EXPECT_EQ(pagesOf(Loaded(savedText(project)).project), "210x297 1200: cow\n");
}

TEST(OpenProject, AnyProjectIsTheSameAfterSavingAndOpening)
{
    AnyProject any(14);
    for (int i = 0; i < 500 && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE(i);
        Oid::OidProject project = any.next();
        const std::string text = savedText(project);
        Loaded loaded(text, Oid::openProject);
        EXPECT_EQ(loaded.messages.find("Warning"), std::string::npos);
        EXPECT_EQ(pagesOf(loaded.project), pagesOf(project));
        EXPECT_EQ(areasOf(loaded.project), areasOf(project));
        EXPECT_EQ(savedText(loaded.project), text);
    }
}

TEST(OpenProject, AHeadWithoutTheCommentLinesIsNoPage)
{
    EXPECT_EQ(pagesOf("IMAGE\nPAPER 10 20\nDPI 30\nIMAGE\nBOX cow 0 0 1 1\n"), "10x20 30: cow\n");
}

TEST(OpenProject, CommentLinesInFrontOfTheFirstImageAreNoPage)
{
    EXPECT_EQ(pagesOf(kShorthands + kHead + kCow), "100x50 600: cow\n");
}

TEST(OpenProject, CommentLinesThatAreNotTheEndOfAPictureAreNoPage)
{
    EXPECT_EQ(pagesOf("IMAGE\r\n" + kShorthands + "PAPER 1 2\r\n" + kHead + kCow),
              "100x50 600: cow\n");
}

TEST(OpenProject, OneCommentLineIsNoPage)
{
    EXPECT_EQ(pagesOf(kHead + "# BOX    name x y w h\r\n" + kHead + kCow), "100x50 600: cow\n");
    EXPECT_EQ(pagesOf(kHead + "# CIRCLE name xm ym R\r\n" + kHead + kCow), "100x50 600: cow\n");
}

TEST(OpenProject, TheCommentLinesOfOnePictureDoNotCountForTheNext)
{
    EXPECT_EQ(pagesOf(kHead + kShorthands + "IMAGE\r\n" + kHead + kCow),
              "100x50 600:\n100x50 600: cow\n");
}

TEST(OpenProject, BlankLinesCommentsAndOtherLineEndsMayStandAtTheEndOfASavedPage)
{
    const std::string unixShorthands = "# BOX    name x y w h\n# CIRCLE name xm ym R\n";
    EXPECT_EQ(pagesOf(kHead + unixShorthands + "\n  # the cover\n\n" + kHead + kCow),
              "100x50 600:\n100x50 600: cow\n");
}

TEST(OpenProject, APageWhoseAreasWereTakenOutByHandStays)
{
    EXPECT_EQ(pagesOf(kHead + "\r\n" + kShorthands + kHead + kCow + kShorthands),
              "100x50 600:\n100x50 600: cow\n");
}

TEST(OpenProject, LinesKeepTheirNumbersInMessages)
{
    EXPECT_EQ(Loaded(kHead + kShorthands + "POLY\r\nEND\r\n", Oid::openProject).messages,
              "Error: Line    6 POLY has no name\n");
}

TEST(OpenProject, AProjectReadHasAPage)
{
    EXPECT_EQ(pagesOf(""), "297.01x209.97 1200:\n");
}

TEST(OpenProject, AFileThatCannotBeOpenedIsReportedAndLeavesAFreshProject)
{
    const TemporaryFolder folder;
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    Oid::OidProject project = projectWith({area("cow")});
    EXPECT_FALSE(Oid::openProject(project, folder.file("none.oidpro")));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(captured.take(), "Error: Can't open file '" + folder.file("none.oidpro") + "'\n");
    EXPECT_TRUE(project.pictures.empty());
}

TEST(OpenProject, AnAreaOfNumberZeroGetsANumber)
{
    const std::string file = "OID 0\nPOLY cow\nEND\nPOLY hen\nEND\nPOLY cow\nEND\n";
    const Loaded loaded(file, Oid::openProject);
    EXPECT_EQ(loaded.messages, "OID  1001 assigned to 'cow'\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 1001\n0: hen 1\n0: cow 1001\n");
    EXPECT_EQ(areasOf(Loaded(file).project), "0: cow 0\n0: hen 1\n0: cow 0\n");
}
