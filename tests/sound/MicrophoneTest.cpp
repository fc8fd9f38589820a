#include "sound/Microphone.h"

#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr char kUsual[] = "System audio capture device";  // as SDL calls the only one

bool waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer time;
    time.start();
    while (!condition() && time.elapsed() < 20000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return condition();
}

// Samples as the file-backed driver reads them: each other than those before.
std::string countedSamples(int count)
{
    std::vector<float> samples;
    for (int i = 0; i < count; ++i) {
        samples.push_back(static_cast<float>(i + 1) / 1000000);
    }
    return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(float)};
}

// A microphone that hears a file.
class MicrophoneTest : public testing::Test
{
protected:
    MicrophoneTest()
    {
        QObject::connect(&microphone, &Microphone::found, [this](const QStringList& names) {
            told += "found " + names.join(", ").toStdString() + "\n";
        });
        QObject::connect(&microphone, &Microphone::opened, [this](const QString& name) {
            told += "opened " + name.toStdString() + "\n";
        });
        QObject::connect(&microphone, &Microphone::problem,
                         [this](const QString& text) { told += text.toStdString() + "\n"; });
        QObject::connect(&microphone, &Microphone::heard, [this](double peak) {
            ++looks;
            highest = std::max(highest, peak);
        });
    }

    bool hasTold(const std::string& text) { return told.find(text) != std::string::npos; }
    bool isToldSoon(const std::string& text)
    {
        return waitFor([&] { return hasTold(text); });
    }

    TemporaryFolder folder;
    ChangedVariable driver{"SDL_AUDIODRIVER", "disk"};
    ChangedVariable input{"SDL_DISKAUDIOFILEIN", folder.file("voice.raw")};
    Microphone microphone;
    std::string told;
    int looks = 0;
    double highest = 0;
};

}  // namespace

TEST_F(MicrophoneTest, WhatIsRecordedIsWhatItHearsWithoutAGap)
{
    writeFile(folder.file("voice.raw"), countedSamples(500000));
    microphone.open();
    ASSERT_TRUE(isToldSoon("opened"));
    EXPECT_EQ(told, std::string("found ") + kUsual + "\nopened \n");
    microphone.beginRecording();
    EXPECT_TRUE(microphone.isRecording());
    looks = 0;
    ASSERT_TRUE(waitFor([this] { return looks >= 5; }));
    const MonoSound sound = microphone.endRecording();
    EXPECT_FALSE(microphone.isRecording());
    EXPECT_EQ(sound.rate, 44100);
    ASSERT_GT(sound.samples.size(), 4000U);
    for (size_t i = 1; i < sound.samples.size(); ++i) {
        ASSERT_NEAR(sound.samples[i] - sound.samples[i - 1], 1e-6, 5e-8) << i;
    }
}

TEST_F(MicrophoneTest, WhatItHearsBeforeAndAfterIsNotKept)
{
    writeFile(folder.file("voice.raw"), countedSamples(500000));
    microphone.open();
    ASSERT_TRUE(waitFor([this] { return looks >= 3; }));
    microphone.beginRecording();
    ASSERT_TRUE(waitFor([this] { return looks >= 6; }));
    const MonoSound sound = microphone.endRecording();
    ASSERT_TRUE(waitFor([this] { return looks >= 9; }));
    ASSERT_FALSE(sound.samples.empty());
    EXPECT_GT(sound.samples.front(), 1000 * 1e-6F);
    EXPECT_TRUE(microphone.endRecording().samples.empty());
}

TEST_F(MicrophoneTest, TheLevelIsTheHighestSample)
{
    std::vector<float> samples(44100, 0.1F);
    samples[20000] = -0.75F;
    writeFile(folder.file("voice.raw"),
              {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(float)});
    microphone.open();
    EXPECT_TRUE(waitFor([this] { return highest == 0.75; })) << highest;
}

