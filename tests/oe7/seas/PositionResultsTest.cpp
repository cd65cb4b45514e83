#include "oe7/seas/CPositionResults.h"

#include "tests/oe7/seas/TestHulls.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

using namespace oe7;

namespace
{
constexpr double kPi = std::numbers::pi;
constexpr double kTwoPi = 2 * kPi;

/// One wave alone.
CHeadingResponse Alone(const CWave& wave, double encounter, double energy, const CMotionVector& motions)
{
    CComponentResponse component;
    component.Waves = {wave};
    component.Encounter = {encounter};
    component.Energy = {energy};
    component.Motions = {motions};
    return {component};
}

/// A relative motion of given RMS and RMS velocity and nothing that depends on the place.
CHeadingResponse Relative(double displacement, double velocity)
{
    CMotionVector motions{};
    motions[2] = 2; // in a long wave of 1 m
    return Alone(CWave(), velocity / displacement, displacement * displacement, motions);
}

CHeadingResponse Heave(double amplitude, double encounter)
{
    CMotionVector motions{};
    motions[2] = amplitude;
    return Alone(CWave(), encounter, 1, motions);
}

/// A wave that brings -i to the place at x = 25 m, y = 2 m, and motions whose sums at z = 3 m are easily
/// found: vertical 0.75 + 0.04 i, lateral 0.09 i, longitudinal 0.53 + 0.02 i.
CHeadingResponse Mixed(double energy)
{
    CWave wave;
    wave.Cosine = 0.6;
    wave.Sine = 0.8;
    wave.WaveNumber = kPi / 2 / 16.6;
    const Complex i(0, 1);
    return Alone(wave, -0.8, energy, {0.5, 0.4 * i, 1.0, 0.02 * i, 0.01, -0.01 * i, 7.0, 7.0});
}

CPosition Place()
{
    return Position(EWaterEvent::None, 1, 2, 8, 9);
}

CPositionAtHeading OnPlainHull(const CPosition& position, const CHeadingResponse& response,
                               const CInput& input = {})
{
    return EvaluatePosition(input, PlainHull(), position, 0, response);
}

double RelativeAt(double station, EWaterRise correction, double blockCoefficient = 0.65,
                  double encounter = 0.8)
{
    CInput input;
    input.SwellCorrection = correction;
    CHullCondition hull = PlainHull();
    hull.BlockCoefficient = blockCoefficient;
    // The ship at rest: the relative motion is the wave with its swell-up.
    return EvaluatePosition(input, hull, Position(EWaterEvent::None, station, 0, 5, 9), 0,
                            Alone(CWave(), encounter, 1, {}))
        .Local[9];
}

/// A reference position's events in waves that give it this relative motion.
CPositionAtHeading OnReferenceShip(CPosition position, double displacement, double velocity)
{
    CInput input;
    input.SpeedCorrection = EWaterRise::Everywhere;
    input.Hours = 20;
    input.Exceedance = 0.01;
    position.FormFactor = 15;
    position.Width = 2;
    position.Deadrise = 25;
    position.WedgeHeight = 0.44;
    return EvaluatePosition(input, ReferenceShip(), position, 18 * kKnot, Relative(displacement, velocity));
}

void ExpectClose(double value, double expected, double tolerance = 0.01)
{
    EXPECT_NEAR(value, expected, tolerance * expected);
}

CPositionAtHeading Slam(double hours, double exceedance, double displacement, double velocity)
{
    CInput input;
    input.Hours = hours;
    input.Exceedance = exceedance;
    CPosition position = Position(EWaterEvent::SlamForm, 1, 0, 0, 9);
    position.FormFactor = 10;
    position.Width = 2;
    return EvaluatePosition(input, PlainHull(), position, 0, Relative(displacement, velocity));
}
} // namespace

