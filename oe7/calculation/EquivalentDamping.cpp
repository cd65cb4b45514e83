// Roll damping made linear: for one wave amplitude, or by stochastic linearisation for a seaway.
#include "oe7/calculation/CSpeedCalculation.h"

#include "oe7/input/ForEach.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kDegree = std::numbers::pi / 180;
constexpr double kSmallestAmplitude = 1e-4;        // rad
constexpr double kLargestAmplitude = 60 * kDegree; // rad

double BoundedAmplitude(double amplitude)
{
    return std::isfinite(amplitude) ? std::clamp(amplitude, kSmallestAmplitude, kLargestAmplitude)
                                    : kLargestAmplitude;
}

/// One wave's part in the roll of a seaway.
struct CRollPart
{
    const CMotions* Motions;
    double Encounter;
    double Energy;
};

CMoments RollMoments(const std::vector<CRollPart>& parts, double rollDamping)
{
    CMoments moments;
    for (const CRollPart& part : parts)
    {
        moments.Add(std::norm(part.Motions->Roll(rollDamping)), part.Encounter, part.Energy);
    }
    return moments;
}

bool IsNear(double value, double other, double tolerance)
{
    return std::abs(value - other) <= tolerance * std::abs(other);
}
} // namespace

void CSpeedCalculation::FindDamping()
{
    const std::size_t headings = static_cast<std::size_t>(m_model.Headings.Count());
    m_equivalent.assign(m_model.Seas.size(), std::vector<CEquivalentDamping>(headings));
    for (std::size_t seaway = 0; seaway < m_model.Seas.size(); ++seaway)
    {
        ForEach(m_model.Headings.Count(), m_model.Threads,
                [&](int heading) {
                    m_equivalent[seaway][static_cast<std::size_t>(heading)] =
                        InSeaway(m_model.Seas[seaway], heading);
                });
    }
}

CEquivalentDamping CSpeedCalculation::Damping(double frequency, double amplitude) const
{
    return {amplitude, frequency, m_model.RollDamping.At(m_speed, frequency, amplitude)};
}

CEquivalentDamping CSpeedCalculation::WithoutSeaway() const
{
    return Damping(m_model.Inertia.RollFrequency, 5 * kDegree);
}

/// The amplitude that the damping at this amplitude gives, found by turns.
CEquivalentDamping CSpeedCalculation::InRegularWave(const CWaveCase& wave) const
{
    constexpr int kGeometricRounds = 40;
    constexpr int kRounds = 60;
    constexpr double kTolerance = 1e-5;                                                      // rad
    const double height = m_model.Input.Steepness * std::numbers::pi / wave.Wave.WaveNumber; // m, amplitude
    const double frequency = std::abs(wave.Evaluated);
    double amplitude = 2 * kDegree;
    for (int round = 0; round < kRounds; ++round)
    {
        const double damping = Damping(frequency, amplitude).Components.InEquation();
        const double found = BoundedAmplitude(std::abs(wave.Motions.Roll(damping)) * height);
        const double next =
            round < kGeometricRounds ? std::sqrt(amplitude * found) : 0.7 * amplitude + 0.3 * found;
        const double change = std::abs(next - amplitude);
        amplitude = BoundedAmplitude(next);
        if (change < kTolerance)
        {
            break;
        }
    }
    return Damping(frequency, amplitude);
}

/// For a purely quadratic damping this is stochastic linearisation (Kaplan 1966): 1.5 sqrt(pi/2) sigma takes
/// the place of the amplitude.
CEquivalentDamping CSpeedCalculation::InSeaway(const CSeaState& sea, int heading) const
{
    constexpr int kRounds = 40;
    const double amplitudePerRms = 1.5 * std::sqrt(std::numbers::pi / 2);
    const double natural = m_model.Inertia.RollFrequency;
    std::vector<CRollPart> parts;
    VisitComponents(
        sea, heading,
        [&](int component, const std::vector<CWaveCase>& waves)
        {
            for (int refined = 0; refined < static_cast<int>(waves.size()); ++refined)
            {
                const CWaveCase& wave = waves[static_cast<std::size_t>(refined)];
                parts.push_back({&wave.Motions, wave.Encounter, Energy(sea, heading, component, refined)});
            }
        });
    double amplitude = 3 * kDegree;
    double frequency = natural;
    for (int round = 0; round < kRounds; ++round)
    {
        const CMoments moments = RollMoments(parts, Damping(frequency, amplitude).Components.InEquation());
        const double found = BoundedAmplitude(amplitudePerRms * moments.Displacement());
        const double mean = moments.M0 > 0 ? std::sqrt(moments.M2 / moments.M0) : natural;
        const double nextAmplitude = std::sqrt(amplitude * found);
        const double nextFrequency = std::sqrt(frequency * std::clamp(mean, 0.05 * natural, 20 * natural));
        const bool isFound = IsNear(nextAmplitude, amplitude, 1e-4) && IsNear(nextFrequency, frequency, 1e-3);
        amplitude = nextAmplitude;
        frequency = nextFrequency;
        if (isFound)
        {
            break;
        }
    }
    return Damping(frequency, amplitude);
}

} // namespace oe7
