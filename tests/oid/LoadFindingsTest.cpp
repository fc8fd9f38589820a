// What the loader and the comparison of script and pictures find, as values: kind, place, name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "oid/OpenProject.h"
#include "tests/oid/Builders.h"

namespace {

using testing::ElementsAre;

std::string placeOf(const Diagnostic& found)
{
    return std::to_string(found.line) + ":" + std::to_string(found.column) + "+" +
           std::to_string(found.length);
}

// "kind line:column+length name page/area" of everything that a project file has.
std::vector<std::string> findingsIn(const std::string& file)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.oidpro");
    writeFile(path, file);
    std::vector<Diagnostic> list;
    Oid::OidProject project;
    EXPECT_TRUE(openProject(project, path, collectInto(list)));
    std::vector<std::string> texts;
    for (const Diagnostic& found : list) {
        EXPECT_EQ(found.file, path);
        texts.push_back(found.kind + " " + placeOf(found) + " " + found.subject + " " +
                        std::to_string(found.page) + "/" + std::to_string(found.area));
    }
    return texts;
}

TEST(LoadFindings, MarkWhatIsWrongWithTheProduct)
{
    EXPECT_THAT(findingsIn("\xEF\xBB\xBFPRODUCT  1000, \"Zoo\"\n"),
                ElementsAre("product-id-range 1:10+5  0/0"));
    EXPECT_THAT(findingsIn("\nPRODUCT\n"), ElementsAre("product-id-range 2:1+7  0/0"));
    EXPECT_THAT(findingsIn(" PRODUCT 900\n"), ElementsAre("product-name-missing 1:2+7  0/0"));
}

TEST(LoadFindings, MarkAnAreaWithoutName)
{
    EXPECT_THAT(findingsIn("  POLY # cow\nEND\nBOX\nCIRCLE\n"),
                ElementsAre("area-without-name 1:3+4  1/1", "area-without-name 3:1+3  1/2",
                            "area-without-name 4:1+6  1/3"));
}

TEST(LoadFindings, MarkAnAreaWithoutSize)
{
    EXPECT_THAT(findingsIn("POLY a\n1 2 3 4 5 6\nEND\nIMAGE\nBOX cow 1 2  3 0 # flat\nCIRCLE cat 5 "
                           "6 -1\nBOX dog 1 2\n"),
                ElementsAre("box-without-size 5:14+3 cow 2/1",
                            "circle-without-radius 6:16+2 cat 2/2",
                            "box-without-size 7:1+3 dog 2/3"));
}

TEST(LoadFindings, MarkTheValueThatHasNoPartner)
{
    EXPECT_THAT(findingsIn("POLY a\n 1 2  3.5 # y?\nEND\n"),
                ElementsAre("vertices-odd 2:7+3 a 1/1"));
}

TEST(LoadFindings, OfAFileThatCannotBeOpenedNameIt)
{
    std::vector<Diagnostic> list;
    Oid::OidProject project;
    EXPECT_FALSE(openProject(project, "none.oidpro", collectInto(list)));
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].kind, "file-unreadable");
    EXPECT_EQ(list[0].file, "none.oidpro");
    EXPECT_EQ(list[0].printed, "Error: Can't open file 'none.oidpro'\n");
}

TEST(LoadFindings, ArePrintedInTheirFixedWords)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a.oidpro"), "PRODUCT 0\nBOX cow 1 2 3 0\nPOLY\n1\nEND\n");
    std::vector<Diagnostic> list;
    Oid::OidProject project;
    EXPECT_TRUE(openProject(project, folder.file("a.oidpro"), collectInto(list)));
    CapturedMessages captured;
    for (const Diagnostic& found : list) {
        printWith(CapturedMessages::print)(found);
    }
    EXPECT_EQ(captured.text(),
              "Error: PRODUCT id is not in range [1..999]\n"
              "Warning: Line    2 BOX has no dimensions\n"
              "Error: Line    3 POLY has no name\n"
              "Error: Line    4 POLY X,Y count is odd. Did you forget an Y value?\n");
}

TEST(SanityFindings, KnowTheSubThePageAndTheArea)
{
    Oid::OidProject project = projectWith({area("cow"), area("dog")});
    project.pictures.push_back(picture({area("ape")}));
    project.oids["hen"] = {15001, 0};
    project.compiler.source = "sub cow\nend sub\n  sub  cat\nend sub\n";
    EXPECT_TRUE(project.compiler.parse(false));
    std::vector<Diagnostic> list;
    EXPECT_TRUE(project.checkSanity(collectInto(list)));
    std::vector<std::string> texts;
    for (const Diagnostic& found : list) {
        EXPECT_EQ(found.severity, Severity::warning);
        EXPECT_EQ(found.printed, "!!! Warning: " + found.text + "\n");
        texts.push_back(found.kind + " " + placeOf(found) + " " + found.subject + " " +
                        std::to_string(found.page) + "/" + std::to_string(found.area));
    }
    EXPECT_THAT(texts, ElementsAre("area-missing 3:8+3 cat 0/0", "sub-missing 0:0+0 dog 1/2",
                                   "sub-missing 0:0+0 ape 2/1", "oid-unreadable 0:0+0 hen 0/0"));
}

}  // namespace
