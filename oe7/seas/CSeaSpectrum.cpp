#include "oe7/seas/CSpectrum.h"

#include "oe7/seas/CircleCells.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kTwoPi = 2 * std::numbers::pi;
constexpr double kRadians = std::numbers::pi / 180;
/// Peak period to energy period of the Bretschneider spectrum: its moments are gamma functions.
constexpr double kEnergyPerPeakPeriod = 0.8572;

/// (4 lambda + 1)/4 w_p^4
double ScaleOf(const COchiHubbleSystem& system)
{
    return (4 * system.Lambda + 1) / 4 * std::pow(system.PeakFrequency, 4);
}

/// Energy period of both systems together, s; their moments are gamma functions.
double EnergyPeriod(const std::array<COchiHubbleSystem, 2>& systems)
{
    double energy = 0;
    double inverseMoment = 0;
    for (const COchiHubbleSystem& system : systems)
    {
        if (!IsEmpty(system))
        {
            const double square = system.Height * system.Height;
            const double ratio = std::exp(std::lgamma(system.Lambda + 0.25) - std::lgamma(system.Lambda));
            energy += square;
            inverseMoment += square * ratio * std::pow(ScaleOf(system), -0.25);
        }
    }
    return energy > 0 ? kTwoPi * inverseMoment / energy : 0;
}

/// cos^2p of half the angle to the system's direction, sum 1.
std::array<double, kCompassDirections> Spreading(const COchiHubbleSystem& system)
{
    std::array<double, kCompassDirections> cosines{};
    for (std::size_t n = 0; n < cosines.size(); ++n)
    {
        const double angle = kCompassStep * static_cast<double>(n) - system.Direction;
        cosines[n] = std::abs(std::cos(angle / 2 * kRadians));
    }
    const double largest = *std::max_element(cosines.begin(), cosines.end());
    const double power = 2 * std::max(system.SpreadingPower, 0.0);
    std::array<double, kCompassDirections> shares{};
    double sum = 0;
    for (std::size_t n = 0; n < shares.size(); ++n)
    {
        // Measured by the largest, so that a high power leaves at least that one.
        shares[n] = std::pow(cosines[n] / largest, power);
        sum += shares[n];
    }
    for (double& share : shares)
    {
        share /= sum;
    }
    return shares;
}

/// Where a frequency lies among sorted ones: between Upper - 1 and Upper, or nowhere.
struct CPlace
{
    bool Inside = false;
    std::size_t Lower = 0, Upper = 0;
    double Fraction = 0; ///< of Upper
};

CPlace Place(const std::vector<double>& frequencies, double w)
{
    const auto at = std::lower_bound(frequencies.begin(), frequencies.end(), w);
    if (at == frequencies.end() || (at == frequencies.begin() && w < *at))
    {
        return {};
    }
    const auto upper = static_cast<std::size_t>(at - frequencies.begin());
    if (upper == 0)
    {
        return {true, 0, 0, 0};
    }
    const double below = frequencies[upper - 1];
    return {true, upper - 1, upper, (w - below) / (*at - below)};
}

double Between(const CPlace& place, double lower, double upper)
{
    return lower + place.Fraction * (upper - lower);
}

/// Int values df by trapeziums between the points.
double Trapeziums(const std::vector<double>& frequencies, const std::vector<double>& values)
{
    double sum = 0;
    for (std::size_t n = 1; n < frequencies.size(); ++n)
    {
        sum += (values[n - 1] + values[n]) / 2 * (frequencies[n] - frequencies[n - 1]);
    }
    return sum;
}
} // namespace

CSeaSpectrum::CSeaSpectrum(const CInput& input, int seaway) : m_kind(input.Spectrum)
{
    if (seaway >= 0 && static_cast<std::size_t>(seaway) < input.Seaways.size())
    {
        m_seaway = input.Seaways[static_cast<std::size_t>(seaway)];
    }
    m_height = m_seaway.Height;
    m_period = m_seaway.Period;
    if (m_kind == ESpectrum::Jonswap)
    {
        m_jonswap.emplace(m_seaway.Height, m_seaway.Period, m_seaway.PeakEnhancement);
    }
    else if (m_kind == ESpectrum::OchiHubble || m_kind == ESpectrum::TenParameter)
    {
        TakeSystems();
    }
    else if (m_kind == ESpectrum::Points)
    {
        TakePoints(input.Points);
    }
    else if (m_kind == ESpectrum::Hindcast || m_kind == ESpectrum::Directional)
    {
        TakeDirectionalPoints(input.DirectionalPoints);
    }
}

