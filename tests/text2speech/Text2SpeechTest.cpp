#include <gmock/gmock.h>

#include "base/PlatformProcess.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/Sound.h"
#include "tests/helpers/TemporaryFolder.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

const std::string kProgram = PLINKETT_BIN_DIR "/tools/text2speech_win/Text2Speech";
const std::string kSentence = "The cow lives on the green meadow behind our farm house.";
const std::string kVoices = "answer --voices  5  en --/M English gmw/en\n";

std::string hintBehind(const std::string& message)
{
    return "status 1\nstderr: Text2Speech: " + message + "\nTry 'Text2Speech -h'.\n";
}

std::string failure(const std::string& message)
{
    return "status 1\nstderr: Text2Speech: " + message + "\n";
}

// Speaking into out.wav of a folder of its own.
class Text2Speech : public testing::Test
{
protected:
    ProgramRun run(const std::vector<std::string>& words,
                   std::vector<std::string> environment = {}) const
    {
        environment.push_back(std::string(kUserSettings) + "=" +
                              settings.path());  // no other engines
        return runProgram(kProgram, words, environment, folder.path());
    }

    std::string result(const std::vector<std::string>& words) const { return resultOf(run(words)); }

    Sound spoken(const std::string& text, std::vector<std::string> options = {}) const
    {
        options.insert(options.end(), {"-q", "-f", "out.wav", "-t", text});
        EXPECT_EQ(resultOf(run(options)), "status 0\n");
        return readSound(folder.file("out.wav"));
    }

    double pitch(const std::string& sex, int age) const
    {
        return spoken(kSentence, {"-v", "en", "-g", sex, "-a", std::to_string(age)}).pitch();
    }

    const TemporaryFolder folder;
    const TemporaryFolder settings;
};

// The same with a stand-in for espeak-ng.
class WithFakeEspeak : public Text2Speech
{
protected:
    std::string speakWith(const std::string& plan, const std::string& text = "Moo")
    {
        espeak.plan(kVoices + plan);
        return resultOf(run({"-f", "out.wav", "-t", text}, {"PATH=" + tools.path()}));
    }

    TemporaryFolder tools;
    FakeProgram espeak{tools.path(), "espeak-ng"};
};

}  // namespace

// --- With the real synthesiser -------------------------------------------------------------------

TEST_F(Text2Speech, SpeaksATextIntoAWavFile)
{
    const Sound sound = spoken(kSentence);
    EXPECT_EQ(sound.channels, 1);
    EXPECT_GT(sound.seconds(), 2);
    EXPECT_GT(sound.loudness(), 0.02);
    EXPECT_EQ(folder.listing(), "out.wav");
}

TEST_F(Text2Speech, NamesTheFileUnlessItIsToBeQuiet)
{
    EXPECT_EQ(result({"-f", "out.wav", "-t", "Moo"}), "status 0\nout.wav\n");
    EXPECT_EQ(result({"-q", "-f", "out.wav", "-t", "Moo"}), "status 0\n");
}

TEST_F(Text2Speech, EightVoicesDifferInTheirPitch)
{
    const double pitches[] = {pitch("m", 70), pitch("m", 30), pitch("m", 18), pitch("f", 70),
                              pitch("m", 8),  pitch("f", 30), pitch("f", 18), pitch("f", 8)};
    EXPECT_GT(pitches[0], 70);   // Hz
    EXPECT_LT(pitches[7], 400);  // Hz
    for (size_t i = 1; i < std::size(pitches); ++i) {
        EXPECT_GT(pitches[i], 1.1 * pitches[i - 1]) << i;
    }
}

TEST_F(Text2Speech, AgesBelongToFourGroups)
{
    EXPECT_EQ(pitch("m", 1), pitch("m", 12));
    EXPECT_GT(pitch("m", 12), pitch("m", 13));
    EXPECT_EQ(pitch("m", 13), pitch("m", 24));
    EXPECT_GT(pitch("m", 24), pitch("m", 25));
    EXPECT_EQ(pitch("m", 25), pitch("m", 59));
    EXPECT_GT(pitch("m", 59), pitch("m", 60));
    EXPECT_EQ(pitch("m", 60), pitch("m", 99));
}

TEST_F(Text2Speech, AManOfThirtySpeaksEnglishUnlessAskedOtherwise)
{
    spoken(kSentence);
    const std::string plain = readFile(folder.file("out.wav"));
    spoken(kSentence, {"-v", "en", "-g", "m", "-a", "30"});
    EXPECT_EQ(readFile(folder.file("out.wav")), plain);
}

