#include "oe7/motion/CControls.h"

#include "tests/oe7/support/ReferenceShips.h"

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr double kKnots = 18;

/// The reference ship, whose gains each test sets for itself.
class Controls : public testing::Test
{
protected:
    Controls()
    {
        CRunLog log;
        m_hull = FindCondition(m_input, log);
        m_surfaces = FindSurfaces(m_input, m_hull);
        Rudder() = {};
        Fins() = {};
        m_input.Fins->Servo = {};
    }

    CRudderGains& Rudder() { return m_input.Rudder->Gains.Fixed; }
    CFinGains& Fins() { return m_input.Fins->Gains.Fixed; }
    CFollowers At(double w, double knots = kKnots, double direction = 135) const
    {
        return CControls(m_input, m_hull, m_surfaces, knots, direction).At(w);
    }
    CFollower RudderAt(double w, double knots = kKnots) const { return At(w, knots).Rudder.value(); }
    CFollower FinsAt(double w, double knots = kKnots) const { return At(w, knots).FinOrTank.value(); }

    CInput m_input = ReferenceShip();
    CHullCondition m_hull{CLengthRule(2, 1), {}};
    std::vector<CSurface> m_surfaces;
};

void ExpectNear(Complex value, Complex expected, double tolerance = 1e-12)
{
    EXPECT_NEAR(value.real(), expected.real(), tolerance);
    EXPECT_NEAR(value.imag(), expected.imag(), tolerance);
}

TEST_F(Controls, OpposeTheMotionWithPositiveGains)
{
    Rudder().Roll.Motion = 0.5;
    Rudder().Yaw.Motion = 0.5;
    Rudder().Lateral.Motion = 0.01;
    Fins().Roll.Motion = 0.5;
    Fins().Yaw.Motion = 0.5;
    const CComplexMatrix6 rudder = RudderAt(0.7).LeftSide();
    const CComplexMatrix6 fins = FinsAt(0.7).LeftSide();
    for (const int across : {1, 3, 5})
    {
        EXPECT_GT(rudder(across, across).real(), 0);
    }
    EXPECT_GT(fins(3, 3).real(), 0);
    EXPECT_GT(fins(5, 5).real(), 0);
}

TEST_F(Controls, DampTheMotionWithGainsOnItsVelocity)
{
    Rudder().Roll.Velocity = 1;
    Rudder().Yaw.Velocity = 1;
    Fins().Roll.Velocity = 2;
    EXPECT_GT(RudderAt(0.7).LeftSide()(3, 3).imag(), 0);
    EXPECT_GT(RudderAt(0.7).LeftSide()(5, 5).imag(), 0);
    EXPECT_GT(FinsAt(0.7).LeftSide()(3, 3).imag(), 0);
    // Where the ship overtakes the waves time runs the other way.
    EXPECT_LT(FinsAt(-0.7).LeftSide()(3, 3).imag(), 0);
}

TEST_F(Controls, TakeAccelerationVelocityAndAngle)
{
    Fins().Roll = {0.2, 0.3, 0.5};
    ExpectNear(FinsAt(2).Row(3), -Complex(0.5 - 4 * 0.2, 2 * 0.3));
}

TEST_F(Controls, ServeAQuarterPeriodLateAtTheFrequencyOfTheServo)
{
    Fins().Roll.Motion = 1;
    m_input.Fins->Servo = {2, 0.7};
    ExpectNear(FinsAt(2).Row(3), Complex(0, 1 / 1.4));
    ExpectNear(FinsAt(1e-6).Row(3), -1, 1e-5);
    Rudder().Yaw.Motion = 1;
    m_input.Rudder->Servo = {3, 0.5};
    EXPECT_NEAR(std::abs(RudderAt(3).Row(5)), 1, 1e-12);
}

