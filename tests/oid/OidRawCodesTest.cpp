#include "oid/OidRawCodes.h"

#include <gmock/gmock.h>
#include <set>

using oid_raw_codes::getRawCode;

TEST(OidRawCodes, TheFirstCodesAreThese)
{
    std::vector<unsigned> codes;
    for (int oid = 0; oid < 12; ++oid) {
        codes.push_back(getRawCode(oid));
    }
    EXPECT_THAT(codes, testing::ElementsAre(4, 5, 6, 7, 12, 15, 20, 21, 22, 23, 28, 36));
}

TEST(OidRawCodes, SamplesFromTheWholeTable)
{
    EXPECT_EQ(getRawCode(1000), 14844U);
    EXPECT_EQ(getRawCode(1001), 14857U);
    EXPECT_EQ(getRawCode(10000), 5685U);
    EXPECT_EQ(getRawCode(15000), 10894U);
    EXPECT_EQ(getRawCode(16383), 12386U);
}

TEST(OidRawCodes, NoTwoOidsShareACodeAndNoneIsTheFillCode)
{
    std::set<unsigned> codes;
    for (int oid = 0; oid < oid_raw_codes::kCount; ++oid) {
        codes.insert(getRawCode(oid));
    }
    EXPECT_EQ(codes.size(), 16384U);
    EXPECT_EQ(*codes.rbegin(), 65533U);
}

TEST(OidRawCodes, NumbersOutsideTheTableHaveNoCode)
{
    EXPECT_FALSE(oid_raw_codes::hasRawCode(-1));
    EXPECT_TRUE(oid_raw_codes::hasRawCode(0));
    EXPECT_TRUE(oid_raw_codes::hasRawCode(16383));
    EXPECT_FALSE(oid_raw_codes::hasRawCode(16384));
    EXPECT_EQ(oid_raw_codes::rawCodeOrZero(-1), 0U);
    EXPECT_EQ(oid_raw_codes::rawCodeOrZero(16384), 0U);
    EXPECT_EQ(oid_raw_codes::rawCodeOrZero(16383), 12386U);
}
