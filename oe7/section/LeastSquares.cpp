#include "oe7/section/LeastSquares.h"

#include <Eigen/QR>

#include <complex>

namespace oe7
{
namespace
{
using Complex = std::complex<double>;
using CRows = Eigen::Matrix<Complex, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using CRealRows = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

/// Turns two rows so that (a, b), seen in them, becomes (length, 0).
template <class Rows, class Scalar>
void Turn(Rows& rows, Eigen::Index upper, Eigen::Index from, Scalar a, Scalar b)
{
    const double length = std::hypot(std::abs(a), std::abs(b));
    if (length == 0)
    {
        return;
    }
    const Scalar c = a / length;
    const Scalar s = b / length;
    const Eigen::Index count = rows.cols() - from;
    auto first = rows.row(upper).tail(count);
    auto second = rows.row(upper + 1).tail(count);
    for (Eigen::Index k = 0; k < count; ++k)
    {
        const Scalar x = first[k];
        const Scalar y = second[k];
        first[k] = Eigen::numext::conj(c) * x + Eigen::numext::conj(s) * y;
        second[k] = c * y - s * x;
    }
}

/// The triangle beside its right sides, and below it the one row that is left of the equations too many: what
/// they have along the waves' direction. Waves, as seen in these rows, are left in `waves`.
CRealRows Triangle(CWaveSystem& system, Eigen::VectorXd& waves)
{
    const Eigen::Index unknowns = system.Real.cols();
    const Eigen::Index more = system.Real.rows() - unknowns;
    const Eigen::HouseholderQR<Eigen::Ref<Eigen::MatrixXd>> factors(system.Real);
    system.Rows.applyOnTheLeft(factors.householderQ().adjoint());
    system.Right.applyOnTheLeft(factors.householderQ().adjoint());
    CRealRows rows = CRealRows::Zero(unknowns + 1, unknowns + system.Right.cols());
    rows.topLeftCorner(unknowns, unknowns).triangularView<Eigen::Upper>() = system.Real.topRows(unknowns);
    rows.topRightCorner(unknowns, system.Right.cols()) = system.Right.topRows(unknowns);
    waves.setZero(unknowns + 1);
    waves.head(unknowns) = system.Rows.head(unknowns);
    const double rest = system.Rows.tail(more).norm();
    if (rest > 0)
    {
        waves[unknowns] = rest;
        rows.bottomRightCorner(1, system.Right.cols()) =
            system.Rows.tail(more).transpose() / rest * system.Right.bottomRows(more);
    }
    return rows;
}
} // namespace

Eigen::MatrixXcd LeastSquares(CWaveSystem& system)
{
    const Eigen::Index unknowns = system.Real.cols();
    Eigen::VectorXd waves;
    CRealRows real = Triangle(system, waves);
    for (Eigen::Index k = unknowns - 1; k >= 0; --k)
    {
        Turn(real, k, k, waves[k], waves[k + 1]);
        waves[k] = std::hypot(waves[k], waves[k + 1]);
    }
    CRows rows = real.cast<Complex>();
    rows.row(0).head(unknowns) += Complex(0, waves[0]) * system.Columns.transpose();
    rows.row(0).tail(system.Wave.cols()) += Complex(0, waves[0]) * system.Wave;
    for (Eigen::Index k = 0; k < unknowns; ++k)
    {
        Turn(rows, k, k, rows(k, k), rows(k + 1, k));
    }
    const auto triangle = rows.topLeftCorner(unknowns, unknowns).triangularView<Eigen::Upper>();
    return triangle.solve(rows.topRightCorner(unknowns, system.Wave.cols()));
}

} // namespace oe7
