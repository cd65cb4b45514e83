// The two-dimensional radiation problem of one section: y to port, z up from the calm waterline, unit normal
// into the water. Potentials psi for unit velocity in sway, heave and roll about (0,0), outgoing as exp(i(wt
// - K|y|)).
#pragma once

#include "oe7/hull/CSection.h"
#include "oe7/section/WaveIntegral.h"

#include <Eigen/Core>

#include <memory>
#include <vector>

namespace oe7
{

/// The half contour (port) cut into panels, from the keel to the waterline: centres, normals, lengths.
struct CPanels
{
    std::vector<double> Y, Z;   ///< m
    std::vector<double> N2, N3; ///< unit normal into the water
    std::vector<double> Length; ///< m

    int Count() const { return static_cast<int>(Y.size()); }
    /// The normal component of roll about (0,0).
    double N4(int panel) const;
    /// A panel that runs along `direction` (of length 1, from the keel's side on); points are y + iz.
    void Add(Complex centre, Complex direction, double length);
};

/// One row per panel; columns sway, heave, roll about (0,0) or, where said, about G.
using CPotentials = Eigen::Matrix<Complex, Eigen::Dynamic, 3>;

class CSectionSolver
{
public:
    virtual ~CSectionSolver() = default;

    const CPanels& Panels() const { return m_panels; }
    /// psi at the panel centres at a wave number K > 0 (1/m) of the encounter frequency.
    virtual CPotentials Solve(double waveNumber) const = 0;

protected:
    CPanels m_panels;
};

/// The solver of a section that isn't dry, by the method; sections that a method can't do well (plate-like
/// ones, and for mapping very thin or flat ones) get the boundary elements. Nothing for a section that has no
/// coefficients: dry, or next to no area and draft compared with the largest beam (m).
std::unique_ptr<CSectionSolver> MakeSectionSolver(const CSection& section, ESectionMethod method,
                                                  double largestBeam);

} // namespace oe7
