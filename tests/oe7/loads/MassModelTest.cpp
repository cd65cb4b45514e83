#include "tests/oe7/loads/BoxShip.h"
#include "tests/oe7/support/ReferenceShips.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace oe7;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
constexpr double kBoxMass = 100 * 20 * 5 * 1025.0;

CInput EvenBox()
{
    CInput input = BoxInput();
    input.Masses.Masses = {kBoxMass / 8, kBoxMass / 4, kBoxMass / 4, kBoxMass / 4, kBoxMass / 8};
    return input;
}

CMassMoments Forward(const CInput& input, double x0)
{
    return CBoxShip(input).Masses.Forward(x0);
}
} // namespace

TEST(MassModel, SpreadsAStationsMassHalfwayToItsNeighbours)
{
    CInput input = BoxInput();
    input.Masses.Masses = {0, 8, 0, 0, 0};

    EXPECT_DOUBLE_EQ(Forward(input, 37.5).M0, 0);
    EXPECT_DOUBLE_EQ(Forward(input, 25).M0, 4);
    EXPECT_DOUBLE_EQ(Forward(input, 25).M1, 4 * 31.25);
    EXPECT_DOUBLE_EQ(Forward(input, 12.5).M0, 8);
    // 8 kg evenly over 25 m about x = 25 m.
    EXPECT_DOUBLE_EQ(Forward(input, 0).M2, 8 * (25 * 25 + 25.0 * 25 / 12));
}

TEST(MassModel, SpreadsTheMassOfAnEndStationOverTheInnerHalfOnly)
{
    CInput input = BoxInput();
    input.Masses.Masses = {8, 0, 0, 0, 2};

    EXPECT_DOUBLE_EQ(Forward(input, 50).M0, 0);
    EXPECT_DOUBLE_EQ(Forward(input, 43.75).M0, 4);
    EXPECT_DOUBLE_EQ(Forward(input, 37.5).M1, 8 * 43.75);
    EXPECT_DOUBLE_EQ(Forward(input, -43.75).M0, 9);
}

TEST(MassModel, SpreadsAnOverhangSoThatItHasItsPitchRadius)
{
    CInput input = BoxInput();
    input.Masses.Bow = {.Mass = 6, .Kg = 7, .RollRadius = 2, .Distance = 3, .PitchRadius = std::sqrt(3.0)};

    // 3 m on both sides of its centre, 53 m before G.
    EXPECT_DOUBLE_EQ(Forward(input, 56).M0, 0);
    EXPECT_NEAR(Forward(input, 52).M0, 4, 1e-9);
    const CMassMoments all = Forward(input, 50);
    EXPECT_NEAR(all.M1, 6 * 53, 1e-9);
    EXPECT_NEAR(all.M2, 6 * (53 * 53 + 3), 1e-9);
}

TEST(MassModel, TakesAnOverhangWithoutPitchRadiusAsAPoint)
{
    CInput input = BoxInput();
    input.Masses.Stern = {.Mass = 6, .Kg = 0, .RollRadius = 0, .Distance = -2, .PitchRadius = 0};

    EXPECT_DOUBLE_EQ(Forward(input, -47.99).M0, 0);
    EXPECT_DOUBLE_EQ(Forward(input, -48.01).M0, 6);
    EXPECT_NEAR(Forward(input, -49).M2, 6 * 48 * 48, 1e-6);
}

TEST(MassModel, GivesACutAtTheAftEndAllMassesAlsoThoseBehindIt)
{
    CInput input = BoxInput();
    input.Masses.Stern = {.Mass = 6, .Kg = 0, .RollRadius = 0, .Distance = 3, .PitchRadius = 1};

    EXPECT_DOUBLE_EQ(Forward(input, -49.9).M0, 0);
    EXPECT_DOUBLE_EQ(Forward(input, -50).M0, 6);
    EXPECT_NEAR(Forward(input, -50).M1, -6 * 53, 1e-9);
    EXPECT_DOUBLE_EQ(CBoxShip(input).Masses.All().M0, 6);
}

TEST(MassModel, TakesTheShipsHeightOfGWhenAllHeightsAreZero)
{
    CInput input = EvenBox();
    input.Masses.Bow = {.Mass = 10, .Kg = 0, .RollRadius = 0, .Distance = 0, .PitchRadius = 1};
    EXPECT_DOUBLE_EQ(Forward(input, 20).Mz, 0);
    EXPECT_DOUBLE_EQ(Forward(input, 20).Mxz, 0);

    input.Masses.Bow.Kg = 6;
    EXPECT_NEAR(Forward(input, 20).Mz, 10 * (6 - 4), 1e-9);
}

TEST(MassModel, TakesHeightsAsTheyAreWhenOneIsGiven)
{
    CInput input = BoxInput();
    input.Masses.Masses = {0, 8, 0, 0, 2};
    input.Masses.Kg = {0, 5, 0, 0, 0};
    input.Masses.RollRadius = {0, 3, 0, 0, 0};

    const CMassMoments before = Forward(input, 0);
    EXPECT_DOUBLE_EQ(before.Mz, 8 * 1);
    EXPECT_DOUBLE_EQ(before.Mxz, 8 * 1 * 25);
    EXPECT_DOUBLE_EQ(before.Mk, 8 * (9 + 1));
    const CMassMoments all = Forward(input, -50);
    EXPECT_DOUBLE_EQ(all.Mz, 8 * 1 + 2 * -4);
    EXPECT_DOUBLE_EQ(all.Mk, 8 * (9 + 1) + 2 * 16);
}

