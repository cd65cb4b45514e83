// A ship with the potentials of its sections, to be set into regular waves.
#pragma once

#include "oe7/motion/CMotions.h"

namespace oe7
{

class CTestShip
{
public:
    explicit CTestShip(CInput input);

    const CInput& Input() const { return m_input; }
    const CHullCondition& Hull() const { return m_hull; }
    const CSectionPotentials& Potentials() const { return m_potentials; }

    /// Of the hull and its surfaces at a speed (m/s) in a wave.
    CEquations Equations(const CWave& wave, double speed) const;
    /// Per wave amplitude (surge, sway, heave) or wave slope; without roll damping besides that of waves and
    /// surfaces.
    CMotionVector Motions(const CWave& wave, double speed) const;

private:
    CInput m_input;
    CHullCondition m_hull;
    CSectionPotentials m_potentials;
    std::vector<CSurface> m_surfaces;
};

} // namespace oe7