TEST_F(Text2Speech, LanguagesDiffer)
{
    spoken("Die Kuh lebt hier.", {"-v", "de"});
    const std::string german = readFile(folder.file("out.wav"));
    for (const char* language : {"en", "es", "fr", "en-us", "zh", "no", "EN-GB"}) {
        spoken("Die Kuh lebt hier.", {"-v", language});
        EXPECT_NE(readFile(folder.file("out.wav")), german) << language;
    }
}

TEST_F(Text2Speech, LettersBeyondAsciiAreSpokenWhateverTheLocale)
{
    spoken("Äöü", {"-v", "de"});
    const std::string sound = readFile(folder.file("out.wav"));
    run({"-q", "-v", "de", "-f", "Kühe.wav", "-t", "Äöü"}, {"LC_ALL=C"});
    EXPECT_EQ(readFile(folder.file("Kühe.wav")), sound);
}

TEST_F(Text2Speech, ATextMayBeginWithADash)
{
    EXPECT_GT(spoken("-5 degrees").seconds(), 0.5);
    EXPECT_GT(spoken("--help").seconds(), 0.2);
}

TEST_F(Text2Speech, AnExistingFileIsReplaced)
{
    writeFile(folder.file("out.wav"), "old");
    EXPECT_GT(spoken("Moo").seconds(), 0.2);
}

TEST_F(Text2Speech, TheLengthsInTheHeaderAreThoseOfTheFile)
{
    spoken("Moo");
    const std::string bytes = readFile(folder.file("out.wav"));
    const auto lengthAt = [&](size_t position) {
        return static_cast<unsigned char>(bytes[position]) +
               256U * static_cast<unsigned char>(bytes[position + 1]) +
               65536U * static_cast<unsigned char>(bytes[position + 2]);
    };
    EXPECT_EQ(bytes.substr(36, 4), "data");
    EXPECT_EQ(lengthAt(4), bytes.size() - 8);
    EXPECT_EQ(lengthAt(40), bytes.size() - 44);
}

TEST_F(Text2Speech, AFileMayHaveTheLongestNameThereIs)
{
    const std::string name = std::string(251, 'x') + ".wav";
    EXPECT_EQ(result({"-q", "-f", name, "-t", "Moo"}), "status 0\n");
    EXPECT_EQ(folder.listing(), name);
}

TEST_F(Text2Speech, ListsTheLanguages)
{
    const ProgramRun list = run({"-l"});
    EXPECT_EQ(list.status, 0);
    EXPECT_THAT(list.out, HasSubstr("\nde                   German\n"));
    EXPECT_THAT(list.out, HasSubstr("\nen                   English (Great Britain)\n"));
    EXPECT_THAT(list.out, HasSubstr("\nfr                   French (France)\n"));
    EXPECT_THAT(list.out, testing::Not(HasSubstr("mbrola")));
}

