#include "publish/SoundFiles.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "sound/SoundFile.h"
#include "speech/SpeechIndex.h"
#include "tests/helpers/CoreApplication.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/programs/RecordingRunner.h"
#include "tests/sound/WavFile.h"

namespace fs = std::filesystem;
using Platform::nativePath;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string kSeparator(1, Platform::searchPathSeparator);

// A project of the product 900 in a folder of its own, with texts to speak, and stand-ins for the
// two programs.
class SoundFiles : public testing::Test
{
protected:
    SoundFiles()
    {
        project.projectPath = folder.path() + "\\book.oidpro";
        runner.program = [this] { return run(); };
    }

    void say(const std::string& audioName, const std::string& voice, const std::string& text)
    {
        project.compiler.talkTexts[audioName] = {voice, text};
    }

    std::string audio(const std::string& name) const { return folder.file("900-audio/" + name); }

    SpeechOutcome create() { return createSoundFiles(project, runner); }

    // Speech writes its WAV file and ffmpeg its OGG file, unless they are to fail.
    int run() const
    {
        const RecordingRunner::Words& command = runner.commands.back();
        const bool speaks = command.front() == "Text2Speech.exe";
        if (speaks ? speechStatus == 0 : soundIsWritten) {
            const auto file = command.end() - (speaks ? 3 : 1);
            writeFile(*file, speaks ? speech : converted);
        }
        return speaks ? speechStatus : soundStatus;
    }

    const TemporaryFolder folder;
    const ChangedVariable pathAfterwards{"PATH", Platform::searchPath()};
    Oid::OidProject project;
    RecordingRunner runner;
    std::string speech = "speech";    // what the speech program writes
    std::string converted = "sound";  // what the converter writes
    int speechStatus = 0;
    int soundStatus = 0;
    bool soundIsWritten = true;
};

}  // namespace

TEST_F(SoundFiles, WithoutFfmpegSpeechBecomesWhatThePenPlaysAllTheSame)
{
    const TemporaryFolder noPrograms;
    const ChangedVariable path("PATH", noPrograms.path());
    speech = wavFile(2, 44100, tone(2, 44100, 440, 1));
    say("say_eve_Hi", "eve", "Hi");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 1U);
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.wav")));
    SoundFile sound(audio("say_eve_Hi.ogg"));
    ASSERT_EQ(sound.state(), SoundFile::State::good);
    EXPECT_TRUE(sound.isOggVorbis());
    EXPECT_EQ(sound.channels(), 1);
    EXPECT_EQ(sound.rate(), 22050);
    EXPECT_NEAR(sound.seconds(), 1, 0.01);

    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);  // and is known as spoken
    EXPECT_EQ(runner.commands.size(), 0U);
}

TEST_F(SoundFiles, WithoutFfmpegWhatIsNoSoundIsLeftToIt)
{
    const TemporaryFolder noPrograms;
    const ChangedVariable path("PATH", noPrograms.path());
    say("say_eve_Hi", "eve", "Hi");
    soundIsWritten = false;
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    ASSERT_EQ(runner.commands.size(), 2U);
    EXPECT_EQ(runner.commands[1].front(), "ffmpeg.exe");
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "speech");
}

TEST_F(SoundFiles, EveryTextIsSpokenAndConverted)
{
    project.compiler.voices["max"] = {"de", false, 40, 3, 3};
    say("say_eve_Hi", "eve", "Hi");
    say("say_max_Gr_n", "max", "Grün, \\o/ \"so\" 100% 'sure'");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    const std::string eve = audio("say_eve_Hi");
    const std::string max = audio("say_max_Gr_n");
    EXPECT_THAT(runner.commands,
                ElementsAre(commandWords("Text2Speech.exe -q -v en -a 30 -g f -f \"" + eve +
                                         ".wav\" -t \"Hi\""),
                            commandWords("ffmpeg.exe -hide_banner -loglevel error -i \"" + eve +
                                         ".wav\" -ar 22050 -ac 1 \"" + eve + ".ogg\""),
                            commandWords("Text2Speech.exe -q -v de -a 40 -g m -f \"" + max +
                                         ".wav\" -t \"Grün, \\o/ \"so\" 100% 'sure'\""),
                            commandWords("ffmpeg.exe -hide_banner -loglevel error -i \"" + max +
                                         ".wav\" -ar 22050 -ac 1 \"" + max + ".ogg\"")));
    EXPECT_EQ(runner.shown(), "");
}

