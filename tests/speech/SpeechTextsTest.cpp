#include "speech/SpeechTexts.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "speech/Engines.h"
#include "speech/SpeechIndex.h"
#include "tests/helpers/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// A book whose script is compiled, in a folder of its own, and the audio folder beside it.
class Texts : public testing::Test
{
protected:
    Texts()
    {
        project.projectPath = folder.path() + "\\book.oidpro";
        project.productName = "Zoo";
        project.compiler.reportTo([](const Diagnostic&) {});
        fs::create_directory(folder.file("900-audio"));
    }

    void script(const std::string& text)
    {
        project.compiler.source = text;
        compileScript(project.compiler, false);
    }

    std::string audio(const std::string& name) const { return folder.file("900-audio/" + name); }

    std::vector<SpeechText> lookedUp() const
    {
        std::vector<SpeechText> texts = speechTexts(project, engines);
        SpeechIndex index(audioFolder(project));
        lookUp(texts, audioFolder(project), index);
        return texts;
    }

    // As if the text of the name had been spoken as it is now.
    void speak(const std::string& audioName) const
    {
        for (const SpeechText& text : lookedUp()) {
            if (text.audioName == audioName) {
                writeFile(text.file, "sound");
                SpeechIndex index(audioFolder(project));
                index.remember(audioName, text.said);
                index.save();
            }
        }
    }

    // "2 say_eve_Moo eve: Moo", a line each.
    std::string list() const
    {
        std::string lines;
        for (const SpeechText& text : speechTexts(project, engines)) {
            lines += itostr(text.place.line) + " " + text.audioName + " " + text.said.voice + ": " +
                     text.said.text +
                     (text.inItsPlace.line != 0 ? " -> " + itostr(text.inItsPlace.line) : "") +
                     "\n";
        }
        return lines;
    }

    // "say_eve_Moo missing", a line each.
    std::string states() const
    {
        std::string lines;
        for (const SpeechText& text : lookedUp()) {
            lines += text.audioName + " " + nameOf(text.state) + "\n";
        }
        return lines;
    }

    const TemporaryFolder folder;
    Oid::OidProject project;
    Engines engines;
};

}  // namespace

TEST_F(Texts, AreInTheOrderOfTheirFirstUseAndTheWelcomeIsLast)
{
    script("voice max lang de\n"
           "sub zebra\n"
           "say Zzz\n"
           "  say max \"Grün\" \"und gut\" ' Moo\n"
           "say eve \"Zzz\"\n"
           "say Zzz\n"
           "end sub\n");
    EXPECT_EQ(list(), "3 say_adam_Zzz adam: Zzz\n"
                      "4 say_max_Gr__n max: Grün\n"
                      "4 say_max_und_gut max: und gut\n"
                      "5 say_eve_Zzz eve: Zzz\n"
                      "0 _welcome_message_text max: Zoo. Start.\n");
}

TEST_F(Texts, AScriptWithoutTextsHasTheWelcome)
{
    script("");
    EXPECT_EQ(list(), "0 _welcome_message_text adam: Zoo. Start.\n");
}

TEST_F(Texts, KnowTheSettingsOfTheirVoices)
{
    script("voice max lang de sex f age 7\nsub a\nsay max Moo\nend sub\n");
    const Utterance said = speechTexts(project, engines).front().said;
    EXPECT_EQ(said.settings.language, "de");
    EXPECT_TRUE(said.settings.female);
    EXPECT_EQ(said.settings.age, 7);
}

TEST_F(Texts, OfTwoWithOneAudioNameTheLastOneIsSaid)
{
    script("sub a\nsay \"Moo!\"\nsay \"Moo?\"\nsay \"Moo!\"\nsay \"Moo.\"\nend sub\n");
    EXPECT_EQ(list(), "2 say_adam_Moo_ adam: Moo! -> 5\n"
                      "3 say_adam_Moo_ adam: Moo? -> 5\n"
                      "5 say_adam_Moo_ adam: Moo.\n"
                      "0 _welcome_message_text adam: Zoo. Start.\n");
}

