#include "speech/SpeechImport.h"

#include <gtest/gtest.h>

#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "speech/Engines.h"
#include "speech/ReadingSheet.h"

namespace {

std::vector<SpeechText> textsOf(const std::string& script)
{
    Oid::OidProject project;
    project.productName = "Zoo";
    project.compiler.source = script;
    compileScript(project.compiler, false);
    return speechTexts(project, Engines());
}

// The sample of these tests: 1 Moo!, 2 The cow., 3 the welcome, all by adam, 4 Moo!, 5 Grün by eve.
std::vector<SpeechText> cows()
{
    return textsOf("sub cow\n"
                   "say Moo!\n"
                   "say eve Moo!\n"
                   "say eve Grün\n"
                   "say \"The cow.\"\n"
                   "end sub\n");
}

std::string named(const std::vector<size_t>& indices, const std::vector<SpeechText>& texts)
{
    std::string names;
    for (const size_t index : indices) {
        names += " " + texts[index].audioName;
    }
    return names;
}

// A line for each file: "taken Moo.wav say_adam_Moo".
std::string matched(const std::vector<std::string>& files,
                    const std::vector<SpeechText>& texts = cows(), const SheetNumbers& given = {})
{
    const SpeechImport import = matchRecordings(files, texts, given);
    std::string lines;
    for (const SpeechImport::Match& match : import.taken) {
        lines += "taken " + match.file + named({match.text}, texts) + "\n";
    }
    const auto addDoubts = [&](const char* what, const std::vector<SpeechImport::Doubt>& doubts) {
        for (const SpeechImport::Doubt& doubt : doubts) {
            lines += what + (" " + doubt.file) + named(doubt.texts, texts) + "\n";
        }
    };
    addDoubts("second", import.secondBest);
    addDoubts("rival", import.rivals);
    addDoubts("several", import.fitSeveral);
    for (const std::string& file : import.fitNothing) {
        lines += "nothing " + file + "\n";
    }
    return lines;
}

}  // namespace

TEST(ReadingSheets, HaveTheVoicesOneAfterTheOther)
{
    const std::vector<SpeechText> texts = cows();
    EXPECT_EQ(asPlainText(readingSheetOf(texts), texts), "adam\n"
                                                         "  1  Moo!\n"
                                                         "  2  The cow.\n"
                                                         "  3  Zoo. Start.\n"
                                                         "\n"
                                                         "eve\n"
                                                         "  4  Moo!\n"
                                                         "  5  Grün\n");
}

TEST(ReadingSheets, LeaveOutWhatThePenNeverSays)
{
    const std::vector<SpeechText> texts = textsOf("sub a\nsay Moo!\nsay Moo?\nend sub\n");
    EXPECT_EQ(asPlainText(readingSheetOf(texts), texts), "adam\n  1  Moo?\n  2  Zoo. Start.\n");
}

TEST(ReadingSheets, HaveTheirNumbersOneBelowTheOther)
{
    std::string script = "sub a\n";
    for (int i = 1; i <= 1000; ++i) {
        script += "say t" + itostr(i) + "\n";
    }
    const std::vector<SpeechText> texts = textsOf(script + "end sub\n");
    const std::string sheet = asPlainText(readingSheetOf(texts), texts);
    EXPECT_EQ(sheet.substr(0, 16), "adam\n   1  t1\n  ");
    EXPECT_NE(sheet.find("\n1000  t1000\n"), std::string::npos);
}

// Texts that came later are where they are said, with further numbers.
TEST(ReadingSheets, KeepTheNumbersThatWereGiven)
{
    const std::vector<SpeechText> before = textsOf("sub a\nsay A\nsay eve B\nsay C\nend sub\n");
    SheetNumbers given = numbersOf(readingSheetOf(before), before);
    EXPECT_EQ(given, SheetNumbers({{"say_adam_A", 1},
                                   {"say_adam_C", 2},
                                   {"_welcome_message_text", 3},
                                   {"say_eve_B", 4}}));
    const std::vector<SpeechText> now = textsOf("sub a\nsay New\nsay eve B\nsay C\nend sub\n");
    EXPECT_EQ(asPlainText(readingSheetOf(now, given), now), "adam\n"
                                                            "  5  New\n"
                                                            "  2  C\n"
                                                            "  3  Zoo. Start.\n"
                                                            "\n"
                                                            "eve\n"
                                                            "  4  B\n");
}

TEST(Recordings, AreNamedLikeTheAudioFile)
{
    EXPECT_EQ(matched({"/x/say_eve_Gr__n.wav", "_welcome_message_text.mp3", "say_adam_Moo_.a.ogg"}),
              "taken /x/say_eve_Gr__n.wav say_eve_Gr__n\n"
              "taken _welcome_message_text.mp3 _welcome_message_text\n"
              "nothing say_adam_Moo_.a.ogg\n");
}

TEST(Recordings, AreNamedLikeTheText)
{
    EXPECT_EQ(matched({"Grün.wav", "The cow..flac"}), "taken Grün.wav say_eve_Gr__n\n"
                                                      "taken The cow..flac say_adam_The_cow_\n");
    EXPECT_EQ(matched({"Gr__n.wav", "The_cow_.flac"}),
              "taken Gr__n.wav say_eve_Gr__n\ntaken The_cow_.flac say_adam_The_cow_\n");
}

