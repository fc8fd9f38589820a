#include "recording/BookSounds.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "recording/ReadSound.h"
#include "recording/VoiceFile.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/recording/Voices.h"

#include <filesystem>
#include <gtest/gtest.h>

using Platform::nativePath;
using recording::FileReport;
using recording::Places;
using Done = FileReport::Done;

namespace {

// The audio folder of a book, and sounds that are to come into it.
class BookSoundsTest : public testing::Test
{
protected:
    BookSoundsTest() { FileSystem::createDirectory(folder.file("900-audio")); }

    std::string audio(const std::string& name) { return folder.file("900-audio/" + name); }
    std::string original(const std::string& name) { return audio("originals/" + name); }
    Places places() { return {audio("Moo.ogg"), audio("originals"), true}; }
    std::string listing() { return listingOf(audio("")); }
    std::string originals() { return listingOf(audio("originals")); }

    // A file as ffmpeg makes it of a voice; the suffix says of which kind.
    std::string fileOf(const std::string& name, const MonoSound& sound = voiceOf(2))
    {
        const std::string wav = folder.file("made.wav");
        writeWav(wav, sound);
        EXPECT_EQ(
            runProgram("ffmpeg", {"-y", "-loglevel", "error", "-i", wav, folder.file(name)}).status,
            0);
        return folder.file(name);
    }

    void expectVoice(const std::string& path)
    {
        EXPECT_EQ(kindOf(path), "vorbis 22050 1");
        const Measured level = measuredByFfmpeg(path);
        EXPECT_NEAR(level.loudness, -16, 0.5);
        EXPECT_LE(level.peak, -1.5);
    }

    void expectFailure(const FileReport& report, const std::string& text)
    {
        EXPECT_EQ(report.done, Done::failed);
        EXPECT_EQ(report.text.toStdString(), text);
    }

    static std::string listingOf(const std::string& path)
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        std::string all;
        for (const std::string& name : names) {
            all += (all.empty() ? "" : " ") + name;
        }
        return all;
    }

    TemporaryFolder folder;
};

// ffmpeg is what stands in for it.
class StandInTest : public BookSoundsTest
{
protected:
    StandInTest() { writeFile(folder.file("moo.amr"), "sound of some kind"); }

    FileReport adoptedWith(const std::string& plan)
    {
        ffmpeg.plan(plan);
        return recording::adoptSound(folder.file("moo.amr"), places());
    }

    TemporaryFolder programs;
    ChangedVariable path{"PATH", programs.path()};
    FakeProgram ffmpeg{programs.path(), "ffmpeg"};
};

}  // namespace

TEST_F(BookSoundsTest, AFileBecomesAVoiceAndIsKeptAsItWas)
{
    const std::string wav = folder.file("my moo.wav");
    writeWav(wav, voiceOf(2, 0.05));
    const FileReport report = recording::adoptSound(wav, places());
    EXPECT_EQ(report.done, Done::written);
    EXPECT_EQ(report.text.toStdString(), "Moo.ogg: -16.0 LUFS, before -43.7 LUFS");
    EXPECT_EQ(listing(), "Moo.ogg originals");
    expectVoice(audio("Moo.ogg"));
    EXPECT_EQ(nativePath(report.keptSource), original("Moo.wav"));
    EXPECT_EQ(readFile(original("Moo.wav")), readFile(wav));
    EXPECT_EQ(report.keptEarlier, "");
}

TEST_F(BookSoundsTest, FilesOfEveryKindBecomeVoices)
{
    for (const char* const kind : {"mp3", "m4a", "wma"}) {
        const std::string file = fileOf(std::string("moo.") + kind);
        const Places to{audio(std::string(kind) + ".ogg"), audio("originals"), true};
        const FileReport report = recording::adoptSound(file, to);
        EXPECT_EQ(report.done, Done::written) << kind << report.text.toStdString();
        expectVoice(to.target);
        EXPECT_NEAR(recording::readSound(to.target).sound.seconds(), 2, 0.1) << kind;
        EXPECT_EQ(readFile(original(std::string(kind) + "." + kind)), readFile(file));
    }
}

TEST_F(BookSoundsTest, ChannelsAreMixed)
{
    writeWav(folder.file("one.wav"), voiceOf(2));
    const std::string six = folder.file("six.wav");
    ASSERT_EQ(runProgram("ffmpeg", {"-loglevel", "error", "-i", folder.file("one.wav"), "-af",
                                    "pan=5.1|FL=0*c0|FR=0*c0|FC=c0|LFE=0*c0|BL=0*c0|BR=0*c0", six})
                  .status,
              0);
    const FileReport report = recording::adoptSound(six, places());
    EXPECT_EQ(report.done, Done::written) << report.text.toStdString();
    expectVoice(audio("Moo.ogg"));
}

