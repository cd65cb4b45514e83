#include "oe7/section/CSectionPotentials.h"

#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

namespace oe7
{
namespace
{
constexpr double kDensity = 1025;
const std::vector<double> kGrid{0.8, 1.2, 1.8, 2.6, 3.6, 5.0};

CSection Box(double beam, double draft)
{
    COffsets offsets{{0, beam / 2, beam / 2}, {0, 0, 2 * draft}};
    return ClippedSection(offsets, draft);
}

/// Boxes of beam 4 and draft 2 over the length of 20, G half a metre below the water.
CHullCondition Barge(int stations = 5)
{
    CHullCondition hull{.Rule = CLengthRule(stations, 20),
                        .Sections = std::vector<CSection>(static_cast<std::size_t>(stations), Box(4, 2))};
    hull.Density = kDensity;
    hull.Length = 20;
    hull.Zg = -0.5;
    hull.LargestBeam = 4;
    hull.WaterplaneArea = 80;
    return hull;
}

CSectionPotentials Potentials(const CHullCondition& hull, bool heaveCorrection = false, int threads = 1,
                              ESectionMethod method = ESectionMethod::BoundaryElement)
{
    return {hull, method, kGrid, heaveCorrection, threads};
}

CPotentials At(const CSectionPotentials& potentials, int station, double w)
{
    CPotentials result;
    potentials.PotentialsAt(station, w, result);
    return result;
}

/// Z_jk/rho from potentials about G and the normals about G.
Complex Summed(const CPanels& panels, const CPotentials& potentials, int j, int k, double w, double zg)
{
    Complex sum = 0;
    for (int n = 0; n < panels.Count(); ++n)
    {
        Eigen::RowVector3d normal = Normal(panels, n);
        normal[2] += zg * normal[0];
        sum += 2 * panels.Length[static_cast<std::size_t>(n)] * potentials(n, k - 2) * normal[j - 2];
    }
    return Complex(0, -w) * sum;
}

void ExpectNear(Complex value, Complex expected, double part)
{
    EXPECT_NEAR(std::abs(value - expected), 0, part * std::abs(expected) + 1e-12);
}
} // namespace

TEST(SectionPotentials, RollAboutTheCentreOfGravity)
{
    const CHullCondition hull = Barge();
    const CSectionPotentials potentials = Potentials(hull);
    const auto solver =
        MakeSectionSolver(hull.Sections[2], ESectionMethod::BoundaryElement, hull.LargestBeam);
    const CPotentials direct = solver->Solve(1.8 * 1.8 / 9.81);
    const CPotentials found = At(potentials, 2, 1.8);
    ASSERT_EQ(found.rows(), direct.rows());
    EXPECT_NEAR((found.leftCols<2>() - direct.leftCols<2>()).norm(), 0, 1e-10);
    EXPECT_NEAR((found.col(2) - direct.col(2) + 0.5 * direct.col(0)).norm(), 0, 1e-10);
}

TEST(SectionPotentials, CoefficientsAreTheIntegralsOfThePotentials)
{
    const CHullCondition hull = Barge();
    for (const bool corrected : {false, true})
    {
        const CSectionPotentials potentials = Potentials(hull, corrected);
        for (const double w : {-7.0, -1.5, 0.3, 0.9, 1.3, 3.0, 4.9, 8.0})
        {
            const CPotentials psi = At(potentials, 1, w);
            const CPanels& panels = potentials.Panels(1);
            const CSectionCoefficients found = potentials.CoefficientsAt(1, w);
            const auto expected = [&](int j, int k)
            { return kDensity * Summed(panels, psi, j, k, w, hull.Zg); };
            ExpectNear(found.Z22, expected(2, 2), 1e-10);
            ExpectNear(found.Z33, expected(3, 3), 1e-10);
            ExpectNear(found.Z44, expected(4, 4), 1e-10);
            ExpectNear(found.Z24, (expected(2, 4) + expected(4, 2)) / 2.0, 1e-10);
        }
    }
}

TEST(SectionPotentials, BetweenTheGridsFrequenciesComeCloseToTheSolution)
{
    const CHullCondition hull = Barge();
    const std::vector<double> grid = FrequencyGrid({0, 0, 0}, hull.Length);
    const CSectionPotentials potentials(hull, ESectionMethod::BoundaryElement, grid, false, 2);
    const auto solver =
        MakeSectionSolver(hull.Sections[0], ESectionMethod::BoundaryElement, hull.LargestBeam);
    for (const double w : {0.3, 1.0, 1.77, 3.3})
    {
        const CPotentials direct = solver->Solve(w * w / 9.81);
        EXPECT_LT((At(potentials, 0, w).leftCols<2>() - direct.leftCols<2>()).norm(), 0.003 * direct.norm())
            << w;
    }
}

TEST(SectionPotentials, OfANegativeFrequencyAreTheConjugates)
{
    const CHullCondition hull = Barge();
    for (const bool corrected : {false, true})
    {
        const CSectionPotentials potentials = Potentials(hull, corrected);
        for (const double w : {0.5, 1.1, 2.0, 9.0})
        {
            EXPECT_EQ(At(potentials, 0, -w), At(potentials, 0, w).conjugate()) << w;
            ExpectNear(potentials.CoefficientsAt(0, -w).Z33, std::conj(potentials.CoefficientsAt(0, w).Z33),
                       1e-12);
        }
    }
}

TEST(SectionPotentials, AboveTheGridKeepTheirRealPart)
{
    const CHullCondition hull = Barge();
    const CSectionPotentials potentials = Potentials(hull);
    const CPotentials last = At(potentials, 0, 5);
    const CPotentials above = At(potentials, 0, 10);
    EXPECT_EQ(above.real(), last.real());
    EXPECT_NEAR((above.imag() - last.imag() / 16).norm(), 0, 1e-15);
}

TEST(SectionPotentials, TheHeaveCorrectionBeginsWhereTheBodysDampingInThreeDimensionsIsTheStrips)
{
    // K = 2 Int b^2 dx/Awp^2 = 2 * 16 * 20/80^2 = 0.1.
    const double below = std::sqrt(0.981);
    const CHullCondition hull = Barge();
    const CSectionPotentials plain = Potentials(hull);
    const CSectionPotentials corrected = Potentials(hull, true);
    EXPECT_EQ(At(corrected, 0, 1.001 * below), At(plain, 0, 1.001 * below));
    const CPotentials there = At(plain, 0, below);
    const CPotentials half = At(corrected, 0, below / 2);
    EXPECT_NEAR((half.col(1).real() - there.col(1).real()).norm(), 0, 1e-12);
    EXPECT_NEAR((half.col(1).imag() - there.col(1).imag() / 4).norm(), 0, 1e-12);
    EXPECT_EQ(half.col(0), At(plain, 0, below / 2).col(0));
    EXPECT_EQ(half.col(2), At(plain, 0, below / 2).col(2));
}

TEST(SectionPotentials, TheHeaveCorrectionNeedsAWaterplane)
{
    CHullCondition hull = Barge();
    hull.WaterplaneArea = 0;
    EXPECT_EQ(At(Potentials(hull, true), 0, 0.1), At(Potentials(hull), 0, 0.1));
}

TEST(SectionPotentials, TheRollAddedMassIsThatOfAllStrips)
{
    const CHullCondition hull = Barge();
    const CSectionPotentials potentials = Potentials(hull);
    const auto solver =
        MakeSectionSolver(hull.Sections[0], ESectionMethod::BoundaryElement, hull.LargestBeam);
    const CCoefficients box = Coefficients(*solver, 1.2 * 1.2 / 9.81);
    const double aboutG = box.A(4, 4) - 0.5 * (box.A(2, 4) + box.A(4, 2)) + 0.25 * box.A(2, 2);
    EXPECT_NEAR(potentials.RollAddedMass(1.2), 20 * kDensity * aboutG, 1e-9 * 20 * kDensity * aboutG);
}

TEST(SectionPotentials, HaveTheSameBitsWithAnyNumberOfThreads)
{
    const CHullCondition hull = Barge(4);
    for (const ESectionMethod method : {ESectionMethod::BoundaryElement, ESectionMethod::ConformalMapping})
    {
        const CSectionPotentials one = Potentials(hull, true, 1, method);
        const CSectionPotentials three = Potentials(hull, true, 3, method);
        for (int station = 0; station < 4; ++station)
        {
            for (const double w : {0.4, 1.0, 2.7, 11.0})
            {
                EXPECT_EQ(At(one, station, w), At(three, station, w));
            }
        }
    }
}

TEST(SectionPotentials, OfADryStationAreNone)
{
    CHullCondition hull = Barge();
    hull.Sections[0] = CSection{};
    const CSectionPotentials potentials = Potentials(hull, true, 2);
    EXPECT_EQ(potentials.StationCount(), 5);
    EXPECT_EQ(potentials.Panels(0).Count(), 0);
    EXPECT_EQ(At(potentials, 0, 1).rows(), 0);
    EXPECT_EQ(potentials.CoefficientsAt(0, 1).Z22, Complex(0));
    EXPECT_EQ(potentials.CoefficientsAt(0, 1).Z44, Complex(0));
    EXPECT_GT(potentials.RollAddedMass(1), 0);
}

} // namespace oe7
