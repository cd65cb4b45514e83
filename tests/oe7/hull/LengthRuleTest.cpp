#include "oe7/hull/CLengthRule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>

namespace oe7
{
namespace
{
Eigen::VectorXd Values(const CLengthRule& rule, const std::function<double(double)>& function)
{
    Eigen::VectorXd values(rule.StationCount());
    for (int n = 0; n < rule.StationCount(); ++n)
    {
        values(n) = function(rule.X(n));
    }
    return values;
}

TEST(LengthRule, StationsCountFromTheBowAndXIsPositiveForward)
{
    const CLengthRule rule(11, 100, 3);
    EXPECT_DOUBLE_EQ(rule.Bow(), 47);
    EXPECT_DOUBLE_EQ(rule.Aft(), -53);
    EXPECT_DOUBLE_EQ(rule.X(2.5), 22);
    EXPECT_DOUBLE_EQ(rule.X(-1), 57);
    EXPECT_DOUBLE_EQ(rule.X(12), -73);
}

TEST(LengthRule, WeightsAreSimpsonsForAnEvenNumberOfIntervals)
{
    const CLengthRule rule(5, 12);
    const double expected[] = {1, 4, 2, 4, 1};
    for (int n = 0; n < 5; ++n)
    {
        EXPECT_NEAR(rule.Weights()(n), expected[n], 1e-13);
    }
}

TEST(LengthRule, ThreeIntervalsAtTheAftEndTakeTheThreeEighthsRule)
{
    const CLengthRule rule(6, 40);
    const double expected[] = {8.0 / 3, 32.0 / 3, 8.0 / 3 + 3, 9, 9, 3};
    for (int n = 0; n < 6; ++n)
    {
        EXPECT_NEAR(rule.Weights()(n), expected[n], 1e-12);
    }
}

TEST(LengthRule, TwoStationsAreJoinedByAStraightLine)
{
    const CLengthRule rule(2, 10);
    EXPECT_NEAR(rule.Weights()(0), 5, 1e-13);
    EXPECT_NEAR(rule.Weights()(1), 5, 1e-13);
    EXPECT_NEAR(rule.Basis(2.5)(0), 0.75, 1e-13);
}

TEST(LengthRule, TakesTheParabolaThroughEachPairOfIntervals)
{
    const CLengthRule rule(5, 4);
    // Stations at x = 2, 1, 0, -1, -2: the forward parabola at 0.5, the aft one at -0.5.
    const Eigen::RowVectorXd forward = rule.Basis(0.5);
    const Eigen::RowVectorXd aft = rule.Basis(-0.5);
    const double expected[] = {-0.125, 0.75, 0.375};
    for (int n = 0; n < 3; ++n)
    {
        EXPECT_NEAR(forward(n), expected[n], 1e-14);
        EXPECT_NEAR(aft(4 - n), expected[n], 1e-14);
    }
    EXPECT_EQ(forward(3), 0);
    EXPECT_EQ(aft(1), 0);
}

TEST(LengthRule, InterpolatesACubicExactlyInTheLastThreeIntervals)
{
    const CLengthRule rule(4, 9, 1);
    const auto cubic = [](double x) { return x * x * x - 2 * x * x + 5; };
    const Eigen::VectorXd values = Values(rule, cubic);
    for (const double x : {-5.5, -2.2, 0.3, 3.4})
    {
        EXPECT_NEAR(rule.Basis(x).dot(values), cubic(x), 1e-11);
    }
}

TEST(LengthRule, BasisIsAStationsOwnAtEveryStation)
{
    for (const int stations : {2, 3, 4, 5, 8, 21})
    {
        const CLengthRule rule(stations, 7, 0.3);
        for (int n = 0; n < stations; ++n)
        {
            Eigen::RowVectorXd own = Eigen::RowVectorXd::Zero(stations);
            own(n) = 1;
            EXPECT_LT((rule.Basis(rule.X(n)) - own).norm(), 1e-11) << stations << " stations, number " << n;
        }
    }
}

TEST(LengthRule, BasisIsBoundedWhereXIsNoNumber)
{
    EXPECT_EQ(CLengthRule(5, 4).Basis(std::nan("")).size(), 5);
    EXPECT_TRUE(CLengthRule(5, 4).Basis(1e6).allFinite());
    EXPECT_TRUE(CLengthRule(5, 4).Basis(-1e6).allFinite());
}

class RuleOfStations : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(LengthRule, RuleOfStations, testing::Values(11, 21));

TEST_P(RuleOfStations, IntegratesAParabolaWithAPhase)
{
    const CLengthRule rule(GetParam(), 2);
    const Eigen::VectorXd values = Values(rule, [](double x) { return 1 - x * x; });
    const double expected[][2] = {{0, 1.33333333}, {1, 1.20467472}, {5, -0.07607153}, {20, -0.00362435}};
    for (const auto& [q, integral] : expected)
    {
        const std::complex<double> found = (rule.PhaseMoments(0, q, -1) * values)(0);
        EXPECT_NEAR(found.real(), integral, 1e-8) << "q = " << q;
        EXPECT_NEAR(found.imag(), 0, 1e-12);
    }
}

/// Int_a^b x^p dx.
double PowerIntegral(int power, double a, double b)
{
    return (std::pow(b, power + 1) - std::pow(a, power + 1)) / (power + 1);
}

TEST(LengthRule, MomentsReachFromACutToTheBow)
{
    for (const int stations : {2, 3, 4, 5, 6, 21})
    {
        const CLengthRule rule(stations, 10, 1);
        const Eigen::VectorXd line = Values(rule, [](double x) { return x; });
        for (const double from : {-5.9, -3.0, -1.0, 0.123, 3.99})
        {
            const Eigen::VectorXd found = rule.Moments(2, from) * line;
            for (int power = 0; power <= 2; ++power)
            {
                EXPECT_NEAR(found(power), PowerIntegral(power + 1, from, 4), 1e-11)
                    << stations << " stations from " << from;
            }
        }
    }
}

TEST(LengthRule, PhaseMomentsReachFromACutToTheBow)
{
    const CLengthRule rule(21, 10, 1);
    const double q = 0.7;
    const std::complex<double> i(0, 1);
    for (const double from : {-6.0, -3.3, 0.0, 2.75})
    {
        const Eigen::MatrixXcd moments = rule.PhaseMoments(1, q, from);
        const auto primitive = [&](double x) { return std::exp(-i * q * x) * (i * x / q + 1 / (q * q)); };
        EXPECT_LT(
            std::abs(moments.row(0).sum() - (std::exp(-i * q * from) - std::exp(-i * q * 4.0)) / (i * q)),
            1e-11);
        EXPECT_LT(std::abs(moments.row(1).sum() - (primitive(4) - primitive(from))), 1e-10);
    }
}

TEST(LengthRule, ACutBehindTheAftEndTakesTheWholeLengthAndOneAheadOfTheBowNothing)
{
    const CLengthRule rule(6, 10);
    EXPECT_LT((rule.Moments(0, -50).row(0) - rule.Weights()).norm(), 1e-13);
    EXPECT_LT((rule.PhaseMoments(0, 0, -50).row(0) - rule.Weights()).norm(), 1e-12);
    EXPECT_TRUE(rule.Moments(2, 5).isZero());
    EXPECT_TRUE(rule.Moments(2, 50).isZero());
    EXPECT_TRUE(rule.PhaseMoments(1, 1, 50).isZero());
}

TEST(LengthRule, MomentsOnBothSidesOfACutMakeTheWhole)
{
    const CLengthRule rule(7, 12, -0.5);
    const Eigen::MatrixXd whole = rule.Moments(2, rule.Aft());
    const Eigen::MatrixXd ahead = rule.Moments(2, 2.5);
    // Behind the cut the parabola of its pair of intervals: stations 2 to 4 lie at x = 2.5, 0.5, -1.5.
    EXPECT_LT((whole - ahead).leftCols(2).norm(), 1e-12);
    EXPECT_NEAR((whole - ahead)(0, 2), 2.0 / 3, 1e-12);
}
} // namespace
} // namespace oe7
