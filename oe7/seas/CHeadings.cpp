#include "oe7/seas/CHeadings.h"

#include "oe7/seas/CircleCells.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace oe7
{
namespace
{
/// Courses 0 to 180: rows of a position's table as the listing's readers count them.
constexpr int kHalfCircle = kCompassDirections / 2 + 1;

std::vector<double> CompassDirections(int count)
{
    std::vector<double> directions(static_cast<std::size_t>(count));
    for (std::size_t n = 0; n < directions.size(); ++n)
    {
        directions[n] = kCompassStep * static_cast<double>(n);
    }
    return directions;
}

/// Weights of all directions for a sea around one of them, sum 1: cos^2 within the spreading angle (degrees).
std::vector<double> SpreadShares(const std::vector<double>& directions, std::size_t around, double spreading)
{
    std::vector<double> shares = CircleCells(directions);
    for (std::size_t n = 0; n < shares.size(); ++n)
    {
        const double distance = std::abs(FoldedAngle(directions[n] - directions[around]));
        const double cosine = std::cos(std::numbers::pi / 2 * distance / spreading);
        shares[n] *= distance < spreading ? cosine * cosine : 0;
    }
    const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
    if (!(sum > 0))
    {
        // The same direction given several times has no cell of its own.
        std::fill(shares.begin(), shares.end(), 0.0);
        shares[around] = 1;
        return shares;
    }
    for (double& share : shares)
    {
        share /= sum;
    }
    return shares;
}

std::vector<double> OnlyShare(std::size_t count, std::size_t one)
{
    std::vector<double> shares(count);
    shares[one] = 1;
    return shares;
}

/// Compass direction from which waves of a component meet a ship on a course, both counted in steps.
int CompassDirection(int course, int component)
{
    return (course + kCompassDirections / 2 - component + kCompassDirections) % kCompassDirections;
}
} // namespace

CHeadings FindHeadings(const CInput& input, CRunLog& log)
{
    CHeadings headings;
    headings.Directional = input.IsDirectional();
    if (!headings.Directional)
    {
        headings.Reported = input.Directions;
        headings.Components = input.Directions;
        return headings;
    }
    const bool positions = !input.Positions.empty();
    const bool loads = !input.LoadStations.empty();
    headings.Components = CompassDirections(kCompassDirections);
    headings.Reported = CompassDirections(positions && !loads ? kHalfCircle : kCompassDirections);
    if (positions && loads)
    {
        log.Warn("Directional spectrum with positions and load stations: 24 ship courses are listed for "
                 "every position, "
                 "where programs that read the listing count 13.");
    }
    return headings;
}

CFrequencies::CFrequencies(const CInput& input) : Parts(RefinedParts(input.FrequencyStep))
{
    for (int n = 0; n < input.FrequencyCount; ++n)
    {
        Output.push_back(input.LowestFrequency + n * input.FrequencyStep);
        Refined.push_back(Output.back());
        for (int part = 1; part < Parts && n + 1 < input.FrequencyCount; ++part)
        {
            Refined.push_back(Output.back() + input.FrequencyStep * part / Parts);
        }
    }
}

double CFrequencies::Weight(int refined) const
{
    const auto here = static_cast<std::size_t>(refined);
    const std::size_t next = std::min(here + 1, Refined.size() - 1);
    const std::size_t last = here == 0 ? 0 : here - 1;
    return (Refined[next] - Refined[last]) / 2;
}

CSeaState::CSeaState(const CInput& input, const CHeadings& headings, int seaway)
    : m_spectrum(input, seaway),
      m_directional(headings.Directional),
      m_frequencies(CFrequencies(input).Refined)
{
    for (int direction = 0; direction < (m_directional ? kCompassDirections : 1); ++direction)
    {
        std::vector<double>& densities = m_densities.emplace_back();
        for (const double w : m_frequencies)
        {
            densities.push_back(m_directional ? m_spectrum.DensityFrom(direction, w) : m_spectrum.Density(w));
        }
    }
    const std::size_t count = m_directional ? 0 : headings.Components.size();
    const bool shortCrested = input.SpreadingAngle > 0 && count > 1;
    for (std::size_t n = 0; n < count; ++n)
    {
        m_shares.push_back(shortCrested ? SpreadShares(headings.Components, n, input.SpreadingAngle)
                                        : OnlyShare(count, n));
    }
}

double CSeaState::SpectrumDensity(int direction, double w) const
{
    const auto at = std::lower_bound(m_frequencies.begin(), m_frequencies.end(), w);
    if (at != m_frequencies.end() && *at == w)
    {
        return m_densities[static_cast<std::size_t>(direction)]
                          [static_cast<std::size_t>(at - m_frequencies.begin())];
    }
    return m_directional ? m_spectrum.DensityFrom(direction, w) : m_spectrum.Density(w);
}

bool CSeaState::Contributes(int heading, int component) const
{
    if (m_directional)
    {
        return m_spectrum.HasEnergyFrom(CompassDirection(heading, component));
    }
    return m_shares[static_cast<std::size_t>(heading)][static_cast<std::size_t>(component)] > 0;
}

double CSeaState::Density(int heading, int component, double w) const
{
    if (m_directional)
    {
        return SpectrumDensity(CompassDirection(heading, component), w);
    }
    const double share = m_shares[static_cast<std::size_t>(heading)][static_cast<std::size_t>(component)];
    return share > 0 ? share * SpectrumDensity(0, w) : 0;
}

} // namespace oe7
