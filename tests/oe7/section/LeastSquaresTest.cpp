#include "oe7/section/LeastSquares.h"

#include <Eigen/QR>

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

namespace oe7
{
namespace
{
using Complex = std::complex<double>;

/// Numbers without a pattern, the same in every run.
Eigen::MatrixXd Numbers(Eigen::Index rows, Eigen::Index columns, double seed)
{
    Eigen::MatrixXd numbers(rows, columns);
    for (Eigen::Index k = 0; k < numbers.size(); ++k)
    {
        numbers(k) = std::sin(seed + 12.9898 * static_cast<double>(k * k + 1));
    }
    return numbers;
}

CWaveSystem System(Eigen::Index equations, Eigen::Index unknowns)
{
    return {Numbers(equations, unknowns, 1), Numbers(equations, 1, 2), Numbers(unknowns, 1, 3),
            Numbers(equations, 2, 4), Numbers(1, 2, 5)};
}

/// All factors complex.
Eigen::MatrixXcd Directly(const CWaveSystem& system)
{
    const Complex i(0, 1);
    const Eigen::MatrixXcd matrix = system.Real + i * system.Rows * system.Columns.transpose();
    const Eigen::MatrixXcd right = system.Right + i * system.Rows * system.Wave;
    return matrix.colPivHouseholderQr().solve(right);
}
} // namespace

TEST(LeastSquares, AreThoseOfTheComplexSystem)
{
    for (const Eigen::Index more : {0, 1, 6})
    {
        for (const Eigen::Index unknowns : {1, 2, 17})
        {
            CWaveSystem system = System(unknowns + more, unknowns);
            const Eigen::MatrixXcd expected = Directly(system);
            const Eigen::MatrixXcd found = LeastSquares(system);
            EXPECT_LT((found - expected).norm(), 1e-10 * expected.norm()) << unknowns << ", " << more;
        }
    }
}

TEST(LeastSquares, NeedNoWaves)
{
    CWaveSystem system = System(9, 5);
    system.Rows.setZero();
    const Eigen::MatrixXcd expected = Directly(system);
    EXPECT_LT((LeastSquares(system) - expected).norm(), 1e-10 * expected.norm());
}

TEST(LeastSquares, StandASingularRealPart)
{
    // The waves alone tell the last unknown.
    CWaveSystem system = System(5, 5);
    system.Real.col(4).setZero();
    const Eigen::MatrixXcd expected = Directly(system);
    EXPECT_LT((LeastSquares(system) - expected).norm(), 1e-9 * expected.norm());
}

TEST(LeastSquares, OfNothingAreNothing)
{
    CWaveSystem system = System(0, 0);
    EXPECT_EQ(LeastSquares(system).rows(), 0);
}

} // namespace oe7
