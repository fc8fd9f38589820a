#include "sound/SoundPlayer.h"

#include "tests/helpers/CoreApplication.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/sound/WavFile.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr int kRate = 44100;
constexpr size_t kFaded = 500;  // samples that a soft begin or end may change

// Waits for what the player tells; false after ten seconds.
bool waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < 10000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return condition();
}

// A player whose loudspeaker is a file.
class SoundPlayerTest : public testing::Test
{
protected:
    SoundPlayerTest()
    {
        QObject::connect(&player, &SoundPlayer::started, [this] { told += "started\n"; });
        QObject::connect(&player, &SoundPlayer::ended, [this] { told += "ended\n"; });
        const auto tell = [this](const QString& text) { told += text.toStdString() + "\n"; };
        QObject::connect(&player, &SoundPlayer::problem, tell);
        QObject::connect(&player, &SoundPlayer::silent, tell);
    }

    QString fileWith(const std::string& bytes, const std::string& name = "sound.wav")
    {
        writeFile(folder.file(name), bytes);
        return QString::fromStdString(folder.file(name));
    }

    QString toneFile(double seconds, double hertz = 440)
    {
        return fileWith(wavFile(2, kRate, tone(2, kRate, hertz, seconds)));
    }

    bool hasTold(const std::string& text) { return told.find(text) != std::string::npos; }
    bool isToldSoon(const std::string& text)
    {
        return waitFor([&] { return hasTold(text); });
    }

    // All that the loudspeaker got, once the player has left it, without the silence around.
    std::vector<float> heard()
    {
        player.release();
        const std::string bytes = fileAtRest();
        std::vector<float> samples(bytes.size() / sizeof(float));
        std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(float));
        const auto loud = [](float sample) { return sample != 0; };
        const auto begin = std::find_if(samples.begin(), samples.end(), loud);
        const auto end = std::find_if(samples.rbegin(), samples.rend(), loud).base();
        return begin < end ? std::vector<float>(begin, end) : std::vector<float>();
    }

    TemporaryFolder folder;
    ChangedVariable driver{"SDL_AUDIODRIVER", "disk"};
    ChangedVariable output{"SDL_DISKAUDIOFILE", folder.file("heard.raw")};
    SoundPlayer player;
    std::string told;

private:
    // The device is left on another thread; then nothing is written any more.
    std::string fileAtRest()
    {
        std::string bytes;
        std::string before = "not read";
        while (bytes != before) {
            before = bytes;
            QThread::msleep(100);
            bytes = readFile(folder.file("heard.raw"));
        }
        return bytes;
    }
};

// Where the part lies in the whole, of which it may differ a little; none when it does not.
size_t placeIn(const std::vector<float>& whole, const std::vector<float>& part, float tolerance)
{
    for (size_t at = 0; at + part.size() <= whole.size(); ++at) {
        const auto same = [&](float one, float other) {
            return std::abs(one - other) <= tolerance;
        };
        if (std::equal(part.begin(), part.end(), whole.begin() + static_cast<std::ptrdiff_t>(at),
                       same)) {
            return at;
        }
    }
    return std::string::npos;
}

std::vector<float> middleOf(const std::vector<float>& samples)
{
    const auto edge = static_cast<std::ptrdiff_t>(kFaded);
    return {samples.begin() + edge, samples.end() - edge};
}

double loudness(const std::vector<float>& samples)
{
    double squares = 0;
    for (const float sample : samples) {
        squares += static_cast<double>(sample) * sample;
    }
    return std::sqrt(squares / static_cast<double>(samples.size()));
}

// Of the left channel, by the places where it rises through zero.
double hertz(const std::vector<float>& samples)
{
    int rises = 0;
    for (size_t i = 2; i < samples.size(); i += 2) {
        rises += samples[i - 2] < 0 && samples[i] >= 0 ? 1 : 0;
    }
    return rises / (static_cast<double>(samples.size()) / 2 / kRate);
}

}  // namespace

TEST_F(SoundPlayerTest, WhatIsHeardIsWhatStandsInTheFile)
{
    std::vector<int16_t> samples = tone(2, kRate, 440, 0.3);
    std::vector<float> numbers;
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<int16_t>(samples[i] + static_cast<int>(i * 7919 % 1000));
        numbers.push_back(static_cast<float>(samples[i]) / 32768);
    }
    player.play(fileWith(wavFile(2, kRate, samples)));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_EQ(told, "started\nended\n");
    EXPECT_NE(placeIn(heard(), middleOf(numbers), 0), std::string::npos);
}

// As another program reads the same files. What it made of the tone begins with silence of its own.
TEST_F(SoundPlayerTest, EveryFormatIsHeardAsOtherProgramsReadIt)
{
    const std::string wav = toneFile(0.3).toStdString();
    for (const char* const extension : {"flac", "ogg", "mp3"}) {
        const std::string file = folder.file(std::string("sound.") + extension);
        const std::string raw = folder.file(std::string("raw.") + extension);
        ASSERT_EQ(runProgram("ffmpeg", {"-y", "-loglevel", "error", "-i", wav, file}).status, 0);
        ASSERT_EQ(
            runProgram("ffmpeg", {"-loglevel", "error", "-i", file, "-f", "f32le", raw}).status, 0);
        const std::string bytes = readFile(raw);
        std::vector<float> expected(bytes.size() / sizeof(float));
        std::memcpy(expected.data(), bytes.data(), expected.size() * sizeof(float));
        told.clear();
        player.play(QString::fromStdString(file));
        ASSERT_TRUE(isToldSoon("ended")) << extension;
        const auto begin = expected.begin() + 6000;
        EXPECT_NE(placeIn(heard(), std::vector<float>(begin, begin + 12000), 0.002F),
                  std::string::npos)
            << extension;
    }
}