TEST(LocalMotions, OfOneWaveAreThoseOfThePlace)
{
    const CPositionAtHeading result = OnPlainHull(Place(), Mixed(4));
    const std::array<double, 7> amplitudes{
        std::hypot(0.75, 0.04),     0.09, std::hypot(0.53, 0.02), std::hypot(0.75, 1.04), 0.1386,
        std::hypot(0.4373, 0.0128), 1};
    const auto expectMotion = [&](std::size_t first, double amplitude)
    {
        EXPECT_NEAR(result.Local[first], 2 * amplitude, 1e-12) << first;
        EXPECT_NEAR(result.Local[first + 1], 2 * 0.8 * amplitude, 1e-12) << first;
        EXPECT_NEAR(result.Local[first + 2], 2 * 0.64 * amplitude, 1e-12) << first;
    };
    expectMotion(0, amplitudes[0]);
    expectMotion(3, amplitudes[1]);
    expectMotion(6, amplitudes[2]);
    expectMotion(9, amplitudes[3]);
    EXPECT_NEAR(result.Local[12], 2 * amplitudes[4], 1e-12);
    EXPECT_NEAR(result.Local[13], 2 * 0.8 * amplitudes[4], 1e-12);
    EXPECT_NEAR(result.Local[14], 2 * amplitudes[5], 1e-12);
    EXPECT_NEAR(result.Local[15], 2 * 0.8 * amplitudes[5], 1e-12);
    expectMotion(16, amplitudes[6]);
    EXPECT_NEAR(result.Local[19], kTwoPi / 0.8, 1e-12);
    EXPECT_NEAR(result.Local[20], kTwoPi / 0.8, 1e-12);
}

TEST(LocalMotions, AddTheVariancesOfAllWavesAndComponents)
{
    CHeadingResponse response = Heave(3, 0.5);
    response.push_back(Heave(4, 1.0).front());
    response.push_back(CComponentResponse{});
    const CPositionAtHeading result = OnPlainHull(Place(), response);
    EXPECT_NEAR(result.Local[0], 5, 1e-12);
    EXPECT_NEAR(result.Local[1], std::sqrt(0.25 * 9 + 16), 1e-12);
    EXPECT_NEAR(result.Local[2], std::sqrt(0.0625 * 9 + 16), 1e-12);
    EXPECT_NEAR(result.Local[19], kTwoPi * 5 / std::sqrt(0.25 * 9 + 16), 1e-12);
    EXPECT_NEAR(result.Local[9], std::hypot(2, 3), 1e-12) << "the wave taken off";
}

TEST(LocalMotions, WithoutAnyWaveAreNothing)
{
    for (const double value : OnPlainHull(Place(), {}).Local)
    {
        EXPECT_EQ(value, 0);
    }
}

TEST(SwellUp, GrowsWithTheBlockCoefficientAndTheFrequency)
{
    EXPECT_NEAR(RelativeAt(2, EWaterRise::Everywhere), 1.1702802, 1e-6);
    EXPECT_NEAR(RelativeAt(2, EWaterRise::Everywhere, 0.65, -0.4), 1.0851401, 1e-6);
    EXPECT_EQ(RelativeAt(2, EWaterRise::None), 1);
}

TEST(SwellUp, StaysBetweenNothingAndAHalf)
{
    EXPECT_EQ(RelativeAt(2, EWaterRise::Everywhere, 0.4), 1);
    EXPECT_EQ(RelativeAt(2, EWaterRise::Everywhere, 0.9, 5), 1.5);
}

TEST(SwellUp, AtTheBowOnlyReachesAQuarterOfTheLengthAft)
{
    EXPECT_NEAR(RelativeAt(1, EWaterRise::Bow), 1.1702802, 1e-6);
    EXPECT_NEAR(RelativeAt(-0.3, EWaterRise::Bow), 1.1702802, 1e-6);
    EXPECT_EQ(RelativeAt(1.01, EWaterRise::Bow), 1);
}

TEST(Exceedance, IsRayleighs)
{
    const CExceedance found = Exceedance(2, 1, 0.5);
    EXPECT_NEAR(found.Probability, std::exp(-2), 1e-12);
    EXPECT_NEAR(found.Rate, 3600 / kTwoPi * 0.5 * std::exp(-2), 1e-9);
}

TEST(Exceedance, BelowTheMeanHappensEveryTime)
{
    for (const double h : {0.0, -3.0})
    {
        EXPECT_EQ(Exceedance(h, 1, 0.5).Probability, 1);
        EXPECT_NEAR(Exceedance(h, 1, 0.5).Rate, 1800 / kTwoPi, 1e-9);
    }
}

