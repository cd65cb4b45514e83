// The headings of a run and the wave directions behind each of them.
#pragma once

#include "oe7/input/CRunLog.h"
#include "oe7/seas/CSpectrum.h"

namespace oe7
{

/// Reported headings, and the sea directions for which transfer functions are made. Index i of the transfer
/// functions in the files is component i.
struct CHeadings
{
    std::vector<double> Reported;   ///< degrees: sea directions, or with a directional spectrum ship courses
    std::vector<double> Components; ///< degrees, sea directions (180 head seas)
    bool Directional = false;

    int Count() const { return static_cast<int>(Reported.size()); }
    int ComponentCount() const { return static_cast<int>(Components.size()); }
};

/// Warns when a directional spectrum stands with positions and load stations.
CHeadings FindHeadings(const CInput& input, CRunLog& log);

/// The wave frequencies of a run: those of the output, and the refined ones, at most 0.025 rad/s apart, on
/// which everything is computed.
struct CFrequencies
{
    std::vector<double> Output;  ///< rad/s
    std::vector<double> Refined; ///< rad/s; output i is refined i * Parts
    int Parts = 1;

    explicit CFrequencies(const CInput& input);
    /// Trapezium weight of a refined frequency, rad/s; 0 for all if there is only one.
    double Weight(int refined) const;
};

/// How the energy of one seaway is shared among the component directions of each reported heading.
class CSeaState
{
public:
    CSeaState(const CInput& input, const CHeadings& headings, int seaway);

    const CSeaSpectrum& Spectrum() const { return m_spectrum; }
    /// Whether component j takes part at reported heading i.
    bool Contributes(int heading, int component) const;
    /// E_ij(w), m2/(rad/s).
    double Density(int heading, int component, double w) const;

private:
    double SpectrumDensity(int direction, double w) const;

    CSeaSpectrum m_spectrum;
    bool m_directional = false;
    std::vector<double> m_frequencies;            ///< rad/s, the refined ones: asked for again and again
    std::vector<std::vector<double>> m_densities; ///< [compass direction, or all in one][refined frequency]
    std::vector<std::vector<double>> m_shares;    ///< [heading][component], spectra of one direction
};

} // namespace oe7
