// The potentials of all sections on a grid of encounter frequencies, solved once for the whole run, and
// between.
#pragma once

#include "oe7/hull/CHullCondition.h"
#include "oe7/section/CSectionSolver.h"
#include "oe7/section/FrequencyGrid.h"

#include <memory>

namespace oe7
{

/// Z_jk = i w a_jk + b_jk of one section per metre, roll about G (kg/(m s), kg/s, kg m/s).
struct CSectionCoefficients
{
    Complex Z22, Z24, Z33, Z44;
};

class CSectionPotentials
{
public:
    /// Solves all sections at all grid frequencies on `threads` threads; the results don't depend on their
    /// number. The hull condition must outlive this. With the heave correction, the potentials of heave below
    /// the frequency where the strips' damping exceeds that of a small body in three dimensions are
    /// corrected.
    CSectionPotentials(const CHullCondition& hull, ESectionMethod method, std::vector<double> grid,
                       bool heaveCorrection, int threads);

    const std::vector<double>& Grid() const { return m_grid; } ///< rad/s
    int StationCount() const { return static_cast<int>(m_stations.size()); }
    /// Of a station; none if it has no coefficients.
    const CPanels& Panels(int station) const { return Station(station).Panels; }

    /// Cubic Lagrange weights in ln |w| of a signed frequency, not 0.
    CGridWeights Weights(double w) const { return GridWeights(m_grid, w); }
    /// psi at a signed frequency: rows are panels, columns sway, heave, roll about G.
    void PotentialsAt(int station, double w, CPotentials& potentials) const;
    /// Coefficients at a signed frequency; roll about G.
    CSectionCoefficients CoefficientsAt(int station, double w) const;
    /// A44 at zero speed: the strips' integral of the roll added mass about G (kg m2), at a frequency > 0.
    double RollAddedMass(double w) const;

private:
    /// Int psi_k n_j dl over both sides: 22, mean of 24 and 42, 33, 44.
    using CIntegrals = Eigen::RowVector4cd;

    struct CStation
    {
        CPanels Panels;
        std::vector<CPotentials> Potentials; ///< [frequency], roll about G
        std::vector<CIntegrals> Integrals;   ///< [frequency]
    };

    const CStation& Station(int station) const { return m_stations[static_cast<std::size_t>(station)]; }
    void SolveAll(const std::vector<std::unique_ptr<CSectionSolver>>& solvers, int threads);
    void Solve(const CSectionSolver& solver, std::size_t frequency, CStation& station) const;
    void FindHeaveCorrection();
    bool IsHeaveCorrected(double w) const { return std::abs(w) < m_correctedBelow; }
    CGridWeights CorrectedWeights(double w) const;

    const CHullCondition& m_hull;
    std::vector<double> m_grid;
    std::vector<CStation> m_stations;
    double m_correctedBelow = 0; ///< rad/s, heave; 0: nowhere
    CGridWeights m_correction;   ///< there
};

} // namespace oe7
