#include <gmock/gmock.h>

#include "base/PlatformProcess.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/Sound.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <sstream>

using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

const std::string kSeparator(1, Platform::searchPathSeparator);
const std::string kProgram = PLINKETT_BIN_DIR "/tools/text2speech_win/Text2Speech";
const std::string kSentence = "The cow lives on the green meadow behind our farm house.";

std::string littleEndian(unsigned number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(number >> (8 * i));
    }
    return text;
}

// Mono, 16 bits, 16000 Hz; the header tells the length that is given.
std::string wav(unsigned samples, unsigned toldLength, const std::string& behind = "")
{
    const std::string head = "WAVEfmt " + littleEndian(16, 4) + littleEndian(1, 2) +
                             littleEndian(1, 2) + littleEndian(16000, 4) + littleEndian(32000, 4) +
                             littleEndian(2, 2) + littleEndian(16, 2);
    const std::string data = "data" + littleEndian(toldLength, 4) + std::string(2 * samples, 'x');
    const std::string all = head + data + behind;
    return "RIFF" + littleEndian(static_cast<unsigned>(all.size()), 4) + all;
}

// With a settings file and a stand-in named "talker" on PATH, speaking into out.wav of a folder.
class OtherEngine : public testing::Test
{
protected:
    OtherEngine() { fs::create_directory(settings.file("plinkett")); }

    void set(const std::string& text) const { writeFile(settingsFile, text); }

    ProgramRun run(const std::vector<std::string>& words,
                   std::vector<std::string> environment = {}) const
    {
        environment.insert(environment.begin(),
                           {std::string(kUserSettings) + "=" + settings.path(), "PATH=" + path});
        return runProgram(kProgram, words, environment, folder.path());
    }

    std::string speak(const std::string& text = "Moo") const
    {
        return resultOf(run({"-q", "-f", "out.wav", "-t", text}));
    }

    // Has talker speak for English, as planned.
    std::string speakBy(const std::string& command, const std::string& plan,
                        const std::string& text = "Moo") const
    {
        set("[en]\ncommand = " + command + "\n");
        talker.plan(plan);
        return speak(text);
    }

    std::string failure(const std::string& message) const
    {
        return "status 1\nstderr: Text2Speech: " + message + "\n";
    }

    // Of the command.
    std::string failureAtLine2(const std::string& message) const
    {
        return failure(settingsFile + ", line 2: " + message);
    }

    std::string spoken() const { return readFile(folder.file("out.wav")); }

    // A file that the stand-in can bring.
    std::string kept(const std::string& bytes) const
    {
        writeFile(tools.file("sound"), bytes);
        return tools.file("sound");
    }

    const TemporaryFolder folder;
    const TemporaryFolder settings;
    const TemporaryFolder tools;
    const std::string settingsFile = settings.file("plinkett/engines.ini");
    const std::string path = tools.path() + kSeparator + "/usr/bin" + kSeparator + "/bin";
    const FakeProgram talker{tools.path(), "talker"};
};

}  // namespace

// --- What it is given and what it gives ----------------------------------------------------------

TEST_F(OtherEngine, WritesTheFileItIsTold)
{
    const std::string sound = wav(100, 200);
    EXPECT_EQ(speakBy("talker -t {text} -o {wav}", "copy 4 " + kept(sound)), "status 0\n");
    EXPECT_EQ(spoken(), sound);
    EXPECT_EQ(folder.listing(), "out.wav");
    EXPECT_THAT(talker.calls(), StartsWith("-t\nMoo\n-o\n/"));
    EXPECT_THAT(talker.calls(), HasSubstr(".wav\n\n"));
}

TEST_F(OtherEngine, WithoutAFileItsStandardOutputIsTheSound)
{
    const std::string sound = wav(50000, 100000);
    EXPECT_EQ(speakBy("talker {text}", "show " + kept(sound)), "status 0\n");
    EXPECT_EQ(spoken(), sound);
}

TEST_F(OtherEngine, WhatItPrintsBesideWritingItsFileIsNoSound)
{
    const std::string sound = wav(100, 200);
    EXPECT_EQ(speakBy("talker {text} {wav}", "print chatter\ncopy 2 " + kept(sound)), "status 0\n");
    EXPECT_EQ(spoken(), sound);
}

