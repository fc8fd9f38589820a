#include "base/ManPage.h"

#include "base/AboutProgram.h"

#include <gtest/gtest.h>

namespace {

// What follows the head of the page.
std::string bodyOf(const ManPage& page)
{
    const std::string head = ".TH ZOO 1 \"\" \"Plinkett " + programVersion() +
                             "\"\n.SH \"NAME\"\nzoo \\- keeps animals\n";
    EXPECT_EQ(page.text().substr(0, head.size()), head);
    return page.text().substr(head.size());
}

}  // namespace

TEST(ManPage, HasSectionsAndItems)
{
    ManPage page("zoo", "keeps animals");
    page.section("SYNOPSIS");
    page.line("zoo ANIMAL");
    page.subsection("feed ANIMAL");
    page.paragraph("Feeds it.");
    page.item("-n COUNT", "so many times");
    page.seeAlso("farm");
    EXPECT_EQ(bodyOf(page), ".SH \"SYNOPSIS\"\n"
                            "zoo ANIMAL\n"
                            ".br\n"
                            ".SS \"feed ANIMAL\"\n"
                            ".PP\n"
                            "Feeds it.\n"
                            ".TP\n"
                            ".B \\-n COUNT\n"
                            "so many times\n"
                            ".SH \"SEE ALSO\"\n"
                            ".BR farm (1)\n");
}

TEST(ManPage, TextsAreNoRequests)
{
    ManPage page("zoo", "keeps animals");
    page.paragraph(".gme and 'quoted'");
    page.paragraph("'quoted' C:\\zoo");
    page.subsection("the \"zoo\"");
    EXPECT_EQ(bodyOf(page), ".PP\n"
                            "\\&.gme and 'quoted'\n"
                            ".PP\n"
                            "\\&'quoted' C:\\ezoo\n"
                            ".SS \"the \\(dqzoo\\(dq\"\n");
}
