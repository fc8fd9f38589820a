#include "publish/YamlFile.h"

#include <gtest/gtest.h>

#include "oid/OidProject.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"
#include "ttbasic/ttbasic.h"

namespace {

Oid::POLY area(const std::string& name)
{
    Oid::POLY made;
    made.name = name;
    return made;
}

// Two pictures with a lion each, a script for it, in a folder of its own.
class YamlFile : public testing::Test
{
protected:
    YamlFile()
    {
        project.productId = 950;
        project.productName = "Zoo";
        project.projectPath = folder.file("zoo.oidpro");
        project.pictures.resize(2);
        project.pictures[0].polys = {area("lion"), area("a_lion_of_15_ch"),
                                     area("a_lion_of_16_cha")};
        project.pictures[1].polys = {area("lion")};
        project.oids["lion"].oid = 1234;
        project.oids["a_lion_of_15_ch"].oid = 1;
        project.oids["a_lion_of_16_cha"].oid = 123456789;
        project.compiler.source = "sub lion\nsay \"Roar\"\nend sub\n";
        EXPECT_TRUE(compileScript(project.compiler, false));
    }

    std::string written() const { return readFile(folder.file("950-Zoo.yaml")); }

    const TemporaryFolder folder;
    Oid::OidProject project;
};

TEST_F(YamlFile, HoldsTheMarkTheDescriptionAndTheCodesOfAllAreas)
{
    ttbasic sameScript = project.compiler;
    ASSERT_TRUE(makeYAML(project));
    sameScript.parse(false);
    EXPECT_EQ(written(), "\xEF\xBB\xBF" + sameScript.yaml(950, "Zoo") +
                             "scriptcodes:\r\n"
                             "    lion:                1234\r\n"
                             "    a_lion_of_15_ch:        1\r\n"
                             "    a_lion_of_16_cha: 123456789\r\n"
                             "    lion:                1234\r\n");
}

TEST_F(YamlFile, OfAProjectWithoutAreasEndsWithTheHeadlineOfTheCodes)
{
    project.pictures.clear();
    ASSERT_TRUE(makeYAML(project));
    const std::string text = written();
    EXPECT_EQ(text.substr(text.rfind("'\r\n")), "'\r\nscriptcodes:\r\n");
}

TEST_F(YamlFile, GivesAnAreaWithoutANumberTheNumberZero)
{
    project.oids.erase("lion");
    ASSERT_TRUE(makeYAML(project));
    const std::string text = written();
    EXPECT_EQ(text.substr(text.rfind("    lion:")), "    lion:                   0\r\n");
    EXPECT_EQ(project.oids.count("lion"), 0U);
}

TEST_F(YamlFile, OfTwoBuildsIsTheSame)
{
    ASSERT_TRUE(makeYAML(project));
    const std::string first = written();
    project.compiler.parse(false);
    ASSERT_TRUE(makeYAML(project));
    EXPECT_EQ(written(), first);
}

TEST_F(YamlFile, CanBeWrittenElsewhere)
{
    ASSERT_TRUE(makeYAML(project, folder.file("other.yaml")));
    EXPECT_EQ(folder.listing(), "other.yaml");
}

TEST_F(YamlFile, ThatCannotBeWrittenIsReportedAndNotHalfWritten)
{
    CapturedMessages messages;
    project.redirectPrintf(CapturedMessages::print);
    project.projectPath = folder.file("100%s/zoo.oidpro");
    EXPECT_FALSE(makeYAML(project));
    EXPECT_EQ(messages.text(),
              "Error: Can't open file '" + folder.file("100%s/950-Zoo.yaml") + "'\n");
    EXPECT_EQ(folder.listing(), "");
}

}  // namespace