TEST(Recordings, MayHaveTheirLettersTakenApartByTheSystem)
{
    EXPECT_EQ(matched({"Gru\u0308n.wav"}), "taken Gru\u0308n.wav say_eve_Gr__n\n");
}

TEST(Recordings, BeginWithTheNumberOnTheSheet)
{
    EXPECT_EQ(matched({"1.wav", "02 whatever.wav", "003_x.wav", "4-eve.mp3"}),
              "taken 1.wav say_adam_Moo_\n"
              "taken 4-eve.mp3 say_eve_Moo_\n"
              "taken 02 whatever.wav say_adam_The_cow_\n"
              "taken 003_x.wav _welcome_message_text\n");
    EXPECT_EQ(matched({"0.wav", "6.wav", "5x.wav", "5ü.wav", "99999999999999999999.wav", ".wav"}),
              "nothing 0.wav\nnothing 6.wav\nnothing 5x.wav\nnothing 5ü.wav\n"
              "nothing 99999999999999999999.wav\nnothing .wav\n");
}

// 1 was another text's, which is gone; nobody was ever told 4.
TEST(Recordings, ByNumberAreThoseOfTheTextThatWasGivenIt)
{
    const std::vector<SpeechText> texts = textsOf("sub a\nsay New\nsay B\nend sub\n");
    const SheetNumbers given = {{"say_adam_A", 1}, {"say_adam_B", 2}, {"_welcome_message_text", 3}};
    EXPECT_EQ(matched({"1.wav", "2.wav", "3.wav", "4.wav"}, texts, given),
              "taken 2.wav say_adam_B\n"
              "taken 3.wav _welcome_message_text\n"
              "nothing 1.wav\n"
              "nothing 4.wav\n");
}

TEST(Recordings, ATextThatBeginsWithANumberIsATextFirst)
{
    EXPECT_EQ(matched({"2 cows.wav", "2 cats.wav"},
                      textsOf("sub a\nsay Moo\nsay Muh\nsay \"2 cows\"\nend sub\n")),
              "taken 2 cats.wav say_adam_Muh\ntaken 2 cows.wav say_adam_2_cows\n");
}

TEST(Recordings, MayHaveOtherCapitals)
{
    EXPECT_EQ(matched({"SAY_EVE_gr__n.wav", "the COW_.wav"}),
              "taken SAY_EVE_gr__n.wav say_eve_Gr__n\ntaken the COW_.wav say_adam_The_cow_\n");
}

TEST(Recordings, CapitalsCountWhereTextsDifferInThem)
{
    const std::vector<SpeechText> texts = textsOf("sub a\nsay Moo\nsay MOO\nend sub\n");
    EXPECT_EQ(matched({"Moo.wav", "MOO.wav"}, texts),
              "taken Moo.wav say_adam_Moo\ntaken MOO.wav say_adam_MOO\n");
    EXPECT_EQ(matched({"moo.wav"}, texts), "several moo.wav say_adam_MOO say_adam_Moo\n");
}

TEST(Recordings, ATextOfTwoVoicesIsNotGuessed)
{
    EXPECT_EQ(matched({"Moo!.wav"}), "several Moo!.wav say_adam_Moo_ say_eve_Moo_\n");
}

TEST(Recordings, MayLeaveOutWhatIsNeitherLetterNorDigit)
{
    const std::vector<SpeechText> texts = textsOf("sub a\n"
                                                  "say \"Who lays eggs?\"\n"
                                                  "say \"Right, it's Zoë!\"\n"
                                                  "say Moo!\n"
                                                  "say eve Moo.\n"
                                                  "say \"?!\"\n"
                                                  "end sub\n");
    EXPECT_EQ(matched({"Who lays eggs.mp3", "right_its_zoë.wav", "Moo.wav", "-.wav"}, texts),
              "taken Who lays eggs.mp3 say_adam_Who_lays_eggs_\n"
              "taken right_its_zoë.wav say_adam_Right__it_s_Zo___\n"
              "several Moo.wav say_adam_Moo_ say_eve_Moo_\n"
              "nothing -.wav\n");
    EXPECT_EQ(matched({"Who lays eggs.mp3", "Who lays eggs_.mp3"}, texts),
              "taken Who lays eggs_.mp3 say_adam_Who_lays_eggs_\n"
              "second Who lays eggs.mp3 say_adam_Who_lays_eggs_\n");
}

TEST(Recordings, OfSeveralForOneTextTheBestNameCounts)
{
    EXPECT_EQ(matched({"5.wav", "Grün.wav", "say_eve_Gr__n.wav"}),
              "taken say_eve_Gr__n.wav say_eve_Gr__n\n"
              "second Grün.wav say_eve_Gr__n\n"
              "second 5.wav say_eve_Gr__n\n");
}

TEST(Recordings, OfSeveralWithNamesAsGoodNoneIsTaken)
{
    EXPECT_EQ(matched({"5.wav", "Grün.mp3", "Grün.wav"}), "second 5.wav say_eve_Gr__n\n"
                                                          "rival Grün.mp3 say_eve_Gr__n\n"
                                                          "rival Grün.wav say_eve_Gr__n\n");
}

TEST(Recordings, OfATextThatAnotherOneReplacesAreThatOnes)
{
    EXPECT_EQ(matched({"Moo!.wav"}, textsOf("sub a\nsay Moo!\nsay Moo?\nend sub\n")),
              "taken Moo!.wav say_adam_Moo_\n");
}
