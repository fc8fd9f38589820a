// Whoever follows a link of the manual arrives, in the pages and in the one HTML file.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "tests/helpers/TemporaryFolder.h"
#include "tests/manual/ManualPages.h"

namespace fs = std::filesystem;

namespace {

std::string htmlOf(const std::string& language)
{
    return PLINKETT_BIN_DIR "/../share/plinkett/manual/" + language + "/index.html";
}

std::vector<std::string> allMatches(const std::string& text, const char* pattern)
{
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), expression);
         it != std::sregex_iterator(); ++it) {
        found.push_back((*it)[1]);
    }
    return found;
}

class Manual : public testing::TestWithParam<std::string>
{
protected:
    const std::vector<ManualPage> pages = manualPages(GetParam());

    const ManualPage* pageOf(const std::string& name) const
    {
        const auto page = std::find_if(pages.begin(), pages.end(),
                                       [&](const ManualPage& one) { return one.name == name; });
        return page != pages.end() ? &*page : nullptr;
    }

    // Empty when the link leads somewhere.
    std::string mistakeIn(const Link& link, const std::string& from) const
    {
        static const std::regex toPage("(?:([a-z-]+)\\.md)?(?:#(.+))?");
        std::smatch parts;
        if (link.isPicture) {
            return fs::is_regular_file(manualFolder(GetParam()) + "/" + link.target)
                       ? ""
                       : "there is no such picture";
        }
        if (!std::regex_match(link.target, parts, toPage)) {
            return "only pages of the manual are in the HTML file";
        }
        const ManualPage* const page = pageOf(parts[1].matched ? parts[1].str() : from);
        if (page == nullptr) {
            return "there is no such page";
        }
        const std::vector<std::string>& anchors = page->anchors;
        return !parts[2].matched ||
                       std::find(anchors.begin(), anchors.end(), parts[2].str()) != anchors.end()
                   ? ""
                   : "the page has no such place";
    }
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(, Manual, testing::ValuesIn(manualLanguages()),
                         [](const auto& test) { return test.param; });

TEST_P(Manual, EveryLinkLeadsSomewhere)
{
    std::size_t count = 0;
    for (const ManualPage& page : pages) {
        for (const Link& link : page.links) {
            EXPECT_EQ(mistakeIn(link, page.name), "") << link.place << ": " << link.target;
            ++count;
        }
    }
    EXPECT_GT(count, 60U);
}

TEST_P(Manual, EveryPageIsInTheIndex)
{
    const ManualPage* const index = pageOf("index");
    ASSERT_NE(index, nullptr);
    for (const ManualPage& page : pages) {
        const bool isNamed =
            page.name == "index" ||
            std::any_of(index->links.begin(), index->links.end(),
                        [&](const Link& link) { return link.target == page.name + ".md"; });
        EXPECT_TRUE(isNamed) << page.name;
    }
}

// In the HTML file all pages are one.
TEST_P(Manual, NoPlaceHasTheNameOfAnother)
{
    std::set<std::string> names;
    for (const ManualPage& page : pages) {
        EXPECT_TRUE(names.insert(page.name).second) << page.name;
        for (const std::string& anchor : page.anchors) {
            EXPECT_TRUE(names.insert(page.name + "-" + anchor).second)
                << page.name << ' ' << anchor;
        }
    }
}

TEST_P(Manual, TheHtmlFileHasEveryPlaceAndEveryPicture)
{
    const std::string html = readFile(htmlOf(GetParam()));
    const std::vector<std::string> places = allMatches(html, " id=\"([^\"]*)\"");
    for (const ManualPage& page : pages) {
        EXPECT_THAT(places, testing::Contains(page.name));
        for (const std::string& anchor : page.anchors) {
            EXPECT_THAT(places, testing::Contains(page.name + "-" + anchor));
        }
    }
    for (const std::string& link : allMatches(html, "href=\"([^\"]*)\"")) {
        ASSERT_EQ(link[0], '#') << link;
        EXPECT_THAT(places, testing::Contains(link.substr(1)));
    }
    const fs::path folder = fs::path(htmlOf(GetParam())).parent_path();
    for (const std::string& picture : allMatches(html, "src=\"([^\"]*)\"")) {
        EXPECT_TRUE(fs::is_regular_file(folder / picture)) << picture;
    }
}

// F1 and "Why?" lead to a place by its name, whatever the language.
TEST(ManualLanguages, HaveTheSamePagesWithTheSamePlaces)
{
    const auto placesOf = [](const std::string& language) {
        std::map<std::string, std::vector<std::string>> places;
        for (const ManualPage& page : manualPages(language)) {
            places[page.name] = page.anchors;
        }
        return places;
    };
    EXPECT_EQ(placesOf("en"), placesOf("de"));
}

TEST(ManualLanguages, HaveAsManyExamplesOfCommands)
{
    const auto countOf = [](const std::string& language) {
        std::map<std::string, std::size_t> count;
        for (const ManualPage& page : manualPages(language)) {
            for (const Example& example : page.examples) {
                count[page.name] += example.kind == "console" ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(countOf("en"), countOf("de"));
}