TEST_F(OtherEngine, GetsTheTextInAFileThatIsGoneAfterwards)
{
    const std::string text = "-5° \"Grüße\" {wav}\nzwei Zeilen";
    EXPECT_EQ(speakBy("talker {textfile}", "keep 1\nshow " + kept(wav(1, 2)), text), "status 0\n");
    EXPECT_EQ(readFile(talker.path() + ".kept"), text);
    std::istringstream calls(talker.calls());
    std::string file;
    std::getline(calls, file);
    EXPECT_THAT(file, StartsWith("/"));
    EXPECT_FALSE(fs::exists(fs::path(file).parent_path()));
}

TEST_F(OtherEngine, GetsTheTextOnStandardInputWhereTheCommandHasNone)
{
    EXPECT_EQ(speakBy("talker {wav}", "keepinput\ncopy 1 " + kept(wav(1, 2)), "-Grüße"),
              "status 0\n");
    EXPECT_EQ(readFile(talker.path() + ".input"), "-Grüße");
    EXPECT_EQ(speakBy("talker {text} {wav}", "keepinput\ncopy 2 " + kept(wav(1, 2))), "status 0\n");
    EXPECT_EQ(readFile(talker.path() + ".input"), "");
}

TEST_F(OtherEngine, GetsTheTextAsOneWordAndNoShell)
{
    const std::string text = "\"a\" $HOME `ls`; {voice} 'b' \\";
    speakBy("talker --say={text}", "show " + kept(wav(1, 2)), text);
    EXPECT_EQ(talker.calls(), "--say=" + text + "\n\n");
}

TEST_F(OtherEngine, ATextThatBeginsWithADashIsNoOption)
{
    speakBy("talker {text}", "show " + kept(wav(1, 2)), "--help");
    EXPECT_EQ(talker.calls(), " --help\n\n");
}

TEST_F(OtherEngine, GetsLanguageSexAgeAndItsOwnNameOfTheVoice)
{
    set("[en]\ncommand = talker {language} {sex} {age} {voice}\nfemale = the lady\nmale = he\n");
    talker.plan("show " + kept(wav(1, 2)));
    run({"-v", "en-US", "-g", "f", "-a", "40", "-f", "out.wav", "-t", "Moo"});
    EXPECT_EQ(talker.calls(), "en-us\nf\n40\nthe lady\n\n");
}

TEST_F(OtherEngine, GetsSpeedAndPitchFromTheEnvironment)
{
    set("[en]\ncommand = talker {speed} {pitch}\nspeed = 1.6, 1.3, 1, 0.8, 0.6\n");
    talker.plan("show " + kept(wav(1, 2)));
    const std::vector<std::string> words = {"-f", "out.wav", "-t", "Moo"};
    run(words, {"TEXT2SPEECH_SPEED=5", "TEXT2SPEECH_PITCH=1"});
    run(words, {"TEXT2SPEECH_SPEED=rubbish", "TEXT2SPEECH_PITCH=100"});
    EXPECT_EQ(talker.calls(), "0.6\n1\n\n1\n3\n\n");
}

TEST_F(OtherEngine, LengthsThatAPipeLeftOpenAreSetRight)
{
    for (const unsigned told : {0U, 0xFFFFFFFFU, 0x7FFFFFFFU, 201U}) {
        EXPECT_EQ(speakBy("talker {text}", "show " + kept(wav(100, told))), "status 0\n");
        EXPECT_EQ(spoken(), wav(100, 200)) << told;
    }
}

TEST_F(OtherEngine, WhatStandsBehindTheSamplesStays)
{
    const std::string sound = wav(100, 200, "LIST" + littleEndian(4, 4) + "INFO");
    EXPECT_EQ(speakBy("talker {text}", "show " + kept(sound)), "status 0\n");
    EXPECT_EQ(spoken(), sound);
}

// --- Who speaks ----------------------------------------------------------------------------------

