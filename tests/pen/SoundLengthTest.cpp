#include "pen/SoundLength.h"

#include <gtest/gtest.h>

namespace {

std::string number(uint64_t value, size_t size)
{
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return bytes;
}

// Two pages: the head of the stream, and the last samples.
std::string ogg(uint64_t rate, uint64_t samples)
{
    const std::string page(12, '\0');
    return "OggS" + number(0, 2) + number(0, 8) + page + "\x01vorbis" + number(0, 4) +
           number(1, 1) + number(rate, 4) + page + "OggS" + number(0, 2) + number(samples, 8) +
           page;
}

std::string wav(uint64_t bytesInASecond, size_t size)
{
    const std::string format =
        number(1, 2) + number(1, 2) + number(0, 4) + number(bytesInASecond, 4) + number(0, 4);
    return "RIFF" + number(0, 4) + "WAVEodd " + number(3, 4) + "abc" + number(0, 1) + "fmt " +
           number(16, 4) + format + "data" + number(size, 4) + std::string(size, '\0');
}

}  // namespace

TEST(SoundLength, IsKnownOfOggFiles)
{
    EXPECT_DOUBLE_EQ(pen::soundSeconds(ogg(22050, 33075)), 1.5);
}

TEST(SoundLength, IsKnownOfWavFiles)
{
    EXPECT_DOUBLE_EQ(pen::soundSeconds(wav(1000, 2500)), 2.5);
}

TEST(SoundLength, OfACutFileIsThatOfWhatIsThere)
{
    EXPECT_DOUBLE_EQ(pen::soundSeconds(wav(1000, 2500).substr(0, wav(1000, 2500).size() - 500)), 2);
}

TEST(SoundLength, IsUnknownOfEverythingElse)
{
    for (const std::string& bytes :
         {std::string(), std::string("OggS"), std::string("RIFF"), std::string("fLaC and more"),
          ogg(0, 100), ogg(22050, ~uint64_t{0}), wav(0, 100)}) {
        EXPECT_EQ(pen::soundSeconds(bytes), 0);
    }
}
