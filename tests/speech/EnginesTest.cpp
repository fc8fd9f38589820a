#include "speech/Engines.h"

#include <gmock/gmock.h>

#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "speech/SpeechProgram.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>

using testing::ElementsAre;

namespace {

ttbasic::VOICE voice(const std::string& language, bool isFemale = false, int age = 30)
{
    ttbasic::VOICE voice;
    voice.language = language;
    voice.female = isFemale;
    voice.age = age;
    return voice;
}

// Two settings files, the user's and the one beside the program.
class EnginesTest : public testing::Test
{
protected:
    Engines engines(const std::string& users, const std::string& besideProgram = "") const
    {
        writeFile(user, users);
        writeFile(beside, besideProgram);
        return Engines({user, beside});
    }

    std::string problem(const std::string& users) const { return engines(users).problem(); }

    // How a voice is spoken by the user's engines.
    std::string spokenBy(const std::string& users, const ttbasic::VOICE& speaker) const
    {
        const Engines all = engines(users);
        EXPECT_EQ(all.problem(), "");
        return all.identity(speaker);
    }

    std::string at(int line, const std::string& cause) const
    {
        return user + ", line " + std::to_string(line) + ": " + cause;
    }

    const TemporaryFolder folder;
    const std::string user = folder.file("user.ini");
    const std::string beside = folder.file("beside.ini");
};

}  // namespace

// --- Who speaks ----------------------------------------------------------------------------------

TEST_F(EnginesTest, WithoutSettingsFilesEspeakSpeaksEverything)
{
    const Engines none({folder.file("not there"), folder.file("nor this")});
    EXPECT_EQ(none.problem(), "");
    EXPECT_EQ(none.find("en"), nullptr);
    EXPECT_EQ(none.identity(voice("en")), "espeak-ng");
    EXPECT_TRUE(none.programs().empty());
}

TEST_F(EnginesTest, ALanguageIsSpokenByItsOwnCommand)
{
    const std::string file = "# comment\n; comment\n\n[EN]\n command = flite -f {textfile}\r\n";
    EXPECT_EQ(spokenBy(file, voice("en")), "flite -f {textfile}");
    EXPECT_EQ(spokenBy(file, voice("En")), "flite -f {textfile}");
    EXPECT_EQ(spokenBy(file, voice("de")), "espeak-ng");
}

TEST_F(EnginesTest, AFileOfWindowsIsReadToo)
{
    EXPECT_EQ(spokenBy("\xEF\xBB\xBF[en]\r\ncommand = say {text}\r\n", voice("en")), "say {text}");
}

TEST_F(EnginesTest, TheNearestNameOfALanguageCounts)
{
    const std::string file = "[*]\ncommand = all\n[en]\ncommand = english\n"
                             "[en-us]\ncommand = american\n";
    EXPECT_EQ(spokenBy(file, voice("en-us")), "american");
    EXPECT_EQ(spokenBy(file, voice("en-us-nyc")), "american");
    EXPECT_EQ(spokenBy(file, voice("en_gb")), "english");
    EXPECT_EQ(spokenBy(file, voice("eng")), "all");
}

TEST_F(EnginesTest, EspeakCanBeNamedForALanguage)
{
    const std::string file = "[*]\ncommand = all {text}\n[de]\ncommand = espeak-ng\n";
    EXPECT_EQ(spokenBy(file, voice("de-at")), "espeak-ng");
    EXPECT_EQ(spokenBy(file, voice("fr")), "all {text}");
}

TEST_F(EnginesTest, TheUsersFileCountsBeforeTheOneBesideTheProgram)
{
    const std::string below = "[en]\ncommand = below\n[de]\ncommand = below\n";
    const Engines some = engines("[en]\ncommand = above\n", below);
    EXPECT_EQ(some.identity(voice("en")), "above");
    EXPECT_EQ(some.identity(voice("de")), "below");
    EXPECT_EQ(engines("[*]\ncommand = above\n", below).identity(voice("de")), "above");
}

TEST_F(EnginesTest, WhatIsNoNameOfALanguageIsGivenToNobody)
{
    const std::string file = "[*]\ncommand = all -v {language}\n";
    for (const char* language : {"-x", "--voices", "a b", "../de", "", "de;ls"}) {
        EXPECT_EQ(spokenBy(file, voice(language)), "espeak-ng") << language;
    }
}

TEST_F(EnginesTest, LanguagesAreListedWithTheirPrograms)
{
    const Engines some = engines("[en]\ncommand = flite {text}\n[de]\ncommand = espeak-ng\n",
                                 "[en]\ncommand = other\n[*]\ncommand = piper\n");
    const std::map<std::string, std::string> expected = {
        {"en", "flite"}, {"de", "espeak-ng"}, {"*", "piper"}};
    EXPECT_EQ(some.programs(), expected);
}

