#include "tools/text2speech/SystemVoice.h"

#include <gmock/gmock.h>

namespace {

using Platform::SystemVoice;
using Sex = SystemVoice::Sex;

// What a Windows may have.
const std::vector<SystemVoice> kVoices = {
    {"1", "Zira", {"en-US", "en"}, Sex::female, "Adult"},
    {"2", "George", {"en-GB"}, Sex::male, "Adult"},
    {"3", "Hedda", {"de-DE"}, Sex::female, "Adult"},
    {"4", "Kid", {"en-US"}, Sex::male, "Child"},
    {"5", "Ann", {"en-GB"}, Sex::female, "Senior"},
};

std::string chosen(const std::string& language, bool female, int age)
{
    ttbasic::VOICE speaker;
    speaker.language = language;
    speaker.female = female;
    speaker.age = age;
    const SystemVoice* const voice = chooseVoice(kVoices, speaker);
    return voice != nullptr ? voice->title : "none";
}

}  // namespace

TEST(ChosenVoice, SpeaksTheLanguageWhoeverElseWouldFit)
{
    EXPECT_EQ(chosen("de", false, 8), "Hedda");
    EXPECT_EQ(chosen("DE", true, 30), "Hedda");
    EXPECT_EQ(chosen("fr", true, 30), "none");
}

TEST(ChosenVoice, IsOfTheSexThatIsAskedFor)
{
    EXPECT_EQ(chosen("en", true, 30), "Zira");
    EXPECT_EQ(chosen("en", false, 30), "George");
    EXPECT_EQ(chosen("en-gb", false, 30), "George");
}

TEST(ChosenVoice, OfTheRightSexIsOfTheAgeThatFits)
{
    EXPECT_EQ(chosen("en-us", false, 8), "Kid");
    EXPECT_EQ(chosen("en-gb", true, 70), "Ann");
}

TEST(ChosenVoice, OfANamedRegionComesFirst)
{
    EXPECT_EQ(chosen("en-us", true, 70), "Zira");
    EXPECT_EQ(chosen("en-au", false, 30), "George");
}

TEST(LanguagesOfTheSystem, AreNamedWithAndWithoutTheirRegion)
{
    const Languages languages = languagesOf(kVoices);
    std::string names;
    for (const auto& [name, language] : languages) {
        names += name + ' ';
    }
    EXPECT_EQ(names, "de de-de en en-gb en-us ");
    EXPECT_EQ(languages.at("en").title, "Zira");
    EXPECT_EQ(languages.at("en-gb").title, "George");
}

TEST(SpeakingBySystem, WithoutAVoiceOfTheLanguageSaysSo)
{
    Request request;
    request.voice.language = "fr";
    EXPECT_EQ(speakBySystem(request, kVoices),
              "espeak-ng is not installed, and no voice of the system speaks 'fr' (Text2Speech -l "
              "lists the languages)");
}
