#include "base/PlatformMachine.h"

#include <gtest/gtest.h>

TEST(Memory, SomeIsAvailableAndNoMachineHasAPetabyte)
{
    EXPECT_GT(Platform::availableMemory(), 1ULL << 20);
    EXPECT_LT(Platform::availableMemory(), 1ULL << 50);
}