TEST_F(EnginesTest, TheUsersFileLiesInTheFolderOfSettings)
{
    const ChangedVariable settings(kUserSettings, folder.path());
    const std::vector<std::string> files = engineFiles("/tools");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(Platform::nativePath(files[0]), folder.file("plinkett/engines.ini"));
    EXPECT_EQ(files[1], "/tools/engines.ini");
}

TEST_F(EnginesTest, TheOtherFileLiesBesideTheSpeechProgramThatIsCalled)
{
    const std::string separator(1, Platform::searchPathSeparator);
    const ChangedVariable samePathAfterwards("PATH", folder.path());
    FakeProgram(folder.path(), "Text2Speech");
    const std::string ours =
        Platform::nativePath(Platform::exeDirectory() + "/tools/text2speech_win");
    EXPECT_EQ(speechProgramFolder(), ours);  // it will come first
    const ChangedVariable both("PATH", folder.path() + separator + ours + separator + "/usr/bin");
    EXPECT_EQ(speechProgramFolder(), folder.path());
}

// --- What placeholders stand for -----------------------------------------------------------------

TEST_F(EnginesTest, AVoiceIsChosenBySexAndAge)
{
    const std::string file = "[en]\ncommand = say -v {voice}\n"
                             "female = slt\nmale = awb\ngirl = eva\n";
    EXPECT_EQ(spokenBy(file, voice("en", true)), "say -v slt");
    EXPECT_EQ(spokenBy(file, voice("en", false)), "say -v awb");
    EXPECT_EQ(spokenBy(file, voice("en", true, 12)), "say -v eva");
    EXPECT_EQ(spokenBy(file, voice("en", true, 13)), "say -v slt");
    EXPECT_EQ(spokenBy(file, voice("en", false, 12)), "say -v awb");
}

TEST_F(EnginesTest, OneVoiceCanSpeakForAll)
{
    const std::string file = "[en]\ncommand = say {voice}\nvoice = /home/me/my voice.onnx\n"
                             "boy = tim\n";
    EXPECT_EQ(spokenBy(file, voice("en", true)), "say /home/me/my voice.onnx");
    EXPECT_EQ(spokenBy(file, voice("en", false, 5)), "say tim");
}

TEST_F(EnginesTest, SexAgeAndLanguageAreHandedOver)
{
    EXPECT_EQ(
        spokenBy("[*]\ncommand = say {sex}{age} --lang={language}\n", voice("de-AT", true, 8)),
        "say f8 --lang=de-at");
}

TEST_F(EnginesTest, SpeedAndPitchAreThereForCommandsThatAskForThem)
{
    ttbasic::VOICE fast = voice("en");
    fast.speed = 5;
    fast.pitch = 1;
    EXPECT_EQ(spokenBy("[en]\ncommand = say {speed} {pitch}\n", fast), "say 5 1");
    EXPECT_EQ(spokenBy("[en]\ncommand = say\n", fast), "say");
}

TEST_F(EnginesTest, SpeedAndPitchCanHaveAnEnginesOwnValues)
{
    const std::string file = "[en]\ncommand = say {speed} {pitch}\n"
                             "speed = 1.6, 1.3, 1, 0.8, 0.6\npitch = -20,-10,0,10,20\n";
    ttbasic::VOICE speaker = voice("en");
    EXPECT_EQ(spokenBy(file, speaker), "say 1 0");
    speaker.speed = 1;
    speaker.pitch = 2;
    EXPECT_EQ(spokenBy(file, speaker), "say 1.6 -10");
    speaker.speed = 99;
    EXPECT_EQ(spokenBy(file, speaker), "say 0.6 -10");
}

TEST_F(EnginesTest, AValueIsPartOfOneWordWhateverItHolds)
{
    const Engines some = engines("[en]\ncommand = say \"the text\" --text={text} {text}{wav}\n");
    const Engine::Values values = {{"text", "a \"b\" {wav} $HOME; c"}, {"wav", "/tmp/x y"}};
    EXPECT_THAT(some.find("en")->filled(values),
                ElementsAre("say", "the text", "--text=a \"b\" {wav} $HOME; c",
                            "a \"b\" {wav} $HOME; c/tmp/x y"));
}

TEST_F(EnginesTest, ATextThatBeginsWithADashIsNoOption)
{
    const Engines some = engines("[en]\ncommand = say {text} -t={text}\n");
    EXPECT_THAT(some.find("en")->filled({{"text", "-5 degrees"}}),
                ElementsAre("say", " -5 degrees", "-t=-5 degrees"));
}

