#include "core/project/CParamArray.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(CParamArray, ItHoldsAsManyValuesAsItIsMadeFor)
{
    const CParamArray field(1260);
    EXPECT_EQ(field.Capacity(), 1260);
    EXPECT_THAT(field.data, testing::Each(0.0F));
    EXPECT_EQ(field.unit, kUnitMetric);
    EXPECT_EQ(field.scope, kScopeBoth);
    EXPECT_EQ(field.changed, 0);
    EXPECT_EQ(field.name, "");
}

TEST(CParamArray, ValuesAreSetByIndexAndTheFirstWithoutOne)
{
    CParamArray field(3);
    field.Fill(7);
    field.Set(1);
    field.Set(2, -2.5F);
    EXPECT_THAT(field.data, testing::ElementsAre(1.0F, 7.0F, -2.5F));
    EXPECT_EQ(field.Value(), 1.0F);
    EXPECT_EQ(field.Value(2), -2.5F);
}

TEST(CParamArray, AnIntegerIsReadByTruncation)
{
    CParamArray field(2);
    field.Set(2.9F);
    field.Set(1, -2.9F);
    EXPECT_EQ(field.Integer(), 2);
    EXPECT_EQ(field.Integer(1), -2);
}

TEST(CParamArray, ANumberBeyondTheIntegersIsTheNearestOne)
{
    CParamArray field(3);
    field.Set(0, 1e30F);
    field.Set(1, -std::numeric_limits<float>::infinity());
    field.Set(2, std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(field.Integer(0), std::numeric_limits<int>::max());
    EXPECT_EQ(field.Integer(1), std::numeric_limits<int>::min());
    EXPECT_EQ(field.Integer(2), 0);
}

TEST(CParamArray, ACountStaysWithinTheArrays)
{
    CParamArray field(5);
    field.data = {-1, 0, 20.9F, 22, 1e30F};
    EXPECT_EQ(field.Count(21, 0), 0);
    EXPECT_EQ(field.Count(21, 1), 0);
    EXPECT_EQ(field.Count(21, 2), 20);
    EXPECT_EQ(field.Count(21, 3), 21);
    EXPECT_EQ(field.Count(21, 4), 21);
    field.Set(3);
    EXPECT_EQ(field.Count(21), 3);
}