TEST_F(Texts, VoicesMayMakeOneAudioName)
{
    script("voice a_b\nvoice a\nsub a\nsay a_b c\nsay a b_c\nend sub\n");
    EXPECT_EQ(list(), "4 say_a_b_c a_b: c -> 5\n"
                      "5 say_a_b_c a: b_c\n"
                      "0 _welcome_message_text adam: Zoo. Start.\n");
}

TEST_F(Texts, AreThoseOfTheCompilerAtTheirEnd)
{
    script("sub a\nsay \"Moo!\"\nsay eve \"Moo?\" Mäh \"a\"\nif x = 1\nsay \"Moo?\"\nend if\n"
           "end sub\n");
    project.compiler.prepareWelcomeMessage(project.productName);
    std::map<std::string, std::string> compiled;
    for (const auto& [name, text] : project.compiler.talkTexts) {
        compiled[name] = text.voice + ": " + text.text;
    }
    std::map<std::string, std::string> listed;
    for (const SpeechText& text : speechTexts(project, engines)) {
        if (text.inItsPlace.line == 0) {
            listed[text.audioName] = text.said.voice + ": " + text.said.text;
        }
    }
    EXPECT_EQ(listed, compiled);
}

TEST_F(Texts, OfAScriptWithMistakesAreListed)
{
    script("sub a\nsay Moo\nx = 1 +\nsay nobody Mäh\nsay\nsay Muh\n");
    EXPECT_EQ(list(), "2 say_adam_Moo adam: Moo\n"
                      "6 say_adam_Muh adam: Muh\n"
                      "0 _welcome_message_text adam: Zoo. Start.\n");
}

TEST_F(Texts, AreMissingSpokenOrRecorded)
{
    script("sub a\nsay A\nsay B\nsay C\nend sub\n");
    speak("say_adam_B");
    writeFile(audio("say_adam_C.ogg"), "my voice");
    EXPECT_EQ(states(), "say_adam_A missing\n"
                        "say_adam_B spoken\n"
                        "say_adam_C recorded\n"
                        "_welcome_message_text missing\n");
    EXPECT_EQ(lookedUp()[1].file, audio("say_adam_B.ogg"));
    EXPECT_EQ(lookedUp()[0].file, audio("say_adam_A.ogg"));
}

TEST_F(Texts, WithAnotherTextOfTheSameNameAreStale)
{
    script("sub a\nsay \"Moo!\"\nend sub\n");
    speak("say_adam_Moo_");
    script("sub a\nsay \"Moo?\"\nend sub\n");
    EXPECT_EQ(states(), "say_adam_Moo_ stale\n_welcome_message_text missing\n");
}

TEST_F(Texts, OfAVoiceWithOtherSettingsAreStale)
{
    for (const char* change : {"lang de", "sex f", "age 70"}) {
        script("voice max lang en\nsub a\nsay max Moo\nend sub\n");
        speak("say_max_Moo");
        script("voice max lang en speed 5 pitch 5\nsub a\nsay max Moo\nend sub\n");
        EXPECT_EQ(states(), "say_max_Moo spoken\n_welcome_message_text missing\n") << change;
        script("voice max " + std::string(change) + "\nsub a\nsay max Moo\nend sub\n");
        EXPECT_EQ(states(), "say_max_Moo stale\n_welcome_message_text missing\n") << change;
    }
}

TEST_F(Texts, OfAnotherEngineAreStaleAndOnesWithAWrongSettingsFileAreNot)
{
    script("sub a\nsay Moo\nend sub\n");
    speak("say_adam_Moo");
    const std::string file = folder.file("engines.ini");
    writeFile(file, "[en]\ncommand = robot {text} {wav}\n");
    engines = Engines({file});
    EXPECT_EQ(states(), "say_adam_Moo stale\n_welcome_message_text missing\n");
    writeFile(file, "oops\n");
    engines = Engines({file});
    EXPECT_EQ(states(), "say_adam_Moo spoken\n_welcome_message_text missing\n");
}