TEST(Exceedance, WithoutMotionIsCertainOrNever)
{
    EXPECT_EQ(Exceedance(1, 0, 0).Probability, 0);
    EXPECT_EQ(Exceedance(0, 0, 0).Probability, 1);
    EXPECT_EQ(Exceedance(-1, 0.9e-9, 1).Probability, 1);
    EXPECT_EQ(Exceedance(-1, 0.9e-9, 1).Rate, 0);
}

TEST(WaterEvents, DeckWetnessOfTheReferenceShip)
{
    const CPosition deck = Position(EWaterEvent::DeckWetness, 0, 3, 10, 10);
    ExpectClose(OnReferenceShip(deck, 2.2747, 2.6367).DeckProbability, 0.230537, 0.001);
    ExpectClose(OnReferenceShip(deck, 2.2747, 2.6367).DeckRate, 153.1125, 0.001);
    ExpectClose(OnReferenceShip(deck, 1.6678, 1.9386).DeckProbability, 0.065252, 0.001);
    ExpectClose(OnReferenceShip(deck, 1.6678, 1.9386).DeckRate, 43.4571, 0.001);
    EXPECT_EQ(OnReferenceShip(deck, 2.2747, 2.6367).KeelRate, 0);
    EXPECT_EQ(OnReferenceShip(deck, 2.2747, 2.6367).EmergenceRate, 0);
}

TEST(WaterEvents, EmergenceOfTheReferenceShip)
{
    const CPosition propeller = Position(EWaterEvent::Emergence, 9.5, 2.5, 2.5, 0);
    const CPositionAtHeading result = OnReferenceShip(propeller, 0.4975, 1.1284);
    ExpectClose(result.EmergenceProbability, 0.000547, 0.005);
    ExpectClose(result.EmergenceRate, 0.7113, 0.005);
    EXPECT_EQ(result.DeckProbability, 0);
}

TEST(WaterEvents, SlammingOfTheReferenceShip)
{
    const CPosition keel = Position(EWaterEvent::SlamForm, 1.5, 0, 0, 10);
    const CPositionAtHeading head = OnReferenceShip(keel, 1.6295, 2.0901);
    ExpectClose(head.DeckProbability, 0.002138, 0.001);
    ExpectClose(head.DeckRate, 1.5713, 0.001);
    ExpectClose(head.KeelProbability, 0.031446, 0.001);
    ExpectClose(head.KeelRate, 23.1098, 0.001);
    ExpectClose(head.SlamProbability, 0.009805, 0.001);
    ExpectClose(head.SlamRate, 7.2058, 0.001);
    ExpectClose(head.ExpectedPressure, 412121, 0.001);
    ExpectClose(head.ExtremePressure, 721425, 0.001);
    ExpectClose(head.ExpectedForce, 824241.6, 0.001);
    ExpectClose(head.ExtremeForce, 1442849.9, 0.001);

    const CPositionAtHeading bow = OnReferenceShip(keel, 1.2004, 1.5373);
    ExpectClose(bow.SlamRate, 0.1450, 0.001);
    ExpectClose(bow.ExpectedPressure, 116962, 0.001);
    ExpectClose(bow.ExtremePressure, 284293, 0.001);
}

TEST(WaterEvents, SlammingOfAWedgeThatHappensLessThanOnceHasNoExpectedPressure)
{
    const CPosition wedge = Position(EWaterEvent::SlamWedge, 2, 0, 0, 10);
    const CPositionAtHeading head = OnReferenceShip(wedge, 1.4046, 1.8896);
    ExpectClose(head.SlamRate, 2.2562, 0.001);
    ExpectClose(head.ExpectedPressure, 236581, 0.001);
    ExpectClose(head.ExpectedForce, 446467.2, 0.001);
    const CPositionAtHeading bow = OnReferenceShip(wedge, 1.0364, 1.3887);
    EXPECT_EQ(bow.ExpectedPressure, 0);
    EXPECT_EQ(bow.ExpectedForce, 0);
    ExpectClose(bow.ExtremePressure, 150049, 0.001);
    ExpectClose(bow.ExtremeForce, 283166.8, 0.001);
}