TEST_F(SoundPlayerTest, OneChannelIsHeardOnBothSides)
{
    player.play(fileWith(wavFile(1, kRate, tone(1, kRate, 440, 0.2))));
    ASSERT_TRUE(isToldSoon("ended"));
    const std::vector<float> samples = middleOf(heard());
    ASSERT_GT(samples.size(), 15000U);
    for (size_t i = 0; i + 1 < samples.size(); i += 2) {
        ASSERT_EQ(samples[i], samples[i + 1]) << i;
    }
}

TEST_F(SoundPlayerTest, ASoundOfAnotherRateKeepsItsPitchAndLengthAndLoudness)
{
    player.play(fileWith(wavFile(1, 22050, tone(1, 22050, 500, 0.4))));
    ASSERT_TRUE(isToldSoon("ended"));
    const std::vector<float> samples = heard();
    EXPECT_NEAR(static_cast<double>(samples.size()) / 2 / kRate, 0.4, 0.01);
    EXPECT_NEAR(hertz(middleOf(samples)), 500, 8);
    EXPECT_NEAR(loudness(middleOf(samples)), 12000 / 32768.0 / std::sqrt(2.0), 0.01);
}

TEST_F(SoundPlayerTest, HalfTheVolumeIsHalfAsLoud)
{
    player.setVolume(0.5);
    player.play(toneFile(0.3));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_NEAR(loudness(middleOf(heard())), 6000 / 32768.0 / std::sqrt(2.0), 0.01);
}

// The machine may be busy with something else once; but not always.
TEST_F(SoundPlayerTest, ASoundStartsAtOnce)
{
    player.prepare();
    const QString file = toneFile(0.1);
    qint64 fastest = 1000;
    qint64 fastestCall = 1000;
    for (int i = 0; i < 10; ++i) {
        told.clear();
        QElapsedTimer time;
        time.start();
        player.play(file);
        fastestCall = std::min(fastestCall, time.elapsed());
        ASSERT_TRUE(isToldSoon("started"));
        fastest = std::min(fastest, time.elapsed());
        ASSERT_TRUE(isToldSoon("ended"));
    }
    EXPECT_LT(fastest, 50);
    EXPECT_LT(fastestCall, 5);  // nobody waits
}

TEST_F(SoundPlayerTest, AStoppedSoundHasNoEnd)
{
    player.play(toneFile(5));
    EXPECT_TRUE(player.isPlaying());
    ASSERT_TRUE(isToldSoon("started"));
    player.stop();
    EXPECT_FALSE(player.isPlaying());
    EXPECT_LT(heard().size(), 4U * kRate * 2);
    EXPECT_EQ(told, "started\n");
}

TEST_F(SoundPlayerTest, AnotherSoundTakesThePlaceOfTheFirst)
{
    player.play(toneFile(5));
    ASSERT_TRUE(isToldSoon("started"));
    player.play(fileWith(wavFile(2, kRate, tone(2, kRate, 880, 0.3)), "other.wav"));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_EQ(told, "started\nstarted\nended\n");
    const std::vector<float> samples = heard();
    const std::vector<float> end(samples.end() - 20000, samples.end());
    EXPECT_NEAR(hertz(end), 880, 20);
}

TEST_F(SoundPlayerTest, AFileThatCannotBePlayedIsNamedAndEnds)
{
    player.play(fileWith("This is no sound.", "moo.ogg"));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_EQ(told, "moo.ogg cannot be played: it is damaged, or no sound in one of the formats "
                    "WAV, Ogg, FLAC and MP3\n"
                    "ended\n");
    told.clear();
    player.play(QString::fromStdString(folder.file("none.ogg")));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_EQ(told, "none.ogg cannot be opened: No such file or directory\nended\n");
    told.clear();
    player.play(fileWith(wavFile(3, kRate, tone(3, kRate, 440, 0.1)), "three.wav"));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_EQ(told, "three.wav cannot be played: it has more than two channels\nended\n");
    EXPECT_EQ(heard(), std::vector<float>());
}

TEST_F(SoundPlayerTest, WithoutALoudspeakerSoundsTakeTheirTimeAndThatIsSaidOnce)
{
    const ChangedVariable noDriver("SDL_AUDIODRIVER", "nosuch");
    QElapsedTimer time;
    time.start();
    player.play(toneFile(0.3));
    ASSERT_TRUE(isToldSoon("ended"));
    EXPECT_GE(time.elapsed(), 280);
    player.release();
    player.play(toneFile(0.1));
    ASSERT_TRUE(waitFor([this] { return !player.isPlaying(); }));
    EXPECT_EQ(told, "Nothing is heard: no loudspeaker can be used (Audio target 'nosuch' not "
                    "available)\nstarted\nended\nstarted\nended\n");
}

TEST_F(SoundPlayerTest, MayGoWhileItPlays)
{
    auto another = std::make_unique<SoundPlayer>();
    bool started = false;
    QObject::connect(another.get(), &SoundPlayer::started, [&] { started = true; });
    another->play(toneFile(5));
    ASSERT_TRUE(waitFor([&] { return started; }));
    another.reset();
}
