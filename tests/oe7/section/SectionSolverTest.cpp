#include "oe7/section/ConformalMapping.h"

#include "tests/oe7/section/SectionCases.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace oe7
{
namespace
{
constexpr double kLargestBeam = 10;

CSection Section(std::vector<double> y, std::vector<double> z, double waterline = 0)
{
    return ClippedSection(COffsets{std::move(y), std::move(z)}, waterline);
}

/// A box of a beam and of draft 1.
CSection Box(double beam)
{
    return Section({0, beam / 2, beam / 2}, {-1, -1, 1});
}

bool IsMapping(const CSectionSolver& solver)
{
    return dynamic_cast<const CConformalMapping*>(&solver) != nullptr;
}
} // namespace

TEST(SectionSolver, ADryStationHasNone)
{
    EXPECT_EQ(MakeSectionSolver(CSection{}, ESectionMethod::BoundaryElement, kLargestBeam), nullptr);
}

TEST(SectionSolver, NextToNothingHasNone)
{
    const CSection sliver = Section({0, 1e-5, 1e-5}, {-1e-4, -1e-4, 1});
    EXPECT_EQ(MakeSectionSolver(sliver, ESectionMethod::BoundaryElement, 1000), nullptr);
    EXPECT_NE(MakeSectionSolver(sliver, ESectionMethod::BoundaryElement, 1), nullptr);
    // No area, but a draft: a plate.
    EXPECT_NE(MakeSectionSolver(Section({0, 0}, {-1, 1}), ESectionMethod::BoundaryElement, 1000), nullptr);
}

TEST(SectionSolver, ThePanelsAreAThirtiethOfHalfTheGirthAndKeepThePoints)
{
    const auto solver = MakeSectionSolver(Box(2), ESectionMethod::BoundaryElement, kLargestBeam);
    const CPanels& panels = solver->Panels();
    ASSERT_EQ(panels.Count(), 30);
    for (std::size_t k = 0; k < 30; ++k)
    {
        EXPECT_NEAR(panels.Length[k], 2.0 / 30, 1e-12);
        EXPECT_NEAR(panels.N2[k], k < 15 ? 0 : 1, 1e-12);
        EXPECT_NEAR(panels.N3[k], k < 15 ? -1 : 0, 1e-12);
    }
    EXPECT_NEAR(panels.N4(0), -panels.Y[0], 1e-12);
    EXPECT_NEAR(panels.N4(29), -panels.Z[29], 1e-12);
}

TEST(SectionSolver, APlateIsHalfAThinEllipseInBothMethods)
{
    for (const ESectionMethod method : {ESectionMethod::BoundaryElement, ESectionMethod::ConformalMapping})
    {
        for (const double halfBreadth : {0.0, 0.019})
        {
            const CSection plate = Section({0, halfBreadth, halfBreadth}, {-1, -1, 1});
            const auto solver = MakeSectionSolver(plate, method, kLargestBeam);
            const CPanels& panels = solver->Panels();
            ASSERT_EQ(panels.Count(), 24);
            for (std::size_t k = 0; k < 24; ++k)
            {
                const double y = panels.Y[k] / 0.02;
                EXPECT_NEAR(y * y + panels.Z[k] * panels.Z[k], 1, 0.003);
            }
            // A plate's sway added mass in short and long waves.
            EXPECT_NEAR(Coefficients(*solver, 1e-4).A(2, 2), kPi / 2, 0.06 * kPi / 2);
        }
    }
}

TEST(SectionSolver, TheMethodIsTheOneAskedForWhereFormsAreNeitherThinNorFlat)
{
    for (const double beam : {0.55, 2.0, 11.9})
    {
        EXPECT_TRUE(IsMapping(*MakeSectionSolver(Box(beam), ESectionMethod::ConformalMapping, kLargestBeam)))
            << beam;
        EXPECT_FALSE(IsMapping(*MakeSectionSolver(Box(beam), ESectionMethod::BoundaryElement, kLargestBeam)))
            << beam;
    }
}

TEST(SectionSolver, ThinAndFlatFormsAreMappedByThirtyPanelsOnTheLewisContour)
{
    for (const double beam : {0.45, 12.1})
    {
        const auto solver = MakeSectionSolver(Box(beam), ESectionMethod::ConformalMapping, kLargestBeam);
        EXPECT_FALSE(IsMapping(*solver)) << beam;
        const CPanels& panels = solver->Panels();
        ASSERT_EQ(panels.Count(), 30);
        const std::vector<CPoint> contour = LewisContour(LewisForm(beam, 1, beam), beam, 1, 30);
        EXPECT_NEAR(panels.Y[7], (contour[7].Y + contour[8].Y) / 2, 1e-12);
        EXPECT_NEAR(panels.Z[7], (contour[7].Z + contour[8].Z) / 2, 1e-12);
    }
}

TEST(SectionSolver, DeadwoodBelowAWiderSectionKeepsItsSwayAddedMass)
{
    const auto coefficients = [](double halfBreadth, double k)
    {
        const CSection section = Section({0, halfBreadth, halfBreadth, 1, 1}, {-2, -2, -1, -1, 1});
        return Coefficients(*MakeSectionSolver(section, ESectionMethod::BoundaryElement, kLargestBeam), k);
    };
    for (const double k : {0.1, 1.0, 3.0})
    {
        const CCoefficients thick = coefficients(0.02, k);
        for (const double halfBreadth : {0.0, 1e-9, 1e-4})
        {
            const CCoefficients thin = coefficients(halfBreadth, k);
            EXPECT_NEAR(thin.A(2, 2), thick.A(2, 2), 0.03 * thick.A(2, 2)) << halfBreadth << ", " << k;
            EXPECT_NEAR(thin.A(4, 4), thick.A(4, 4), 0.03 * thick.A(4, 4)) << halfBreadth << ", " << k;
            EXPECT_NEAR(thin.B(2, 2), thick.B(2, 2), 0.03 * thick.B(2, 2)) << halfBreadth << ", " << k;
        }
    }
}

TEST(SectionSolver, TheTipOfAKeelIsNotThickened)
{
    const auto solver = MakeSectionSolver(Section({0, 0.001, 0.002, 1, 1}, {-2, -1.998, -1.996, 0, 1}),
                                          ESectionMethod::BoundaryElement, kLargestBeam);
    EXPECT_NEAR(solver->Panels().Y.front(), 0.0005, 1e-12);
    EXPECT_NEAR(solver->Panels().Y.at(1), 0.0015, 1e-12);
}

TEST(SectionSolver, ABulbBelowAThinStemIsNotThickenedWhereItIsWide)
{
    const auto solver = MakeSectionSolver(Section({0, 1, 1, 0, 0}, {-4, -4, -3, -3, 1}),
                                          ESectionMethod::BoundaryElement, kLargestBeam);
    const CPanels& panels = solver->Panels();
    EXPECT_NEAR(*std::max_element(panels.Y.begin(), panels.Y.end()), 1, 1e-12);
    // The stem, a tenth of a panel of a thirtieth of the half girth off the centre plane.
    EXPECT_NEAR(panels.Y.back(), 6.0 / 30 / 10, 1e-12);
    EXPECT_GT(Coefficients(*solver, 1).B(2, 2), 0);
}

TEST(SectionSolver, UnderWaterThereIsNoFormToMap)
{
    const CSection bulb = Section({0, 1, 1, 0}, {-4, -4, -2, -2});
    ASSERT_TRUE(bulb.Submerged);
    const auto solver = MakeSectionSolver(bulb, ESectionMethod::ConformalMapping, kLargestBeam);
    EXPECT_FALSE(IsMapping(*solver));
    EXPECT_TRUE(solver->Solve(1).allFinite());
}

} // namespace oe7