TEST_F(SoundFiles, ATextWithQuotesAndBlanksStaysOneArgument)
{
    say("say_eve_a", "eve", "a=\"b c\" \"");
    create();
    EXPECT_EQ(runner.commands.front().back(), "a=\"b c\" \"");
}

TEST_F(SoundFiles, OnlyTheOggFileStays)
{
    say("say_eve_Hi", "eve", "Hi");
    create();
    EXPECT_EQ(folder.listing(), "900-audio");
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), "sound");
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.wav")));
}

TEST_F(SoundFiles, WithoutTextsOnlyThePathIsChanged)
{
    Platform::setEnvironmentVariable("PATH", "/bin");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_NE(Platform::searchPath(), "/bin");
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(folder.listing(), "");
}

TEST_F(SoundFiles, TheFoldersOfTheToolsComeFirstOnPathAndOnlyOnce)
{
    const std::string before = "/bin" + kSeparator + "/usr/bin";
    Platform::setEnvironmentVariable("PATH", before);
    const std::string tools = FileSystem::exeDirectory() + "/tools/";
    const std::string expected = nativePath(tools + "text2speech_win") + kSeparator +
                                 nativePath(tools + "ffmpeg/bin") + kSeparator + before;
    create();
    EXPECT_EQ(Platform::searchPath(), expected);
    create();
    EXPECT_EQ(Platform::searchPath(), expected);
}

TEST_F(SoundFiles, AnotherSynthesiserMayStandBeforeOursOnPath)
{
    const std::string path = "/my/tools" + kSeparator +
                             nativePath(FileSystem::exeDirectory() + "/tools/text2speech_win") +
                             kSeparator + "/bin";
    Platform::setEnvironmentVariable("PATH", path);
    create();
    EXPECT_EQ(Platform::searchPath(), path);
}

TEST_F(SoundFiles, ASecondBuildStartsNothing)
{
    say("say_eve_Hi", "eve", "Hi");
    create();
    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_THAT(runner.commands, IsEmpty());
}

TEST_F(SoundFiles, AFileOfTheAuthorStaysWhateverTheTextIs)
{
    fs::create_directory(folder.file("900-audio"));
    writeFile(audio("say_eve_Hi_.ogg"), "my voice");
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    say("say_eve_Hi_", "eve", "Hi?");
    create();
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(readFile(audio("say_eve_Hi_.ogg")), "my voice");
    fs::remove(audio("say_eve_Hi_.ogg"));
    create();
    EXPECT_EQ(runner.commands.size(), 2U);
}

TEST_F(SoundFiles, AChangedTextUnderTheSameNameIsSpokenAgain)
{
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    say("say_eve_Hi_", "eve", "Hi?");
    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 2U);
    EXPECT_EQ(runner.commands.front().back(), "Hi?");
    EXPECT_EQ(runner.shown(), "The audio file of 'Hi?' says 'Hi!' and is made again\n");
    runner.commands.clear();
    create();
    EXPECT_THAT(runner.commands, IsEmpty());
}

TEST_F(SoundFiles, WhatIsOutOfDateIsRemovedBeforeAnythingIsSpoken)
{
    say("b", "eve", "B");
    say("c", "eve", "C");
    create();
    say("a", "eve", "A");
    say("b", "eve", "B!");
    say("c", "eve", "C!");
    bool wereThere = false;
    runner.program = [&] {
        wereThere = wereThere || (runner.commands.size() == 5 && fs::exists(audio("c.ogg")));
        return run();
    };
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_FALSE(wereThere);
    EXPECT_EQ(runner.shown(), "The audio file of 'B!' says 'B' and is made again\n"
                              "The audio file of 'C!' says 'C' and is made again\n");
    EXPECT_EQ(runner.commands.size(), 10U);
}