// The driver waits for somebody to speak into the pipe, which nobody does before this goes on.
TEST_F(MicrophoneTest, NobodyWaitsWhileItOpens)
{
    const std::string pipe = folder.file("pipe");
    makePipe(pipe);
    const ChangedVariable fromPipe("SDL_DISKAUDIOFILEIN", pipe);
    microphone.open();
    ASSERT_TRUE(isToldSoon("found"));
    EXPECT_FALSE(microphone.isOpen());
    FILE* const cable = std::fopen(pipe.c_str(), "r+b");
    ASSERT_NE(cable, nullptr);
    EXPECT_TRUE(isToldSoon("opened"));
    std::fclose(cable);
}

TEST_F(MicrophoneTest, WhatIsClosedAtOnceIsNotOpen)
{
    writeFile(folder.file("voice.raw"), countedSamples(100));
    microphone.open();
    microphone.close();
    microphone.open("another");
    ASSERT_TRUE(isToldSoon("opened"));
    EXPECT_EQ(told, std::string("found ") + kUsual + "\nopened \n");
}

TEST_F(MicrophoneTest, ItIsFoundByItsNameAndAnotherNameMeansTheUsualOne)
{
    writeFile(folder.file("voice.raw"), countedSamples(100));
    microphone.open("One that was unplugged");
    ASSERT_TRUE(isToldSoon("opened \n"));
    EXPECT_TRUE(microphone.isOpen());
    told.clear();
    microphone.open(kUsual);
    EXPECT_TRUE(isToldSoon(std::string("opened ") + kUsual + "\n"));
}

TEST_F(MicrophoneTest, OneThatCannotBeOpenedIsToldWithItsReason)
{
    microphone.open();
    ASSERT_TRUE(isToldSoon("cannot be used"));
    EXPECT_EQ(told, std::string("found ") + kUsual +
                        "\nThe microphone cannot be used (Couldn't open " +
                        folder.file("voice.raw") + ")\n");
    EXPECT_FALSE(microphone.isOpen());
}

TEST_F(MicrophoneTest, ASystemWithoutSoundIsToldWithItsReason)
{
    const ChangedVariable noDriver("SDL_AUDIODRIVER", "nosuch");
    microphone.open();
    ASSERT_TRUE(isToldSoon("used"));
    EXPECT_EQ(told, "No microphone can be used (Audio target 'nosuch' not available)\n");
}

TEST_F(MicrophoneTest, AMutedOneIsOpenAndHearsNothing)
{
    const ChangedVariable silent("SDL_AUDIODRIVER", "dummy");
    microphone.open();
    ASSERT_TRUE(waitFor([this] { return looks >= 3; }));
    EXPECT_EQ(highest, 0);
}

TEST_F(MicrophoneTest, WhatWasHeardIsThereWhenNothingComesAnyMore)
{
    const std::string pipe = folder.file("pipe");
    makePipe(pipe);
    FILE* const cable = std::fopen(pipe.c_str(), "r+b");
    ASSERT_NE(cable, nullptr);
    const ChangedVariable fromPipe("SDL_DISKAUDIOFILEIN", pipe);
    microphone.open();
    ASSERT_TRUE(isToldSoon("opened"));
    microphone.beginRecording();
    const std::string samples = countedSamples(4096);
    ASSERT_EQ(std::fwrite(samples.data(), 1, samples.size(), cable), samples.size());
    std::fflush(cable);
    EXPECT_TRUE(isToldSoon("Nothing comes from the microphone any more\n")) << told;
    EXPECT_FALSE(microphone.isOpen());
    EXPECT_EQ(microphone.endRecording().samples.size(), 4096U);
    std::fclose(cable);  // only then does the driver let it go
}

TEST_F(MicrophoneTest, MayGoWhileItRecords)
{
    writeFile(folder.file("voice.raw"), countedSamples(100000));
    auto another = std::make_unique<Microphone>();
    bool hears = false;
    QObject::connect(another.get(), &Microphone::heard, [&](double) { hears = true; });
    another->open();
    ASSERT_TRUE(waitFor([&] { return hears; }));
    another->beginRecording();
    another.reset();
}
