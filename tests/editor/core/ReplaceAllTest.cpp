#include "editor/core/ReplaceAll.h"

#include <gtest/gtest.h>
#include <optional>
#include <random>

namespace {

using KVTextEditor::ReplaceAll;

// Starting again at the beginning after each replacement; nothing when that goes on and on.
std::optional<std::u16string> replacedStepByStep(std::u16string text, const std::u16string& search,
                                                 const std::u16string& replacement)
{
    for (int step = 0; step < 200; ++step) {
        const std::size_t found = text.find(search);
        if (found == std::u16string::npos) {
            return text;
        }
        text.replace(found, search.size(), replacement);
    }
    return std::nullopt;
}

std::u16string replacedInPieces(const std::u16string& text, const std::u16string& search,
                                const std::u16string& replacement, std::size_t piece)
{
    ReplaceAll pass(text, search, replacement);
    while (pass.run(piece) == ReplaceAll::running) {}
    return pass.takeText();
}

std::u16string randomText(std::mt19937& random, int shortest, int longest)
{
    std::u16string text(std::uniform_int_distribution<>(shortest, longest)(random), u'a');
    for (char16_t& c : text) {
        c = random() % 2 == 0 ? u'a' : u'b';
    }
    return text;
}

std::string shown(const std::u16string& text)
{
    return {text.begin(), text.end()};
}

}  // namespace

TEST(ReplacingAll, GivesWhatStartingAgainAfterEachReplacementGives)
{
    std::mt19937 random(1);
    int compared = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::u16string text = randomText(random, 0, 12);
        const std::u16string search = randomText(random, 1, 3);
        const std::u16string replacement = randomText(random, 0, 4);
        const auto expected = replacedStepByStep(text, search, replacement);
        if (expected) {
            ++compared;
            ASSERT_EQ(shown(replacedInPieces(text, search, replacement, 1 + i % 5)),
                      shown(*expected))
                << shown(text) << ": " << shown(search) << " becomes " << shown(replacement);
        }
    }
    EXPECT_GT(compared, 10000);
}

TEST(ReplacingAll, FindsWhatArisesAcrossTheEdgesOfAReplacement)
{
    EXPECT_EQ(shown(replacedInPieces(u"aaabbb.", u"ab", u"", 100)), ".");
    EXPECT_EQ(shown(replacedInPieces(u"aab", u"ab", u"b", 100)), "b");
}

TEST(ReplacingAll, CanBeGivenUpBetweenTwoPieces)
{
    ReplaceAll pass(u"a a a", u"a", u"aa");
    EXPECT_EQ(pass.run(2), ReplaceAll::running);
    EXPECT_EQ(shown(pass.takeText()), "aaa a a");
}

TEST(ReplacingAll, StopsAtTheLimit)
{
    ReplaceAll pass(u"a", u"a", u"aa");
    pass.limit = 10;
    EXPECT_EQ(pass.run(1000), ReplaceAll::tooLarge);
}