TEST_F(SoundFiles, AVoiceWithAnotherLanguageSexOrAgeSpeaksAgain)
{
    project.compiler.voices["max"] = {"en", false, 40, 3, 3};
    say("say_max_Hi", "max", "Hi");
    create();
    const std::vector<ttbasic::VOICE> changes = {
        {"de", false, 40, 3, 3}, {"de", true, 40, 3, 3}, {"de", true, 41, 3, 3}};
    std::string expected;
    for (const ttbasic::VOICE& voice : changes) {
        project.compiler.voices["max"] = voice;
        runner.commands.clear();
        create();
        EXPECT_EQ(runner.commands.size(), 2U);
        expected += "The audio file of 'Hi' has another voice and is made again\n";
        EXPECT_EQ(runner.shown(), expected);
    }
}

TEST_F(SoundFiles, SpeedAndPitchThatNobodyHearsMakeNothingAnew)
{
    project.compiler.voices["max"] = {"en", false, 40, 3, 3};
    say("say_max_Hi", "max", "Hi");
    create();
    project.compiler.voices["max"] = {"en", false, 40, 5, 1};
    runner.commands.clear();
    create();
    EXPECT_THAT(runner.commands, IsEmpty());
}

TEST_F(SoundFiles, AProductWithAnotherNameIsWelcomedAgain)
{
    project.productName = "Zoo";
    project.compiler.prepareWelcomeMessage(project.productName);
    create();
    project.productName = "Farm";
    compileScript(project.compiler, false);
    project.compiler.prepareWelcomeMessage(project.productName);
    create();
    EXPECT_EQ(runner.shown(),
              "The audio file of 'Farm. Start.' says 'Zoo. Start.' and is made again\n");
    EXPECT_EQ(runner.commands.at(2).back(), "Farm. Start.");
}

TEST_F(SoundFiles, ARecordingInThePlaceOfASpokenFileStays)
{
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    writeFile(audio("say_eve_Hi_.ogg"), "my own voice");
    say("say_eve_Hi_", "eve", "Hi?");
    runner.commands.clear();
    create();
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(readFile(audio("say_eve_Hi_.ogg")), "my own voice");
    EXPECT_EQ(runner.shown(), "");
}

TEST_F(SoundFiles, ARecordingOfTheSameSizeStays)
{
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    writeFile(audio("say_eve_Hi_.ogg"), "SOUND");
    setTime(audio("say_eve_Hi_.ogg"), "2024-05-31 14:05:40");
    say("say_eve_Hi_", "eve", "Hi?");
    create();
    EXPECT_EQ(readFile(audio("say_eve_Hi_.ogg")), "SOUND");
}

TEST_F(SoundFiles, ASpokenFileThatWasTouchedIsStillMadeAgain)
{
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    setTime(audio("say_eve_Hi_.ogg"), "2024-05-31 14:05:40");
    say("say_eve_Hi_", "eve", "Hi?");
    create();
    EXPECT_EQ(runner.shown(), "The audio file of 'Hi?' says 'Hi!' and is made again\n");
}

TEST_F(SoundFiles, AFileThatAppearsMeanwhileIsNotOverwritten)
{
    say("say_eve_Hi", "eve", "Hi");
    runner.program = [&] {
        writeFile(audio("say_eve_Hi.ogg"), "my voice");
        return run();
    };
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 1U);
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), "my voice");
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.wav")));
}

TEST_F(SoundFiles, WithADamagedIndexNothingIsRemoved)
{
    const std::string index = audio("speech-index.json");
    say("say_eve_Hi_", "eve", "Hi!");
    create();
    writeFile(index, "oops");
    say("say_eve_Hi_", "eve", "Hi?");
    runner.commands.clear();
    const std::string warning =
        "Warning: The file '" + index + "' is damaged: files that were spoken count as your own\n";
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(runner.shown(), warning);
    EXPECT_EQ(readFile(index), "oops");

    say("say_eve_Ho", "eve", "Ho");
    create();
    EXPECT_EQ(runner.shown(), warning + warning);
    EXPECT_EQ(readFile(index + ".damaged"), "oops");
    create();
    EXPECT_EQ(runner.shown(), warning + warning);
}

