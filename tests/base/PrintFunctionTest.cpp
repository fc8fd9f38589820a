#include "base/PrintFunction.h"

#include "tests/helpers/CapturedMessages.h"

#include <gtest/gtest.h>

TEST(DefaultPrintFunction, IsStandardOutputUnlessChanged)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(defaultPrintf()("%d %s\n", 7, "cows"), 7);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "7 cows\n");
}

TEST(DefaultPrintFunction, IsOneSettingOfTheProcess)
{
    CapturedMessages messages;
    setDefaultPrintf(CapturedMessages::print);
    defaultPrintf()("%s", "moo");
    EXPECT_EQ(messages.text(), "moo");
    setDefaultPrintf(nullptr);
    EXPECT_EQ(defaultPrintf(), printToStandardOutput);
}
