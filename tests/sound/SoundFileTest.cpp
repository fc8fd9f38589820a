#include "sound/SoundFile.h"

#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/sound/WavFile.h"

#include <gtest/gtest.h>

namespace {

using State = SoundFile::State;

std::vector<float> allOf(SoundFile& sound)
{
    std::vector<float> samples;
    for (std::vector<float> some = sound.read(100); !some.empty(); some = sound.read(100)) {
        samples.insert(samples.end(), some.begin(), some.end());
    }
    return samples;
}

class SoundFileTest : public testing::Test
{
protected:
    std::string fileWith(const std::string& bytes, const std::string& name = "sound.wav")
    {
        writeFile(folder.file(name), bytes);
        return folder.file(name);
    }

    // Another program has made it.
    std::string converted(const std::string& extension)
    {
        const std::string wav = fileWith(wavFile(1, 22050, tone(1, 22050, 440, 0.2)), "tone.wav");
        const std::string file = folder.file("sound." + extension);
        const ProgramRun run = runProgram("ffmpeg", {"-y", "-loglevel", "error", "-i", wav, file});
        EXPECT_EQ(resultOf(run), "status 0\n");
        return file;
    }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(SoundFileTest, ThePiecesAreTheWholeFile)
{
    SoundFile sound(fileWith(wavFile(2, 8000, {0, 16384, -16384, -32768})));
    EXPECT_EQ(sound.channels(), 2);
    EXPECT_EQ(sound.rate(), 8000);
    EXPECT_EQ(allOf(sound), (std::vector<float>{0, 0.5, -0.5, -1}));
    EXPECT_EQ(sound.state(), State::good);
}

TEST_F(SoundFileTest, APathMayHaveAnyLetters)
{
    SoundFile sound(fileWith(wavFile(1, 8000, {16384}), "Größe 日本.wav"));
    EXPECT_EQ(allOf(sound), std::vector<float>{0.5});
}

TEST_F(SoundFileTest, FlacIsReadSampleBySample)
{
    const std::string file = converted("flac");
    SoundFile flac(file);
    SoundFile wav(folder.file("tone.wav"));
    EXPECT_EQ(allOf(flac), allOf(wav));
}

TEST_F(SoundFileTest, OggAndMp3AreRead)
{
    for (const char* const extension : {"ogg", "mp3"}) {
        SoundFile sound(converted(extension));
        EXPECT_EQ(sound.channels(), 1) << extension;
        EXPECT_EQ(sound.rate(), 22050) << extension;
        EXPECT_NEAR(static_cast<double>(allOf(sound).size()), 4410, 1500) << extension;
    }
}

TEST_F(SoundFileTest, AFileThatIsNotThereSaysWhy)
{
    SoundFile sound(folder.file("none.wav"));
    EXPECT_EQ(sound.state(), State::notOpened);
    EXPECT_EQ(sound.reason(), "No such file or directory");
    EXPECT_EQ(allOf(sound), std::vector<float>());
}

TEST_F(SoundFileTest, WhatIsNoSoundIsKnown)
{
    EXPECT_EQ(SoundFile(fileWith("")).state(), State::notSound);
    EXPECT_EQ(SoundFile(fileWith("This is no sound.")).state(), State::notSound);
    EXPECT_EQ(SoundFile(fileWith(wavFile(0, 8000, {}))).state(), State::notSound);
}

TEST_F(SoundFileTest, ThreeChannelsAreTooMany)
{
    EXPECT_EQ(SoundFile(fileWith(wavFile(3, 8000, tone(3, 8000, 440, 0.1)))).state(),
              State::tooManyChannels);
}

// A WAV file of floating point numbers.
TEST_F(SoundFileTest, WhatNoLoudspeakerCanSayIsMadeHarmless)
{
    std::string wav = wavFile(1, 8000, {0, 0x7FC0, 0, 0x4120, 0, static_cast<int16_t>(0xFF80)});
    wav[20] = 3;                     // floating point
    wav[32] = 4;                     // bytes a frame
    wav[34] = 32;                    // bits a sample
    SoundFile sound(fileWith(wav));  // no number, 10, minus infinity
    EXPECT_EQ(allOf(sound), (std::vector<float>{0, 1, 0}));
}

TEST_F(SoundFileTest, FilesThatAreCutOrChangedAnywhereDoNoHarm)
{
    for (const char* const extension : {"wav", "flac", "ogg", "mp3"}) {
        const std::string whole = readFile(converted(extension)).substr(0, 5000);
        for (size_t i = 0; i < whole.size(); i += 29) {
            SoundFile cut(fileWith(whole.substr(0, i), "cut"));
            EXPECT_LT(allOf(cut).size(), 1000000U);
            std::string changed = whole;
            changed[i] = static_cast<char>(~changed[i]);
            SoundFile damaged(fileWith(changed, "damaged"));
            EXPECT_LT(allOf(damaged).size(), 1000000U);
        }
    }
}
