#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const kSyntaxError = "!!! Error: Line 1 Syntax Error\n";
const char* const kVoiceSyntax =
    "!!! Error: Line 1 syntax is: VOICE name_of_voice [LANG de/en/es/..] [SPEED 1..5] [PITCH 1..5] "
    "[SEX m/f]\n"
    "!!! Error: Line 1 Syntax Error\n";

ttbasic::VOICE voiceOf(const std::string& statement, const std::string& name)
{
    const Compiled compiled = compile(statement);
    EXPECT_EQ(compiled.messages, "");
    return compiled.script.voices.at(name);
}

// The texts of a script, each as "name: voice says text".
std::vector<std::string> textsOf(const ttbasic& script)
{
    std::vector<std::string> texts;
    for (const auto& [name, spoken] : script.talkTexts) {
        texts.push_back(name + ": " + spoken.voice + " says " + spoken.text);
    }
    return texts;
}

TEST(Voice, IsDeclaredWithItsProperties)
{
    const ttbasic::VOICE max = voiceOf("voice max lang de sex m age 40", "max");
    EXPECT_EQ(max.language, "de");
    EXPECT_FALSE(max.female);
    EXPECT_EQ(max.age, 40);
    EXPECT_EQ(max.speed, 3);
    EXPECT_EQ(max.pitch, 3);
}

TEST(Voice, HasDefaultProperties)
{
    const ttbasic::VOICE max = voiceOf("voice max", "max");
    EXPECT_EQ(max.language, "en");
    EXPECT_FALSE(max.female);
    EXPECT_EQ(max.age, 30);
    EXPECT_EQ(max.speed, 3);
    EXPECT_EQ(max.pitch, 3);
}

TEST(Voice, KeywordsAndValuesMayBeWrittenInAnyCase)
{
    const ttbasic::VOICE anna = voiceOf("VOICE Anna LANG DE Sex F SPEED 4 pitch 5", "Anna");
    EXPECT_EQ(anna.language, "de");
    EXPECT_TRUE(anna.female);
    EXPECT_EQ(anna.speed, 4);
    EXPECT_EQ(anna.pitch, 5);
}

TEST(Voice, TakesTheLastValueOfAKeyword)
{
    EXPECT_FALSE(voiceOf("voice max sex f sex m", "max").female);
}

TEST(Voice, ReadsNumbersUpToTheirLastDigit)
{
    EXPECT_EQ(voiceOf("voice max age 12x", "max").age, 12);
    EXPECT_EQ(voiceOf("voice max age \"7\"", "max").age, 7);
}

TEST(Voice, IsOnlyDeclaredAndNotUsed)
{
    EXPECT_EQ(compile("voice max").script.currentVoice, "adam");
}

TEST(Voice, NameMayBeQuoted)
{
    EXPECT_EQ(compile("voice \"old man\" lang de").script.voices.count("old man"), 1U);
}

TEST(Voice, CannotBeDeclaredTwice)
{
    EXPECT_EQ(errorsOf("voice max lang de sex m age 40\n"
                       "voice max\n"),
              "!!! Error: Line 2 voice max is aleady defined.\n"
              "!!! Error: Line 2 Syntax Error\n");
    EXPECT_EQ(errorsOf("voice eve"),
              std::string("!!! Error: Line 1 voice eve is aleady defined.\n") + kSyntaxError);
}

TEST(Voice, WithoutANameIsMalformed)
{
    EXPECT_EQ(errorsOf("voice"), kVoiceSyntax);
}

TEST(Voice, WithAKeywordWithoutValueIsMalformed)
{
    EXPECT_EQ(errorsOf("voice max lang"), kVoiceSyntax);
    EXPECT_EQ(errorsOf("voice max color"), kVoiceSyntax);
}

TEST(Voice, WithAnUnknownKeywordIsMalformed)
{
    EXPECT_EQ(errorsOf("voice max color red"), kVoiceSyntax);
    EXPECT_EQ(errorsOf("voice eve color red lang de"), kVoiceSyntax);
}