TEST_F(OtherEngine, LanguagesThatTheFileDoesNotNameAreSpokenByEspeak)
{
    set("[de]\ncommand = talker {text}\n");
    EXPECT_EQ(speak(), "status 0\n");
    EXPECT_EQ(talker.calls(), "");
    EXPECT_GT(readSound(folder.file("out.wav")).seconds(), 0.1);
}

TEST_F(OtherEngine, TheFileBesideTheProgramCountsWhereTheUserHasNone)
{
    const std::string copy = tools.file(programFile("Text2Speech"));
    fs::copy_file(programFile(kProgram), copy);
    writeFile(tools.file("engines.ini"), "[en]\ncommand = beside\n[de]\ncommand = beside\n");
    set("[en]\ncommand = users\n");
    const std::string home = std::string(kUserSettings) + "=" + settings.path();
    EXPECT_EQ(resultOf(runProgram(copy, {"-e", "-v", "en"}, {home})), "status 0\nusers\n");
    EXPECT_EQ(resultOf(runProgram(copy, {"-e", "-v", "de"}, {home})), "status 0\nbeside\n");
}

TEST_F(OtherEngine, TellsTheEngineOfAVoice)
{
    set("[en]\ncommand = talker {voice} {speed} {text}\nfemale = slt\nmale = awb\n");
    EXPECT_EQ(resultOf(run({"-e", "-v", "en", "-g", "f"}, {"TEXT2SPEECH_SPEED=4"})),
              "status 0\ntalker slt 4 {text}\n");
    EXPECT_EQ(resultOf(run({"-e", "-v", "de"})), "status 0\nespeak-ng\n");
}

TEST_F(OtherEngine, ListsTheLanguagesOfAllEngines)
{
    set("[en]\ncommand = talker {text}\n[klingon]\ncommand = talker {text}\n");
    const ProgramRun list = run({"-l"});
    EXPECT_EQ(list.status, 0);
    EXPECT_THAT(list.out, HasSubstr("\nde                   German\n"));
    EXPECT_THAT(list.out, HasSubstr("\nen-gb                English (Great Britain), by talker\n"));
    EXPECT_THAT(list.out, HasSubstr("\nklingon              by talker\n"));
}

TEST_F(OtherEngine, AnEngineForAllLanguagesIsListedToo)
{
    set("[*]\ncommand = talker {text}\n[de]\ncommand = espeak-ng\n");
    const ProgramRun list = run({"-l"});
    EXPECT_THAT(list.out, StartsWith("*                    by talker\n"));
    EXPECT_THAT(list.out, HasSubstr("\nde                   German\n"));
    EXPECT_THAT(list.out, HasSubstr("\nfr                   French (France), by talker\n"));
}

TEST_F(OtherEngine, IsListedAlsoWithoutEspeak)
{
    set("[en]\ncommand = talker {text}\n");
    EXPECT_EQ(resultOf(run({"-l"}, {"PATH=" + tools.path()})),
              "status 1\nen                   by talker\n"
              "stderr: Text2Speech: espeak-ng is not installed (it is not on PATH)\n");
}

// --- What can go wrong ---------------------------------------------------------------------------

