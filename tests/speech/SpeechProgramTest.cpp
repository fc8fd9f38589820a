#include "speech/SpeechProgram.h"

#include <gmock/gmock.h>

#include "base/PlatformFiles.h"

using testing::ElementsAre;

namespace {

ttbasic::VOICE fastVoice()
{
    ttbasic::VOICE voice;
    voice.speed = 5;
    voice.pitch = 1;
    return voice;
}

}  // namespace

TEST(SpeechProgram, SpeedAndPitchAreNoArguments)
{
    const ProgramCall call = callToSpeak("Moo", fastVoice(), "a\\b.wav", false);
    EXPECT_EQ(call.program, "Text2Speech.exe");
    EXPECT_THAT(call.arguments, ElementsAre("-q", "-v", "en", "-a", "30", "-g", "m", "-f",
                                            Platform::nativePath("a/b.wav"), "-t", "Moo"));
}

TEST(SpeechProgram, SpeedAndPitchAreInTheEnvironment)
{
    const Surroundings around = callToSpeak("Moo", fastVoice(), "b.wav", false).surroundings;
    EXPECT_EQ(around.variables.at("TEXT2SPEECH_SPEED"), "5");
    EXPECT_EQ(around.variables.at("TEXT2SPEECH_PITCH"), "1");
}