TEST(Voice, IsReadOnBehindAnUnknownKeyword)
{
    EXPECT_EQ(errorsOf("voice max color red age 0"),
              std::string("!!! Error: Line 1 voice age must be in range 1..99\n") + kSyntaxError);
}

TEST(Voice, AgeGoesFrom1To99)
{
    const std::string expected =
        std::string("!!! Error: Line 1 voice age must be in range 1..99\n") + kSyntaxError;
    EXPECT_EQ(errorsOf("voice max age 0"), expected);
    EXPECT_EQ(errorsOf("voice max age 100"), expected);
    EXPECT_EQ(errorsOf("voice max age old"), expected);
    EXPECT_EQ(errorsOf("voice max age 99999999999999999999"), expected);
    EXPECT_EQ(voiceOf("voice max age 1", "max").age, 1);
    EXPECT_EQ(voiceOf("voice max age 99", "max").age, 99);
}

TEST(Voice, SpeedGoesUpTo99AlthoughItsMessageSays5)
{
    const std::string expected =
        std::string("!!! Error: Line 1 voice speed must be in range 1..5\n") + kSyntaxError;
    EXPECT_EQ(voiceOf("voice max speed 7", "max").speed, 7);
    EXPECT_EQ(voiceOf("voice max speed 99", "max").speed, 99);
    EXPECT_EQ(errorsOf("voice max speed 0"), expected);
    EXPECT_EQ(errorsOf("voice max speed 100"), expected);
}

TEST(Voice, PitchGoesUpTo99AlthoughItsMessageSays5)
{
    const std::string expected =
        std::string("!!! Error: Line 1 voice pitch must be in range 1..5\n") + kSyntaxError;
    EXPECT_EQ(voiceOf("voice max pitch 99", "max").pitch, 99);
    EXPECT_EQ(errorsOf("voice max pitch 0"), expected);
    EXPECT_EQ(errorsOf("voice max pitch 100"), expected);
}

TEST(Voice, SexIsMOrF)
{
    EXPECT_EQ(errorsOf("voice max sex x"),
              std::string("!!! Error: Line 1 sex only supports 'm' and 'f'.\n") + kSyntaxError);
}

TEST(Voice, IsNotDeclaredWhenItIsWrong)
{
    EXPECT_EQ(compile("voice max age 0\nvoice moritz x y").script.voices.size(), 2U);
}

TEST(Say, OneTextSpeaksWithTheCurrentVoice)
{
    const Compiled script = compile("say \"Hello, world!\"");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # say \"Hello, world!\"\n"
                                     "        - J(asm1)    P(say_adam_Hello__world_)\n"
                                     "    asm1:\n"));
    EXPECT_THAT(textsOf(script.script),
                ElementsAre("say_adam_Hello__world_: adam says Hello, world!"));
}

TEST(Say, OneWordIsATextEvenWhenItNamesAVoice)
{
    EXPECT_THAT(textsOf(compile("say adam").script), ElementsAre("say_adam_adam: adam says adam"));
    EXPECT_THAT(textsOf(compile("say eve").script), ElementsAre("say_adam_eve: adam says eve"));
}

TEST(Say, SeveralTextsAreOneCommand)
{
    const Compiled script = compile("say eve \"Hallo\" \"Welt\"");
    EXPECT_EQ(script.code(), scripts("        # say eve \"Hallo\" \"Welt\"\n"
                                     "        - J(asm1)    P(say_eve_Hallo, say_eve_Welt)\n"
                                     "    asm1:\n"));
    EXPECT_THAT(textsOf(script.script),
                ElementsAre("say_eve_Hallo: eve says Hallo", "say_eve_Welt: eve says Welt"));
}

TEST(Say, LowersTheNameOfTheVoice)
{
    EXPECT_THAT(textsOf(compile("say EVE Hallo").script),
                ElementsAre("say_eve_Hallo: eve says Hallo"));
}

