#include "oe7/motion/CMotions.h"

#include <limits>

#include <Eigen/LU>
#include <gtest/gtest.h>

using namespace oe7;

namespace
{
constexpr Complex kI(0, 1);
constexpr double kFrequency = 0.8; ///< rad/s

/// A ship of numbers of an ordinary size.
CHullCondition Hull()
{
    CHullCondition hull{CLengthRule(11, 120), {}};
    hull.Mass = 4e6;
    hull.C33 = 1.3e7;
    hull.C35 = 6e7;
    hull.C44 = 4e7;
    hull.C55 = 1e10;
    return hull;
}

CInertia Inertia()
{
    return {1e8, 3.6e9, 0.6};
}

/// Full of couplings, also of those between the motions in the plane of symmetry and across it.
CEquations Equations()
{
    CEquations equations;
    equations.Frequency = kFrequency;
    for (int i = 0; i < 6; ++i)
    {
        for (int j = 0; j < 6; ++j)
        {
            const double arms = (i > 2 ? 20.0 : 1.0) * (j > 2 ? 20.0 : 1.0);
            equations.Hull(i, j) = arms * Complex(-2e5 * (1 + (i + 2 * j) % 3), 3e5 * (1 + (2 * i + j) % 4));
            equations.Surfaces.AddedMass(i, j) = arms * 1e3 * (1 + (i + j) % 2);
            equations.Surfaces.Damping(i, j) = arms * 2e3 * (1 + (i + j) % 3);
            equations.Surfaces.Stiffness(i, j) = j > 3 ? arms * 1e3 * i : 0;
        }
        equations.Force(i) = (i > 2 ? 30.0 : 1.0) * Complex(1e6 * (i + 1), 2e6 - 3e5 * i);
    }
    equations.SurgeAddedMass = 1e5;
    equations.SurgeDamping = 4e4;
    return equations;
}

CFollower Follower(double size)
{
    CFollower follower;
    follower.Force << 0, size, 0, -3 * size, 0, -40 * size;
    follower.Row << 0, Complex(0.01, 0.02), 0, Complex(-0.3, -0.9), 0, Complex(0.5, 0.2);
    return follower;
}

/// The three equations of the given modes, written out and solved at once.
Eigen::Vector3cd Solved(const CEquations& e, const std::array<int, 3>& modes, double rollDamping)
{
    const CHullCondition hull = Hull();
    const CInertia inertia = Inertia();
    CMatrix6 mass = CMatrix6::Zero();
    mass.diagonal() << hull.Mass + e.SurgeAddedMass, hull.Mass, hull.Mass, inertia.I44, inertia.I55,
        inertia.I55;
    CMatrix6 stiffness = CMatrix6::Zero();
    stiffness(2, 2) = hull.C33;
    stiffness(2, 4) = stiffness(4, 2) = hull.C35;
    stiffness(3, 3) = hull.C44;
    stiffness(4, 4) = hull.C55;
    CMatrix6 damping = CMatrix6::Zero();
    damping(0, 0) = e.SurgeDamping;
    damping(3, 3) = rollDamping;
    const double w = e.Frequency;
    CComplexMatrix6 left =
        (-w * w * (mass + e.Surfaces.AddedMass) + stiffness + e.Surfaces.Stiffness).cast<Complex>();
    left += kI * w * (damping + e.Surfaces.Damping).cast<Complex>() + e.Hull;
    if (e.Followers.Rudder)
    {
        left -= e.Followers.Rudder->Force * e.Followers.Rudder->Row;
    }
    if (e.Followers.FinOrTank)
    {
        left -= e.Followers.FinOrTank->Force * e.Followers.FinOrTank->Row;
    }
    const Eigen::Matrix3cd matrix = left(modes, modes);
    const Eigen::Vector3cd right = e.Force(modes);
    return matrix.fullPivLu().solve(right);
}

void ExpectSolved(const CEquations& equations, double rollDamping)
{
    const CMotionVector motions = CMotions(Hull(), Inertia(), equations).At(rollDamping);
    for (const std::array<int, 3>& modes : {std::array{0, 2, 4}, std::array{1, 3, 5}})
    {
        const Eigen::Vector3cd expected = Solved(equations, modes, rollDamping);
        for (int i = 0; i < 3; ++i)
        {
            const Complex motion = motions[static_cast<std::size_t>(modes[static_cast<std::size_t>(i)])];
            EXPECT_NEAR(std::abs(motion - expected(i)), 0, 1e-9 * std::abs(expected(i))) << rollDamping;
        }
    }
}

/// Roll alone, by a moment of 1 N m, at its natural frequency.
CEquations RollAtResonance()
{
    CEquations equations;
    equations.Frequency = std::sqrt(Hull().C44 / Inertia().I44);
    equations.Force(3) = 1;
    return equations;
}

TEST(EquationsOfMotion, AreSolvedForAnyRollDamping)
{
    for (const double damping : {0.0, 1e5, 6.7e6, 1e9})
    {
        ExpectSolved(Equations(), damping);
    }
}

TEST(EquationsOfMotion, HoldRudderAndFins)
{
    CEquations equations = Equations();
    equations.Followers.Rudder = Follower(3e5);
    equations.Followers.FinOrTank = Follower(8e5);
    ExpectSolved(equations, 2e6);
    const CMotionVector motions = CMotions(Hull(), Inertia(), equations).At(2e6);
    const Complex angle =
        Complex(0.01, 0.02) * motions[1] - Complex(0.3, 0.9) * motions[3] + Complex(0.5, 0.2) * motions[5];
    EXPECT_NEAR(std::abs(motions[6] - angle), 0, 1e-12 * std::abs(angle));
    EXPECT_NEAR(std::abs(motions[7] - angle), 0, 1e-12 * std::abs(angle));
    EXPECT_GT(std::abs(angle), 0);
}

TEST(EquationsOfMotion, GiveNoAngleToWhatIsNotThere)
{
    const CMotionVector motions = CMotions(Hull(), Inertia(), Equations()).At(2e6);
    EXPECT_EQ(motions[6], Complex(0));
    EXPECT_EQ(motions[7], Complex(0));
}

TEST(EquationsOfMotion, TellRollAlone)
{
    const CMotions motions(Hull(), Inertia(), Equations());
    EXPECT_EQ(motions.Roll(3e6), motions.At(3e6)[3]);
}

TEST(EquationsOfMotion, AreSolvedCloseToASingularMatrix)
{
    // Without damping the matrix is singular but for rounding; damped a little or much, roll is M/(wB), a
    // quarter period late.
    const CEquations equations = RollAtResonance();
    const CMotions motions(Hull(), Inertia(), equations);
    for (const double damping : {1.0, 1e4, 1e8})
    {
        const Complex expected = -kI / (equations.Frequency * damping);
        EXPECT_NEAR(std::abs(motions.Roll(damping) - expected), 0, 1e-6 * std::abs(expected));
    }
}

TEST(EquationsOfMotion, AreSolvedWhereDampingCancelsNegativeDamping)
{
    CEquations equations = Equations();
    // Roll that is driven by as much as five percent of the critical damping, and couplings besides.
    const double critical = 2 * Hull().C44 / Inertia().RollFrequency;
    equations.Hull(3, 3) -= kI * kFrequency * 0.05 * critical;
    ExpectSolved(equations, 0);
    ExpectSolved(equations, 0.05 * critical);
    ExpectSolved(equations, 0.2 * critical);
}

TEST(EquationsOfMotion, GiveRestWhereThereIsNoFiniteSolution)
{
    CEquations equations = RollAtResonance();
    CHullCondition hull = Hull();
    hull.Mass = 0;
    hull.C33 = 0;
    hull.C35 = 0;
    const CMotionVector massless = CMotions(hull, Inertia(), equations).At(0);
    equations.Hull(1, 3) = std::numeric_limits<double>::quiet_NaN();
    equations.Hull(2, 2) = std::numeric_limits<double>::infinity();
    equations.Followers.FinOrTank = Follower(1);
    const CMotionVector undefined = CMotions(Hull(), Inertia(), equations).At(1e6);
    for (std::size_t mode = 0; mode < kModes; ++mode)
    {
        EXPECT_EQ(massless[mode], Complex(0));
        EXPECT_EQ(undefined[mode], Complex(0));
    }
}

TEST(EquationsOfMotion, KeepTheShipAtRestAcrossWithoutALateralForce)
{
    CEquations equations = Equations();
    equations.Followers.Rudder = Follower(3e5);
    for (const int across : {1, 3, 5})
    {
        equations.Force(across) = -0.0;
    }
    const CMotionVector motions = CMotions(Hull(), Inertia(), equations).At(1e6);
    for (const std::size_t across : {1U, 3U, 5U, 6U})
    {
        EXPECT_EQ(motions[across], Complex(0));
        EXPECT_FALSE(std::signbit(motions[across].real()));
        EXPECT_FALSE(std::signbit(motions[across].imag()));
    }
    EXPECT_GT(std::abs(motions[2]), 0);
}
} // namespace
