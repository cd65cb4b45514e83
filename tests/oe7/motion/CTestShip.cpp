#include "tests/oe7/motion/CTestShip.h"

#include <utility>

namespace oe7
{

namespace
{
CHullCondition Condition(const CInput& input)
{
    CRunLog log;
    return FindCondition(input, log);
}
} // namespace

CTestShip::CTestShip(CInput input)
    : m_input(std::move(input)),
      m_hull(Condition(m_input)),
      m_potentials(m_hull, m_input.Method, FrequencyGrid({}, m_input.Length), m_input.HeaveCorrection, 2),
      m_surfaces(FindSurfaces(m_input, m_hull))
{
}

CEquations CTestShip::Equations(const CWave& wave, double speed) const
{
    const double w = EvaluatedFrequency(wave.EncounterFrequency(speed), m_hull.Length);
    const CSectionalForces sections = SectionalForces(m_hull, m_potentials, wave, w);
    const Eigen::MatrixXcd phase =
        m_hull.Rule.PhaseMoments(1, wave.WaveNumber * wave.Cosine, m_hull.Rule.Aft());
    CEquations equations;
    equations.Frequency = w;
    equations.Hull = RadiationMatrix(m_hull, StripCoefficients(m_potentials, w), speed, m_input.EndTerms);
    equations.Force = WaveForces(m_hull, sections, wave, phase, speed, m_input.EndTerms) +
                      SurfaceWaveForce(m_surfaces, wave, m_hull.Zg, m_hull.Density, speed);
    equations.SurgeAddedMass = SurgeAddedMass(m_hull);
    equations.SurgeDamping = SurgeDamping(m_hull, speed);
    equations.Surfaces = SurfaceForces(m_surfaces, m_hull.Density, speed);
    return equations;
}

CMotionVector CTestShip::Motions(const CWave& wave, double speed) const
{
    const double pitch = m_hull.Mass * m_input.PitchRadius * m_input.PitchRadius;
    const CInertia inertia{m_hull.Mass * m_input.RollValue * m_input.RollValue, pitch, 0};
    CMotionVector motions = CMotions(m_hull, inertia, Equations(wave, speed)).At(0);
    for (std::size_t angle = 3; angle < kModes; ++angle)
    {
        motions[angle] /= wave.WaveNumber;
    }
    return motions;
}

} // namespace oe7