TEST_F(Controls, HalveTheirPowerAtTheCutOffs)
{
    Rudder().Roll.Motion = 1;
    Rudder().LowCut = 0.5;
    EXPECT_NEAR(std::abs(RudderAt(0.5).Row(3)), std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(std::abs(RudderAt(500).Row(3)), 1, 1e-5);
    Rudder().LowCut = 0;
    Rudder().HighCut = 0.5;
    EXPECT_NEAR(std::abs(RudderAt(0.5).Row(3)), std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(std::abs(RudderAt(500).Row(3)), 1e-3, 1e-6);
    Fins().Roll.Motion = 1;
    Fins().HighCut = 8;
    ExpectNear(FinsAt(8).Row(3), -1.0 / Complex(1, 1));
}

TEST_F(Controls, FilterRollOnly)
{
    Rudder().Yaw.Motion = 1;
    Rudder().LowCut = 0.5;
    Rudder().HighCut = 0.6;
    EXPECT_NEAR(std::abs(RudderAt(0.55).Row(5)), 1, 1e-12);
}

TEST_F(Controls, SteerByTheSwayOfAPoint)
{
    Rudder().Lateral.Motion = 0.1;
    const CComplexRow6 atG = RudderAt(1).Row;
    EXPECT_NEAR(std::abs(atG(1)), 0.1, 1e-12);
    EXPECT_EQ(atG(3), Complex(0));
    EXPECT_EQ(atG(5), Complex(0));

    m_input.Rudder->GainsAtG = false;
    m_input.Rudder->LateralStation = 2;
    m_input.Rudder->LateralHeight = 8;
    const CComplexRow6 atPoint = RudderAt(1).Row;
    ExpectNear(atPoint(1), atG(1));
    ExpectNear(atPoint(3), -atG(1) * (8 - 5.6));
    ExpectNear(atPoint(5), atG(1) * (60 - 24 + 4.267), 1e-6);
}

TEST_F(Controls, AtRestHaveNoForceButTheFinsStillTurn)
{
    Rudder().Yaw.Motion = 1;
    Fins().Roll.Motion = 1;
    const CFollower rudder = RudderAt(0.7, 0);
    const CFollower fins = FinsAt(0.7, 0);
    EXPECT_TRUE(rudder.Force.isZero(0));
    EXPECT_TRUE(rudder.Row.isZero(0));
    EXPECT_TRUE(fins.Force.isZero(0));
    ExpectNear(fins.Row(3), -1);
}

TEST_F(Controls, AreOnlyThoseOfTheShip)
{
    m_input.Rudder.reset();
    m_input.Fins.reset();
    EXPECT_FALSE(At(0.7).Rudder);
    EXPECT_FALSE(At(0.7).FinOrTank);
    m_input.Fins.emplace();
    EXPECT_FALSE(At(0.7).FinOrTank);
}

TEST_F(Controls, TakeTheGainsOfTheSpeedAndHeading)
{
    CFinGains slow, head, quartering;
    slow.Roll.Motion = 1;
    head.Roll.Motion = 2;
    quartering.Roll.Motion = 3;
    m_input.Fins->Gains.Conditions = {{8, -1, slow}, {20, 180, head}, {20, 45, quartering}};
    ExpectNear(At(1, 6, 45).FinOrTank->Row(3), -1);
    ExpectNear(At(1, 18, 150).FinOrTank->Row(3), -2);
    ExpectNear(At(1, 18, 60).FinOrTank->Row(3), -3);
    ExpectNear(At(1, 18, 300).FinOrTank->Row(3), -3);
}

TEST_F(Controls, TurnFinsOppositeAndRudderBladesTheSameWay)
{
    m_input.Rudder->Blade.Y = 2;
    m_surfaces = FindSurfaces(m_input, m_hull);
    const CControls controls(m_input, m_hull, m_surfaces, kKnots, 90);
    const auto force = [&](std::size_t surface, std::size_t blade)
    {
        const CBlade& b = m_surfaces[surface].Blades[blade];
        return Eigen::Vector3d(controls.BladeForcePerAngle(m_surfaces[surface].Kind, b) * b.Normal);
    };
    EXPECT_EQ(force(0, 0), force(0, 1));
    EXPECT_GT(force(0, 0).y(), 0);
    EXPECT_EQ(force(3, 0).z(), -force(3, 1).z());
    EXPECT_GT(force(3, 0).z(), 0);
    EXPECT_EQ(force(1, 0), Eigen::Vector3d(0, 0, 0));
    EXPECT_EQ(force(2, 0), Eigen::Vector3d(0, 0, 0));

    const double both = force(3, 0).y() + force(3, 1).y();
    EXPECT_NEAR(controls.At(1).FinOrTank->Force(1).real(), both, 1e-6);
}
} // namespace
