// Sections as Lewis forms, with a source or dipole at the origin and wave-free poles (Ursell 1949, Tasai
// 1959).
#pragma once

#include "oe7/hull/Lewis.h"
#include "oe7/section/CSectionSolver.h"

namespace oe7
{

class CConformalMapping : public CSectionSolver
{
public:
    explicit CConformalMapping(const CLewisForm& form);

    CPotentials Solve(double waveNumber) const override;

private:
    /// Poles of heave or of sway and roll at the points: the part that is always there and the one that grows
    /// with K. A constant may follow, whose potential is nothing.
    struct CPoles
    {
        Eigen::MatrixXcd Own, PerWaveNumber; ///< points x poles
        Eigen::MatrixXd Stream;              ///< points x modes, what the stream function has to be
    };

    void AddPole(CPoles& poles, Eigen::Index column, int power) const;
    /// psi from the source's or dipole's complex potentials in space, apart in the two parts of time.
    static Eigen::MatrixXcd Potentials(const CPoles& poles, double waveNumber, const Eigen::VectorXcd& real,
                                       const Eigen::VectorXcd& imaginary);

    CLewisForm m_form;
    std::vector<Complex> m_circle; ///< the points' images on the unit circle
    CPoles m_even;
    CPoles m_odd;
};

} // namespace oe7