namespace {

// Until its end a file can be read, and nothing can be put into its place: it leads into a folder
// that is gone.
class Unwritable
{
public:
    explicit Unwritable(const std::string& path)
    {
        const TemporaryFolder gone;
        fs::copy_file(path, gone.file("file"));
        file = fopen(gone.file("file").c_str(), "r");
        fs::remove(path);
        fs::create_symlink("/proc/self/fd/" + std::to_string(fileno(file)), path);
    }
    ~Unwritable() { fclose(file); }
    Unwritable(const Unwritable&) = delete;
    Unwritable& operator=(const Unwritable&) = delete;

private:
    FILE* file;
};

}  // namespace

TEST_F(SoundFiles, WithAnIndexThatCannotBeWrittenNothingIsRemoved)
{
    const std::string index = audio("speech-index.json");
    say("a", "eve", "A");
    say("b", "eve", "B");
    create();
    const Unwritable unwritable(index);
    say("a", "eve", "A!");
    say("b", "eve", "B!");
    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(audio("a.ogg")), "sound");
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(runner.shown(), "Error: Can't write file '" + index +
                                  "', so audio files that are out of date stay\n");
}

TEST_F(SoundFiles, ThatTheIndexCannotBeWrittenIsToldOnce)
{
    const std::string index = audio("speech-index.json");
    say("a", "eve", "A");
    create();
    const Unwritable unwritable(index);
    say("c", "eve", "C");
    say("d", "eve", "D");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.shown(), "Error: Can't write file '" + index +
                                  "', so the files that are spoken now count as your own\n");
    EXPECT_TRUE(fs::exists(audio("d.ogg")));
}

TEST_F(SoundFiles, TheLastTextsThatAreStoppedAreCancelled)
{
    say("say_eve_A", "eve", "A");
    speechStatus = soundStatus = 1;
    const auto isEnough = [](int done, int total) { return done < total; };
    EXPECT_EQ(createSoundFiles(project, runner, isEnough), SpeechOutcome::cancelled);
    speechStatus = soundStatus = 0;
    EXPECT_EQ(createSoundFiles(project, runner, isEnough), SpeechOutcome::complete);
}

TEST_F(SoundFiles, WhatWasMadeBeforeACancelIsOurs)
{
    say("say_eve_A_", "eve", "A");
    say("say_eve_B", "eve", "B");
    createSoundFiles(project, runner, [](int done, int) { return done < 1; });
    say("say_eve_A_", "eve", "A!");
    create();
    EXPECT_EQ(runner.shown(), "The audio file of 'A!' says 'A' and is made again\n");
}

TEST_F(SoundFiles, AfterAFailedConversionTheSpeechStaysAndIsMadeAgain)
{
    say("say_eve_Hi", "eve", "Hi");
    soundStatus = 1;
    soundIsWritten = false;
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_EQ(runner.shown(), "Error: The text 'Hi' has no audio file\n");
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "speech");
    soundStatus = 0;
    soundIsWritten = true;
    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 2U);
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.wav")));
}

TEST_F(SoundFiles, ASpeechFileOfTheAuthorsBecomesTheAudioFileAndStays)
{
    say("say_eve_Hi", "eve", "Hi");
    say("say_eve_Moo", "eve", "Moo");
    fs::create_directory(audio(""));
    writeFile(audio("say_eve_Hi.wav"), "my voice");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    const std::string hi = audio("say_eve_Hi");
    EXPECT_EQ(runner.commands.size(), 3U);
    EXPECT_EQ(runner.commands.front(),
              RecordingRunner::Words({"ffmpeg.exe", "-hide_banner", "-loglevel", "error", "-i",
                                      hi + ".wav", "-ar", "22050", "-ac", "1", hi + ".ogg"}));
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "my voice");
    EXPECT_EQ(runner.shown(),
              "The audio file of 'Hi' is made of your own '" + audio("say_eve_Hi.wav") + "'\n");
    SpeechIndex index(folder.file("900-audio"));
    EXPECT_EQ(index.spokenInto("say_eve_Hi"), nullptr);
    EXPECT_NE(index.spokenInto("say_eve_Moo"), nullptr);
}

