// Sections by boundary elements: Green's identity for the potential, constant on straight panels (Frank 1967,
// in the direct form), with points inside the section against irregular frequencies.
#pragma once

#include "oe7/section/CSectionSolver.h"
#include "oe7/section/LeastSquares.h"
#include "oe7/section/PanelIntegrals.h"

namespace oe7
{

class CBoundaryElements : public CSectionSolver
{
public:
    /// Panels that are the segments between consecutive points of a half contour, port side from the keel up.
    /// `draft` (m) and `beam` (m, at the waterline, 0: fully submerged) place the points inside.
    CBoundaryElements(const std::vector<CPoint>& points, double beam, double draft);

    CPotentials Solve(double waveNumber) const override;

private:
    /// A panel and its mirror image to starboard are moved alike (heave) or against each other (sway, roll).
    struct CSymmetry
    {
        double Sign = 1;
        Eigen::MatrixXd Normals;  ///< panels x modes
        Eigen::MatrixXd Doublets; ///< equations x panels, of the logarithms and the point's own panel
        Eigen::MatrixXd Sources;  ///< equations x modes, of the logarithms
    };
    struct CWaves;

    void AddPanels(const std::vector<CPoint>& points);
    void AddInsidePoints(const std::vector<CPoint>& points, double beam, double draft);
    void FindLogarithms();
    void FillLogarithms(CSymmetry& symmetry) const;
    CWaveSystem StartedSystem(const CSymmetry& symmetry, const CWaves& waves) const;
    Eigen::Index EquationCount() const { return static_cast<Eigen::Index>(m_fields.size()); }
    Eigen::Index PanelCount() const { return static_cast<Eigen::Index>(m_lines.size()); }

    std::vector<CPanelLine> m_lines;
    std::vector<Complex> m_ends;   ///< of the panels, one more than those
    std::vector<Complex> m_fields; ///< panel centres, then points inside
    /// ln(-u) at K = 1: ends x equations, then the same of the mirrored points.
    Eigen::MatrixXcd m_logarithms;
    CSymmetry m_even;
    CSymmetry m_odd;
};

/// A contour whose segments are divided so that no panel is much longer than `longest` (m); its points stay.
std::vector<CPoint> DividedContour(const std::vector<CPoint>& contour, double longest);

} // namespace oe7
