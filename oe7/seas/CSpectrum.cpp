#include "oe7/seas/CSpectrum.h"

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kTwoPi = 2 * std::numbers::pi;
/// Beyond it exp(-x) is nothing, while the powers beside it may grow beyond all bounds.
constexpr double kLargestExponent = 600;
} // namespace

bool IsEmpty(const COchiHubbleSystem& system)
{
    return !(system.Height > 0 && system.PeakFrequency > 0 && system.Lambda > 0);
}

double Bretschneider(double height, double peakPeriod, double w)
{
    if (!(height > 0 && peakPeriod > 0 && w > 0))
    {
        return 0;
    }
    const double ratio = kTwoPi / peakPeriod / w;
    const double fourth = ratio * ratio * ratio * ratio;
    const double exponent = 1.25 * fourth;
    return exponent > kLargestExponent ? 0 : 5.0 / 16 * height * height * fourth / w * std::exp(-exponent);
}

double OchiHubble(const COchiHubbleSystem& system, double w)
{
    if (IsEmpty(system) || !(w > 0))
    {
        return 0;
    }
    const double ratio = system.PeakFrequency / w;
    const double power = 4 * system.Lambda + 1;
    const double exponent = power / 4 * ratio * ratio * ratio * ratio;
    if (exponent > kLargestExponent * power)
    {
        return 0;
    }
    // By logarithms: the powers and the gamma function of a large lambda are beyond all bounds.
    const double logarithm = system.Lambda * std::log(exponent) - std::lgamma(system.Lambda) - exponent;
    return 0.25 * system.Height * system.Height / w * std::exp(logarithm);
}

CJonswap::CJonswap(double height, double peakPeriod, double peakEnhancement)
    : m_peak(peakPeriod > 0 ? kTwoPi / peakPeriod : 0),
      m_enhancement(peakEnhancement > 0 ? peakEnhancement : 1)
{
    if (!(m_peak > 0 && height > 0))
    {
        return;
    }
    m_scale = 1;
    double sum = 0;
    for (int n = 40; n <= 1000; ++n)
    {
        sum += (n == 40 || n == 1000 ? 0.5 : 1.0) * Density(0.01 * n * m_peak);
    }
    const double scale = height * height / 16 / (sum * 0.01 * m_peak);
    m_scale = std::isfinite(scale) ? scale : 0;
}

double CJonswap::Density(double w) const
{
    if (!(w > 0 && m_scale > 0))
    {
        return 0;
    }
    const double ratio = m_peak / w;
    const double fourth = ratio * ratio * ratio * ratio;
    const double exponent = 1.25 * fourth;
    if (exponent > kLargestExponent)
    {
        return 0;
    }
    const double distance = (w / m_peak - 1) / (w <= m_peak ? 0.07 : 0.09);
    const double enhancement = std::pow(m_enhancement, std::exp(-distance * distance / 2));
    return m_scale * fourth / w * std::exp(-exponent) * enhancement;
}

} // namespace oe7
