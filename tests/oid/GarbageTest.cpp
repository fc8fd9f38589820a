#include <algorithm>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "oid/OidRawCodes.h"
#include "oid/OpenProject.h"
#include "tests/oid/Builders.h"

// Files that no writer made, the same ones in every run.

namespace {

constexpr int kFiles = 120;

class Garbage
{
public:
    explicit Garbage(unsigned seed) : random(seed) {}

    unsigned below(unsigned limit) { return static_cast<unsigned>(random()) % limit; }

    std::string bytes()
    {
        std::string text(below(3000), '\0');
        for (char& c : text) {
            c = static_cast<char>(below(256));
        }
        return text;
    }

    // Words of the format in any order, with anything between them.
    std::string words()
    {
        using namespace std::string_literals;
        static const std::string kWords[] = {"PRODUCT",
                                             "IMAGE",
                                             "PAPER",
                                             "DPI",
                                             "OID",
                                             "POLY",
                                             "BOX",
                                             "CIRCLE",
                                             "END",
                                             "END",
                                             "RESULT",
                                             "SCRIPT",
                                             "cow",
                                             "cat",
                                             "\"a b\"",
                                             "\"",
                                             "1",
                                             "2.5",
                                             "-7",
                                             "0",
                                             "900,",
                                             "1e300",
                                             "nan",
                                             "-inf",
                                             "0x1p9",
                                             "99999999999",
                                             "16383",
                                             "16384",
                                             "2147483647",
                                             "#",
                                             "\n# BOX    name x y w h\n# CIRCLE name xm ym R\n",
                                             "K\xC3\xBC",
                                             "\xEF\xBB\xBF",
                                             "\0"s,
                                             "\v",
                                             std::string(1000, 'x')};
        static const std::string kGaps[] = {" ", " ", " ", "\n", "\n", "\r\n", "\t", "   ", ""};
        std::string text;
        for (unsigned count = below(200); count > 0; --count) {
            text += kWords[below(std::size(kWords))] + kGaps[below(std::size(kGaps))];
        }
        return text;
    }

private:
    std::mt19937 random;
};

void expectSoundProject(const Loaded& loaded)
{
    EXPECT_TRUE(loaded.ok);
    ASSERT_FALSE(loaded.project.pictures.empty());
    for (std::size_t n = 0; n + 1 < loaded.project.pictures.size(); ++n) {
        EXPECT_FALSE(loaded.project.pictures[n].polys.empty());
    }
    for (const auto& [name, entry] : loaded.project.oids) {
        EXPECT_EQ(entry.rawCode, static_cast<int>(oid_raw_codes::rawCodeOrZero(entry.oid)));
    }
    std::istringstream lines(loaded.messages);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_TRUE(line.rfind("Error: ", 0) == 0 || line.rfind("Warning: ", 0) == 0) << line;
    }
}

// Product and script do not survive whatever they are; all the rest must.
std::string savedAreas(Oid::OidProject& project)
{
    project.productId = 900;
    project.productName = "book";
    project.compiler.source.clear();
    return savedText(project);
}

void expectSavedAndReadBack(const std::string& text)
{
    Loaded loaded(text);
    expectSoundProject(loaded);
    const std::string saved = savedAreas(loaded.project);
    Loaded again(saved);
    EXPECT_EQ(savedAreas(again.project), saved);

    Loaded withEmptyPages(text, Oid::openProject);
    EXPECT_EQ(withEmptyPages.project.oids.size(), loaded.project.oids.size());
    std::size_t zeros = 0;
    for (const auto& [name, entry] : withEmptyPages.project.oids) {
        EXPECT_NE(entry.oid, 0);
        zeros += loaded.project.oids.at(name).oid == 0 ? 1 : 0;
    }
    ASSERT_EQ(withEmptyPages.messages.rfind(loaded.messages, 0), 0U);
    const std::string more = withEmptyPages.messages.substr(loaded.messages.size());
    EXPECT_EQ(more.substr(0, 3), zeros > 0 ? "OID" : "");
    EXPECT_EQ(static_cast<std::size_t>(std::count(more.begin(), more.end(), '\n')), zeros);
    const std::string savedPages = savedAreas(withEmptyPages.project);
    Loaded samePages(savedPages, Oid::openProject);
    EXPECT_EQ(savedAreas(samePages.project), savedPages);
}

}  // namespace

TEST(Garbage, AnyBytesAreAProject)
{
    Garbage garbage(1);
    for (int i = 0; i < kFiles && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        expectSavedAndReadBack(garbage.bytes());
    }
}

TEST(Garbage, AnyOrderOfWordsIsAProjectThatCanBeSaved)
{
    Garbage garbage(2);
    for (int i = 0; i < kFiles && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        expectSavedAndReadBack(garbage.words());
    }
}

TEST(Garbage, NumberingAndCheckingTakeWhateverWasLoaded)
{
    Garbage garbage(3);
    CapturedMessages captured;
    for (int i = 0; i < kFiles; ++i) {
        Loaded loaded(garbage.words());
        loaded.project.pictures.push_back(picture({square("new", 0, 0, 1)}));
        loaded.project.print = CapturedMessages::print;
        loaded.project.updateUsedOIDs();
        EXPECT_TRUE(loaded.project.checkSanity());
        EXPECT_GE(loaded.project.oids.at("new").oid, 1001);
        EXPECT_GE(loaded.project.pntInPoly(static_cast<int>(loaded.project.pictures.size()) - 1,
                                           {0.5, 0.5}),
                  0);
    }
}
