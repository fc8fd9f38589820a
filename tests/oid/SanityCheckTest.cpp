#include <gtest/gtest.h>

#include "tests/oid/Builders.h"

namespace {

// What checkSanity prints after the script was compiled; it never fails.
std::string checked(Oid::OidProject& project, const std::string& script)
{
    CapturedMessages captured;
    project.redirectPrintf(CapturedMessages::print);
    project.compiler.source = script;
    EXPECT_TRUE(project.compiler.parse(false));
    EXPECT_TRUE(project.checkSanity());
    project.redirectPrintf(nullptr);
    return captured.take();
}

}  // namespace

TEST(SanityCheck, MatchingNamesGiveNoWarning)
{
    Oid::OidProject project = projectWith({area("cow"), area("cow"), area("cat")});
    EXPECT_EQ(checked(project, "sub cow\nend sub\nsub cat\nend sub\n"), "");
}

TEST(SanityCheck, NamesOnlyInTheScriptAreListedInByteOrder)
{
    Oid::OidProject project = projectWith({area("cow")});
    EXPECT_EQ(checked(project, "sub zoo\nend sub\nsub ape\nend sub\nsub Zoo\nend sub\n"
                               "sub cow\nend sub\n"),
              "!!! Warning: Used OID 'Zoo' in script, but not in the image\n"
              "!!! Warning: Used OID 'ape' in script, but not in the image\n"
              "!!! Warning: Used OID 'zoo' in script, but not in the image\n");
}

TEST(SanityCheck, AnEmptyProjectGivesOnlyTheWarningsOfTheScript)
{
    Oid::OidProject project;
    EXPECT_EQ(checked(project, "sub cow\nend sub\n"),
              "!!! Warning: Used OID 'cow' in script, but not in the image\n");
}

TEST(SanityCheck, NamesOnlyInThePicturesAreListedOncePerArea)
{
    Oid::OidProject project = projectWith({area("dog"), area("cow"), area("dog")});
    project.pictures.push_back(picture({area("ape"), area("dog"), area("")}));
    EXPECT_EQ(checked(project, "sub cow\nend sub\n"),
              "!!! Warning: Used OID 'dog' in image, but not in the script\n"
              "!!! Warning: Used OID 'dog' in image, but not in the script\n"
              "!!! Warning: Used OID 'ape' in image, but not in the script\n"
              "!!! Warning: Used OID 'dog' in image, but not in the script\n"
              "!!! Warning: Used OID '' in image, but not in the script\n");
}

TEST(SanityCheck, NumbersAbove15000AreWarnedOfOnceEach)
{
    Oid::OidProject project;
    project.oids["a"] = {15000, 0};
    project.oids["b"] = {15001, 0};
    project.oids["c"] = {2147483647, 0};
    project.oids["d"] = {-1, 0};
    EXPECT_EQ(checked(project, ""), "!!! Warning: OIDs > 15000 are not recognized by the pen!\n"
                                    "!!! Warning: OIDs > 15000 are not recognized by the pen!\n");
}

TEST(SanityCheck, TheThreeKindsComeInThisOrder)
{
    Oid::OidProject project = projectWith({area("cow")});
    project.oids["cow"] = {20000, 0};
    EXPECT_EQ(checked(project, "sub cat\nend sub\n"),
              "!!! Warning: Used OID 'cat' in script, but not in the image\n"
              "!!! Warning: Used OID 'cow' in image, but not in the script\n"
              "!!! Warning: OIDs > 15000 are not recognized by the pen!\n");
}
