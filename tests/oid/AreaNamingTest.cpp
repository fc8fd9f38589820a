#include <gtest/gtest.h>

#include <random>

#include "oid/AreaNaming.h"
#include "oid/OidTable.h"
#include "tests/oid/Builders.h"

namespace {

// A project whose areas are numbered from 1001 on, in the order in which they are given.
Oid::OidProject numbered(std::vector<Oid::POLY> areas)
{
    CapturedMessages captured;
    Oid::OidProject project = projectWith(std::move(areas));
    project.redirectPrintf(CapturedMessages::print);
    project.updateUsedOIDs();
    return project;
}

// The numbers of all names: "cow 1001, hen 1002".
std::string table(const Oid::OidProject& project)
{
    std::string text;
    for (const auto& [name, oid] : project.oids) {
        text += (text.empty() ? "" : ", ") + name + " " + std::to_string(oid.oid);
    }
    return text;
}

// What the pictures' names and the table have after the last name; all others are passed on the
// way.
struct Naming
{
    explicit Naming(Oid::OidProject& named) : project(named), naming(named) {}

    std::string name(size_t area, const std::vector<std::string>& names)
    {
        for (const std::string& next : names) {
            naming.rename(project.pictures[0].polys[area], next);
        }
        return table(project);
    }

    CapturedMessages messages;
    Oid::OidProject& project;
    Oid::AreaNaming naming;
};

using Numbers = std::map<std::string, int>;

Numbers numbersOf(const Oid::OidProject& project)
{
    Numbers numbers;
    for (const auto& [name, oid] : project.oids) {
        numbers[name] = oid.oid;
    }
    return numbers;
}

// The numbers after the renaming of one area, its own name in the list being the new one already.
Numbers renamedAtOnce(Numbers numbers, const std::vector<Oid::POLY>& areas, const std::string& from,
                      const std::string& to)
{
    if (from == to) {
        return numbers;
    }
    int next = 1001;
    for (const auto& [name, oid] : numbers) {
        next = std::max(next, oid + 1);
    }
    numbers[to] = numbers[from];
    numbers.erase(from);
    for (const Oid::POLY& area : areas) {
        if (area.name == from) {
            numbers[from] = next;
        }
    }
    return numbers;
}

}  // namespace

TEST(AreaNaming, TheNumberGoesAlongWithEveryKey)
{
    Oid::OidProject project = numbered({area("polygon1")});
    Naming naming(project);
    EXPECT_EQ(naming.name(0, {"d"}), "d 1001");
    EXPECT_EQ(naming.name(0, {"do"}), "do 1001");
    EXPECT_EQ(naming.name(0, {"doo", "door"}), "door 1001");
    EXPECT_EQ(project.pictures[0].polys[0].name, "door");
    EXPECT_EQ(naming.messages.text(), "");
}

TEST(AreaNaming, TwoAreasThatComeToOneNameShareTheNumberOfTheRenamedOne)
{
    Oid::OidProject project = numbered({area("cow"), area("polygon2")});
    EXPECT_EQ(Naming(project).name(1, {"c", "co", "cow"}), "cow 1002");
}

TEST(AreaNaming, ANameThatWasPassedHasItsOwnNumberAgain)
{
    Oid::OidProject project = numbered({area("cow"), area("polygon2")});
    Naming naming(project);
    EXPECT_EQ(naming.name(1, {"c", "co", "cow", "cow2"}), "cow 1001, cow2 1002");
    EXPECT_EQ(naming.messages.text(), "");
}

TEST(AreaNaming, SeveralNamesArePassedInARow)
{
    Oid::OidProject project = numbered({area("c"), area("co"), area("cow"), area("x")});
    EXPECT_EQ(Naming(project).name(3, {"", "c", "co", "cow", "cow2"}),
              "c 1001, co 1002, cow 1003, cow2 1004");
}

TEST(AreaNaming, DeletingLettersPassesNamesToo)
{
    Oid::OidProject project = numbered({area("c"), area("co"), area(""), area("cow")});
    EXPECT_EQ(Naming(project).name(3, {"co", "c", "", "hen"}), " 1003, c 1001, co 1002, hen 1004");
}

TEST(AreaNaming, GoingBackToTheFirstNameLeavesAllAsItWas)
{
    Oid::OidProject project = numbered({area("cow"), area("hen"), area("cow")});
    const std::string before = table(project);
    EXPECT_EQ(Naming(project).name(0, {"co", "hen", "pig", "cow"}), before);
}

TEST(AreaNaming, APassedNameOfADeletedAreaKeepsItsReservedNumber)
{
    Oid::OidProject project = numbered({area("cow"), area("polygon2")});
    project.pictures[0].polys.erase(project.pictures[0].polys.begin());
    EXPECT_EQ(Naming(project).name(0, {"cow", "cow2"}), "cow 1001, cow2 1002");
}