TEST_F(Texts, OfAnEngineThatMindsTheSpeedAreStaleWithAnotherOne)
{
    writeFile(folder.file("engines.ini"), "[en]\ncommand = robot {text} {wav} {speed}\n");
    engines = Engines({folder.file("engines.ini")});
    script("voice max pitch 1\nsub a\nsay max Moo\nend sub\n");
    speak("say_max_Moo");
    script("voice max pitch 2\nsub a\nsay max Moo\nend sub\n");
    EXPECT_EQ(states(), "say_max_Moo spoken\n_welcome_message_text missing\n");
    script("voice max speed 2\nsub a\nsay max Moo\nend sub\n");
    EXPECT_EQ(states(), "say_max_Moo stale\n_welcome_message_text missing\n");
}

TEST_F(Texts, TheWelcomeIsStaleWhenTheProductHasAnotherName)
{
    script("");
    speak("_welcome_message_text");
    EXPECT_EQ(states(), "_welcome_message_text spoken\n");
    project.productName = "Farm";
    EXPECT_EQ(states(), "_welcome_message_text stale\n");
}

TEST_F(Texts, TheWelcomeIsStaleWhenTheBookHasAnotherLanguage)
{
    script("");
    speak("_welcome_message_text");
    script("voice max lang en\n");
    EXPECT_EQ(states(), "_welcome_message_text spoken\n");
    script("voice max lang de\n");
    EXPECT_EQ(states(), "_welcome_message_text stale\n");
}

TEST_F(Texts, OneThatIsReplacedIsRefusedUnlessItIsRecorded)
{
    script("sub a\nsay \"Moo!\"\nsay \"Moo?\"\nend sub\n");
    EXPECT_EQ(states(), "say_adam_Moo_ refused\nsay_adam_Moo_ missing\n"
                        "_welcome_message_text missing\n");
    EXPECT_EQ(lookedUp()[0].refusal, Refusal::sharedName);
    EXPECT_EQ(lookedUp()[1].refusal, Refusal::none);
    speak("say_adam_Moo_");
    EXPECT_EQ(states(), "say_adam_Moo_ refused\nsay_adam_Moo_ spoken\n"
                        "_welcome_message_text missing\n");
    writeFile(audio("say_adam_Moo_.ogg"), "my voice");
    EXPECT_EQ(states(), "say_adam_Moo_ recorded\nsay_adam_Moo_ recorded\n"
                        "_welcome_message_text missing\n");
    EXPECT_EQ(lookedUp()[0].refusal, Refusal::none);
}

TEST_F(Texts, OneThatIsTooLongForAFileNameIsRefused)
{
    const std::string longest(251 - sizeof "say_adam_" + 1, 'x');
    script("sub a\nsay " + longest + "\nsay " + longest + "y\nend sub\n");
    EXPECT_EQ(states(), "say_adam_" + longest + " missing\nsay_adam_" + longest +
                            "y refused\n_welcome_message_text missing\n");
    EXPECT_EQ(lookedUp()[1].refusal, Refusal::longName);
}

TEST_F(Texts, AWelcomeThatIsTooLongForTheSpeechProgramCanBeRecorded)
{
    script("");
    project.productName = std::string(Platform::longestArgument, 'x');
    EXPECT_EQ(states(), "_welcome_message_text refused\n");
    EXPECT_EQ(lookedUp()[0].refusal, Refusal::longText);
    writeFile(audio("_welcome_message_text.ogg"), "my voice");
    EXPECT_EQ(states(), "_welcome_message_text recorded\n");
}

TEST_F(Texts, OfAnyBytesSoundAsTheySoundedBefore)
{
    script("sub a\nsay \"M\xFF\xFE!\"\nend sub\n");
    speak("say_adam_M___");
    EXPECT_EQ(states(), "say_adam_M___ spoken\n_welcome_message_text missing\n");
}