TEST(MassModel, TakesTheShipsRollRadiusWhenAllRadiiAreZero)
{
    CInput input = BoxInput();
    input.Masses.Masses = {0, 8, 0, 0, 0};
    input.Masses.Bow = {.Mass = 1, .Kg = 0, .RollRadius = 0, .Distance = 0, .PitchRadius = 1};
    EXPECT_DOUBLE_EQ(Forward(input, 0).Mk, 9 * 49);

    input.Masses.Bow.RollRadius = 2;
    EXPECT_DOUBLE_EQ(Forward(input, 0).Mk, 8 * 49 + 4);
}

TEST(MassModel, WarnsOfMassesMoreThanFivePercentOffTheDisplacement)
{
    CInput input = EvenBox();
    EXPECT_THAT(CBoxShip(input).Log.Warnings(), IsEmpty());
    input.Masses.Bow.Mass = 0.049 * kBoxMass;
    EXPECT_THAT(CBoxShip(input).Log.Warnings(), IsEmpty());
    input.Masses.Stern.Mass = 0.002 * kBoxMass;
    EXPECT_THAT(CBoxShip(input).Log.Warnings(), ElementsAre(HasSubstr("more than 5 percent")));
}

TEST(StillWater, BringsNoLoadsToABoxWithEvenMasses)
{
    const CBoxShip box(EvenBox());
    const CStillWater still = StillWater(box.Hull, box.Masses);

    const double slice = kBoxMass * kGravity / 4;
    const auto about = [](double value) { return DoubleNear(value, 1e-9 * kBoxMass); };
    EXPECT_THAT(still.Weight,
                ElementsAre(about(slice / 2), about(slice), about(slice), about(slice), about(slice / 2)));
    EXPECT_THAT(still.Buoyancy,
                ElementsAre(about(slice / 2), about(slice), about(slice), about(slice), about(slice / 2)));
    EXPECT_THAT(still.Shear, ElementsAre(about(0), about(0), about(0), about(0), about(0)));
    EXPECT_THAT(still.Moment, ElementsAre(about(0), about(0), about(0), about(0), about(0)));
}

TEST(StillWater, SagsWhenTheMassesLieAmidships)
{
    CInput input = BoxInput();
    input.Masses.Masses = {0, 0, kBoxMass, 0, 0};
    const CBoxShip box(input);
    const CStillWater still = StillWater(box.Hull, box.Masses);

    // Upward on the forward half: buoyancy of half the ship at 25 m, half the weight at 6.25 m.
    const double weight = kBoxMass * kGravity;
    EXPECT_NEAR(still.Shear[1], weight / 4, 1e-9 * weight);
    EXPECT_NEAR(still.Shear[2], 0, 1e-9 * weight);
    EXPECT_NEAR(still.Shear[3], -weight / 4, 1e-9 * weight);
    EXPECT_NEAR(still.Moment[2], -weight / 2 * (25 - 6.25), 1e-9 * weight);
    EXPECT_NEAR(still.Moment[4], 0, 1e-9 * weight);
}

TEST(StillWater, HogsWhenTheMassesLieAtTheEnds)
{
    CInput input = BoxInput();
    input.Masses.Bow = {.Mass = kBoxMass / 2, .Kg = 0, .RollRadius = 0, .Distance = 5, .PitchRadius = 1};
    input.Masses.Stern = {.Mass = kBoxMass / 2, .Kg = 0, .RollRadius = 0, .Distance = 5, .PitchRadius = 1};
    const CBoxShip box(input);
    const CStillWater still = StillWater(box.Hull, box.Masses);

    const double weight = kBoxMass * kGravity;
    EXPECT_NEAR(still.Shear[0], -weight / 2, 1e-9 * weight);
    EXPECT_NEAR(still.Moment[2], weight / 2 * (55 - 25), 1e-9 * weight);
}

TEST(StillWater, ReachesTheReferenceShips)
{
    CRunLog log;
    const CInput input = ReferenceShip();
    const CHullCondition hull = FindCondition(input, log);
    const CMassModel masses(input, hull, {}, log);
    const CStillWater still = StillWater(hull, masses);
    ASSERT_EQ(still.Moment.size(), 11);

    const auto expect = [&](std::size_t station, double weight, double buoyancy, double shear, double moment)
    {
        EXPECT_NEAR(still.Weight[station] / 1000, weight, 1e-3) << station;
        EXPECT_NEAR(still.Buoyancy[station] / 1000, buoyancy, 0.02) << station;
        EXPECT_NEAR(still.Shear[station] / 1000, shear, 0.02) << station;
        EXPECT_NEAR(still.Moment[station] / 1000, moment, 1) << station;
    };
    expect(0, 588.600, 113.660, 0, 0);
    expect(2, 3237.300, 2751.850, -1989.096, 25594.01);
    expect(5, 5199.300, 6349.462, -380.222, 83001.72);
    expect(8, 4610.700, 4344.414, 2464.384, 35838.87);
    expect(10, 1177.200, 373.137, 0, 13.24);
}