TEST(WaterEvents, SlammingFollowsOchisFormulas)
{
    // Draft 5, displacement 5, velocity 4: threshold 0.093 sqrt(981) = 2.912844.
    const CPositionAtHeading result = Slam(2, 0.05, 5, 4);
    const double probability = std::exp(-0.5 - 0.26514591);
    EXPECT_NEAR(result.SlamProbability, probability, 1e-7);
    const double rate = 3600 / kTwoPi * 0.8 * probability;
    EXPECT_NEAR(result.SlamRate, rate, 1e-4);
    const double expected = 0.5 * 1025 * 10 * (8.484669 + 32 * std::log(2 * rate));
    EXPECT_NEAR(result.ExpectedPressure, expected, 0.1);
    EXPECT_NEAR(result.ExtremePressure, expected + 0.5 * 1025 * 10 * 32 * std::log(20.0), 0.1);
    EXPECT_NEAR(result.ExpectedForce, 2 * expected, 0.2);
}

TEST(WaterEvents, WithoutAnExceedenceParameterTheExtremeIsTheExpectedPressure)
{
    const CPositionAtHeading result = Slam(2, 0, 5, 4);
    EXPECT_GT(result.ExpectedPressure, 0);
    EXPECT_EQ(result.ExtremePressure, result.ExpectedPressure);
}

TEST(WaterEvents, FewerThanOneSlamHasNoPressure)
{
    const double hours = 1 / Slam(1, 0, 5, 4).SlamRate;
    EXPECT_EQ(Slam(0.999 * hours, 0, 5, 4).ExpectedPressure, 0);
    EXPECT_NEAR(Slam(1.000001 * hours, 0, 5, 4).ExpectedPressure, 0.5 * 1025 * 10 * 8.484669, 2)
        << "one slam at the threshold velocity";
    EXPECT_EQ(Slam(0, 0.01, 5, 4).ExtremePressure, 0);
}

TEST(WaterEvents, AKeelAboveTheWaterSlamsByItsVelocityAlone)
{
    CPosition position = Position(EWaterEvent::SlamForm, -0.5, 0, 6, 9);
    const CPositionAtHeading result = OnPlainHull(position, Relative(5, 4));
    EXPECT_EQ(result.KeelProbability, 1);
    EXPECT_NEAR(result.SlamProbability, std::exp(-0.26514591), 1e-7);
}

TEST(WaterEvents, AreFoundOnlyWhereAskedFor)
{
    CPosition position = Place();
    position.InterruptionTime = 60;
    position.Exposure = 2;
    const CPositionAtHeading result = OnPlainHull(position, Relative(5, 4));
    EXPECT_EQ(result.DeckProbability, 0);
    EXPECT_EQ(result.KeelProbability, 0);
    EXPECT_EQ(result.EmergenceProbability, 0);
    EXPECT_EQ(result.SlamProbability, 0);
    EXPECT_EQ(result.Exposure, 0);
    EXPECT_EQ(result.Incidence, 0);
    EXPECT_EQ(result.LateralCount, 0);
}

TEST(Interruptions, CountTippingToBothSides)
{
    CPosition position = Place();
    position.Interruptions = true;
    position.LateralTipping = 0.25;
    position.LongitudinalTipping = 0.17;
    position.InterruptionTime = 60;
    const CPositionAtHeading result = OnPlainHull(position, Mixed(400));
    // The deck's vertical acceleration is -0.48 - 0.0256 i.
    const auto crossings = [](double tipping, double real, double imaginary)
    {
        const double variance = 400 * (real * real + imaginary * imaginary);
        return 60 / kTwoPi * 0.8 * std::exp(-std::pow(tipping * 9.81, 2) / (2 * variance));
    };
    EXPECT_NEAR(result.LateralCount, crossings(0.25, -0.12, 0.1322) + crossings(0.25, 0.12, 0.145), 1e-9);
    EXPECT_NEAR(result.LongitudinalCount,
                crossings(0.17, -0.5189, -0.017152) + crossings(0.17, -0.3557, -0.008448), 1e-9);
}

TEST(Interruptions, WithoutMotionThereAreNone)
{
    CPosition position = Place();
    position.Interruptions = true;
    position.InterruptionTime = 60;
    EXPECT_EQ(OnPlainHull(position, {}).LateralCount, 0);
    position.LateralTipping = 0.25;
    EXPECT_EQ(OnPlainHull(position, {}).LateralCount, 0);
}

