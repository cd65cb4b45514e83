#include "oe7/seas/CPositionResults.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

using namespace oe7;

TEST(Sickness, IncidenceOfMcCauley)
{
    EXPECT_NEAR(McCauleyIncidence(0.1, 0.2, 2), 29.704, 0.0005);
    EXPECT_NEAR(McCauleyIncidence(0.2, 0.15, 4), 63.317, 0.0005);
    EXPECT_NEAR(McCauleyIncidence(0.05, 0.25, 1), 3.238, 0.0005);
}

TEST(Sickness, TheLargestIncidenceBeforeHabituationHasItsTime)
{
    EXPECT_EQ(WorstExposure(0.1, 0.2), 5.00);
    EXPECT_EQ(WorstExposure(0.2, 0.15), 2.75);
    EXPECT_EQ(WorstExposure(0.05, 0.25), 9.25);
}

TEST(Sickness, WithoutMotionOrTimeThereIsNone)
{
    EXPECT_EQ(McCauleyIncidence(0.9e-6, 0.2, 2), 0);
    EXPECT_EQ(McCauleyIncidence(0.1, 0.9e-6, 2), 0);
    EXPECT_EQ(McCauleyIncidence(0.1, 0.2, 0), 0);
    EXPECT_EQ(McCauleyIncidence(0.1, 0.2, -1), 0);
    EXPECT_EQ(McCauleyIncidence(std::nan(""), 0.2, 1), 0);
    EXPECT_EQ(WorstExposure(0, 0), 0.25) << "any time is as good";
}

TEST(Sickness, WeightingOfVerticalAcceleration)
{
    const std::array<std::array<double, 2>, 10> expected{{{0.05, 0.1566},
                                                          {0.08, 0.4607},
                                                          {0.1, 0.6951},
                                                          {0.125, 0.8951},
                                                          {0.16, 1.0060},
                                                          {0.2, 0.9920},
                                                          {0.25, 0.8543},
                                                          {0.315, 0.6191},
                                                          {0.4, 0.3843},
                                                          {0.5, 0.2239}}};
    for (const auto& [frequency, weight] : expected)
    {
        EXPECT_NEAR(SicknessWeighting(frequency), weight, 0.5e-4) << frequency;
        EXPECT_EQ(SicknessWeighting(-frequency), SicknessWeighting(frequency));
    }
    EXPECT_EQ(SicknessWeighting(0), 0);
    EXPECT_TRUE(std::isfinite(SicknessWeighting(1e100)));
}