TEST_F(EnginesTest, OtherBracesStayAsTheyAre)
{
    EXPECT_EQ(spokenBy("[en]\ncommand = say {} { {a b} {1} { {{age}} }{ {\n", voice("en")),
              "say {} { {a b} {1} { {30} }{ {");
}

TEST_F(EnginesTest, TheIdentityChangesWithWhatIsHeardAndNotOtherwise)
{
    const std::string file = "[en]\ncommand = flite -voice {voice} -f {textfile} -o {wav}\n"
                             "female = slt\nmale = ";
    const std::string woman = spokenBy(file + "awb\n", voice("en", true));
    const std::string man = spokenBy(file + "awb\n", voice("en"));
    EXPECT_EQ(woman, "flite -voice slt -f {textfile} -o {wav}");
    EXPECT_EQ(spokenBy(file + "kal\n", voice("en", true)), woman);
    EXPECT_NE(spokenBy(file + "kal\n", voice("en")), man);
}

// --- What can be wrong with a file ---------------------------------------------------------------

TEST_F(EnginesTest, AWrongLineIsNamedWithItsCause)
{
    EXPECT_EQ(problem("command = x\n"), at(1, "a setting before the first [language]"));
    EXPECT_EQ(problem("[en]\ncommand\n"), at(2, "neither [language] nor key = value"));
    EXPECT_EQ(problem("[en\n"), at(1, "'[en' is not [language], such as [en], nor [*]"));
    EXPECT_EQ(problem("[e n]\n"), at(1, "'[e n]' is not [language], such as [en], nor [*]"));
    EXPECT_EQ(problem("[]\n"), at(1, "'[]' is not [language], such as [en], nor [*]"));
    EXPECT_EQ(problem("["), at(1, "'[' is not [language], such as [en], nor [*]"));
    EXPECT_EQ(problem("\n[en]\ncommand = x\n[EN]\n"), at(4, "[en] is there twice"));
    EXPECT_EQ(problem("[en]\ncomand = x\n"),
              at(2, "unknown key 'comand' (there are command, voice, female, male, girl, boy, "
                    "speed, pitch)"));
    EXPECT_EQ(problem("[en]\nmale = x\nmale = y\n"), at(3, "the key 'male' is there twice"));
    EXPECT_EQ(problem("[en]\nmale =\n"), at(2, "the key 'male' has no value"));
    EXPECT_EQ(problem("[en]\n\n# M\xFCll\n"), at(3, "this is not UTF-8"));
}

TEST_F(EnginesTest, AWrongCommandIsNamedWithItsCause)
{
    EXPECT_EQ(problem("[en]\ncommand = say {txt}\n"),
              at(2, "unknown placeholder {txt} (there are {text}, {textfile}, {wav}, {language}, "
                    "{sex}, {age}, {voice}, {speed}, {pitch})"));
    EXPECT_EQ(problem("[en]\ncommand = \"say {text}\n"), at(2, "a quote is not closed"));
    EXPECT_EQ(problem("[en]\ncommand = \"\"\n"), at(2, "the command has no program"));
    EXPECT_EQ(problem("[en]\ncommand = {text} x\n"),
              at(2, "the program's name may not have placeholders"));
}

TEST_F(EnginesTest, ALanguageThatIsNotCompleteIsNamedWithItsPlace)
{
    EXPECT_EQ(problem("\n[de]\nmale = x\n[en]\ncommand = x\n"), at(2, "[de] has no command"));
    EXPECT_EQ(problem("[en]\ncommand = x\n[de]\ncommand = x {voice}\nfemale = y\nboy = z\n"),
              at(3, "[de] uses {voice} and needs 'voice', or 'female' and 'male'"));
}

TEST_F(EnginesTest, SpeedAndPitchNeedFiveValues)
{
    EXPECT_EQ(problem("[en]\nspeed = 1, 2, 3, 4\n"),
              at(2, "the key 'speed' needs five values, separated by commas"));
    EXPECT_EQ(problem("[en]\npitch = 1, 2, , 4, 5\n"),
              at(2, "the key 'pitch' needs five values, separated by commas"));
}

TEST_F(EnginesTest, AFileThatCannotBeReadIsNamed)
{
    std::filesystem::create_directory(user);
    EXPECT_EQ(Engines({user}).problem(), user + " cannot be read: it is a folder, not a file");
}

TEST_F(EnginesTest, WithAWrongFileNobodyKnowsWhoSpeaks)
{
    const Engines wrong = engines("[en]\ncommand = x\n", "rubbish\n");
    EXPECT_EQ(wrong.problem(), beside + ", line 1: neither [language] nor key = value");
    EXPECT_EQ(wrong.find("en"), nullptr);
    EXPECT_EQ(wrong.identity(voice("en")), "");
    EXPECT_TRUE(wrong.programs().empty());
}