TEST(Say, CannotNameAVoiceThatWasDeclaredWithCapitals)
{
    EXPECT_EQ(errorsOf("voice Max\n"
                       "say Max Hallo\n"),
              "!!! Error: Line 2 The voice max is not defined, yet.\n"
              "defined are:\n"
              "Max\n"
              "adam\n"
              "eve\n"
              "Syntax is: SAY \"text\" _or_ SAY voice_name \"text1\" [\"text 2\"] [...].\n"
              "!!! Error: Line 2 Syntax Error\n");
}

TEST(Say, ListsAllVoicesHoweverManyThereAre)
{
    std::string declarations;
    std::string names = "adam\neve\n";
    for (int i = 10000; i < 11000; ++i) {
        declarations += "voice v" + std::to_string(i) + "\n";
        names += "v" + std::to_string(i) + "\n";
    }
    EXPECT_EQ(errorsOf(declarations + "say max %s%n\n"),
              "!!! Error: Line 1001 The voice max is not defined, yet.\ndefined are:\n" + names +
                  "Syntax is: SAY \"text\" _or_ SAY voice_name \"text1\" [\"text 2\"] [...].\n"
                  "!!! Error: Line 1001 Syntax Error\n");
}

TEST(Say, NeedsSomethingToSay)
{
    EXPECT_EQ(errorsOf("say"),
              std::string("!!! Error: Line 1 No argument given. What to play?\n") + kSyntaxError);
}

TEST(Say, EmptyQuotesAreATextOfTwoQuotes)
{
    EXPECT_THAT(textsOf(compile("say \"\"").script), ElementsAre("say_adam___: adam says \"\""));
}

TEST(Say, EveryByteThatIsNoAsciiLetterOrDigitBecomesAnUnderscoreInTheName)
{
    EXPECT_THAT(textsOf(compile("voice \"old man\"\nsay \"old man\" \"M\xC3\xBCh 1_2\"").script),
                ElementsAre("say_old_man_M__h_1_2: old man says M\xC3\xBCh 1_2"));
}

TEST(Say, TheSameNameIsStoredOnceWithItsLastText)
{
    EXPECT_THAT(textsOf(compile("say \"Moo!\"\nsay \"Moo?\"").script),
                ElementsAre("say_adam_Moo_: adam says Moo?"));
}

TEST(Say, EmitsNoCommandWhenItIsWrong)
{
    const Compiled script = compile("say max Hallo\n");
    EXPECT_EQ(script.code(), "scripts:\r\n        # say max Hallo\r\n");
    EXPECT_THAT(textsOf(script.script), IsEmpty());
}

TEST(WelcomeMessage, IsSpokenByAdamWhenAllVoicesSpeakEnglish)
{
    ttbasic script = compile("voice Zoe lang EN\n").script;
    EXPECT_EQ(script.prepareWelcomeMessage("Zoo"), "_welcome_message_text");
    EXPECT_THAT(textsOf(script), ElementsAre("_welcome_message_text: adam says Zoo. Start."));
}

TEST(WelcomeMessage, IsSpokenByTheFirstVoiceOfAnotherLanguage)
{
    ttbasic script = compile("voice max lang de\nvoice julie lang fr\n").script;
    script.prepareWelcomeMessage("Zoo");
    EXPECT_THAT(textsOf(script), ElementsAre("_welcome_message_text: julie says Zoo. Start."));
}

TEST(WelcomeMessage, IsRecordedOnce)
{
    ttbasic script;
    script.prepareWelcomeMessage("Zoo");
    EXPECT_EQ(script.prepareWelcomeMessage("Farm"), "_welcome_message_text");
    EXPECT_THAT(textsOf(script), ElementsAre("_welcome_message_text: adam says Zoo. Start."));
}

TEST(UsedOidNames, AreTheSubsInByteOrder)
{
    EXPECT_THAT(compile("sub cow\nend sub\n"
                        "sub \xC3\xA4\nend sub\n"
                        "sub Pig\nend sub\n"
                        "goto cow\n")
                    .script.usedOidNames(),
                ElementsAre("Pig", "cow", "\xC3\xA4"));
}

}  // namespace
