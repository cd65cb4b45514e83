#include "oe7/section/FrequencyGrid.h"

#include "oe7/input/CRunLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace oe7
{
namespace
{
using testing::DoubleNear;
using testing::ElementsAre;

/// sqrt(g/L) = 1.
constexpr double kUnitLength = 9.81;

const std::vector<double> kGrid{0.5, 0.7, 1.0, 1.6, 2.0, 3.0};

double Interpolated(double w, double (*function)(double))
{
    const CGridWeights weights = GridWeights(kGrid, w);
    double sum = 0;
    for (std::size_t k = 0; k < 4; ++k)
    {
        sum += weights.Weight[k] * function(kGrid[static_cast<std::size_t>(weights.Index[k])]);
    }
    return sum;
}

double Cubic(double w)
{
    const double x = std::log(w);
    return 2 + x - 3 * x * x + 0.5 * x * x * x;
}
} // namespace

TEST(FrequencyGrid, WithoutValuesGoesGeometricallyWithTheShipsLength)
{
    const std::vector<double> grid = FrequencyGrid({0, 0, 0}, 98.1);
    const double unit = std::sqrt(0.1);
    ASSERT_EQ(grid.size(), 46u);
    EXPECT_NEAR(grid.front(), 0.2 * unit, 1e-12);
    EXPECT_NEAR(grid.back(), 30 * unit, 1e-12);
    EXPECT_NEAR(grid[9], 0.2 * std::pow(150, 0.2) * unit, 1e-12);
    EXPECT_NEAR(grid[36], 0.2 * std::pow(150, 0.8) * unit, 1e-12);
}

TEST(FrequencyGrid, GoesInStepsFromTheLowestToTheHighest)
{
    const auto near = [](double value) { return DoubleNear(value, 1e-12); };
    EXPECT_THAT(FrequencyGrid({0.2, 0.6, 0.1}, kUnitLength),
                ElementsAre(near(0.2), near(0.3), near(0.4), near(0.5), near(0.6)));
    EXPECT_THAT(FrequencyGrid({0.2, 0.58, 0.1}, kUnitLength),
                ElementsAre(near(0.2), near(0.3), near(0.4), near(0.5)));
}

TEST(FrequencyGrid, DropsValuesBelowATwentiethOfTheShipsFrequency)
{
    const auto near = [](double value) { return DoubleNear(value, 1e-12); };
    EXPECT_THAT(FrequencyGrid({0.01, 0.16, 0.03}, kUnitLength),
                ElementsAre(near(0.07), near(0.10), near(0.13), near(0.16)));
}

TEST(FrequencyGrid, PutsThatLimitFirstWhereTheLowestIsNotPositive)
{
    const auto near = [](double value) { return DoubleNear(value, 1e-12); };
    EXPECT_THAT(FrequencyGrid({0, 0.6, 0.2}, kUnitLength),
                ElementsAre(near(0.05), near(0.2), near(0.4), near(0.6)));
    EXPECT_THAT(FrequencyGrid({-0.2, 0.6, 0.2}, kUnitLength),
                ElementsAre(near(0.05), near(0.2), near(0.4), near(0.6)));
    // A step that comes to the limit doesn't double it.
    EXPECT_THAT(FrequencyGrid({0, 0.2, 0.05}, kUnitLength),
                ElementsAre(near(0.05), near(0.1), near(0.15), near(0.2)));
}

TEST(FrequencyGrid, HoldsFourToAHundredValues)
{
    EXPECT_EQ(FrequencyGrid({1, 4, 1}, kUnitLength).size(), 4u);
    EXPECT_EQ(FrequencyGrid({1, 100, 1}, kUnitLength).size(), 100u);
    EXPECT_EQ(FrequencyGrid({0, 99, 1}, kUnitLength).size(), 100u);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const std::array<double, 3>& asked : std::vector<std::array<double, 3>>{{1, 3, 1},
                                                                                 {1, 101, 1},
                                                                                 {0, 100, 1},
                                                                                 {1, 2, 0},
                                                                                 {1, 2, -0.1},
                                                                                 {2, 1, 0.1},
                                                                                 {0, 0, 1},
                                                                                 {1, 1, 0},
                                                                                 {1, 2, 1e-300},
                                                                                 {-1e300, 2, 0.1},
                                                                                 {1, infinity, 1},
                                                                                 {-infinity, 1, 1},
                                                                                 {1, std::nan(""), 1}})
    {
        EXPECT_THROW(FrequencyGrid(asked, kUnitLength), CInputError)
            << asked[0] << " to " << asked[1] << " by " << asked[2];
    }
}

TEST(GridWeights, FollowACubicOfTheLogarithm)
{
    for (const double w : {0.5, 0.55, 0.71, 1.0, 1.3, 1.9, 2.2, 2.99})
    {
        EXPECT_NEAR(Interpolated(w, Cubic), Cubic(w), 1e-12) << w;
        EXPECT_EQ(GridWeights(kGrid, w).Imaginary, 1);
    }
}

TEST(GridWeights, TakeTwoValuesOnEachSideAndFourAtTheEnds)
{
    EXPECT_THAT(GridWeights(kGrid, 1.2).Index, ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(GridWeights(kGrid, 0.6).Index, ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(GridWeights(kGrid, 0.8).Index, ElementsAre(0, 1, 2, 3));
    EXPECT_THAT(GridWeights(kGrid, 2.5).Index, ElementsAre(2, 3, 4, 5));
}

TEST(GridWeights, BelowTheGridTakeItsLowestValue)
{
    for (const double w : {0.0, 1e-300, 0.2, 0.4999})
    {
        const CGridWeights weights = GridWeights(kGrid, w);
        EXPECT_EQ(weights.Index[0], 0);
        EXPECT_THAT(weights.Weight, ElementsAre(1, 0, 0, 0));
        EXPECT_EQ(weights.Imaginary, 1);
    }
}

TEST(GridWeights, AboveTheGridLetTheImaginaryPartFallWithTheFourthPower)
{
    const CGridWeights weights = GridWeights(kGrid, 6);
    EXPECT_EQ(weights.Index[0], 5);
    EXPECT_THAT(weights.Weight, ElementsAre(1, 0, 0, 0));
    EXPECT_NEAR(weights.Imaginary, 1.0 / 16, 1e-15);
}

TEST(GridWeights, OfANegativeFrequencyTurnTheImaginaryPart)
{
    for (const double w : {0.1, 1.2, 7.0})
    {
        const CGridWeights positive = GridWeights(kGrid, w);
        const CGridWeights negative = GridWeights(kGrid, -w);
        EXPECT_EQ(negative.Index, positive.Index);
        EXPECT_EQ(negative.Weight, positive.Weight);
        EXPECT_EQ(negative.Imaginary, -positive.Imaginary);
    }
}

TEST(GridWeights, OfFewerThanFourValuesTakeThose)
{
    const CGridWeights weights = GridWeights({1, 4}, 2);
    EXPECT_NEAR(weights.Weight[0], 0.5, 1e-15);
    EXPECT_NEAR(weights.Weight[1], 0.5, 1e-15);
    EXPECT_EQ(weights.Weight[2], 0);
}

} // namespace oe7
