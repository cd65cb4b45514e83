// Hulls in regular waves.
#include "tests/oe7/motion/CTestShip.h"
#include "tests/oe7/support/ReferenceShips.h"

#include <numbers>

#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr double kPi = std::numbers::pi;
constexpr double kTolerance = 0.01;
constexpr double kAbsolute = 0.005;

/// A Wigley hull of many points; solved once.
const CTestShip& Wigley()
{
    static const CTestShip ship(FineWigley(31));
    return ship;
}

/// A box; solved once.
const CTestShip& Barge()
{
    static const CTestShip ship(ReferenceBarge());
    return ship;
}

double Speed(double froude)
{
    return froude * std::sqrt(kGravity * Wigley().Input().Length);
}

/// Of a wave length per ship length.
CWave Wave(double ratio, double direction)
{
    return {std::sqrt(2 * kPi * kGravity / (ratio * Wigley().Input().Length)), direction};
}

double Degrees(Complex amplitude)
{
    return std::arg(amplitude) * 180 / kPi;
}

void ExpectAmplitude(Complex motion, double expected, const char* mode, double ratio)
{
    EXPECT_NEAR(std::abs(motion), expected, std::max(kTolerance * expected, kAbsolute))
        << mode << " in waves of " << ratio << " ship lengths";
}

struct CHeadSeas
{
    double Ratio;                       ///< wave length to ship length
    std::array<double, 3> Heave, Pitch; ///< at three speeds
};

struct CObliqueSeas
{
    double Ratio;
    double HeaveBeam, RollBeam;
    double Heave, Pitch, Roll, Yaw; ///< from 45 degrees on the bow
};

TEST(WigleyHull, HeavesAndPitchesInHeadSeas)
{
    constexpr std::array kFroude{0.0, 0.2, 0.3};
    constexpr std::array<CHeadSeas, 7> kRows = {{{0.50, {0.119, 0.038, 0.018}, {0.079, 0.022, 0.012}},
                                                 {0.75, {0.052, 0.147, 0.023}, {0.254, 0.342, 0.128}},
                                                 {1.00, {0.287, 0.790, 1.314}, {0.518, 1.141, 1.289}},
                                                 {1.25, {0.489, 0.773, 1.340}, {0.679, 1.106, 1.583}},
                                                 {1.50, {0.624, 0.825, 1.084}, {0.777, 1.084, 1.366}},
                                                 {2.00, {0.778, 0.903, 1.012}, {0.880, 1.070, 1.204}},
                                                 {3.00, {0.900, 0.965, 1.009}, {0.956, 1.053, 1.112}}}};
    for (const CHeadSeas& row : kRows)
    {
        for (std::size_t speed = 0; speed < kFroude.size(); ++speed)
        {
            const CMotionVector motions = Wigley().Motions(Wave(row.Ratio, 180), Speed(kFroude[speed]));
            ExpectAmplitude(motions[2], row.Heave[speed], "heave", row.Ratio);
            ExpectAmplitude(motions[4], row.Pitch[speed], "pitch", row.Ratio);
        }
    }
}

TEST(WigleyHull, MovesInBeamAndBowSeas)
{
    constexpr std::array<CObliqueSeas, 7> kRows = {{{0.50, 1.339, 0.702, 0.110, 0.180, 0.465, 0.012},
                                                    {0.75, 1.116, 1.598, 0.360, 0.440, 2.217, 0.135},
                                                    {1.00, 1.057, 4.888, 0.596, 0.557, 6.554, 0.238},
                                                    {1.25, 1.034, 17.210, 0.728, 0.616, 20.450, 0.302},
                                                    {1.50, 1.023, 4.629, 0.807, 0.649, 4.936, 0.343},
                                                    {2.00, 1.012, 2.406, 0.890, 0.681, 2.215, 0.389},
                                                    {3.00, 1.006, 1.635, 0.952, 0.703, 1.315, 0.428}}};
    for (const CObliqueSeas& row : kRows)
    {
        const CMotionVector beam = Wigley().Motions(Wave(row.Ratio, 90), 0);
        const CMotionVector bow = Wigley().Motions(Wave(row.Ratio, 135), 0);
        ExpectAmplitude(beam[2], row.HeaveBeam, "heave in beam seas", row.Ratio);
        ExpectAmplitude(beam[3], row.RollBeam, "roll in beam seas", row.Ratio);
        ExpectAmplitude(bow[2], row.Heave, "heave", row.Ratio);
        ExpectAmplitude(bow[3], row.Roll, "roll", row.Ratio);
        ExpectAmplitude(bow[4], row.Pitch, "pitch", row.Ratio);
        ExpectAmplitude(bow[5], row.Yaw, "yaw", row.Ratio);
    }
}