TEST(PositionSickness, TakesAccelerationAndItsMeanFrequency)
{
    CPosition position = Place();
    position.Sickness = ESickness::Colwell;
    position.Exposure = 2;
    const double w = kTwoPi * 0.2;
    const CPositionAtHeading result = OnPlainHull(position, Heave(0.981 / (w * w), -w));
    EXPECT_NEAR(result.Incidence, 29.704, 0.0005);
    EXPECT_EQ(result.Exposure, 2);
}

TEST(PositionSickness, TheMeanFrequencyIsWeightedByTheAcceleration)
{
    CPosition position = Place();
    position.Sickness = ESickness::Colwell;
    position.Exposure = 2;
    // Accelerations of 0.6 and 0.8 of 0.1 g at 0.1 and 0.25 Hz: mean 0.36 0.1 + 0.64 0.25 = 0.196 Hz.
    const auto heave = [](double part, double hertz)
    { return Heave(part * 0.981 / std::pow(kTwoPi * hertz, 2), kTwoPi * hertz); };
    CHeadingResponse response = heave(0.6, 0.1);
    response.push_back(heave(0.8, 0.25).front());
    EXPECT_NEAR(OnPlainHull(position, response).Incidence, McCauleyIncidence(0.1, 0.196, 2), 1e-9);
}

TEST(PositionSickness, WithoutATimeTakesTheWorstOne)
{
    CPosition position = Place();
    position.Sickness = ESickness::Colwell;
    const double w = kTwoPi * 0.15;
    const CPositionAtHeading result = OnPlainHull(position, Heave(0.2 * 9.81 / (w * w), w));
    EXPECT_EQ(result.Exposure, 2.75);
    EXPECT_NEAR(result.Incidence, McCauleyIncidence(0.2, 0.15, 2.75), 1e-9);
}

TEST(PositionSickness, OfClassPracticeIsAThirdOfTheDose)
{
    CPosition position = Place();
    position.Sickness = ESickness::BureauVeritas;
    position.Exposure = 2;
    const double w = kTwoPi * 0.16;
    const CHeadingResponse response = Heave(1 / (w * w), -w);
    EXPECT_NEAR(OnPlainHull(position, response).Incidence, 1.0060 * std::sqrt(7200) / 3, 0.002);
    position.Exposure = 0;
    EXPECT_EQ(OnPlainHull(position, response).Incidence, 0);
    EXPECT_EQ(OnPlainHull(position, response).Exposure, 0) << "taken as given";
    position.Exposure = 100;
    EXPECT_EQ(OnPlainHull(position, response).Incidence, 100);
}

TEST(PositionResults, WhatIsNoNumberIsNeverLetOut)
{
    CInput input;
    input.SpeedCorrection = EWaterRise::Everywhere;
    input.SwellCorrection = EWaterRise::Everywhere;
    input.Hours = 20;
    CPosition position = Position(EWaterEvent::SlamForm, 1, 0, 0, 9);
    position.FormFactor = 1e308;
    position.Width = 1e308;
    position.Interruptions = true;
    position.LateralTipping = 0.25;
    position.InterruptionTime = 60;
    const double bad = std::numeric_limits<double>::quiet_NaN();
    for (const double value : {bad, 1e200, 1e308})
    {
        for (const ESickness sickness : {ESickness::Colwell, ESickness::BureauVeritas})
        {
            position.Sickness = sickness;
            const CPositionAtHeading result =
                EvaluatePosition(input, PlainHull(), position, 5, Heave(value, 0.8));
            double sum = 0;
            for (const double local : result.Local)
            {
                EXPECT_TRUE(std::isfinite(local)) << value;
            }
            for (const double found :
                 {result.LateralCount, result.LongitudinalCount, result.Incidence, result.Exposure,
                  result.DeckRate, result.KeelProbability, result.SlamRate, result.ExpectedPressure,
                  result.ExtremePressure, result.ExpectedForce, result.ExtremeForce})
            {
                EXPECT_TRUE(std::isfinite(found)) << value;
                sum += found;
            }
            EXPECT_GE(sum, 0);
        }
    }
}
