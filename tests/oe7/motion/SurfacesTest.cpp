#include "oe7/motion/CSurfaces.h"

#include "tests/oe7/support/ReferenceShips.h"

#include <numbers>

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr double kSpeed = 18 * kKnot;
constexpr double kCriticalDamping = 2 * 4.20277e7 / 0.596798; ///< N m s, of the reference ship's roll

CHullCondition Condition(const CInput& input)
{
    CRunLog log;
    return FindCondition(input, log);
}

/// A ship with all of them: rudder, skeg, a pair of foils, a pair of fins.
class Surfaces : public testing::Test
{
protected:
    CInput m_input = ReferenceShip();
    CHullCondition m_hull = Condition(m_input);
    std::vector<CSurface> m_surfaces = FindSurfaces(m_input, m_hull);

    double LiftPart(std::size_t surface) const
    {
        return LiftRollDamping(m_surfaces[surface], m_hull.Density, kSpeed) / kCriticalDamping;
    }
    double ViscousPart(std::size_t surface) const
    {
        const double amplitude = 3.54539 * std::numbers::pi / 180;
        return ViscousRollDamping(m_surfaces[surface], m_hull.Density, 0.67159, amplitude) / kCriticalDamping;
    }
    CSurfaceForces Forces(double speed) const { return SurfaceForces(m_surfaces, m_hull.Density, speed); }
    CComplexVector6 WaveForce(const CWave& wave, double speed) const
    {
        return SurfaceWaveForce(m_surfaces, wave, m_hull.Zg, m_hull.Density, speed);
    }
};

TEST(SeaDirection, HasExactZerosAndOnesAtQuarters)
{
    const CWave following(1, 0);
    const CWave beam(1, 90);
    const CWave head(1, 180);
    const CWave other(1, 270);
    const CWave again(1, -90);
    EXPECT_EQ(following.Cosine, 1);
    EXPECT_EQ(following.Sine, 0);
    EXPECT_EQ(beam.Cosine, 0);
    EXPECT_EQ(beam.Sine, 1);
    EXPECT_EQ(head.Cosine, -1);
    EXPECT_EQ(head.Sine, 0);
    EXPECT_EQ(other.Cosine, 0);
    EXPECT_EQ(other.Sine, -1);
    EXPECT_EQ(again.Cosine, 0);
    EXPECT_EQ(again.Sine, -1);
}

TEST(SeaDirection, IsMeasuredFromAheadToPort)
{
    EXPECT_NEAR(CWave(1, 30).Cosine, 0.8660254, 1e-7);
    EXPECT_NEAR(CWave(1, 30).Sine, 0.5, 1e-12);
    EXPECT_NEAR(CWave(1, 120).Cosine, -0.5, 1e-12);
    EXPECT_NEAR(CWave(1, 210).Sine, -0.5, 1e-12);
    EXPECT_NEAR(CWave(1, 300).Cosine, 0.5, 1e-12);
}

TEST(Encounter, IsFasterAgainstTheWaves)
{
    EXPECT_NEAR(CWave(0.8, 180).EncounterFrequency(kSpeed), 1.4041, 5e-5);
    EXPECT_NEAR(CWave(0.8, 0).EncounterFrequency(kSpeed), 0.1959, 5e-5);
    EXPECT_EQ(CWave(0.8, 90).EncounterFrequency(kSpeed), 0.8);
    EXPECT_LT(CWave(1.2, 0).EncounterFrequency(kSpeed), 0);
}

TEST_F(Surfaces, StandInTheOrderRudderSkegFoilsFins)
{
    ASSERT_EQ(m_surfaces.size(), 4U);
    EXPECT_EQ(m_surfaces[0].Kind, ESurface::Rudder);
    EXPECT_EQ(m_surfaces[1].Kind, ESurface::Skeg);
    EXPECT_EQ(m_surfaces[2].Kind, ESurface::Foils);
    EXPECT_EQ(m_surfaces[3].Kind, ESurface::Fins);
}

