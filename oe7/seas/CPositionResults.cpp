#include "oe7/seas/CPositionResults.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kTwoPi = 2 * std::numbers::pi;
constexpr double kSecondsPerHour = 3600;
constexpr double kLeastMotion = 1e-9; ///< m, below it nothing moves

/// Swell-up of the water at the moving hull (Tasaki), per square root of w_e^2 L/g; 0 where it isn't wanted.
double SwellUpFactor(const CInput& input, const CHullCondition& hull, double x)
{
    const bool atBow = hull.X(0) - x <= 0.25 * hull.Length;
    const bool wanted = input.SwellCorrection == EWaterRise::Everywhere ||
                        (input.SwellCorrection == EWaterRise::Bow && atBow);
    return wanted ? (hull.BlockCoefficient - 0.45) / 3 * std::sqrt(hull.Length / kGravity) : 0;
}

/// An apparent acceleration in the deck's plane, and the same with the vertical acceleration times the
/// tipping coefficient added and subtracted: a person tips one way or the other (Graham 1990).
class CTipping
{
public:
    CTipping(bool counted, double coefficient) : m_counted(counted), m_coefficient(coefficient) {}

    void Add(Complex estimator, Complex vertical, const CWaveMoments& wave)
    {
        Estimator.Add(std::norm(estimator), wave);
        if (m_counted)
        {
            m_plus.Add(std::norm(estimator + m_coefficient * vertical), wave);
            m_minus.Add(std::norm(estimator - m_coefficient * vertical), wave);
        }
    }
    /// Interruptions in a time, s; 0 if they aren't counted.
    double Count(double time) const { return Crossings(m_plus, time) + Crossings(m_minus, time); }

    CMoments Estimator;

private:
    double Crossings(const CMoments& force, double time) const
    {
        const double limit = m_coefficient * kGravity;
        return force.M0 > 0 ? FiniteOrZero(time / kTwoPi * std::sqrt(force.M2 / force.M0) *
                                           std::exp(-limit * limit / (2 * force.M0)))
                            : 0;
    }

    bool m_counted;
    double m_coefficient;
    CMoments m_plus, m_minus;
};

/// All that happens at one position at one heading.
class CPositionSums
{
public:
    CPositionSums(const CInput& input, const CHullCondition& hull, const CPosition& position, double x,
                  double z)
        : Lateral(position.Interruptions, position.LateralTipping),
          Longitudinal(position.Interruptions, position.LongitudinalTipping),
          m_x(x),
          m_y(position.Y),
          m_z(z),
          m_swellUp(SwellUpFactor(input, hull, x)),
          m_weighted(position.Sickness == ESickness::BureauVeritas)
    {
    }

    void Add(const CComponentResponse& component)
    {
        for (std::size_t n = 0; n < component.Waves.size(); ++n)
        {
            Add(component.Waves[n], component.Encounter[n], component.Energy[n], component.Motions[n]);
        }
    }

    CMoments Vertical, Sideways, Forward, Relative, Wave;
    CTipping Lateral, Longitudinal;
    double WeightedSquare = 0; ///< (m/s2)^2, of the vertical acceleration weighted for sickness

private:
    void Add(const CWave& wave, double encounter, double energy, const CMotionVector& eta)
    {
        const CWaveMoments moments(encounter, energy);
        const double square = encounter * encounter;
        const Complex vertical = eta[2] - m_x * eta[4] + m_y * eta[3];
        const Complex sideways = eta[1] + m_x * eta[5] - m_z * eta[3];
        const Complex forward = eta[0] - m_y * eta[5] + m_z * eta[4];
        const double swell = std::clamp(m_swellUp * std::abs(encounter), 0.0, 0.5);
        const double phase = -wave.WaveNumber * (m_x * wave.Cosine + m_y * wave.Sine);

        Vertical.Add(std::norm(vertical), moments);
        Sideways.Add(std::norm(sideways), moments);
        Forward.Add(std::norm(forward), moments);
        Relative.Add(std::norm(vertical - std::polar(1 + swell, phase)), moments);
        Wave.Add(1, moments);
        Lateral.Add(kGravity * eta[3] - square * sideways, -square * vertical, moments);
        Longitudinal.Add(-kGravity * eta[4] - square * forward, -square * vertical, moments);
        if (m_weighted)
        {
            WeightedSquare += SquaredSicknessWeighting(encounter / kTwoPi) * std::norm(vertical) * moments.E4;
        }
    }

    double m_x, m_y, m_z; ///< m from G
    double m_swellUp;     ///< s, per |w_e|
    bool m_weighted;
};

void SetLocal(CPositionAtHeading& result, const CPositionSums& sums)
{
    std::size_t n = 0;
    const auto set = [&](std::initializer_list<double> values)
    {
        for (const double value : values)
        {
            result.Local[n++] = value;
        }
    };
    for (const CMoments* motion : {&sums.Vertical, &sums.Sideways, &sums.Forward, &sums.Relative})
    {
        set({motion->Displacement(), motion->Velocity(), motion->Acceleration()});
    }
    set({sums.Lateral.Estimator.Displacement(), sums.Lateral.Estimator.Velocity()});
    set({sums.Longitudinal.Estimator.Displacement(), sums.Longitudinal.Estimator.Velocity()});
    set({sums.Wave.Displacement(), sums.Wave.Velocity(), sums.Wave.Acceleration()});
    set({sums.Vertical.ZeroCrossingPeriod(), sums.Relative.ZeroCrossingPeriod()});
}

