#include "oe7/seas/CPositionResults.h"

#include "tests/oe7/seas/TestHulls.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace oe7;

namespace
{
constexpr double kEighteenKnots = 18 * kKnot;

CPositionGeometry Plain(EWaterRise correction, double station, double speed)
{
    CInput input;
    input.SpeedCorrection = correction;
    return PositionGeometry(input, PlainHull(), Position(EWaterEvent::DeckWetness, station, 0, 8, 9), speed);
}

CPositionGeometry OnReferenceShip(const CPosition& position, EWaterRise correction = EWaterRise::Everywhere)
{
    CInput input;
    input.SpeedCorrection = correction;
    return PositionGeometry(input, ReferenceShip(), position, kEighteenKnots);
}

void ExpectGeometry(const CPosition& position, double draft, double freeboard, double depth, double rise)
{
    const CPositionGeometry geometry = OnReferenceShip(position);
    EXPECT_NEAR(geometry.Draft, draft, 1e-4);
    EXPECT_NEAR(geometry.Freeboard, freeboard, 1e-4);
    EXPECT_NEAR(geometry.Depth, depth, 1e-4);
    EXPECT_NEAR(geometry.Rise, rise, 1e-4);
    EXPECT_NEAR(geometry.DraftAtSpeed(), draft + rise, 2e-4);
    EXPECT_NEAR(geometry.FreeboardAtSpeed(), freeboard - rise, 2e-4);
    EXPECT_NEAR(geometry.DepthAtSpeed(), depth + rise, 2e-4);
}
} // namespace

TEST(PositionGeometry, OfTheReferenceShip)
{
    ExpectGeometry(Position(EWaterEvent::SlamForm, 1.5, 0, 0, 10), 4.4603, 5.5397, 4.4603, -0.1742);
    ExpectGeometry(Position(EWaterEvent::SlamWedge, 2, 0, 0, 10), 4.4526, 5.5474, 4.4526, -0.2821);
    ExpectGeometry(Position(EWaterEvent::SlamOffset, 1, 0, 0, 10), 4.4681, 5.5319, 4.4681, 0.2444);
    ExpectGeometry(Position(EWaterEvent::DeckWetness, 0, 3, 10, 10), 3.8837, 5.5163, -5.5163, 1.6196);
    ExpectGeometry(Position(EWaterEvent::Emergence, 9.5, 2.5, 2.5, 0), 1.1395, -4.3360, 1.8360, 0.0924);
}

TEST(PositionGeometry, PlacesAreMeasuredFromG)
{
    const CPositionGeometry geometry = OnReferenceShip(Position(EWaterEvent::None, 9.5, 2.5, 2.5, 0));
    EXPECT_NEAR(geometry.X, 64.267 - 9.5 * 12, 1e-9);
    EXPECT_NEAR(geometry.Z, 2.5 - 5.6, 1e-9);
}

TEST(PositionGeometry, BeyondTheStationsTheDraftIsThatOfThePoint)
{
    EXPECT_NEAR(Plain(EWaterRise::None, -0.2, 0).Draft, 0, 1e-12) << "8 m up, above the water";
    CInput input;
    const CPosition low = Position(EWaterEvent::SlamForm, 4.5, 0, 2, 9);
    EXPECT_NEAR(PositionGeometry(input, PlainHull(), low, 0).Draft, 3, 1e-12);
    EXPECT_NEAR(Plain(EWaterRise::None, 4, 0).Draft, 5, 1e-12) << "the last station belongs to the hull";
}

TEST(PositionGeometry, OnADryStationTheDraftIsThatOfThePoint)
{
    CHullCondition hull = PlainHull();
    hull.Sections[0] = CSection{};
    const CPosition position = Position(EWaterEvent::SlamForm, 0, 0, 4, 9);
    EXPECT_NEAR(PositionGeometry(CInput{}, hull, position, 0).Draft, 1, 1e-12);
}

TEST(PositionGeometry, TheWaterlineGoesOnStraightBeyondTheEnds)
{
    CHullCondition hull = PlainHull();
    hull.Trim = 2;
    const CPosition position = Position(EWaterEvent::DeckWetness, -1, 0, 8, 9);
    EXPECT_NEAR(PositionGeometry(CInput{}, hull, position, 0).Freeboard, 9 - (5 - 1.5), 1e-12);
}

TEST(WaterRise, IsNothingWithoutCorrectionOrSpeed)
{
    EXPECT_EQ(Plain(EWaterRise::None, 0.5, 10).Rise, 0);
    EXPECT_EQ(Plain(EWaterRise::Everywhere, 0.5, 0).Rise, 0);
    EXPECT_EQ(Plain(EWaterRise::Bow, 0.5, 0).Rise, 0);
}

TEST(WaterRise, AtTheBowOnlyEndsAQuarterOfTheLengthAftAndHasNoSinkage)
{
    const double sinkage = Plain(EWaterRise::Everywhere, 1, 10).Rise - Plain(EWaterRise::Bow, 1, 10).Rise;
    const double froudeSquared = 100 / (kGravity * 100);
    EXPECT_NEAR(sinkage, 4.5 * froudeSquared * 6500 / 1e4, 1e-12);
    EXPECT_EQ(Plain(EWaterRise::Bow, 1.01, 10).Rise, 0);
    EXPECT_NE(Plain(EWaterRise::Everywhere, 1.01, 10).Rise, sinkage);
}

TEST(WaterRise, AheadOfStation0IsAsAtIt)
{
    EXPECT_DOUBLE_EQ(Plain(EWaterRise::Bow, -0.4, 10).Rise, Plain(EWaterRise::Bow, 0, 10).Rise);
}

TEST(WaterRise, OfAHullThatIsFullFromItsBowTakesOneStationForTheEntrance)
{
    const double froudeSquared = 100 / (kGravity * 100);
    EXPECT_NEAR(Plain(EWaterRise::Bow, 0, 10).Rise, 0.75 * 20 * 4 * froudeSquared, 1e-12);
}

TEST(WaterRise, IsFiniteWithTwoStationsAndWithoutBeam)
{
    CInput input;
    input.SpeedCorrection = EWaterRise::Everywhere;
    CHullCondition hull{CLengthRule(2, 100), {}};
    hull.Length = 100;
    hull.Sections.resize(2);
    for (const double speed : {1e-200, 1.0, 30.0})
    {
        const CPosition position = Position(EWaterEvent::SlamForm, 0.5, 0, 0, 0);
        EXPECT_TRUE(std::isfinite(PositionGeometry(input, hull, position, speed).Rise)) << speed;
    }
}