TEST_F(SoundFiles, ASpeechFileOfTheAuthorsThatCannotBeConvertedStays)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    writeFile(audio("say_eve_Hi.wav"), "no sound");
    soundStatus = 1;
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_EQ(runner.commands.size(), 1U);
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "no sound");
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.ogg")));
    EXPECT_EQ(runner.shown(), "Error: The text 'Hi' has no audio file\n");
}

// After a build in which the conversion failed the author has put a recording there.
TEST_F(SoundFiles, ARecordingInThePlaceOfALeftSpeechFileStays)
{
    say("say_eve_Hi", "eve", "Hi");
    soundStatus = 1;
    soundIsWritten = false;
    create();
    writeFile(audio("say_eve_Hi.wav"), "my voice");
    soundStatus = 0;
    soundIsWritten = true;
    runner.commands.clear();
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 1U);
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "my voice");
}

TEST_F(SoundFiles, WhatAKilledBuildHasLeftOfSpeechIsMadeAgain)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    SpeechIndex index(folder.file("900-audio"));
    index.expectSpeech("say_eve_Hi");
    ASSERT_TRUE(index.save());
    writeFile(audio("say_eve_Hi.wav"), "spe");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(runner.commands.size(), 2U);
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.wav")));
    EXPECT_FALSE(SpeechIndex(folder.file("900-audio")).isSpeechOurs("say_eve_Hi"));
}

// It is noted before the first program starts.
TEST_F(SoundFiles, SpeechIsNotedAsOursBeforeItIsWritten)
{
    say("say_eve_Hi", "eve", "Hi");
    bool isNoted = false;
    runner.program = [&] {
        isNoted = isNoted || SpeechIndex(folder.file("900-audio")).isSpeechOurs("say_eve_Hi");
        return run();
    };
    create();
    EXPECT_TRUE(isNoted);
}

TEST_F(SoundFiles, HalfAnOggFileOfAFailedConversionIsRemoved)
{
    say("say_eve_Hi", "eve", "Hi");
    soundStatus = 1;
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_FALSE(fs::exists(audio("say_eve_Hi.ogg")));
    EXPECT_TRUE(fs::exists(audio("say_eve_Hi.wav")));
}

// Ogg files of one page each, as they are written by a converter.
static std::string oggPage(bool isLast)
{
    std::string page(27, '\0');
    page.replace(0, 4, "OggS");
    page[5] = isLast ? 4 : 0;
    page[26] = 1;
    return page + '\5' + "sound";
}

// As on a full disk.
TEST_F(SoundFiles, HalfAnOggFileIsRemovedAlsoWhenTheConverterSaysThatAllWentWell)
{
    say("say_eve_Hi", "eve", "Hi");
    speech = wavFile(1, 22050, tone(1, 22050, 440, 1));
    for (const std::string& half : {std::string(), oggPage(false)}) {
        converted = half;
        EXPECT_EQ(create(), SpeechOutcome::incomplete);
        EXPECT_FALSE(fs::exists(audio("say_eve_Hi.ogg")));
        EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), speech);
    }
    EXPECT_EQ(runner.shown(), "Error: The text 'Hi' has no audio file\n"
                              "Error: The text 'Hi' has no audio file\n");
    converted = oggPage(true);
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), converted);
}

TEST_F(SoundFiles, HalfAnOggFileOfABuildThatWasKilledIsMadeAgain)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    std::string told;
    for (const std::string& half :
         {std::string(), oggPage(false), oggPage(false) + oggPage(true).substr(0, 30)}) {
        SpeechIndex index(folder.file("900-audio"));
        index.expectSpeech("say_eve_Hi");
        index.save();
        writeFile(audio("say_eve_Hi.wav"), "speech");
        writeFile(audio("say_eve_Hi.ogg"), half);
        EXPECT_EQ(create(), SpeechOutcome::complete);
        EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), "sound");
        told += "The audio file of 'Hi' is cut off and is made again\n";
        EXPECT_EQ(runner.shown(), told);
    }
}