TEST_F(BookSoundsTest, NamesMayHoldWhatMeansSomethingElsewhere)
{
    const std::string file = fileOf("moo.m4a");
    const std::string strange = folder.file("-i http:x%03d 'ä\".m4a");
    std::filesystem::rename(file, strange);
    const FileReport report = recording::adoptSound(strange, places());
    EXPECT_EQ(report.done, Done::written) << report.text.toStdString();
}

TEST_F(BookSoundsTest, WhatIsReplacedIsKeptAndNothingThatIsKeptIsOverwritten)
{
    const std::string wav = folder.file("moo.wav");
    writeWav(wav, voiceOf(1));
    writeFile(audio("Moo.ogg"), "the first voice");
    recording::adoptSound(wav, places());
    const std::string second = readFile(audio("Moo.ogg"));
    writeWav(wav, voiceOf(1.5));
    const FileReport report = recording::adoptSound(wav, places());
    EXPECT_EQ(originals(), "Moo-2.ogg Moo-2.wav Moo.ogg Moo.wav");
    EXPECT_EQ(readFile(original("Moo.ogg")), "the first voice");
    EXPECT_EQ(readFile(original("Moo-2.ogg")), second);
    EXPECT_EQ(nativePath(report.keptSource), original("Moo-2.wav"));
    EXPECT_EQ(nativePath(report.keptEarlier), original("Moo-2.ogg"));
}

TEST_F(BookSoundsTest, TheSameOriginalIsKeptOnce)
{
    const std::string wav = folder.file("moo.wav");
    writeWav(wav, voiceOf(1));
    recording::adoptSound(wav, {audio("Moo.ogg"), audio("originals"), false});
    recording::adoptSound(wav, {audio("Moo.ogg"), audio("originals"), false});
    EXPECT_EQ(originals(), "Moo.wav");
}

TEST_F(BookSoundsTest, ARecordingIsKeptWholeAndItsVoiceIsWhatWasTrimmed)
{
    recording::Take take;
    const MonoSound sound = joined({silenceOf(1), voiceOf(2, 0.05), silenceOf(1)});
    take.record(sound);
    const FileReport report = recording::adoptTake(take, places());
    EXPECT_EQ(report.done, Done::written) << report.text.toStdString();
    expectVoice(audio("Moo.ogg"));
    EXPECT_LT(recording::readSound(audio("Moo.ogg")).sound.seconds(), 2.3);
    EXPECT_EQ(nativePath(report.keptSource), original("Moo.flac"));
    const MonoSound kept = recording::soundOfFile(readFile(original("Moo.flac")));
    ASSERT_EQ(kept.samples.size(), sound.samples.size());
    for (size_t i = 0; i < sound.samples.size(); ++i) {
        ASSERT_NEAR(kept.samples[i], sound.samples[i], 2e-7) << i;
    }
}

TEST_F(BookSoundsTest, ATakeWithoutASoundIsRefused)
{
    expectFailure(recording::adoptTake({}, places()), "Nothing is recorded for Moo.ogg");
    EXPECT_EQ(listing(), "");
}

TEST_F(BookSoundsTest, EveningOutKeepsTheAuthorsFileAndReplacesIt)
{
    const std::string file = fileOf("900-audio/Moo.ogg", voiceOf(2, 0.02, 22050));
    const std::string before = readFile(file);
    const FileReport report = recording::evenOut(places());
    EXPECT_EQ(report.done, Done::written);
    EXPECT_EQ(report.text.toStdString(), "Moo.ogg: -16.0 LUFS, before -51.6 LUFS");
    expectVoice(file);
    EXPECT_EQ(readFile(original("Moo.ogg")), before);
}

TEST_F(BookSoundsTest, EveningOutAFileThatCanBeMadeAgainKeepsNothing)
{
    fileOf("900-audio/Moo.ogg", voiceOf(2, 0.02, 22050));
    const FileReport report = recording::evenOut({audio("Moo.ogg"), audio("originals"), false});
    EXPECT_EQ(report.done, Done::written);
    EXPECT_EQ(listing(), "Moo.ogg");
}

