#include "oe7/section/BoundaryElements.h"

#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

namespace oe7
{
namespace
{
/// Within a part of the value or absolutely.
void ExpectClose(double value, double expected, double part, double absolute, const char* what, double at)
{
    EXPECT_NEAR(value, expected, std::max(part * std::abs(expected), absolute)) << what << " at " << at;
}

struct CRow
{
    double K, A33, B33, A22, B22;
};

void ExpectSemicircle(int panels, const std::vector<CRow>& rows)
{
    const CBoundaryElements section = Semicircle(panels);
    for (const CRow& row : rows)
    {
        const CCoefficients found = Coefficients(section, row.K);
        const double unit = kPi / 2;
        ExpectClose(found.A(3, 3) / unit, row.A33, 0.003, 0.001, "a33", row.K);
        ExpectClose(found.B(3, 3) / unit, row.B33, 0.003, 0.001, "b33", row.K);
        ExpectClose(found.A(2, 2) / unit, row.A22, 0.003, 0.001, "a22", row.K);
        ExpectClose(found.B(2, 2) / unit, row.B22, 0.003, 0.001, "b22", row.K);
        EXPECT_LT(std::abs(found.A(4, 4)) + std::abs(found.A(2, 4)) + std::abs(found.B(4, 4)), 1e-12);
    }
}
} // namespace

TEST(BoundaryElements, GiveASemicircleItsCoefficientsWithThirtyPanels)
{
    ExpectSemicircle(30, {{0.05, 1.92213, 2.01529, 1.07524, 0.01584},
                          {0.10, 1.40968, 1.73515, 1.15675, 0.06395},
                          {0.25, 0.87815, 1.24488, 1.30389, 0.37373},
                          {0.50, 0.64474, 0.81171, 0.99330, 0.85085},
                          {0.75, 0.59682, 0.55937, 0.59517, 0.86918},
                          {1.00, 0.60493, 0.39666, 0.38207, 0.74697},
                          {1.50, 0.66473, 0.21200, 0.22597, 0.52642},
                          {2.00, 0.72642, 0.12113, 0.18874, 0.38431},
                          {3.00, 0.81332, 0.04628, 0.19484, 0.22746},
                          {5.00, 0.89454, 0.01060, 0.24606, 0.10273},
                          {10.00, 0.95247, 0.00095, 0.31871, 0.02951}});
}

TEST(BoundaryElements, GiveASemicircleItsCoefficientsWithManyPanels)
{
    ExpectSemicircle(160, {{0.05, 1.92196, 2.01525, 1.07527, 0.01584},
                           {0.50, 0.64463, 0.81150, 0.99329, 0.85121},
                           {1.00, 0.60497, 0.39635, 0.38179, 0.74720},
                           {2.00, 0.72658, 0.12077, 0.18855, 0.38422},
                           {10.00, 0.95256, 0.00094, 0.31862, 0.02880}});
}

TEST(BoundaryElements, ComeToTheLimitsOfVeryLongAndVeryShortWaves)
{
    const CBoundaryElements section = Semicircle(160);
    const double unit = kPi / 2;
    EXPECT_NEAR(Coefficients(section, 200).A(3, 3) / unit, 0.9979, 0.001);
    EXPECT_NEAR(Coefficients(section, 200).A(2, 2) / unit, 0.4015, 0.001);
    EXPECT_NEAR(Coefficients(section, 1e-4).A(2, 2) / unit, 1.0001, 0.0005);
}

TEST(BoundaryElements, GiveARectangleItsCoefficients)
{
    struct CCase
    {
        double Beam, K, A22, A24, A44, A33, B22, B24, B44, B33;
    };
    for (const CCase& c : {CCase{2, 0.1, 2.9020, 0.9138, 0.5395, 2.5273, 0.21404, 0.05592, 0.01464, 2.52037},
                           {2, 0.5, 1.7961, 0.6293, 0.4672, 1.6125, 2.68159, 0.77111, 0.22212, 0.78173},
                           {2, 1.0, 0.2887, 0.1694, 0.3274, 1.8416, 1.72208, 0.51663, 0.15523, 0.19765},
                           {2, 2.0, 0.1309, 0.1061, 0.3042, 2.1408, 0.73853, 0.21274, 0.06135, 0.01469},
                           {4, 0.1, 3.4023, -0.5177, 3.9161, 8.3483, 0.46093, -0.20742, 0.09307, 8.65714},
                           {4, 0.5, 1.4274, 0.3677, 3.6304, 5.9036, 2.70440, -0.47764, 0.08364, 2.29137},
                           {4, 1.0, 0.2634, 0.3314, 3.7095, 6.8765, 1.68109, 0.02616, 0.00044, 0.50675},
                           {4, 2.0, 0.1313, 0.0692, 3.7261, 7.8412, 0.74033, 0.12964, 0.02285, 0.03245}})
    {
        const CCoefficients found = Coefficients(Rectangle(c.Beam, 40), c.K);
        const std::array<std::array<double, 2>, 8> pairs{{{found.A(2, 2), c.A22},
                                                          {(found.A(2, 4) + found.A(4, 2)) / 2, c.A24},
                                                          {found.A(4, 4), c.A44},
                                                          {found.A(3, 3), c.A33},
                                                          {found.B(2, 2), c.B22},
                                                          {(found.B(2, 4) + found.B(4, 2)) / 2, c.B24},
                                                          {found.B(4, 4), c.B44},
                                                          {found.B(3, 3), c.B33}}};
        for (const auto& [value, expected] : pairs)
        {
            ExpectClose(value, expected, 0.01, 0.005, "B/T", c.Beam);
        }
    }
}

TEST(BoundaryElements, AreRightAtTheFrequenciesOfSloshingInside)
{
    const CBoundaryElements section = Rectangle(2, 40);
    const CCoefficients heave = Coefficients(section, 1.71269);
    ExpectClose(heave.A(3, 3), 2.0871, 0.001, 0, "a33", 1.71269);
    ExpectClose(heave.B(3, 3), 0.03034, 0.01, 0, "b33", 1.71269);
    const CCoefficients sway = Coefficients(section, 3.15335);
    ExpectClose(sway.A(2, 2), 0.2587, 0.002, 0, "a22", 3.15335);
    ExpectClose(sway.B(2, 2), 0.36435, 0.002, 0, "b22", 3.15335);
}

TEST(BoundaryElements, GoSmoothlyThroughTheFrequenciesOfSloshing)
{
    const CBoundaryElements section = Rectangle(2, 40);
    for (const auto& [at, mode] : {std::pair(1.71269, 3), std::pair(3.15335, 2)})
    {
        const double middle = Coefficients(section, at).A(mode, mode);
        const double mean = (Coefficients(section, at - 0.01).A(mode, mode) +
                             Coefficients(section, at + 0.01).A(mode, mode)) /
                            2;
        EXPECT_NEAR(middle, mean, 0.001 * middle);
    }
}

TEST(BoundaryElements, GiveACircleUnderWaterItsCoefficients)
{
    const CBoundaryElements section = Circle(3, 60);
    for (const auto& [k, expected] :
         {std::pair(0.001, 1.0579), std::pair(0.5, 0.8879), std::pair(20.0, 0.9443)})
    {
        const CCoefficients found = Coefficients(section, k);
        ExpectClose(found.A(2, 2), expected * kPi, 0.002, 0, "a22", k);
        ExpectClose(found.A(3, 3), expected * kPi, 0.002, 0, "a33", k);
    }
}

TEST(BoundaryElements, DropPanelsOfNoLength)
{
    const CBoundaryElements section({{0, -1}, {0, -1}, {1, -1}, {1, -1}, {1, 0}, {1, 0}}, 2, 1);
    EXPECT_EQ(section.Panels().Count(), 2);
    EXPECT_TRUE(section.Solve(1).allFinite());
}

TEST(BoundaryElements, GiveNumbersForStrangeContours)
{
    const std::vector<std::vector<CPoint>> contours{
        {},
        {{0, -1}},
        {{0, -1}, {0, 0}},                              // a plate in the centre plane
        {{0, 0}, {1, 0}},                               // on the surface
        {{0, 0}, {1, -1}, {2, 0}},                      // from the surface and back
        {{0, -2}, {0, -1}, {1, -1}, {1, 0}},            // a fin below a box
        {{0, -1}, {1, -1}, {1, -0.5}, {0, -0.5}},       // a box under water
        {{0, -1}, {1, -1}, {0.5, -1}, {1, -1}, {1, 0}}, // forth and back
        {{0, -1}, {1e-7, -1}, {1, -1}, {1, -1e-9}, {1, 0}},
        {{0, -1e-9}, {1e-9, -1e-9}, {1e-9, 0}}};
    for (std::size_t n = 0; n < contours.size(); ++n)
    {
        for (const double k : {1e-6, 1.0, 1e3, 1e12})
        {
            const double beam = contours[n].empty() ? 0 : 2 * contours[n].back().Y;
            const CBoundaryElements section(contours[n], beam, 1);
            const CPotentials potentials = section.Solve(k);
            EXPECT_EQ(potentials.rows(), section.Panels().Count());
            EXPECT_TRUE(potentials.allFinite()) << "contour " << n << ", K " << k;
        }
    }
}

TEST(DividedContour, KeepsThePointsAndDividesWhatLiesBetween)
{
    const std::vector<CPoint> points = DividedContour({{0, -1}, {1, -1}, {1, -0.9}, {1, 0}}, 0.3);
    ASSERT_EQ(points.size(), 8u);
    EXPECT_NEAR(points[1].Y, 1.0 / 3, 1e-15);
    EXPECT_EQ(points[3].Y, 1);
    EXPECT_EQ(points[3].Z, -1);
    EXPECT_EQ(points[4].Z, -0.9);
    EXPECT_NEAR(points[5].Z, -0.6, 1e-15);
}

TEST(DividedContour, OfNoLengthStaysAsItIs)
{
    EXPECT_EQ(DividedContour({{0, -1}, {1, 0}}, 0).size(), 2u);
    EXPECT_TRUE(DividedContour({}, 1).empty());
}

} // namespace oe7