TEST_F(SoundFiles, AWholeOggFileStaysAlsoBesideItsSpeech)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    const std::string whole = oggPage(false) + oggPage(true);
    writeFile(audio("say_eve_Hi.wav"), "speech");
    writeFile(audio("say_eve_Hi.ogg"), whole);
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), whole);
    EXPECT_EQ(runner.shown(), "");
}

TEST_F(SoundFiles, HalfAnOggFileOfTheAuthorsStays)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    writeFile(audio("say_eve_Hi.ogg"), oggPage(false));
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), oggPage(false));
}

TEST_F(SoundFiles, HalfAnOggFileOfTheAuthorsStaysAlsoBesideAWavFile)
{
    say("say_eve_Hi", "eve", "Hi");
    fs::create_directory(audio(""));
    writeFile(audio("say_eve_Hi.wav"), "my voice");
    writeFile(audio("say_eve_Hi.ogg"), oggPage(false));
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(audio("say_eve_Hi.ogg")), oggPage(false));
    EXPECT_EQ(readFile(audio("say_eve_Hi.wav")), "my voice");
}

TEST_F(SoundFiles, AProgramThatDoesNotStartStopsNothing)
{
    say("say_eve_Hi", "eve", "Hi");
    say("say_eve_Ho", "eve", "Ho");
    speechStatus = -1;
    soundStatus = -1;
    soundIsWritten = false;
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_EQ(runner.commands.size(), 4U);
    EXPECT_EQ(runner.shown(), "Error: The text 'Hi' has no audio file\n"
                              "Error: The text 'Ho' has no audio file\n");
}

TEST_F(SoundFiles, ATextThatIsTooLongForAFileNameIsNamed)
{
    const std::string longest(251, 'x');
    say(longest, "eve", "fits");
    say(longest + "y", "eve", "does not fit");
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_EQ(runner.shown(),
              "Error: The text 'does not fit' is too long for the name of an audio file\n");
    EXPECT_EQ(runner.commands.size(), 2U);
    EXPECT_TRUE(fs::exists(audio(longest + ".ogg")));
}

TEST_F(SoundFiles, ATextThatIsTooLongForAnArgumentIsNamedByItsBeginning)
{
    std::string text;
    while (text.size() <= Platform::longestArgument) {
        text += "Grün ";
    }
    say("_welcome_message_text", "eve", text);
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(runner.shown(), "Error: The text '" + text.substr(0, 200) +
                                  "...' is too long for the speech program\n");
}

TEST_F(SoundFiles, ALongTextIsNotCutWithinACharacter)
{
    say("longer", "eve", std::string(199, 'x') + "üü");
    soundStatus = 1;
    create();
    EXPECT_THAT(runner.shown(), HasSubstr("'" + std::string(199, 'x') + "...'"));
}

TEST_F(SoundFiles, ATextOfAHundredThousandLettersIsHandedOver)
{
    const std::size_t size = std::min<std::size_t>(100000, Platform::longestArgument);
    say("_welcome_message_text", "eve", std::string(size, 'x'));
    EXPECT_EQ(create(), SpeechOutcome::complete);
}

TEST_F(SoundFiles, AVoiceThatIsNotDeclaredIsFatal)
{
    say("say_max_Hi", "max", "Hi");
    EXPECT_THROW(create(), std::out_of_range);
}

TEST_F(SoundFiles, TheCurrentFolderIsTheSameAfterwards)
{
    const std::string before = FileSystem::getCurrentDirectory();
    say("say_eve_Hi", "eve", "Hi");
    runner.program = [this] {
        FileSystem::setCurrentDirectory("/");
        return run();
    };
    create();
    EXPECT_EQ(FileSystem::getCurrentDirectory(), before);
}

TEST_F(SoundFiles, ProgressCountsTheNewTexts)
{
    say("say_eve_A", "eve", "A");
    say("say_eve_B", "eve", "B");
    say("say_eve_C", "eve", "C");
    fs::create_directory(folder.file("900-audio"));
    writeFile(audio("say_eve_B.ogg"), "sound");
    std::string seen;
    createSoundFiles(project, runner, [&](int done, int total) {
        seen += std::to_string(done) + "/" + std::to_string(total) + " ";
        return true;
    });
    EXPECT_EQ(seen, "0/2 1/2 2/2 ");
    EXPECT_EQ(runner.shown(), "");
}

