// A ship with all that her loads in waves are calculated from.
#pragma once

#include "oe7/loads/CDynamicLoads.h"
#include "oe7/motion/CRollDamping.h"

/// One regular wave and what else her motions depend on.
struct CMeeting
{
    double Knots = 0;
    double Direction = 180; ///< degrees
    double Frequency = 0;   ///< rad/s, of the wave
    double RollAngle = 0;   ///< degrees, of the equivalent damping; 0: potential damping only
    double RollFrequency = 0;
};

class CShipInWaves
{
public:
    explicit CShipInWaves(const oe7::CInput& input);

    /// At every load station of the input, per unit wave amplitude: N/m, N.
    std::vector<oe7::CLoadVector> Loads(const CMeeting& meeting) const;
    /// By the units in which loads are given: 0.001 rho g B L and, for moments, L more.
    std::vector<oe7::CLoadVector> RelativeLoads(const CMeeting& meeting) const;

    const oe7::CHullCondition& Hull() const { return m_hull; }
    const oe7::CMassModel& Masses() const { return m_masses; }

private:
    oe7::CRunLog m_log;
    oe7::CInput m_input;
    oe7::CHullCondition m_hull;
    oe7::CSectionPotentials m_potentials;
    oe7::CInertia m_inertia;
    std::vector<oe7::CSurface> m_surfaces;
    oe7::CRollDamping m_damping;
    oe7::CMassModel m_masses;
    oe7::CDynamicLoads m_loads;
};
