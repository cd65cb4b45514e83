// Motion sickness: incidence and frequency weighting.
#include "oe7/seas/CPositionResults.h"

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
/// Habituation halves what a longer exposure adds every so many hours; an estimate of this engine.
constexpr double kHabituation = 36;
constexpr double kLongestExposure = 24; ///< hours
constexpr double kExposureStep = 0.25;  ///< hours

/// Distribution function of the normal distribution.
double Normal(double z)
{
    return 0.5 * std::erfc(-z / std::numbers::sqrt2);
}

/// |1 + i f/(q f0) - (f/f0)^2|^2, of f^2.
double SquaredSecondOrder(double square, double f0, double q)
{
    const double ratio = square / (f0 * f0);
    return (1 - ratio) * (1 - ratio) + ratio / (q * q);
}
} // namespace

double McCauleyIncidence(double acceleration, double frequency, double hours)
{
    constexpr double kLeast = 1e-6;
    if (!(acceleration >= kLeast && frequency >= kLeast && hours > 0))
    {
        return 0;
    }
    const double logFrequency = std::log10(frequency);
    const double za =
        2.128 * std::log10(acceleration) - 9.277 * logFrequency - 5.809 * logFrequency * logFrequency - 1.851;
    const double zt = 1.134 * za + 1.989 * std::log10(60 * hours) - 2.904;
    return FiniteOrZero(100 * Normal(za) * Normal(zt));
}

double WorstExposure(double acceleration, double frequency)
{
    double worst = kExposureStep;
    double largest = 0;
    for (double hours = kExposureStep; hours <= kLongestExposure; hours += kExposureStep)
    {
        const double incidence =
            McCauleyIncidence(acceleration, frequency, hours) * std::exp2(-hours / kHabituation);
        if (incidence > largest)
        {
            largest = incidence;
            worst = hours;
        }
    }
    return worst;
}

double SquaredSicknessWeighting(double frequency)
{
    constexpr double kHighPass = 0.08 * 0.08 * 0.08 * 0.08, kLowPass = 0.63 * 0.63 * 0.63 * 0.63; ///< Hz^4
    constexpr double kFalling = 0.25, kRising = 0.0625, kStep = 0.10;                             ///< Hz
    constexpr double kHeight = kRising / kStep * kRising / kStep;
    const double square = frequency * frequency;
    const double fourth = square * square;
    const double band = fourth / (fourth + kHighPass) * kLowPass / (fourth + kLowPass);
    const double slope = 1 / SquaredSecondOrder(square, kFalling, 0.86);
    const double step = SquaredSecondOrder(square, kRising, 0.80) / SquaredSecondOrder(square, kStep, 0.80);
    return FiniteOrZero(band * slope * step * kHeight * kHeight);
}

double SicknessWeighting(double frequency)
{
    return std::sqrt(SquaredSicknessWeighting(frequency));
}

} // namespace oe7