TEST_F(Surfaces, AreNoneOnABareHull)
{
    const CInput input = ReferenceBarge();
    EXPECT_TRUE(FindSurfaces(input, Condition(input)).empty());
}

TEST_F(Surfaces, DampRollByTheirLift)
{
    EXPECT_NEAR(LiftPart(0), 0.013840, 1e-6);
    EXPECT_NEAR(LiftPart(1), 0.004251, 1e-6);
    EXPECT_NEAR(LiftPart(2), 0.008876, 1e-6);
    EXPECT_NEAR(LiftPart(3), 0.047734, 1e-6);
}

TEST_F(Surfaces, DampRollByTheirDrag)
{
    EXPECT_NEAR(ViscousPart(0), 0.000067, 5e-7);
    EXPECT_NEAR(ViscousPart(2), 0.000052, 5e-7);
    EXPECT_NEAR(ViscousPart(3), 0.000642, 5e-7);
}

TEST_F(Surfaces, TakeTheirLiftSlopeWhereItIsGiven)
{
    m_input.Rudder->Blade.LiftSlope = 2.5;
    const CBlade rudder = FindSurfaces(m_input, m_hull)[0].Blades[0];
    EXPECT_EQ(rudder.LiftSlope, 2.5);
    EXPECT_NEAR(m_surfaces[0].Blades[0].LiftSlope, 3.01050, 1e-5);
}

TEST_F(Surfaces, OfARudderBesideTheMiddleAreTwo)
{
    EXPECT_EQ(m_surfaces[0].Blades.size(), 1U);
    m_input.Rudder->Blade.Y = 2;
    const CSurface pair = FindSurfaces(m_input, m_hull)[0];
    ASSERT_EQ(pair.Blades.size(), 2U);
    EXPECT_EQ(pair.Blades[0].Centre.y(), 2);
    EXPECT_EQ(pair.Blades[1].Centre.y(), -2);
    EXPECT_EQ(pair.Blades[1].FlowFactor, 1.2);
}

TEST_F(Surfaces, HangTheSkegBelowTheHullAtItsMiddle)
{
    const CBlade& skeg = m_surfaces[1].Blades[0];
    EXPECT_NEAR(skeg.Centre.x(), 60 - 8.5 * 12 + 7 + 4.267, 1e-6);
    EXPECT_NEAR(skeg.Centre.z(), 0.919 - 0.6 - 5.6, 1e-6);
    EXPECT_NEAR(skeg.AddedMass, 1025 * std::numbers::pi / 2 * 1.44 * 14, 1e-6);
}

TEST_F(Surfaces, OfAPairCoupleNoMotionInThePlaneOfSymmetryWithOneAcrossIt)
{
    const CSurfaceForces forces = Forces(kSpeed);
    for (const int inPlane : {0, 2, 4})
    {
        for (const int across : {1, 3, 5})
        {
            EXPECT_NEAR(forces.AddedMass(inPlane, across), 0, 1e-9);
            EXPECT_NEAR(forces.Damping(inPlane, across), 0, 1e-9);
            EXPECT_NEAR(forces.Damping(across, inPlane), 0, 1e-9);
            EXPECT_NEAR(forces.Stiffness(inPlane, across), 0, 1e-9);
        }
    }
}

TEST_F(Surfaces, FeelNothingOnAShipThatMovesWhereSheHeads)
{
    const CSurfaceForces forces = Forces(kSpeed);
    CVector6 heading = CVector6::Zero();
    CVector6 drift = CVector6::Zero();
    // Bow to port by 0.1 and down by 0.2.
    heading(5) = 0.1;
    drift(1) = 0.1 * kSpeed;
    heading(4) = 0.2;
    drift(2) = -0.2 * kSpeed;
    const CVector6 force = forces.Stiffness * heading + forces.Damping * drift;
    EXPECT_LT(force.cwiseAbs().maxCoeff(), 1e-9 * forces.Damping.cwiseAbs().maxCoeff());
    EXPECT_GT((forces.Damping * drift).cwiseAbs().maxCoeff(), 1e5);
}

