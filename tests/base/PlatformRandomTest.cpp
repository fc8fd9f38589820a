#include "base/PlatformRandom.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

TEST(PlatformRandom, GivesTheNumbersOfTheCLibrary)
{
    for (const unsigned seed :
         {1U, 0U, 7787U, 2147483646U, 2147483647U, 2147483648U, 4294967295U}) {
        std::srand(seed);
        Platform::RandomNumbers numbers(seed);
        for (int i = 0; i < 10000; ++i) {
            ASSERT_EQ(numbers.next(), std::rand()) << "seed " << seed << ", number " << i;
        }
    }
}

TEST(PlatformRandom, WithoutASeedIsTheCLibrarysBeginning)
{
    Platform::RandomNumbers numbers;
    Platform::RandomNumbers one(1);
    EXPECT_EQ(numbers.next(), one.next());
}

TEST(PlatformRandom, OfOneObjectDoNotDependOnAnotherOne)
{
    Platform::RandomNumbers alone(7787);
    Platform::RandomNumbers disturbed(7787);
    Platform::RandomNumbers other(7787);
    for (int i = 0; i < 100; ++i) {
        other.next();
        ASSERT_EQ(alone.next(), disturbed.next());
    }
}

}  // namespace
