// Wave spectra, one-sided over the frequency, m2/(rad/s).
#pragma once

#include "oe7/input/CInput.h"

#include <array>
#include <optional>
#include <vector>

namespace oe7
{

/// Bretschneider 1959: significant height (m), peak period (s), at a frequency (rad/s); 0 if one isn't
/// positive.
double Bretschneider(double height, double peakPeriod, double w);
/// Whether a value of the system isn't positive: it has no energy then.
bool IsEmpty(const COchiHubbleSystem& system);
/// Ochi and Hubble 1976: one system; 0 if it is empty.
double OchiHubble(const COchiHubbleSystem& system, double w);
/// JONSWAP (Hasselmann 1973), scaled to the significant height (m); peak period in s. An enhancement that
/// isn't positive counts as 1.
class CJonswap
{
public:
    CJonswap(double height, double peakPeriod, double peakEnhancement);
    double Density(double w) const;

private:
    double m_peak; ///< rad/s
    double m_enhancement;
    double m_scale = 0;
};

/// The seaway of a run: its energy over frequency and, for directional spectra, over the 24 compass
/// directions 0, 15, ..., 345 from which it comes.
class CSeaSpectrum
{
public:
    /// Without energy for REGULAR. `seaway` counts from 0.
    CSeaSpectrum(const CInput& input, int seaway);

    /// As reported: significant height (m) and period (s).
    double Height() const { return m_height; }
    double Period() const { return m_period; }
    /// Energy of all directions, m2/(rad/s); 0 for w <= 0.
    double Density(double w) const;
    /// The part from compass direction 15 * direction, direction = 0..23; directional spectra only.
    double DensityFrom(int direction, double w) const;
    /// Whether there is any; directional spectra only.
    bool HasEnergyFrom(int direction) const;

private:
    using CCompassShares = std::array<double, kCompassDirections>;

    double SystemDensity(std::size_t system, double w) const;
    double PointDensity(double w) const;
    void TakeSystems();
    void TakePoints(const CPointSpectrum& points);
    void TakeDirectionalPoints(const CDirectionalSpectrum& given);

    ESpectrum m_kind;
    CSeaway m_seaway;
    std::optional<CJonswap> m_jonswap;
    std::array<CCompassShares, 2> m_spreading{}; ///< of the systems of the ten parameter spectrum
    CPointSpectrum m_points;                     ///< of all directions together
    std::vector<CCompassShares> m_pointsFrom;    ///< densities of the points, m2/(rad/s)
    double m_height = 0;
    double m_period = 0;
};

} // namespace oe7
