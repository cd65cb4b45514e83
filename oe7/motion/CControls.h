// Rudder and fins under control, and the U-tube tank (Stigter 1966, Lloyd 1989): what each adds to the
// equations.
#pragma once

#include "oe7/motion/CSurfaces.h"

#include <optional>

namespace oe7
{

/// A degree of freedom that follows the motions: its angle (rad) is Row times the motions (m, rad), and the
/// force Force times the angle acts on the ship (N, N m).
struct CFollower
{
    CComplexVector6 Force = CComplexVector6::Zero();
    CComplexRow6 Row = CComplexRow6::Zero();

    /// What it adds to the left side of the equations of motion.
    CComplexMatrix6 LeftSide() const { return -Force * Row; }
};

/// Rudder and fin or tank at one frequency, where there are any.
struct CFollowers
{
    std::optional<CFollower> Rudder;
    std::optional<CFollower> FinOrTank;
};

/// The coefficients of the tank's fluid, per slope angle tau.
struct CTankModel
{
    double Att = 0, Ctt = 0; ///< kg m2, N m
    double At4 = 0, At2 = 0, At6 = 0;
    double ZeroResistance = 0, HighResistance = 0, BreakFrequency = 0;

    double NaturalFrequency() const; ///< rad/s
    /// At the frequency w, signed, not 0. The force is that of the tank on the ship per slope angle of its
    /// fluid, positive when the port side rises.
    CFollower At(double w) const;
};
/// Throws CInputError for dimensions that make no tank.
CTankModel FindTank(const CUTubeTank& tank, const CHullCondition& hull);

/// The control system of one speed and sea direction.
class CControls
{
public:
    /// Speed in knots, sea direction in degrees, for the choice of gains.
    CControls(const CInput& input, const CHullCondition& hull, const std::vector<CSurface>& surfaces,
              double knots, double direction);

    /// At the frequency w, signed, not 0.
    CFollowers At(double w) const;
    /// Normal force of a blade of the rudder or of the fins per angle (N/rad), the sense in which it turns
    /// included; 0 for others.
    double BladeForcePerAngle(ESurface kind, const CBlade& blade) const;
    const std::optional<CTankModel>& Tank() const { return m_tank; }

private:
    CFollower RudderAt(double w) const;
    CFollower FinsAt(double w) const;

    const CInput& m_input;
    double m_density = 0;
    double m_speed = 0;                        ///< m/s
    CVector6 m_rudderForce = CVector6::Zero(); ///< per angle
    CVector6 m_finForce = CVector6::Zero();
    const CRudderGains* m_rudderGains = nullptr; ///< none: no rudder
    const CFinGains* m_finGains = nullptr;
    double m_lateralX = 0, m_lateralZ = 0; ///< m from G, of the rudder's lateral gains
    std::optional<CTankModel> m_tank;
};

} // namespace oe7
