// The least squares problem of the section: a real system and one radiated wave a quarter of a period apart.
#pragma once

#include <Eigen/Core>

namespace oe7
{

/// (Real + i Rows Columns^T) x = Right + i Rows Wave: the waves are of rank one, which saves three quarters
/// of the work.
struct CWaveSystem
{
    Eigen::MatrixXd Real;    ///< equations x unknowns, at least as many equations
    Eigen::VectorXd Rows;    ///< one per equation
    Eigen::VectorXd Columns; ///< one per unknown
    Eigen::MatrixXd Right;   ///< equations x right sides
    Eigen::RowVectorXd Wave; ///< one per right side
};

/// x of least squares, unknowns x right sides. Householder factors of the real part, updated by the waves
/// (Golub and Van Loan 1996, 12.5.1). Uses the system up.
Eigen::MatrixXcd LeastSquares(CWaveSystem& system);

} // namespace oe7
