#include "oe7/motion/CMotions.h"

#include <Eigen/LU>

#include <cmath>

namespace oe7
{

namespace
{
using CMatrix2 = Eigen::Matrix<Complex, 2, 2>;
using CMatrix3 = Eigen::Matrix<Complex, 3, 3>;
using CVector3 = Eigen::Matrix<Complex, 3, 1>;

constexpr int kRoll = 3;
constexpr std::array kVertical{0, 2, 4};
constexpr std::array kSwayAndYaw{1, 5};

bool IsFinite(Complex value)
{
    return std::isfinite(value.real()) && std::isfinite(value.imag());
}

/// 0 for what isn't finite; no negative zeros, which would have a phase.
Complex Cleaned(Complex value)
{
    return IsFinite(value) ? Complex(value.real() + 0.0, value.imag() + 0.0) : 0;
}

Complex Angle(const CComplexRow6& row, const CMotionVector& motions)
{
    return row * Eigen::Map<const CComplexVector6>(motions.data());
}

/// The left side of all six equations, without roll damping besides that of waves and surfaces.
CComplexMatrix6 LeftSide(const CHullCondition& hull, const CInertia& inertia, const CEquations& equations)
{
    const double w = equations.Frequency;
    CMatrix6 mass = equations.Surfaces.AddedMass;
    mass.diagonal() += CVector6{
        {hull.Mass + equations.SurgeAddedMass, hull.Mass, hull.Mass, inertia.I44, inertia.I55, inertia.I55}};
    CMatrix6 damping = equations.Surfaces.Damping;
    damping(0, 0) += equations.SurgeDamping;
    CMatrix6 stiffness = equations.Surfaces.Stiffness;
    stiffness(2, 2) += hull.C33;
    stiffness(2, 4) += hull.C35;
    stiffness(4, 2) += hull.C35;
    stiffness(3, 3) += hull.C44;
    stiffness(4, 4) += hull.C55;

    CComplexMatrix6 left = equations.Hull;
    left.real() += stiffness - w * w * mass;
    left.imag() += w * damping;
    for (const auto* follower : {&equations.Followers.Rudder, &equations.Followers.FinOrTank})
    {
        if (*follower)
        {
            left += (*follower)->LeftSide();
        }
    }
    return left;
}

} // namespace

CMotions::CMotions(const CHullCondition& hull, const CInertia& inertia, const CEquations& equations)
    : m_frequency(equations.Frequency)
{
    const CComplexMatrix6 left = LeftSide(hull, inertia, equations);
    SolveVertical(left, equations.Force);
    EliminateSwayAndYaw(left, equations.Force);
    if (equations.Followers.Rudder)
    {
        m_rudder = equations.Followers.Rudder->Row;
    }
    if (equations.Followers.FinOrTank)
    {
        m_finOrTank = equations.Followers.FinOrTank->Row;
    }
}

CMotionVector CMotions::At(double rollDamping) const
{
    const Complex roll = Roll(rollDamping);
    const CVector2 lateral = m_fixed + m_perRoll * roll;
    CMotionVector motions{m_vertical[0], lateral(0), m_vertical[1], roll, m_vertical[2], lateral(1), 0, 0};
    motions[6] = Angle(m_rudder, motions);
    motions[7] = Angle(m_finOrTank, motions);
    for (Complex& motion : motions)
    {
        motion = Cleaned(motion);
    }
    return motions;
}

Complex CMotions::Roll(double rollDamping) const
{
    return Cleaned(m_rollMoment / (m_rollElement + Complex(0, m_frequency * rollDamping)));
}

void CMotions::SolveVertical(const CComplexMatrix6& left, const CComplexVector6& force)
{
    const CMatrix3 matrix = left(kVertical, kVertical);
    const CVector3 solution = matrix.partialPivLu().solve(CVector3(force(kVertical)));
    if (solution.allFinite())
    {
        m_vertical = {solution(0), solution(1), solution(2)};
    }
}

void CMotions::EliminateSwayAndYaw(const CComplexMatrix6& left, const CComplexVector6& force)
{
    const CMatrix2 matrix = left(kSwayAndYaw, kSwayAndYaw);
    const auto solver = matrix.partialPivLu();
    const CVector2 fixed = solver.solve(CVector2(force(kSwayAndYaw)));
    const CVector2 perRoll = -solver.solve(CVector2(left(kSwayAndYaw, kRoll)));
    if (!fixed.allFinite() || !perRoll.allFinite())
    {
        return;
    }
    const Eigen::Matrix<Complex, 1, 2> coupling = left(kRoll, kSwayAndYaw);
    m_fixed = fixed;
    m_perRoll = perRoll;
    m_rollMoment = force(kRoll) - Complex(coupling * fixed);
    m_rollElement = left(kRoll, kRoll) + Complex(coupling * perRoll);
}

} // namespace oe7