TEST(AreaNaming, AreasThatKeepASharedNameGetANewNumber)
{
    Oid::OidProject project = numbered({area("cow"), area("cow"), area("hen")});
    project.pictures.push_back(picture({area("cow")}));
    Naming naming(project);
    EXPECT_EQ(naming.name(0, {"cow2"}), "cow 1003, cow2 1001, hen 1002");
    EXPECT_EQ(naming.messages.text(), "OID  1003 assigned to 'cow'\n");
}

TEST(AreaNaming, TheNewNumberOfASharedNameStaysWhileTypingGoesOn)
{
    Oid::OidProject project = numbered({area("cow"), area("cow")});
    Naming naming(project);
    EXPECT_EQ(naming.name(0, {"cow2", "cow", "cow3", "cow", "cow4"}), "cow 1002, cow4 1001");
    EXPECT_EQ(naming.messages.text(), "OID  1002 assigned to 'cow'\n");
}

// The area that is passed at that very key has the largest number.
TEST(AreaNaming, TheNewNumberOfASharedNameIsNobodyElses)
{
    Oid::OidProject project = numbered({area("cow"), area("cow"), area("hen")});
    EXPECT_EQ(Naming(project).name(0, {"hen", "hen2"}), "cow 1003, hen 1002, hen2 1001");
}

TEST(AreaNaming, ANumberThatIsTypedMeanwhileGoesAlong)
{
    Oid::OidProject project = numbered({area("cow"), area("polygon2")});
    Naming naming(project);
    naming.name(1, {"cow"});
    project.oids["cow"] = Oid::tableEntry(77);
    EXPECT_EQ(naming.name(1, {"cow2"}), "cow 1001, cow2 77");
}

TEST(AreaNaming, AFinishedNameKeepsTheNumberThatItTookOver)
{
    Oid::OidProject project = numbered({area("cow"), area("polygon2"), area("hen")});
    Naming naming(project);
    naming.name(1, {"cow"});
    naming.naming.finish();
    EXPECT_EQ(naming.name(2, {"pig"}), "cow 1002, pig 1003");
    EXPECT_EQ(naming.name(0, {"dog"}), "cow 1004, dog 1002, pig 1003");
}

TEST(AreaNaming, AnAreaWithoutANumberHasNoneToTakeAlong)
{
    Oid::OidProject project = projectWith({area("cow"), area("hen")});
    project.oids["hen"] = Oid::tableEntry(7);
    EXPECT_EQ(Naming(project).name(0, {"co", "hen"}), "hen 7");
}

// Whatever was typed on the way, all is as if the last name had been given at once: so what each
// name has is known from the numbers before alone.
TEST(AreaNaming, OnlyTheLastNameCounts)
{
    CapturedMessages captured;
    std::mt19937 random(14);
    const auto below = [&](size_t end) { return static_cast<size_t>(random() % end); };
    const std::vector<std::string> names = {"", "c", "co", "cow", "cow2", "h", "hen", "x"};
    for (int round = 0; round < 2000; ++round) {
        Oid::OidProject project = projectWith({});
        project.redirectPrintf(CapturedMessages::print);
        std::vector<Oid::POLY>& areas = project.pictures[0].polys;
        for (size_t i = 1 + below(5); i > 0; --i) {
            areas.push_back(area(names[below(names.size())]));
        }
        project.oids[names[below(names.size())]] = Oid::tableEntry(static_cast<int>(below(1500)));
        project.updateUsedOIDs();

        Oid::AreaNaming naming(project);
        for (int edit = 0; edit < 4; ++edit) {
            naming.finish();
            const Numbers before = numbersOf(project);
            Oid::POLY& renamed = areas[below(areas.size())];
            const std::string first = renamed.name;
            for (size_t key = below(8); key > 0; --key) {
                naming.rename(renamed, names[below(names.size())]);
                ASSERT_EQ(numbersOf(project), renamedAtOnce(before, areas, first, renamed.name))
                    << "round " << round << " edit " << edit;
            }
        }
    }
}

TEST(AreaNaming, BlanksHashesQuotesAndControlCharactersAreNotForNames)
{
    for (const char32_t c : {U' ', U'\t', U'\r', U'\n', U'\0', U'\x7F', U'#', U'"', U'\''}) {
        EXPECT_FALSE(Oid::isStorableInName(c)) << static_cast<int>(c);
    }
    for (const char32_t c : {U'a', U'Z', U'0', U'_', U'-', U'(', U'\xA0', U'\xE4', U'\x1F404'}) {
        EXPECT_TRUE(Oid::isStorableInName(c)) << static_cast<int>(c);
    }
}

TEST(AreaNaming, TheLongestNameComesBackFromAFile)
{
    const std::string longest(Oid::kLongestAreaName, 'n');
    Oid::OidProject project = numbered({area(longest, {{1, 2}})});
    EXPECT_EQ(areasOf(Loaded(savedText(project)).project), "0: " + longest + " 1001 (1,2)\n");
    project = numbered({area(longest + "n", {{1, 2}})});
    EXPECT_NE(areasOf(Loaded(savedText(project)).project), "0: " + longest + "n 1001 (1,2)\n");
}