TEST_F(Text2Speech, PrintsItsHelp)
{
    const ProgramRun help = run({"-h"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out, StartsWith("Usage: Text2Speech [OPTIONS] -f FILE.wav -t TEXT\n"));
}

// --- What can go wrong ---------------------------------------------------------------------------

TEST_F(Text2Speech, AnUnknownLanguageIsNamed)
{
    EXPECT_EQ(result({"-v", "klingon", "-f", "out.wav", "-t", "Moo"}),
              failure("unknown language 'klingon' (Text2Speech -l lists them)"));
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(Text2Speech, MessagesComeInLatin1WhereThatIsWanted)
{
    const std::string plain = "the folder 'Kühe €' does not exist";
    const std::string latin1 = "the folder 'K\xFChe ?' does not exist";
    const std::vector<std::string> words = {"-f", "Kühe €/out.wav", "-t", "Moo"};
    EXPECT_EQ(resultOf(run(words)), failure(plain));
    EXPECT_EQ(resultOf(run(words, {"TEXT2SPEECH_LATIN1=1"})), failure(latin1));
    EXPECT_EQ(resultOf(run({"-f", "Kühe.wav", "-t", "Moo"}, {"TEXT2SPEECH_LATIN1=1"})),
              "status 0\nK\xFChe.wav\n");
}

TEST_F(Text2Speech, MbrolaVoicesAndVariantsAreNoLanguages)
{
    for (const std::string language : {"mb-de1", "mb/mb-de1", "de+f2", "gmw/de", ""}) {
        EXPECT_EQ(result({"-v", language, "-f", "out.wav", "-t", "Moo"}),
                  failure("unknown language '" + language + "' (Text2Speech -l lists them)"));
    }
}

TEST_F(Text2Speech, AMissingFolderIsNamed)
{
    EXPECT_EQ(result({"-f", "900-audio/out.wav", "-t", "Moo"}),
              failure("the folder '900-audio' does not exist"));
}

TEST_F(Text2Speech, AFileThatCannotBeWrittenIsNamed)
{
    EXPECT_EQ(result({"-f", "/dev/full", "-t", "Moo"}),
              failure("cannot write the file '/dev/full'"));
    EXPECT_EQ(result({"-f", folder.path(), "-t", "Moo"}),
              failure("cannot write the file '" + folder.path() + "'"));
}

TEST_F(Text2Speech, WithoutASynthesiserItSaysSo)
{
    const std::string expected = failure("espeak-ng is not installed (it is not on PATH)");
    EXPECT_EQ(resultOf(run({"-f", "out.wav", "-t", "Moo"}, {"PATH=" + folder.path()})), expected);
    EXPECT_EQ(resultOf(run({"-l"}, {"PATH=" + folder.path()})), expected);
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(Text2Speech, WrongOptionsAreNamed)
{
    EXPECT_EQ(result({}), hintBehind("no file given (-f FILE.wav)"));
    EXPECT_EQ(result({"-f", "out.wav"}), hintBehind("no text given (-t TEXT)"));
    EXPECT_EQ(result({"-f", "out.wav", "-t", ""}), hintBehind("no text given (-t TEXT)"));
    EXPECT_EQ(result({"-f"}), hintBehind("the option -f needs a value"));
    EXPECT_EQ(result({"-x"}), hintBehind("unknown option '-x'"));
    EXPECT_EQ(result({"Moo"}), hintBehind("unknown option 'Moo'"));
    EXPECT_EQ(result({"-g", "x"}), hintBehind("the sex must be 'f' or 'm', not 'x'"));
    for (const std::string age : {"0", "100", "x", "5x", "", "99999999999"}) {
        EXPECT_EQ(result({"-a", age}),
                  hintBehind("the age must be a number from 1 to 99, not '" + age + "'"));
    }
}

// Where the installer for Windows puts it.
TEST_F(Text2Speech, ASynthesiserThatIsNotOnPathIsFoundBelowTheProgramsFolder)
{
    const TemporaryFolder programs;
    const FakeProgram installed(programs.file("eSpeak NG"), "espeak-ng", kVoices + "exit 3\n");
    EXPECT_EQ(resultOf(run({"-f", "out.wav", "-t", "Moo"},
                           {"PATH=" + folder.path(), "ProgramFiles=" + programs.path()})),
              failure("espeak-ng failed with status 3"));
    EXPECT_EQ(installed.callCount(), 2);
}

TEST_F(WithFakeEspeak, GetsTheTextOnItsStandardInputAsItStands)
{
    const std::string text = "-" + std::string(100000, 'x') + " \"quoted\" a\\b [[x]] $HOME\n";
    speakWith("keepinput\n", text);
    EXPECT_EQ(readFile(espeak.path() + ".input"), text);
}

TEST_F(WithFakeEspeak, IsGivenVoiceVariantAndPitchButNoText)
{
    speakWith("");
    EXPECT_THAT(espeak.calls(),
                StartsWith("--voices\n\n--stdin\n-b\n1\n-v\nen+m3\n-p\n50\n--stdout\n"));
    EXPECT_THAT(espeak.calls(), testing::Not(HasSubstr("Moo")));
}

TEST_F(WithFakeEspeak, ItsComplaintIsPassedOnAndNoFileStays)
{
    EXPECT_EQ(speakWith("print half a sound\nerror Out of breath.\nexit 3\n"),
              failure("espeak-ng failed with status 3: Out of breath."));
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(WithFakeEspeak, ACrashLeavesTheOldFile)
{
    writeFile(folder.file("out.wav"), "old");
    EXPECT_EQ(speakWith("print half a sound\ncrash\n"), failure("espeak-ng crashed"));
    EXPECT_EQ(readFile(folder.file("out.wav")), "old");
    EXPECT_EQ(folder.listing(), "out.wav");
}

TEST_F(WithFakeEspeak, WithoutAHeaderThereIsNoSound)
{
    EXPECT_EQ(speakWith("print no sound\n"), failure("what espeak-ng made is no WAV file"));
    EXPECT_EQ(speakWith(""), failure("espeak-ng made no sound"));
    EXPECT_EQ(folder.listing(), "");
}