TEST_F(Surfaces, AreCarriedByVeryLongWavesAsByTheWater)
{
    // The water moves in circles: up with the crest, and a quarter period earlier to where the waves go.
    const CWave wave(1e-3, 90);
    CComplexVector6 water = CComplexVector6::Zero();
    water(1) = Complex(0, -1);
    water(2) = 1;
    const CSurfaceForces forces = Forces(kSpeed);
    const double w = wave.Frequency;
    const CComplexVector6 expected =
        (Complex(0, w) * forces.Damping.cast<Complex>() - w * w * forces.AddedMass.cast<Complex>()) * water;
    const CComplexVector6 force = WaveForce(wave, kSpeed);
    EXPECT_LT((force - expected).norm(), 1e-5 * expected.norm());
}

TEST_F(Surfaces, GetNoLateralForceInHeadAndFollowingSeas)
{
    for (const double direction : {0.0, 180.0})
    {
        const CComplexVector6 force = WaveForce(CWave(0.8, direction), kSpeed);
        EXPECT_EQ(force(1), Complex(0));
        EXPECT_EQ(force(3), Complex(0));
        EXPECT_EQ(force(5), Complex(0));
        EXPECT_GT(std::abs(force(2)), 1);
    }
}

TEST_F(Surfaces, GetTheMirrorImageFromWavesOfTheOtherSide)
{
    const CComplexVector6 port = WaveForce(CWave(0.7, 130), kSpeed);
    const CComplexVector6 starboard = WaveForce(CWave(0.7, 230), kSpeed);
    for (const int inPlane : {2, 4})
    {
        EXPECT_NEAR(std::abs(port(inPlane) - starboard(inPlane)), 0, 1e-9 * std::abs(port(inPlane)));
    }
    for (const int across : {1, 3, 5})
    {
        EXPECT_NEAR(std::abs(port(across) + starboard(across)), 0, 1e-9 * std::abs(port(across)));
    }
}

TEST_F(Surfaces, AboveTheWaterMoveWithItsSurface)
{
    CBlade blade = m_surfaces[2].Blades[0];
    const CWave wave(0.8, 180);
    blade.Centre.z() = 5 - m_hull.Zg;
    const Complex above = WaveNormalVelocity(blade, wave, m_hull.Zg);
    blade.Centre.z() = -m_hull.Zg;
    EXPECT_EQ(above, WaveNormalVelocity(blade, wave, m_hull.Zg));
    EXPECT_NEAR(std::abs(above), 0.8 * 0.5, 1e-9);
}

TEST_F(Surfaces, HaveNoLiftAtRest)
{
    const CSurfaceForces forces = Forces(0);
    EXPECT_EQ(forces.Damping, CMatrix6(CMatrix6::Zero()));
    EXPECT_EQ(forces.Stiffness, CMatrix6(CMatrix6::Zero()));
    EXPECT_GT(forces.AddedMass(3, 3), 0);
    EXPECT_EQ(LiftRollDamping(m_surfaces[0], m_hull.Density, 0), 0);
}

TEST_F(Surfaces, WithoutAnyAreaDoNothing)
{
    m_input.FoilPairs[0].RootChord = 0;
    m_input.FoilPairs[0].TipChord = 0;
    m_input.Skeg = CSkeg{8, 1, 0};
    const std::vector<CSurface> surfaces = FindSurfaces(m_input, m_hull);
    EXPECT_EQ(LiftRollDamping(surfaces[1], m_hull.Density, kSpeed), 0);
    EXPECT_EQ(LiftRollDamping(surfaces[2], m_hull.Density, kSpeed), 0);
    EXPECT_TRUE(SurfaceForces(surfaces, m_hull.Density, kSpeed).Damping.allFinite());
}
} // namespace