TEST_F(OtherEngine, AWrongSettingsFileIsNamedAndNobodySpeaks)
{
    const std::string expected =
        failure(settingsFile + ", line 1: neither [language] nor key = value");
    set("rubbish\n");
    EXPECT_EQ(speak(), expected);
    EXPECT_EQ(resultOf(run({"-l"})), expected);
    EXPECT_EQ(resultOf(run({"-e"})), expected);
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(OtherEngine, AMissingProgramIsNamed)
{
    EXPECT_EQ(speakBy("singer {text}", ""),
              failureAtLine2("singer is not installed (it is not on PATH)"));
    EXPECT_EQ(speakBy("/opt/no/singer {text}", ""),
              failureAtLine2("the program '/opt/no/singer' is not there"));
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(OtherEngine, AProgramThatCannotBeStartedIsNamed)
{
    writeFile(tools.file("broken"), "\x7F no program");
    fs::permissions(tools.file("broken"), fs::perms::owner_all);
    EXPECT_THAT(speakBy("broken {text}", ""),
                StartsWith("status 1\nstderr: Text2Speech: " + settingsFile +
                           ", line 2: broken cannot be started: "));
}

TEST_F(OtherEngine, ItsComplaintIsPassedOnAndTheOldFileStays)
{
    writeFile(folder.file("out.wav"), "old");
    EXPECT_EQ(speakBy("talker {text}", "print half\nerror No such\nerror  voice.\nexit 3\n"),
              failureAtLine2("talker failed with status 3: No such voice."));
    EXPECT_EQ(speakBy("talker {text}", "print half\ncrash\n"), failureAtLine2("talker crashed"));
    EXPECT_EQ(readFile(folder.file("out.wav")), "old");
    EXPECT_EQ(folder.listing(), "out.wav");
}

TEST_F(OtherEngine, OfALongComplaintTheEndIsPassedOn)
{
    const std::string chatter = "error " + std::string(499, 'x') + "\n";
    EXPECT_EQ(
        speakBy("talker {text}", chatter + chatter + "error cause\nexit 1\n"),
        failureAtLine2("talker failed with status 1: ..." + std::string(494, 'x') + " cause"));
}

TEST_F(OtherEngine, WithoutASoundItSaysSo)
{
    EXPECT_EQ(speakBy("talker {text} {wav}", ""), failureAtLine2("talker made no sound"));
    EXPECT_EQ(speakBy("talker {text}", ""), failureAtLine2("talker made no sound"));
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(OtherEngine, ASoundOfAnotherKindIsRefused)
{
    const std::string expected = failureAtLine2("what talker made is no WAV file");
    EXPECT_EQ(speakBy("talker {text} {wav}", "write 2 OggS and so on"), expected);
    EXPECT_EQ(speakBy("talker {text}", "show " + kept("RIFF1234AVI " + std::string(100, 'x'))),
              expected);
    EXPECT_EQ(speakBy("talker {text}", "show " + kept("RIFF1234WAVE")), expected);
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(OtherEngine, AFolderThatIsNotThereIsNamed)
{
    set("[en]\ncommand = talker {text}\n");
    EXPECT_EQ(resultOf(run({"-f", "no/out.wav", "-t", "Moo"})),
              failureAtLine2("the folder 'no' does not exist"));
}

TEST_F(OtherEngine, WithoutAPlaceForTheTextItSaysSo)
{
    set("[en]\ncommand = talker {textfile}\n");
    const ProgramRun result = run({"-f", "out.wav", "-t", "Moo"}, {"TMPDIR=/proc"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, StartsWith("Text2Speech: " + settingsFile +
                                       ", line 2: the text cannot be written into a file: "));
    EXPECT_EQ(talker.calls(), "");
}

// --- A real one ----------------------------------------------------------------------------------

TEST_F(OtherEngine, FliteSpeaksEnglish)
{
    set("[en]\ncommand = flite -voice {voice} -f {textfile} -o {wav}\nfemale = slt\nmale = rms\n");
    const auto pitchOf = [&](const std::string& sex) {
        EXPECT_EQ(resultOf(run({"-q", "-g", sex, "-f", "out.wav", "-t", kSentence})), "status 0\n");
        const Sound sound = readSound(folder.file("out.wav"));
        EXPECT_EQ(sound.rate, 16000);
        EXPECT_GT(sound.seconds(), 2);
        EXPECT_GT(sound.loudness(), 0.02);
        return sound.pitch();
    };
    EXPECT_GT(pitchOf("f"), 1.3 * pitchOf("m"));
}

TEST_F(OtherEngine, FliteSpeaksFasterWhereTheCommandAsksForIt)
{
    set("[en]\ncommand = flite --setf duration_stretch={speed} -f {textfile} -o {wav}\n"
        "speed = 1.6, 1.3, 1, 0.8, 0.6\n");
    const auto lengthAt = [&](const std::string& speed) {
        run({"-f", "out.wav", "-t", kSentence}, {"TEXT2SPEECH_SPEED=" + speed});
        return readSound(folder.file("out.wav")).seconds();
    };
    EXPECT_GT(lengthAt("1"), 2 * lengthAt("5"));
}
