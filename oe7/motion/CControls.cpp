#include "oe7/motion/CControls.h"

#include <cmath>

namespace oe7
{

namespace
{
constexpr Complex kI(0, 1);

double Sign(double value)
{
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

/// What gains make of a motion's amplitude at the frequency w.
Complex Law(const CGains& gains, double w)
{
    return {gains.Motion - w * w * gains.Acceleration, w * gains.Velocity};
}

Complex Servo(const CServo& servo, double w)
{
    const double own = servo.Frequency;
    if (own <= 0)
    {
        return 1;
    }
    return own * own / (own * own - w * w + 2.0 * kI * servo.Damping * own * w);
}

Complex LowPass(double cut, double w)
{
    return cut > 0 ? 1.0 / (1.0 + kI * w / cut) : 1;
}

Complex HighPass(double cut, double w)
{
    return cut > 0 ? (kI * w / cut) / (1.0 + kI * w / cut) : 1;
}
} // namespace

CControls::CControls(const CInput& input, const CHullCondition& hull, const std::vector<CSurface>& surfaces,
                     double knots, double direction)
    : m_input(input),
      m_density(hull.Density),
      m_speed(knots * kKnot)
{
    const double heading = std::abs(std::remainder(direction, 360.0));
    if (input.Rudder)
    {
        m_rudderGains = &input.Rudder->Gains.At(knots, heading);
        if (!input.Rudder->GainsAtG)
        {
            m_lateralX = hull.X(input.Rudder->LateralStation);
            m_lateralZ = hull.Z(input.Rudder->LateralHeight);
        }
    }
    if (input.Fins && !input.Fins->Pairs.empty())
    {
        m_finGains = &input.Fins->Gains.At(knots, heading);
    }
    else if (input.Tank)
    {
        m_tank = FindTank(*input.Tank, hull);
    }
    for (const CSurface& surface : surfaces)
    {
        CVector6& force = surface.Kind == ESurface::Fins ? m_finForce : m_rudderForce;
        for (const CBlade& blade : surface.Blades)
        {
            force += BladeForcePerAngle(surface.Kind, blade) * blade.Mode;
        }
    }
}

CFollowers CControls::At(double w) const
{
    CFollowers followers;
    if (m_rudderGains != nullptr)
    {
        followers.Rudder = RudderAt(w);
    }
    if (m_finGains != nullptr)
    {
        followers.FinOrTank = FinsAt(w);
    }
    else if (m_tank)
    {
        followers.FinOrTank = m_tank->At(w);
    }
    return followers;
}

double CControls::BladeForcePerAngle(ESurface kind, const CBlade& blade) const
{
    // The blades of the rudder turn the same way, those of a pair of fins opposite ways.
    switch (kind)
    {
    case ESurface::Rudder:
        return Sign(blade.Normal.y()) * blade.LiftForce(m_density, m_speed);
    case ESurface::Fins:
        return Sign(blade.Arm()) * blade.LiftForce(m_density, m_speed);
    default:
        return 0;
    }
}

CFollower CControls::RudderAt(double w) const
{
    const CRudderGains& gains = *m_rudderGains;
    const Complex roll = HighPass(gains.LowCut, w) * LowPass(gains.HighCut, w) * Law(gains.Roll, w);
    const Complex lateral = Sign(m_rudderForce(1)) * Law(gains.Lateral, w);

    CFollower rudder;
    rudder.Force = m_rudderForce.cast<Complex>();
    rudder.Row(1) = -lateral;
    rudder.Row(3) = -Sign(m_rudderForce(3)) * roll + lateral * m_lateralZ;
    rudder.Row(5) = -Sign(m_rudderForce(5)) * Law(gains.Yaw, w) - lateral * m_lateralX;
    rudder.Row *= Servo(m_input.Rudder->Servo, w);
    return rudder;
}

CFollower CControls::FinsAt(double w) const
{
    CFollower fins;
    fins.Force = m_finForce.cast<Complex>();
    fins.Row(3) = -LowPass(m_finGains->HighCut, w) * Law(m_finGains->Roll, w);
    fins.Row(5) = -Sign(m_finForce(5)) * Law(m_finGains->Yaw, w);
    fins.Row *= Servo(m_input.Fins->Servo, w);
    return fins;
}

} // namespace oe7
