#include "oe7/motion/CControls.h"

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr double kNatural = 0.67676; ///< rad/s, of the upright tank

CUTubeTank UprightTank()
{
    CUTubeTank tank;
    tank.Length = 5;
    tank.DuctWidth = 8;
    tank.LegWidth = 2.4;
    tank.FluidDepth = 1.6;
    tank.DuctHeight = 0.62;
    tank.Height = 6;
    tank.Station = 5;
    tank.SpecificGravity = 1;
    return tank;
}

CUTubeTank InclinedTank()
{
    CUTubeTank tank;
    tank.Length = 3;
    tank.DuctWidth = 6;
    tank.LegWidth = 1.5;
    tank.FluidDepth = 2;
    tank.Inclination = 30;
    tank.DuctHeight = 0.8;
    tank.Height = 4;
    tank.Station = 4;
    tank.SpecificGravity = 1.2;
    return tank;
}

CTankModel Model(const CUTubeTank& tank)
{
    CHullCondition hull{CLengthRule(11, 120), {}};
    hull.Kg = 5.6;
    return FindTank(tank, hull);
}

/// The fluid's damping, as a part of the critical, from its angle at its own frequency.
double DampingAt(const CTankModel& model, double w)
{
    const Complex row = model.At(w).Row(3);
    const Complex moment = model.At(w).Force(3);
    return (moment / row).imag() / (2 * w * std::sqrt(model.Att * model.Ctt));
}

TEST(Tank, SwingsAtItsNaturalFrequency)
{
    const CTankModel model = Model(UprightTank());
    EXPECT_NEAR(model.NaturalFrequency(), kNatural, 5e-6);
    EXPECT_NEAR(model.Ctt / kGravity, 648960, 1e-6);
}

TEST(Tank, WithInclinedWallsFollowsTheIntegralsAlongItsLegs)
{
    const CTankModel model = Model(InclinedTank());
    EXPECT_NEAR(model.Att, 5294974.76, 1e-4 * 5294974);
    EXPECT_NEAR(model.Ctt, 3511245.06, 1);
    EXPECT_NEAR(model.At4, 941065.15, 1e-4 * 941065);
    EXPECT_NEAR(model.At2, 357925.08, 1);
    EXPECT_NEAR(model.At6, 12 * 357925.08, 12);
}

TEST(Tank, TakesAwayTheStiffnessOfItsFreeSurfaceWhenTheShipRollsSlowly)
{
    const CTankModel model = Model(UprightTank());
    const CComplexMatrix6 left = model.At(1e-5).LeftSide();
    EXPECT_NEAR(left(3, 3).real(), -model.Ctt, 1e-6 * model.Ctt);
    // The fluid stays level: it rises on the side that goes down.
    EXPECT_NEAR(model.At(1e-5).Row(3).real(), -1, 1e-6);
}

TEST(Tank, MovesTheShipAsItIsMoved)
{
    const CFollower fluid = Model(InclinedTank()).At(0.8);
    const CComplexMatrix6 left = fluid.LeftSide();
    for (const int i : {1, 3, 5})
    {
        for (const int j : {1, 3, 5})
        {
            EXPECT_NEAR(std::abs(left(i, j) - left(j, i)), 0, 1e-9 * std::abs(left(i, j)));
        }
    }
    for (const int inPlane : {0, 2, 4})
    {
        EXPECT_EQ(fluid.Force(inPlane), Complex(0));
        EXPECT_EQ(fluid.Row(inPlane), Complex(0));
    }
}

TEST(Tank, LagsAQuarterPeriodAtItsOwnFrequencyAndDampsRoll)
{
    CUTubeTank tank = UprightTank();
    tank.HighResistance = 0.1;
    const CTankModel model = Model(tank);
    const double w = model.NaturalFrequency();
    EXPECT_NEAR(DampingAt(model, w), 0.1, 1e-9);
    EXPECT_NEAR((model.At(w).Force(3) / model.At(w).Row(3)).real(), 0, 1e-6 * model.Ctt);
    EXPECT_GT(model.At(w).LeftSide()(3, 3).imag(), 0);
}

TEST(Tank, HasAResistanceThatGrowsUpToTheBreakFrequency)
{
    CUTubeTank tank = UprightTank();
    tank.ZeroResistance = 0.04;
    tank.HighResistance = 0.12;
    tank.BreakFrequency = 1;
    const CTankModel model = Model(tank);
    EXPECT_NEAR(DampingAt(model, 0.25), 0.06, 1e-9);
    EXPECT_NEAR(DampingAt(model, -0.25), 0.06, 1e-9);
    EXPECT_NEAR(DampingAt(model, 1), 0.12, 1e-9);
    EXPECT_NEAR(DampingAt(model, 2), 0.12, 1e-9);
}

TEST(Tank, IsFilledAtLeastAsHighAsItsDuct)
{
    CUTubeTank shallow = UprightTank();
    shallow.FluidDepth = 0.3;
    CUTubeTank full = UprightTank();
    full.FluidDepth = full.DuctHeight;
    EXPECT_EQ(Model(shallow).Att, Model(full).Att);
    EXPECT_EQ(Model(shallow).At4, Model(full).At4);
}

TEST(Tank, OfImpossibleDimensionsIsRejected)
{
    CUTubeTank flat = UprightTank();
    flat.DuctHeight = 0;
    EXPECT_THROW(Model(flat), CInputError);
    CUTubeTank closed = UprightTank();
    closed.Inclination = -70;
    EXPECT_THROW(Model(closed), CInputError);
    CUTubeTank thin = UprightTank();
    thin.LegWidth = 0;
    EXPECT_THROW(Model(thin), CInputError);
    EXPECT_THROW(Model(CUTubeTank()), CInputError);
}
} // namespace
