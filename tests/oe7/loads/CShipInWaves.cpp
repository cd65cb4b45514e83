#include "tests/oe7/loads/CShipInWaves.h"

#include "tests/oe7/loads/SolvedLoads.h"

#include <cmath>
#include <numbers>
#include <thread>

using namespace oe7;

namespace
{
constexpr double kDegree = std::numbers::pi / 180;

int Threads()
{
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}
} // namespace

CShipInWaves::CShipInWaves(const CInput& input)
    : m_input(input),
      m_hull(FindCondition(m_input, m_log)),
      m_potentials(m_hull, m_input.Method, FrequencyGrid(m_input.Grid, m_input.Length),
                   m_input.HeaveCorrection, Threads()),
      m_inertia(FindInertia(m_input, m_hull, m_potentials, m_log)),
      m_surfaces(FindSurfaces(m_input, m_hull)),
      m_damping(m_input, m_hull, m_surfaces),
      m_masses(m_input, m_hull, m_inertia, m_log),
      m_loads(m_input, m_hull, m_masses, m_surfaces)
{
}

std::vector<CLoadVector> CShipInWaves::Loads(const CMeeting& meeting) const
{
    const double speed = meeting.Knots * kKnot;
    const CWave wave(meeting.Frequency, meeting.Direction);
    const double w = EvaluatedFrequency(wave.EncounterFrequency(speed), m_hull.Length);
    CRollComponents damping;
    if (meeting.RollAngle > 0)
    {
        damping = m_damping.At(speed, meeting.RollFrequency, meeting.RollAngle * kDegree);
    }
    const CWaveParts parts{meeting.Knots, meeting.Direction, wave, StripCoefficients(m_potentials, w),
                           SectionalForces(m_hull, m_potentials, wave, w)};
    return SolvedLoads({m_input, m_hull, m_inertia, m_surfaces, m_loads}, parts, damping);
}

std::vector<CLoadVector> CShipInWaves::RelativeLoads(const CMeeting& meeting) const
{
    const double shear = 0.001 * m_hull.Density * kGravity * m_hull.LargestBeam * m_hull.Length;
    std::vector<CLoadVector> loads = Loads(meeting);
    for (CLoadVector& load : loads)
    {
        load /= shear;
        load.tail<3>() /= m_hull.Length;
    }
    return loads;
}