TEST_F(SoundFiles, CancellingKeepsWhatIsDone)
{
    say("say_eve_A", "eve", "A");
    say("say_eve_B", "eve", "B");
    const auto untilTheFirst = [](int done, int) { return done < 1; };
    EXPECT_EQ(createSoundFiles(project, runner, untilTheFirst), SpeechOutcome::cancelled);
    EXPECT_TRUE(fs::exists(audio("say_eve_A.ogg")));
    EXPECT_FALSE(fs::exists(audio("say_eve_B.ogg")));
    EXPECT_EQ(runner.commands.size(), 2U);
}

TEST_F(SoundFiles, SpeechIsAskedForLatin1WhereItsOutputIsShownSo)
{
    std::string asked;
    runner.program = [&] {
        if (runner.commands.back().front() == "Text2Speech.exe") {
            asked += runner.surroundings.variables.at("TEXT2SPEECH_LATIN1") + ";";
        }
        return run();
    };
    say("say_eve_Hi", "eve", "Hi");
    create();
    EXPECT_EQ(asked, ";");

    asked.clear();
    runner.latin1 = true;
    say("say_eve_Ho", "eve", "Ho");
    create();
    EXPECT_EQ(asked, "1;");
}

TEST_F(SoundFiles, OurOwnEnvironmentKeepsItsEncoding)
{
    runner.latin1 = true;
    std::string ours;
    runner.program = [&] {
        ours += Platform::environmentVariable("TEXT2SPEECH_LATIN1") + ";";
        return run();
    };
    say("say_eve_Hi", "eve", "Hi");
    create();
    EXPECT_EQ(ours, ";;");
}

TEST_F(SoundFiles, ALanguageThatWouldBeAnOptionOrTwoWordsIsRefused)
{
    std::string expected;
    for (const char* language : {"-w/tmp/x", "de -w", "de\t", ""}) {
        project.compiler.voices["max"] = {language, false, 40, 3, 3};
        say("say_max_Moo", "max", "Moo");
        EXPECT_EQ(create(), SpeechOutcome::incomplete);
        expected += std::string("Error: The text 'Moo' is not spoken: '") + language +
                    "' is not the name of a language\n";
    }
    EXPECT_EQ(runner.shown(), expected);
    EXPECT_THAT(runner.commands, IsEmpty());
}

TEST_F(SoundFiles, LanguagesWithDashesInsideAreSpoken)
{
    project.compiler.voices["max"] = {"en-gb-x-rp", false, 40, 3, 3};
    say("say_max_Moo", "max", "Moo");
    EXPECT_EQ(create(), SpeechOutcome::complete);
}

TEST_F(SoundFiles, NothingIsSpokenThroughALinkThatLeadsOut)
{
    writeFile(folder.file("precious"), "precious");
    fs::create_directory(folder.file("900-audio"));
    fs::create_symlink("../precious", audio("say_eve_Hi.wav"));
    fs::create_symlink("../new", audio("say_eve_Ho.ogg"));
    say("say_eve_Hi", "eve", "Hi");
    say("say_eve_Ho", "eve", "Ho");
    EXPECT_EQ(create(), SpeechOutcome::incomplete);
    EXPECT_EQ(runner.shown(), "Error: The text 'Hi' is not spoken: '" + audio("say_eve_Hi.wav") +
                                  "' leads out of the folder or is no file\n"
                                  "Error: The text 'Ho' is not spoken: '" +
                                  audio("say_eve_Ho.ogg") +
                                  "' leads out of the folder or is no file\n");
    EXPECT_THAT(runner.commands, IsEmpty());
    EXPECT_EQ(readFile(folder.file("precious")), "precious");
}

TEST_F(SoundFiles, TheAudioFolderItselfMayBeALink)
{
    fs::create_directory(folder.file("sounds"));
    fs::create_directory_symlink("sounds", folder.file("900-audio"));
    say("say_eve_Hi", "eve", "Hi");
    EXPECT_EQ(create(), SpeechOutcome::complete);
    EXPECT_EQ(readFile(folder.file("sounds/say_eve_Hi.ogg")), "sound");
}