void SetSickness(CPositionAtHeading& result, const CPosition& position, const CPositionSums& sums)
{
    result.Exposure = position.Exposure;
    if (position.Sickness == ESickness::BureauVeritas)
    {
        const double weighted = std::sqrt(std::max(sums.WeightedSquare, 0.0));
        const double seconds = kSecondsPerHour * std::max(position.Exposure, 0.0);
        result.Incidence = std::min(FiniteOrZero(weighted * std::sqrt(seconds) / 3), 100.0);
        return;
    }
    const double acceleration = sums.Vertical.Acceleration() / kGravity;
    const double frequency = sums.Vertical.M4 > 0 ? sums.Vertical.M5 / (kTwoPi * sums.Vertical.M4) : 0;
    if (!(position.Exposure > 0))
    {
        result.Exposure = WorstExposure(acceleration, frequency);
    }
    result.Incidence = McCauleyIncidence(acceleration, frequency, result.Exposure);
}

/// Pa, of the largest of so many impacts; 0 if there isn't one.
double Pressure(double impacts, double halfDensity, double threshold, double velocity)
{
    return impacts >= 1 ? FiniteOrZero(halfDensity *
                                       (threshold * threshold + 2 * velocity * velocity * std::log(impacts)))
                        : 0;
}

/// Ochi 1964, Ochi and Motter 1973.
void SetSlamming(CPositionAtHeading& result, const CInput& input, const CHullCondition& hull,
                 const CPosition& position)
{
    const double velocity = result.Local[10];
    const double threshold = 0.093 * std::sqrt(kGravity * hull.Length);
    const double fast =
        velocity > kLeastMotion ? std::exp(-threshold * threshold / (2 * velocity * velocity)) : 0;
    result.SlamProbability = result.KeelProbability * fast;
    result.SlamRate = result.KeelRate * fast;

    const CSlamForm form = SlamForm(position);
    const double impacts = result.SlamRate * input.Hours;
    const double extreme = input.Exceedance > 0 ? impacts / input.Exceedance : impacts;
    const double halfDensity = 0.5 * hull.Density * form.FormFactor;
    result.ExpectedPressure = Pressure(impacts, halfDensity, threshold, velocity);
    result.ExtremePressure = Pressure(extreme, halfDensity, threshold, velocity);
    result.ExpectedForce = FiniteOrZero(form.Width * result.ExpectedPressure);
    result.ExtremeForce = FiniteOrZero(form.Width * result.ExtremePressure);
}

bool IsSlam(EWaterEvent event)
{
    return event == EWaterEvent::SlamForm || event == EWaterEvent::SlamOffset ||
           event == EWaterEvent::SlamWedge;
}

void SetEvents(CPositionAtHeading& result, const CInput& input, const CHullCondition& hull,
               const CPosition& position, const CPositionGeometry& geometry)
{
    const auto exceed = [&result](double h, double& probability, double& rate)
    {
        const CExceedance found = Exceedance(h, result.Local[9], result.Local[10]);
        probability = found.Probability;
        rate = found.Rate;
    };
    if (position.Event == EWaterEvent::Emergence)
    {
        exceed(geometry.DepthAtSpeed(), result.EmergenceProbability, result.EmergenceRate);
    }
    else if (position.Event != EWaterEvent::None)
    {
        exceed(geometry.FreeboardAtSpeed(), result.DeckProbability, result.DeckRate);
    }
    if (IsSlam(position.Event))
    {
        exceed(geometry.DraftAtSpeed(), result.KeelProbability, result.KeelRate);
        SetSlamming(result, input, hull, position);
    }
}
} // namespace

CExceedance Exceedance(double h, double displacement, double velocity)
{
    CExceedance result;
    result.Probability = h <= 0 ? 1 : 0;
    if (displacement >= kLeastMotion)
    {
        if (h > 0)
        {
            result.Probability = FiniteOrZero(std::exp(-h * h / (2 * displacement * displacement)));
        }
        result.Rate = FiniteOrZero(kSecondsPerHour / kTwoPi * velocity / displacement * result.Probability);
    }
    return result;
}

CPositionAtHeading EvaluatePosition(const CInput& input, const CHullCondition& hull,
                                    const CPosition& position, double speed, const CHeadingResponse& response)
{
    const CPositionGeometry geometry = PositionGeometry(input, hull, position, speed);
    CPositionSums sums(input, hull, position, geometry.X, geometry.Z);
    for (const CComponentResponse& component : response)
    {
        sums.Add(component);
    }

    CPositionAtHeading result;
    SetLocal(result, sums);
    result.LateralCount = sums.Lateral.Count(position.InterruptionTime);
    result.LongitudinalCount = sums.Longitudinal.Count(position.InterruptionTime);
    if (position.Sickness != ESickness::None)
    {
        SetSickness(result, position, sums);
    }
    SetEvents(result, input, hull, position, geometry);
    return result;
}

} // namespace oe7
