// The equations of motion at one frequency of encounter: surge, heave and pitch together, sway, roll and yaw
// together.
#pragma once

#include "oe7/motion/CControls.h"
#include "oe7/motion/CInertia.h"
#include "oe7/motion/StripTheory.h"

#include <array>

namespace oe7
{

/// Complex amplitudes of surge, sway, heave (m), roll, pitch, yaw, rudder, fin or tank (rad).
constexpr int kModes = 8;
using CMotionVector = std::array<Complex, kModes>;

/// All that the equations take besides the roll damping, which depends on the motion.
struct CEquations
{
    double Frequency = 0;                            ///< w, rad/s, signed, bounded
    CComplexMatrix6 Hull = CComplexMatrix6::Zero();  ///< -R of the strips
    CComplexVector6 Force = CComplexVector6::Zero(); ///< per unit wave amplitude, surfaces included
    double SurgeAddedMass = 0;                       ///< kg
    double SurgeDamping = 0;                         ///< kg/s
    CSurfaceForces Surfaces;
    CFollowers Followers;
};

/// The solution for one wave. Roll damping may be chosen afterwards: it enters one element of the matrix
/// only, so that sway and yaw are eliminated once and what remains is an equation of roll alone. Where the
/// equations have no finite solution the motions are 0.
class CMotions
{
public:
    CMotions() = default;
    CMotions(const CHullCondition& hull, const CInertia& inertia, const CEquations& equations);

    /// Per unit wave amplitude, with a roll damping (N m s) besides that of waves and surfaces.
    CMotionVector At(double rollDamping) const;
    /// Roll alone, rad/m.
    Complex Roll(double rollDamping) const;

private:
    using CVector2 = Eigen::Matrix<Complex, 2, 1>;

    void SolveVertical(const CComplexMatrix6& left, const CComplexVector6& force);
    void EliminateSwayAndYaw(const CComplexMatrix6& left, const CComplexVector6& force);

    double m_frequency = 0;
    std::array<Complex, 3> m_vertical{};          ///< surge, heave, pitch
    CVector2 m_fixed = CVector2::Zero();          ///< sway and yaw of the ship kept from rolling
    CVector2 m_perRoll = CVector2::Zero();        ///< sway and yaw per roll angle
    Complex m_rollMoment = 0;                     ///< N m, of the wave, sway and yaw eliminated
    Complex m_rollElement = 1;                    ///< N m, likewise
    CComplexRow6 m_rudder = CComplexRow6::Zero(); ///< angle per motion
    CComplexRow6 m_finOrTank = CComplexRow6::Zero();
};

} // namespace oe7