TEST_F(BookSoundsTest, EveningOutDoesNotTouchWhatIsEvenAlready)
{
    for (const MonoSound& sound : {voiceOf(3), voiceOf(0.45), toneOf(0.1), silenceOf(2)}) {
        writeFile(audio("Moo.ogg"), recording::voiceFileOf(sound));
        const std::string before = readFile(audio("Moo.ogg"));
        const FileReport report = recording::evenOut(places());
        EXPECT_EQ(report.done, Done::untouched) << report.text.toStdString();
        EXPECT_EQ(readFile(audio("Moo.ogg")), before);
        EXPECT_EQ(listing(), "Moo.ogg");
    }
}

TEST_F(BookSoundsTest, AFileThatIsNearlyAsLoudIsNotTouchedEither)
{
    fileOf("900-audio/Moo.ogg", toneOf(2, 0.2138, 22050, 1000));
    const std::string before = readFile(audio("Moo.ogg"));
    const FileReport report = recording::evenOut(places());
    EXPECT_EQ(report.text.toStdString(), "Moo.ogg: -16.4 LUFS, not changed");
    EXPECT_EQ(report.done, Done::untouched);
    EXPECT_EQ(readFile(audio("Moo.ogg")), before);
}

TEST_F(BookSoundsTest, OfEvenLoudnessButAnotherFormAFileGetsTheFormOfAll)
{
    fileOf("900-audio/Moo.ogg", toneOf(2, 0.2239, 44100, 1000));
    EXPECT_EQ(recording::evenOut(places()).done, Done::written);
    expectVoice(audio("Moo.ogg"));
}

TEST_F(BookSoundsTest, AFileThatIsGoneIsNamedWithTheReason)
{
    expectFailure(recording::adoptSound(folder.file("none.wav"), places()),
                  "none.wav cannot be opened: No such file or directory");
    expectFailure(recording::evenOut(places()),
                  "Moo.ogg cannot be opened: No such file or directory");
    EXPECT_EQ(listing(), "");
}

TEST_F(BookSoundsTest, WhatIsNoSoundIsToldInTheWordsOfFfmpeg)
{
    const std::string file = folder.file("moo.txt");
    writeFile(file, "Moo, said the cow.");
    expectFailure(recording::adoptSound(file, places()),
                  "moo.txt cannot be read: file:" + file +
                      ": Invalid data found when processing input");
    EXPECT_EQ(listing(), "");
}

TEST_F(BookSoundsTest, ASoundWithoutSamplesIsRefused)
{
    writeWav(folder.file("empty.wav"), MonoSound());
    expectFailure(recording::adoptSound(folder.file("empty.wav"), places()),
                  "There is no sound in empty.wav");
}

TEST_F(BookSoundsTest, ASoundLongerThanAnHourIsRefused)
{
    writeWav(folder.file("long.wav"), silenceOf(3602, 0, 1000));
    expectFailure(recording::adoptSound(folder.file("long.wav"), places()),
                  "long.wav is longer than an hour");
}

TEST_F(BookSoundsTest, AFileThatIsCutOffIsTakenAsFarAsItGoes)
{
    const std::string whole = readFile(fileOf("moo.ogg", voiceOf(20)));
    writeFile(folder.file("cut.ogg"), whole.substr(0, whole.size() / 2));
    const FileReport report = recording::adoptSound(folder.file("cut.ogg"), places());
    ASSERT_EQ(report.done, Done::written) << report.text.toStdString();
    expectVoice(audio("Moo.ogg"));
    EXPECT_EQ(readFile(original("Moo.ogg")), whole.substr(0, whole.size() / 2));
}

TEST_F(BookSoundsTest, OnAFullDiskTheEarlierVoiceStays)
{
    writeFile(audio("Moo.ogg"), "the voice before");
    const std::string wav = folder.file("moo.wav");
    writeWav(wav, toneOf(0.01, 0.3, 22050));
    const SmallDisk disk(2000);
    expectFailure(recording::adoptSound(wav, places()),
                  "Moo.ogg cannot be written: File too large");
    EXPECT_EQ(readFile(audio("Moo.ogg")), "the voice before");
    EXPECT_EQ(listing(), "Moo.ogg originals");
}

