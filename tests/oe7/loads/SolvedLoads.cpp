#include "tests/oe7/loads/SolvedLoads.h"

using namespace oe7;

namespace
{
CEquations Equations(const CShipParts& ship, const CWaveParts& wave, double speed, const CControls& controls)
{
    const CHullCondition& hull = ship.Hull;
    const Eigen::MatrixXcd phase =
        hull.Rule.PhaseMoments(1, wave.Wave.WaveNumber * wave.Wave.Cosine, hull.Rule.Aft());
    CEquations equations;
    equations.Frequency = wave.Strips.Frequency;
    equations.Hull = RadiationMatrix(hull, wave.Strips, speed, ship.Input.EndTerms);
    equations.Force = WaveForces(hull, wave.Sections, wave.Wave, phase, speed, ship.Input.EndTerms) +
                      SurfaceWaveForce(ship.Surfaces, wave.Wave, hull.Zg, hull.Density, speed);
    equations.SurgeAddedMass = SurgeAddedMass(hull);
    equations.SurgeDamping = SurgeDamping(hull, speed);
    equations.Surfaces = SurfaceForces(ship.Surfaces, hull.Density, speed);
    equations.Followers = controls.At(equations.Frequency);
    return equations;
}
} // namespace

std::vector<CLoadVector> SolvedLoads(const CShipParts& ship, const CWaveParts& wave,
                                     const CRollComponents& damping)
{
    const double speed = wave.Knots * kKnot;
    const CControls controls(ship.Input, ship.Hull, ship.Surfaces, wave.Knots, wave.Direction);
    const CEquations equations = Equations(ship, wave, speed, controls);
    const CMotionVector motions = CMotions(ship.Hull, ship.Inertia, equations).At(damping.InEquation());
    const CLoadCase loadCase{speed,          equations.Frequency,  &wave.Wave, &wave.Strips,
                             &wave.Sections, &equations.Followers, &controls};
    const std::vector<Eigen::MatrixXcd> phases = ship.Loads.Phases(wave.Wave.WaveNumber * wave.Wave.Cosine);
    std::vector<CLoadVector> loads;
    for (int cut = 0; cut < ship.Loads.CutCount(); ++cut)
    {
        const CLoadTransfer transfer = ship.Loads.At(cut, loadCase, phases[static_cast<std::size_t>(cut)]);
        loads.push_back(transfer.At(motions, damping.OfHull()));
    }
    return loads;
}