TEST(WigleyHull, FollowsVeryLongWaves)
{
    const CWave head = Wave(7, 180);
    const CMotionVector against = Wigley().Motions(head, 0);
    const CMotionVector along = Wigley().Motions(Wave(7, 0), 0);
    EXPECT_NEAR(std::abs(against[2]), 0.99, 0.02);
    EXPECT_NEAR(std::abs(against[4]), 0.99, 0.02);
    EXPECT_NEAR(Degrees(against[2]), 0, 1);
    EXPECT_NEAR(Degrees(against[4]), -90, 1);
    EXPECT_NEAR(Degrees(along[4]), 90, 1);

    const CMotionVector beam = Wigley().Motions(Wave(7, 90), 0);
    EXPECT_NEAR(std::abs(beam[1]), 0.97, 0.01);
    EXPECT_NEAR(Degrees(beam[1]), -90, 1);
    EXPECT_NEAR(Degrees(beam[3]), -90, 1);
    const double tuning = head.Frequency / 0.655486;
    EXPECT_NEAR(std::abs(beam[3]), 1 / (1 - tuning * tuning), 0.03);
}

TEST(WigleyHull, IsStillAcrossInHeadAndFollowingSeas)
{
    for (const double direction : {0.0, 180.0})
    {
        const CMotionVector motions = Wigley().Motions(CWave(0.7, direction), 6);
        EXPECT_EQ(motions[1], Complex(0));
        EXPECT_EQ(motions[3], Complex(0));
        EXPECT_EQ(motions[5], Complex(0));
    }
}

TEST(WigleyHull, MirrorsItsMotionsInWavesFromTheOtherSide)
{
    for (const double direction : {30.0, 90.0, 150.0})
    {
        const CMotionVector one = Wigley().Motions(CWave(0.6, direction), 6);
        const CMotionVector other = Wigley().Motions(CWave(0.6, 360 - direction), 6);
        for (const std::size_t inPlane : {0U, 2U, 4U})
        {
            EXPECT_NEAR(std::abs(one[inPlane] - other[inPlane]), 0, 1e-9);
        }
        for (const std::size_t across : {1U, 3U, 5U})
        {
            EXPECT_NEAR(std::abs(one[across] + other[across]), 0, 1e-9);
            EXPECT_GT(std::abs(one[across]), 1e-4);
        }
    }
}

TEST(WaveForce, OfVeryLongWavesIsThatOfTheSlowlyMovingSurface)
{
    const CWave head(0.02, 180);
    const CHullCondition& hull = Wigley().Hull();
    const CComplexVector6 force = Wigley().Equations(head, 0).Force;
    EXPECT_NEAR(force(2).real(), hull.C33, 0.01 * hull.C33);
    EXPECT_NEAR(std::abs(force(2).imag()), 0, 0.01 * hull.C33);
    const double weight = hull.Density * kGravity * hull.Volume;
    EXPECT_NEAR(force(0).imag(), -head.WaveNumber * weight, 0.002 * head.WaveNumber * weight);
    // The stiffness of pitch times the slope: the bow is down a quarter period after the crest.
    EXPECT_NEAR(force(4).imag(), -head.WaveNumber * hull.C55, 0.01 * head.WaveNumber * hull.C55);
}

/// Damping by the waves that a body makes is that by the waves that move it (Haskind 1957).
TEST(WaveForce, OfBeamSeasBelongsToTheDampingOfTheSection)
{
    const CTestShip& ship = Barge();
    const CHullCondition& hull = ship.Hull();
    for (const double frequency : {0.4, 0.8, 1.2})
    {
        const CWave wave(frequency, 90);
        const CSectionalForces forces = SectionalForces(hull, ship.Potentials(), wave, frequency);
        const CStripCoefficients strips = StripCoefficients(ship.Potentials(), frequency);
        const double scale = frequency / (hull.Density * kGravity * kGravity);
        const auto damping = [&](const Eigen::VectorXcd& f, const Eigen::VectorXcd& h)
        { return scale * std::norm(f(2) + h(2)); };
        EXPECT_NEAR(damping(forces.F2, forces.H2), strips.Z22(2).real(), 0.003 * strips.Z22(2).real());
        EXPECT_NEAR(damping(forces.F3, forces.H3), strips.Z33(2).real(), 0.003 * strips.Z33(2).real());
        EXPECT_NEAR(damping(forces.F4, forces.H4), strips.Z44(2).real(), 0.01 * strips.Z44(2).real());
    }
}

TEST(WaveForce, OnADryStationIsNothing)
{
    CInput input = ReferenceBarge();
    input.Offsets[0].Z = {7, 7, 7, 8, 9};
    const CTestShip ship(input);
    const CWave wave(0.7, 120);
    const CSectionalForces forces = SectionalForces(ship.Hull(), ship.Potentials(), wave, 0.8);
    EXPECT_EQ(forces.F3(0), Complex(0));
    EXPECT_EQ(forces.H2(0), Complex(0));
    EXPECT_GT(std::abs(forces.F3(1)), 0);
    EXPECT_TRUE(ship.Equations(wave, 5).Force.allFinite());
}

TEST(WaveForce, WhereTheShipOvertakesTheWavesIsFiniteAndBounded)
{
    const CWave wave(1.1, 0);
    const double speed = kGravity / wave.Frequency * 1.5;
    EXPECT_LT(wave.EncounterFrequency(speed), 0);
    const CEquations equations = Barge().Equations(wave, speed);
    EXPECT_NEAR(equations.Frequency, -0.55, 1e-12);
    EXPECT_TRUE(equations.Force.allFinite());
    EXPECT_GT(-equations.Hull(2, 2).real(), 0) << "added mass";
    EXPECT_LT(equations.Hull(2, 2).imag(), 0) << "damping times a negative frequency";
}
} // namespace