TEST_F(BookSoundsTest, WhereTheOriginalCannotBeKeptNothingIsReplaced)
{
    writeFile(audio("Moo.ogg"), "the voice before");
    writeFile(audio("originals"), "a file");
    const std::string wav = folder.file("moo.wav");
    writeWav(wav, voiceOf(1));
    expectFailure(recording::adoptSound(wav, places()),
                  "The original of moo.wav cannot be kept: Not a directory");
    recording::Take take;
    take.record(voiceOf(1));
    expectFailure(recording::adoptTake(take, places()),
                  "The original of Moo.ogg cannot be kept: Not a directory");
    EXPECT_EQ(readFile(audio("Moo.ogg")), "the voice before");
    EXPECT_EQ(listing(), "Moo.ogg originals");
}

TEST_F(BookSoundsTest, NothingIsWrittenThroughLinksToOtherFolders)
{
    const std::string wav = folder.file("moo.wav");
    writeWav(wav, voiceOf(1));
    writeFile(folder.file("elsewhere"), "of somebody");
    std::filesystem::create_symlink(folder.file("elsewhere"), audio("Moo.ogg"));
    expectFailure(recording::adoptSound(wav, places()),
                  "Moo.ogg cannot be written: it is a link to a file in another folder");
    EXPECT_EQ(readFile(folder.file("elsewhere")), "of somebody");

    std::filesystem::remove(audio("Moo.ogg"));
    std::filesystem::remove_all(audio("originals"));
    std::filesystem::create_directory(audio("originals"));
    for (const char* const name : {"Moo.wav", "Moo.flac"}) {
        std::filesystem::create_symlink(folder.file("not-there"), original(name));
    }
    expectFailure(
        recording::adoptSound(wav, places()),
        "The original of moo.wav cannot be kept: it is a link to a file in another folder");
    recording::Take take;
    take.record(voiceOf(1));
    expectFailure(
        recording::adoptTake(take, places()),
        "The original of Moo.ogg cannot be kept: it is a link to a file in another folder");
    EXPECT_FALSE(std::filesystem::exists(folder.file("not-there")));
    EXPECT_EQ(listing(), "originals");
}

TEST_F(BookSoundsTest, AnAudioFolderThatIsNotThereIsMade)
{
    recording::Take take;
    take.record(voiceOf(1));
    const std::string other = folder.file("901-audio");
    const FileReport report =
        recording::adoptTake(take, {other + "/Moo.ogg", recording::originalsOf(other), true});
    EXPECT_EQ(report.done, Done::written) << report.text.toStdString();
    EXPECT_EQ(listingOf(other), "Moo.ogg originals");
}

TEST_F(StandInTest, FfmpegGetsTheFileAndSaysWhatItWritesTo)
{
    EXPECT_EQ(adoptedWith("exit 1\n").done, Done::failed);
    const std::string calls = ffmpeg.calls();
    EXPECT_NE(nativePath(calls).find("-i\nfile:" + folder.file("moo.amr") + "\n"),
              std::string::npos)
        << calls;
}

TEST_F(StandInTest, WithoutFfmpegThatIsTold)
{
    const ChangedVariable nowhere("PATH", folder.path());
    expectFailure(recording::adoptSound(folder.file("moo.amr"), places()),
                  "moo.amr cannot be read: the program ffmpeg, which would read it, is not there");
    EXPECT_EQ(listing(), "");
}

TEST_F(StandInTest, AKilledFfmpegIsTold)
{
    expectFailure(adoptedWith("crash\n"), "moo.amr cannot be read: the program ffmpeg was stopped");
    EXPECT_EQ(listing(), "");
}

TEST_F(StandInTest, AFailingFfmpegIsToldInItsLastWords)
{
    expectFailure(adoptedWith("error one\nerror two\nerror three\nerror four\nexit 1\n"),
                  "moo.amr cannot be read: two; three; four");
    expectFailure(adoptedWith("exit 7\n"),
                  "moo.amr cannot be read: the program ffmpeg ended with status 7");
}

TEST_F(StandInTest, WhatItReadOnlyInPartIsNoVoice)
{
    expectFailure(adoptedWith("error moo.amr: damaged\nexit 0\n"),
                  "moo.amr cannot be read: moo.amr: damaged");
    expectFailure(adoptedWith("write -1 no sound\nexit 0\n"), "There is no sound in moo.amr");
    EXPECT_EQ(listing(), "");
}

TEST_F(StandInTest, ItIsStoppedWhenItIsNotWantedAnyMore)
{
    ffmpeg.plan("hang\n");
    int asked = 0;
    const FileReport report =
        recording::adoptSound(folder.file("moo.amr"), places(), [&] { return ++asked < 3; });
    expectFailure(report, "moo.amr cannot be read: cancelled");
    EXPECT_EQ(asked, 3);
}
