#include "tests/support/EngineNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
/// Least and greatest number, in units of the last decimal.
struct CRange
{
    int Decimals;
    std::int64_t Least;
    std::int64_t Greatest;
};

constexpr CRange kPhase{1, -1799, 1799};
constexpr CRange kForceOfSlice{3, 100000, 9999999};
constexpr CRange kFraction5{5, 1, 99999};
constexpr CRange kFraction6{6, 1, 999999};
constexpr CRange kLength{4, 10000, 199999};
constexpr CRange kSevenDigits{-1, 1000000, 9999999};

constexpr std::array<CRange, static_cast<std::size_t>(EEngineNumber::Other) + 1> kRanges = {{
    {4, 1, 99999},          // RaoAmplitude
    kPhase,                 // RaoPhase
    {4, 1, 999999},         // LoadRaoAmplitude
    kPhase,                 // LoadRaoPhase
    {4, 1, 99999},          // Rms
    {4, 1, 99999},          // LocalRms
    {3, 1000, 99999999},    // LoadRms
    {2, 200, 2999},         // LoadPeriod
    kForceOfSlice,          // Weight
    kForceOfSlice,          // Buoyancy
    {0, -9999999, 9999999}, // Shear
    {0, -9999999, 9999999}, // Moment
    {4, 10000, 999999},     // HullValue
    {4, 5000, 29999},       // Metacentre
    {4, 4000, 8999},        // BlockCoefficient
    {4, -999999, 999999},   // SectionX
    kLength,                // SectionBeam
    kLength,                // SectionDraft
    {4, 10000, 999999},     // SectionArea
    {5, 10000, 99999},      // SectionCoefficient
    {4, -999999, 999999},   // PositionX
    {4, -99999, 99999},     // PositionHeight
    kLength,                // PositionDraft
    kLength,                // PositionFreeboard
    {5, 100000, 2999999},   // FormFactor
    {5, 10000, 999999},     // EffectiveWidth
    {4, 100, 9999},         // Froude
    {7, 1000000, 9999999},  // RollFrequency
    kSevenDigits,           // RollStiffness
    kSevenDigits,           // RollInertia
    {3, 1, 29999},          // RollAngle
    kFraction5,             // Damping
    kFraction5,             // AddedMass
    kFraction6,             // LiftDamping
    kFraction6,             // ViscousDamping
    {5, 1, 299999},         // Interruption
    {4, 1, 999999},         // Incidence
    {3, 250, 24000},        // Exposure
    kLength,                // Clearance
    {4, 1, 99999},          // RelativeMotion
    kFraction6,             // Probability
    {4, 1, 9999999},        // Rate
    {3, 1, 999999},         // Pressure
    {2, 1, 99999999},       // Force
    {4, 1, 99999},          // Other
}};

constexpr std::array<double, 8> kTens = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};

/// A number of so many decimals: exactly what its printed text reads back to.
double Rounded(double value, int decimals)
{
    const double tens = kTens[static_cast<std::size_t>(decimals)];
    return std::round(value * tens) / tens;
}

/// Steele, Lea and Flood: Fast splittable pseudorandom number generators, 2014 (the mixing function).
std::uint64_t Mixed(std::uint64_t key)
{
    key += 0x9E3779B97F4A7C15U;
    key = (key ^ (key >> 30U)) * 0xBF58476D1CE4E5B9U;
    key = (key ^ (key >> 27U)) * 0x94D049BB133111EBU;
    return key ^ (key >> 31U);
}

const CRange& RangeOf(EEngineNumber number)
{
    return kRanges[static_cast<std::size_t>(number)];
}
} // namespace

int Decimals(EEngineNumber number)
{
    return RangeOf(number).Decimals;
}

double MadeUp(EEngineNumber number, int a, int b, int c, int d, int e)
{
    const CRange& range = RangeOf(number);
    auto key = static_cast<std::uint64_t>(number);
    for (const int index : {a, b, c, d, e})
    {
        key = key * 64 + static_cast<std::uint64_t>(index);
    }
    const auto span = static_cast<std::uint64_t>(range.Greatest - range.Least + 1);
    const double units = static_cast<double>(range.Least + static_cast<std::int64_t>(Mixed(key) % span));
    return range.Decimals < 0 ? units * 10 : units / kTens[static_cast<std::size_t>(range.Decimals)];
}

double UsedMetacentre(const CEngineRun& run)
{
    if (!run.MetacentreGiven)
    {
        return MadeUp(EEngineNumber::Metacentre);
    }
    const double given = run.GivenMetacentre;
    const double factor = run.MetricInput == run.Metric ? 1 : run.Metric ? 0.3048 : 1 / 0.3048;
    return Rounded(given * factor, 4);
}

double WaveFrequency(const CEngineRun& run, int frequency)
{
    return Rounded(
        static_cast<double>(run.FirstFrequency) + frequency * static_cast<double>(run.FrequencyStep), 3);
}

double EncounterFrequency(const CEngineRun& run, int speed, int heading, int frequency)
{
    if (frequency == run.OverflowAt)
    {
        return 0.123;
    }
    // Half to one and a half of the wave's; made of the same words as any other number.
    const double share = 0.5 + MadeUp(EEngineNumber::Other, 1, speed, heading, frequency) / 10;
    const double value = WaveFrequency(run, frequency) * share;
    return value < 9.9995 ? Rounded(value, 3) : value < 99.995 ? Rounded(value, 2) : Rounded(value, 1);
}

double WavelengthRatio(const CEngineRun& run, int speed, int heading, int frequency)
{
    constexpr double gravity = 9.81;
    constexpr double twoPi = 6.283185307179586;
    constexpr double greatest = 99999.0;
    const double wave = std::max(WaveFrequency(run, frequency), 0.01);
    const double share = 0.95 + MadeUp(EEngineNumber::Other, 2, speed, heading, frequency) / 100;
    const double length = static_cast<double>(run.Length) * (run.Metric ? 1 : 0.3048);
    const double value = std::min(twoPi * gravity / wave / wave / std::max(length, 0.1) * share, greatest);
    // Never more than seven characters, so that all of it is kept where it runs together.
    return value < 99.9999 ? Rounded(value, 4) : value < 999.999 ? Rounded(value, 3) : Rounded(value, 1);
}
