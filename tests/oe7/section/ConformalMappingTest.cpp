#include "oe7/section/ConformalMapping.h"

#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

namespace oe7
{
namespace
{
double LargestDifference(const std::vector<double>& values, const std::vector<double>& others)
{
    double difference = 0;
    double largest = 0;
    for (std::size_t k = 0; k < values.size(); ++k)
    {
        difference = std::max(difference, std::abs(values[k] - others[k]));
        largest = std::max(largest, std::abs(others[k]));
    }
    return difference / largest;
}

/// Between the methods, over waves of all lengths and relative to the largest value: of heave, and of sway
/// and roll.
std::array<double, 3> Disagreement(double beam, double sigma)
{
    const CLewisForm form = LewisForm(beam, 1, sigma * beam);
    const CConformalMapping mapping(form);
    const CBoundaryElements elements(LewisContour(form, beam, 1, 30), beam, 1);
    std::vector<double> values[6], others[6];
    for (double k = 0.02; k < 20; k *= 1.5)
    {
        const CCoefficients a = Coefficients(mapping, k);
        const CCoefficients b = Coefficients(elements, k);
        for (const int mode : {2, 3, 4})
        {
            values[mode - 2].push_back(a.A(mode, mode));
            others[mode - 2].push_back(b.A(mode, mode));
            values[mode + 1].push_back(a.B(mode, mode));
            others[mode + 1].push_back(b.B(mode, mode));
        }
    }
    const auto of = [&](int n) { return LargestDifference(values[n], others[n]); };
    return {std::max(of(0), of(3)), std::max(of(1), of(4)), std::max(of(2), of(5))};
}
} // namespace

TEST(ConformalMapping, GivesASemicircleItsCoefficients)
{
    const CConformalMapping section(LewisForm(2, 1, kPi / 2));
    EXPECT_EQ(section.Panels().Count(), 48);
    struct CRow
    {
        double K, A33, B33, A22, B22;
    };
    for (const CRow& row : {CRow{0.05, 1.92266, 2.01606, 1.07526, 0.01584},
                            {0.10, 1.41004, 1.73578, 1.15680, 0.06397},
                            {0.25, 0.87837, 1.24532, 1.30396, 0.37379},
                            {0.50, 0.64493, 0.81202, 0.99348, 0.85088},
                            {0.75, 0.59702, 0.55963, 0.59550, 0.86932},
                            {1.00, 0.60514, 0.39688, 0.38246, 0.74726},
                            {1.50, 0.66497, 0.21215, 0.22636, 0.52690},
                            {2.00, 0.72653, 0.12123, 0.18912, 0.38489},
                            {3.00, 0.81331, 0.04645, 0.19521, 0.22797},
                            {5.00, 0.89455, 0.01063, 0.24610, 0.10362},
                            {10.00, 0.95244, 0.00101, 0.31807, 0.02998}})
    {
        const CCoefficients found = Coefficients(section, row.K);
        const double unit = kPi / 2;
        EXPECT_NEAR(found.A(3, 3) / unit, row.A33, 2e-5) << row.K;
        EXPECT_NEAR(found.B(3, 3) / unit, row.B33, 2e-5) << row.K;
        EXPECT_NEAR(found.A(2, 2) / unit, row.A22, 2e-5) << row.K;
        EXPECT_NEAR(found.B(2, 2) / unit, row.B22, 2e-5) << row.K;
        EXPECT_LT(std::abs(found.A(4, 4)) + std::abs(found.A(2, 4)) + std::abs(found.B(4, 4)), 1e-12);
    }
}

TEST(ConformalMapping, GivesALewisSectionItsCoefficients)
{
    const CLewisForm form = LewisForm(2.5, 1, 2.375);
    const CConformalMapping section(form);
    const CBoundaryElements elements(LewisContour(form, 2.5, 1, 30), 2.5, 1);
    struct CRow
    {
        double K, A33, B33, A22, B22, A24, A44;
    };
    const std::vector<CRow> poles{{0.1, 3.4582, 3.8973, 2.5430, 0.2105, 0.1263, 0.2453},
                                  {0.5, 1.9817, 1.3904, 1.6178, 2.1769, 0.1472, 0.2505},
                                  {1.0, 2.1966, 0.4588, 0.3721, 1.5179, 0.0407, 0.2439},
                                  {2.0, 2.6330, 0.0644, 0.1559, 0.6919, -0.0305, 0.2327}};
    const std::vector<CRow> panels{{0.1, 3.4581, 3.8971, 2.5428, 0.2105, 0.1239, 0.2449},
                                   {0.5, 1.9817, 1.3903, 1.6169, 2.1758, 0.1455, 0.2501},
                                   {1.0, 2.1966, 0.4588, 0.3717, 1.5159, 0.0403, 0.2436},
                                   {2.0, 2.6331, 0.0643, 0.1560, 0.6893, -0.0304, 0.2325}};
    const auto expect = [](const CSectionSolver& solver, const CRow& row, double tolerance)
    {
        const CCoefficients found = Coefficients(solver, row.K);
        EXPECT_NEAR(found.A(3, 3), row.A33, tolerance) << row.K;
        EXPECT_NEAR(found.B(3, 3), row.B33, tolerance) << row.K;
        EXPECT_NEAR(found.A(2, 2), row.A22, tolerance) << row.K;
        EXPECT_NEAR(found.B(2, 2), row.B22, tolerance) << row.K;
        EXPECT_NEAR(found.A(2, 4), row.A24, tolerance) << row.K;
        EXPECT_NEAR(found.A(4, 4), row.A44, tolerance) << row.K;
    };
    for (std::size_t k = 0; k < poles.size(); ++k)
    {
        expect(section, poles[k], 1e-4);
        expect(elements, panels[k], 2e-3);
    }
}

TEST(ConformalMapping, AgreesWithBoundaryElementsOnCommonForms)
{
    for (const double h0 : {0.3, 0.6, 1.0, 2.0})
    {
        for (const double sigma : {0.7, 0.8, 0.95})
        {
            const auto [sway, heave, roll] = Disagreement(2 * h0, sigma);
            EXPECT_LT(heave, 0.004) << h0 << ", " << sigma;
            EXPECT_LT(sway, 0.004) << h0 << ", " << sigma;
            // A form near the circle has next to no roll.
            EXPECT_LT(roll, 0.007) << h0 << ", " << sigma;
        }
    }
}

TEST(ConformalMapping, AgreesWithBoundaryElementsToTheEndsOfItsRange)
{
    for (const double h0 : {0.25, 4.0, 6.0})
    {
        for (const double sigma : {0.7, 0.95})
        {
            const auto [sway, heave, roll] = Disagreement(2 * h0, sigma);
            EXPECT_LT(heave, 0.005) << h0 << ", " << sigma;
            EXPECT_LT(sway, 0.0145) << h0 << ", " << sigma;
            EXPECT_LT(roll, 0.0145) << h0 << ", " << sigma;
        }
    }
}

TEST(ConformalMapping, GivesNumbersForAllWavesAndLimitsOfForms)
{
    for (const double beam : {0.0, 1e-3, 2.0, 1e3})
    {
        for (const double area : {0.0, 1.0, 1e6})
        {
            for (const double k : {1e-9, 1.0, 1e3, 1e12})
            {
                EXPECT_TRUE(CConformalMapping(LewisForm(beam, 1, area)).Solve(k).allFinite());
            }
        }
    }
}

} // namespace oe7