void CSeaSpectrum::TakeSystems()
{
    double square = 0;
    for (std::size_t n = 0; n < m_seaway.Systems.size(); ++n)
    {
        const COchiHubbleSystem& system = m_seaway.Systems[n];
        if (!IsEmpty(system))
        {
            square += system.Height * system.Height;
            m_spreading[n] = Spreading(system);
        }
    }
    m_height = std::sqrt(square);
    m_period = EnergyPeriod(m_seaway.Systems);
}

void CSeaSpectrum::TakePoints(const CPointSpectrum& points)
{
    m_points = points;
    std::vector<double> inverse(m_points.Frequencies.size());
    for (std::size_t n = 0; n < inverse.size(); ++n)
    {
        const double w = m_points.Frequencies[n];
        inverse[n] = w > 0 ? m_points.Densities[n] / w : 0;
    }
    const double energy = Trapeziums(m_points.Frequencies, m_points.Densities);
    m_height = energy > 0 ? 4 * std::sqrt(energy) : 0;
    m_period = energy > 0 ? kTwoPi * Trapeziums(m_points.Frequencies, inverse) / energy : 0;
}

void CSeaSpectrum::TakeDirectionalPoints(const CDirectionalSpectrum& given)
{
    CPointSpectrum total;
    total.Frequencies = given.Frequencies;
    total.Densities.assign(given.Frequencies.size(), 0);
    m_pointsFrom.assign(given.Frequencies.size(), CCompassShares{});
    const std::vector<double> cells = CircleCells(given.Directions);
    for (std::size_t n = 0; n < given.Directions.size(); ++n)
    {
        // Shared between the two nearest of the 24 directions.
        const double place = (FoldedAngle(given.Directions[n]) + 360) / kCompassStep;
        const double fraction = place - std::floor(place);
        const auto below = static_cast<std::size_t>(place) % kCompassDirections;
        const std::size_t above = (below + 1) % kCompassDirections;
        for (std::size_t f = 0; f < m_pointsFrom.size(); ++f)
        {
            const double density = given.Densities[f][n] * cells[n] * kRadians;
            m_pointsFrom[f][below] += (1 - fraction) * density;
            m_pointsFrom[f][above] += fraction * density;
            total.Densities[f] += density;
        }
    }
    TakePoints(total);
}

double CSeaSpectrum::SystemDensity(std::size_t system, double w) const
{
    return OchiHubble(m_seaway.Systems[system], w);
}

double CSeaSpectrum::PointDensity(double w) const
{
    const CPlace place = Place(m_points.Frequencies, w);
    return place.Inside ? Between(place, m_points.Densities[place.Lower], m_points.Densities[place.Upper])
                        : 0;
}

double CSeaSpectrum::Density(double w) const
{
    if (!(w > 0))
    {
        return 0;
    }
    switch (m_kind)
    {
    case ESpectrum::Quadratic:
        // The tables behind it aren't public; its period is taken as the energy period.
        return Bretschneider(m_height, m_period / kEnergyPerPeakPeriod, w);
    case ESpectrum::Bretschneider:
        return Bretschneider(m_height, m_period, w);
    case ESpectrum::Jonswap:
        return m_jonswap->Density(w);
    case ESpectrum::OchiHubble:
    case ESpectrum::TenParameter:
        return SystemDensity(0, w) + SystemDensity(1, w);
    case ESpectrum::Points:
    case ESpectrum::Hindcast:
    case ESpectrum::Directional:
        return PointDensity(w);
    case ESpectrum::Regular:
        break;
    }
    return 0;
}

double CSeaSpectrum::DensityFrom(int direction, double w) const
{
    const auto from = static_cast<std::size_t>(direction);
    if (!(w > 0))
    {
        return 0;
    }
    if (m_kind == ESpectrum::TenParameter)
    {
        return m_spreading[0][from] * SystemDensity(0, w) + m_spreading[1][from] * SystemDensity(1, w);
    }
    const CPlace place = Place(m_points.Frequencies, w);
    if (m_pointsFrom.empty() || !place.Inside)
    {
        return 0;
    }
    return Between(place, m_pointsFrom[place.Lower][from], m_pointsFrom[place.Upper][from]);
}

bool CSeaSpectrum::HasEnergyFrom(int direction) const
{
    const auto from = static_cast<std::size_t>(direction);
    if (m_kind == ESpectrum::TenParameter)
    {
        return m_spreading[0][from] > 0 || m_spreading[1][from] > 0;
    }
    return std::any_of(m_pointsFrom.begin(), m_pointsFrom.end(),
                       [from](const CCompassShares& shares) { return shares[from] != 0; });
}

} // namespace oe7
