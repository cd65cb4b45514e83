#include "oe7/seas/CPositionResults.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace oe7;

namespace
{
CSlamForm Wedge(double deadrise, double height)
{
    CPosition position;
    position.Event = EWaterEvent::SlamWedge;
    position.Deadrise = deadrise;
    position.WedgeHeight = height;
    return SlamForm(position);
}

CSlamForm Offsets(const std::vector<double>& y, const std::vector<double>& z, double height)
{
    CPosition position;
    position.Event = EWaterEvent::SlamOffset;
    position.SlamY = y;
    position.SlamZ = z;
    position.LoadHeight = height;
    return SlamForm(position);
}

void ExpectNone(const CSlamForm& form)
{
    EXPECT_EQ(form.FormFactor, 0);
    EXPECT_EQ(form.Width, 0);
}

const std::vector<double> kY{0, 0.3, 0.7, 1.2};
const std::vector<double> kZ{0, 0.2, 0.6, 1.5};
} // namespace

TEST(SlamForms, MayBeGiven)
{
    CPosition position;
    position.Event = EWaterEvent::SlamForm;
    position.FormFactor = 15;
    position.Width = 2;
    EXPECT_EQ(SlamForm(position).FormFactor, 15);
    EXPECT_EQ(SlamForm(position).Width, 2);
}

TEST(SlamForms, PositionsWithoutSlammingHaveNone)
{
    for (const EWaterEvent event : {EWaterEvent::None, EWaterEvent::DeckWetness, EWaterEvent::Emergence})
    {
        CPosition position;
        position.Event = event;
        position.FormFactor = 15;
        position.Width = 2;
        ExpectNone(SlamForm(position));
    }
}

TEST(SlamForms, OfAWedgeHaveWagnersPeakAndForce)
{
    EXPECT_NEAR(Wedge(25, 0.44).FormFactor, 12.34736, 0.5e-5);
    EXPECT_NEAR(Wedge(25, 0.44).Width, 1.88717, 0.5e-5);
    // Steep: the width ends with the wedge.
    EXPECT_NEAR(Wedge(60, 1).FormFactor, 1.8224670, 1e-6);
    EXPECT_NEAR(Wedge(60, 1).Width, 1.1547005, 1e-6);
    EXPECT_NEAR(Wedge(10, 1).Width, 6.2049974, 1e-6) << "flat: by the force of the whole wedge";
}

TEST(SlamForms, OfNoWedgeThereIsNone)
{
    for (const double deadrise : {-5.0, 0.0, 90.0, 120.0, 1e-200, std::nan("")})
    {
        ExpectNone(Wedge(deadrise, 0.44));
    }
    ExpectNone(Wedge(25, 0));
    ExpectNone(Wedge(25, -1));
}

TEST(SlamForms, OfOffsetsAreThoseOfTheLewisSection)
{
    EXPECT_NEAR(Offsets(kY, kZ, 0.44).FormFactor, 4.61616, 0.5e-5);
    EXPECT_NEAR(Offsets(kY, kZ, 0.44).Width, 0.54, 1e-9);
}

TEST(SlamForms, OfOffsetsTakeHeightsFromTheFirstPoint)
{
    std::vector<double> raised = kZ;
    for (double& z : raised)
    {
        z += 3.7;
    }
    EXPECT_NEAR(Offsets(kY, raised, 0.44).FormFactor, 4.61616, 0.5e-5);
    EXPECT_NEAR(Offsets(kY, raised, 1.5).Width, 1.2, 1e-9) << "up to the last point";
}

TEST(SlamForms, OfOffsetsWithoutALoadHeightTakeATenthOfThePoints)
{
    const double width = 0.15 / 0.2 * 0.3;
    EXPECT_NEAR(Offsets(kY, kZ, 0).Width, width, 1e-9);
    EXPECT_NEAR(Offsets(kY, kZ, -1).Width, width, 1e-9);
    EXPECT_NEAR(Offsets(kY, kZ, 0).FormFactor, Offsets(kY, kZ, 0.15).FormFactor, 1e-12);
}

TEST(SlamForms, OfOffsetsTakeTheOutermostCrossing)
{
    // A bulb: at 0.5 the contour is 1.0 wide outside and comes back above it.
    EXPECT_NEAR(Offsets({0, 0.8, 1.0, 0.4, 0.6}, {0, 0, 0.5, 1.0, 2.0}, 0.75).Width, 0.7, 1e-9);
    EXPECT_NEAR(Offsets({0, 0.5, 1.0, 0.3, 0.9}, {0, 0.8, 0.8, 0.4, 1.2}, 0.6).Width, 0.65, 1e-9);
}

TEST(SlamForms, OfOffsetsThatDoNotReachTheLoadHeightThereIsNone)
{
    ExpectNone(Offsets(kY, kZ, 1.6));
    ExpectNone(Offsets({0, 0, 0}, {0, 1, 2}, 0.5));
    ExpectNone(Offsets({0, 1}, {0, 0}, 0));
    ExpectNone(Offsets({0, 1}, {0, -1}, 0));
    ExpectNone(Offsets({1}, {0}, 0.5));
    ExpectNone(Offsets({}, {}, 0.5));
}
