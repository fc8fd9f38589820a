#include "pdf/PageList.h"

#include <gtest/gtest.h>

TEST(PageList, NumbersAndRangesInTheOrderInWhichTheyAreTyped)
{
    EXPECT_EQ(pagesIn("0"), (std::vector<int>{0}));
    EXPECT_EQ(pagesIn("0,2-4,1"), (std::vector<int>{0, 2, 3, 4, 1}));
    EXPECT_EQ(pagesIn("7-7"), (std::vector<int>{7}));
}

TEST(PageList, AnythingElseIsNone)
{
    for (const char* const text : {"", "x", "1,", ",1", "1,,2", "3-1", "-1", "1-", "1 2", "+1",
                                   "1.5", "0-10000", "99999999999", "\xD9\xA1"}) {
        EXPECT_TRUE(pagesIn(text).empty()) << text;
    }
}
