#include "oe7/calculation/CSpeedCalculation.h"

#include "oe7/input/ForEach.h"

#include <atomic>
#include <cmath>

namespace oe7
{
namespace
{
constexpr int kRoll = 3;

/// As the time runs: a negative encounter frequency has its phase turned round.
Complex Reported(Complex amplitude, double encounter)
{
    return encounter < 0 ? std::conj(amplitude) : amplitude;
}

template <class Vector>
Vector ReportedAll(Vector amplitudes, double encounter)
{
    for (auto& amplitude : amplitudes)
    {
        amplitude = Reported(amplitude, encounter);
    }
    return amplitudes;
}

std::size_t Index(int value)
{
    return static_cast<std::size_t>(value);
}
} // namespace

CSpeedCalculation::CSpeedCalculation(const CShipModel& model, double knots)
    : m_model(model),
      m_knots(knots),
      m_speed(knots * kKnot),
      m_surfaces(SurfaceForces(model.Surfaces, model.Hull.Density, m_speed)),
      m_surgeAddedMass(SurgeAddedMass(model.Hull)),
      m_surgeDamping(SurgeDamping(model.Hull, m_speed))
{
}

CSpeedResults CSpeedCalculation::Run(const CProgress& progress)
{
    SolveWaves(progress);
    FindDamping();
    CSpeedResults results;
    results.Knots = m_knots;
    results.Speed = m_speed;
    results.Froude = m_speed / std::sqrt(kGravity * m_model.Hull.Length);
    for (const CPosition& position : m_model.Input.Positions)
    {
        results.Positions.push_back(PositionGeometry(m_model.Input, m_model.Hull, position, m_speed));
    }
    for (int seaway = 0; seaway < static_cast<int>(m_model.Seas.size()); ++seaway)
    {
        results.Seaways.push_back(SeawayResults(seaway));
    }
    for (int index = 0; index < m_model.Headings.Count(); ++index)
    {
        results.Directions.push_back(DirectionResults(index));
    }
    results.Radiation = RadiationOnGrid();
    progress(1);
    return results;
}

/// Without a seaway nothing is integrated over the frequency, and only the output's frequencies count.
bool CSpeedCalculation::IsNeeded(int refined) const
{
    return !m_model.Seas.empty() || refined % m_model.Frequencies.Parts == 0;
}

void CSpeedCalculation::SolveWaves(const CProgress& progress)
{
    // Of the time of a speed, what the waves take and the seaways don't.
    constexpr double kWavesShare = 0.7;
    const CHeadings& headings = m_model.Headings;
    const int frequencies = static_cast<int>(m_model.Frequencies.Refined.size());
    std::vector<CControls> controls;
    for (const double direction : headings.Components)
    {
        controls.emplace_back(m_model.Input, m_model.Hull, m_model.Surfaces, m_knots, direction);
    }
    m_waves.assign(headings.Components.size(), std::vector<CWaveCase>(Index(frequencies)));
    std::atomic<int> done = 0;
    ForEach(frequencies, m_model.Threads,
            [&](int refined)
            {
                if (IsNeeded(refined))
                {
                    SolveFrequency(refined, controls);
                }
                progress(kWavesShare * ++done / frequencies);
            });
}

void CSpeedCalculation::SolveFrequency(int refined, const std::vector<CControls>& controls)
{
    for (int component = 0; component < m_model.Headings.ComponentCount(); ++component)
    {
        m_waves[Index(component)][Index(refined)] = Solved(refined, component, controls[Index(component)]);
    }
}

CSpeedCalculation::CWaveCase CSpeedCalculation::Solved(int refined, int component,
                                                       const CControls& controls) const
{
    const CHullCondition& hull = m_model.Hull;
    const CEndTerms& endTerms = m_model.Input.EndTerms;
    CWaveCase result;
    result.Wave =
        CWave(m_model.Frequencies.Refined[Index(refined)], m_model.Headings.Components[Index(component)]);
    const CWave& wave = result.Wave;
    result.Encounter = wave.EncounterFrequency(m_speed);
    const double w = EvaluatedFrequency(result.Encounter, hull.Length);
    result.Evaluated = w;

    const CStripCoefficients strips = StripCoefficients(m_model.Potentials, w);
    const CSectionalForces sections = SectionalForces(hull, m_model.Potentials, wave, w);
    const Eigen::MatrixXcd phase = hull.Rule.PhaseMoments(1, wave.WaveNumber * wave.Cosine, hull.Rule.Aft());
    CEquations equations;
    equations.Frequency = w;
    equations.Hull = RadiationMatrix(hull, strips, m_speed, endTerms);
    equations.Force = WaveForces(hull, sections, wave, phase, m_speed, endTerms) +
                      SurfaceWaveForce(m_model.Surfaces, wave, hull.Zg, hull.Density, m_speed);
    equations.SurgeAddedMass = m_surgeAddedMass;
    equations.SurgeDamping = m_surgeDamping;
    equations.Surfaces = m_surfaces;
    equations.Followers = controls.At(w);
    result.Motions = CMotions(hull, m_model.Inertia, equations);
    result.Force = equations.Force;
    result.WaveDamping = equations.Hull(kRoll, kRoll).imag() / w;
    result.AddedMass = -equations.Hull(kRoll, kRoll).real() / (w * w);
    if (m_model.Loads)
    {
        result.Loads =
            Transfers(result, {m_speed, w, &wave, &strips, &sections, &equations.Followers, &controls});
    }
    return result;
}

std::vector<CLoadTransfer> CSpeedCalculation::Transfers(const CWaveCase& wave,
                                                        const CLoadCase& loadCase) const
{
    const CDynamicLoads& loads = *m_model.Loads;
    const std::vector<Eigen::MatrixXcd> phases = loads.Phases(wave.Wave.WaveNumber * wave.Wave.Cosine);
    std::vector<CLoadTransfer> transfers;
    transfers.reserve(phases.size());
    for (int cut = 0; cut < loads.CutCount(); ++cut)
    {
        transfers.push_back(loads.At(cut, loadCase, phases[Index(cut)]));
    }
    return transfers;
}

CHeadingResponse CSpeedCalculation::Response(const CSeaState& sea, int heading,
                                             const CEquivalentDamping& damping) const
{
    const double rollDamping = damping.Components.InEquation();
    CHeadingResponse response;
    VisitComponents(sea, heading,
                    [&](int component, const std::vector<CWaveCase>& waves)
                    {
                        CComponentResponse& part = response.emplace_back();
                        for (int refined = 0; refined < static_cast<int>(waves.size()); ++refined)
                        {
                            const CWaveCase& wave = waves[Index(refined)];
                            part.Waves.push_back(wave.Wave);
                            part.Encounter.push_back(wave.Encounter);
                            part.Energy.push_back(Energy(sea, heading, component, refined));
                            part.Motions.push_back(wave.Motions.At(rollDamping));
                        }
                    });
    return response;
}

double CSpeedCalculation::Energy(const CSeaState& sea, int heading, int component, int refined) const
{
    const CFrequencies& frequencies = m_model.Frequencies;
    return sea.Density(heading, component, frequencies.Refined[Index(refined)]) * frequencies.Weight(refined);
}

CDirectionResults CSpeedCalculation::DirectionResults(int index) const
{
    const bool isRegular = m_model.Input.Spectrum == ESpectrum::Regular;
    const CEquivalentDamping irregular =
        m_equivalent.empty() ? WithoutSeaway() : m_equivalent[0][Index(index)];
    const CFrequencies& frequencies = m_model.Frequencies;
    CDirectionResults results;
    results.Loads.resize(m_model.Loads ? Index(m_model.Loads->CutCount()) : 0);
    for (int output = 0; output < static_cast<int>(frequencies.Output.size()); ++output)
    {
        const CWaveCase& wave = m_waves[Index(index)][Index(output * frequencies.Parts)];
        const CEquivalentDamping damping = isRegular ? InRegularWave(wave) : irregular;
        const CMotionVector motions = wave.Motions.At(damping.Components.InEquation());
        CMotionVector relative = motions;
        for (int mode = kRoll; mode < kModes; ++mode)
        {
            relative[Index(mode)] /= wave.Wave.WaveNumber;
        }
        results.Encounter.push_back(wave.Encounter);
        results.Motions.push_back(ReportedAll(relative, wave.Encounter));
        results.Forces.push_back(ReportedAll(wave.Force, wave.Encounter));
        for (std::size_t cut = 0; cut < results.Loads.size(); ++cut)
        {
            const CLoadVector load = wave.Loads[cut].At(motions, damping.Components.OfHull());
            results.Loads[cut].push_back(ReportedAll(load, wave.Encounter));
        }
        results.Damping.push_back(DampingRow(wave, damping));
    }
    return results;
}

CDampingRow CSpeedCalculation::DampingRow(const CWaveCase& wave, const CEquivalentDamping& damping) const
{
    CDampingRow row;
    row.RollAngle = damping.Amplitude;
    row.Wave = wave.WaveDamping;
    row.AddedMass = wave.AddedMass;
    row.Components = damping.Components;
    row.AppendageLift = m_model.RollDamping.AppendageLift(m_speed);
    row.AppendageViscous = m_model.RollDamping.AppendageViscous(damping.Frequency, damping.Amplitude);
    return row;
}

CSeawayResults CSpeedCalculation::SeawayResults(int seaway) const
{
    const CSeaState& sea = m_model.Seas[Index(seaway)];
    const std::size_t headings = Index(m_model.Headings.Count());
    CSeawayResults results;
    results.Height = sea.Spectrum().Height();
    results.Period = sea.Spectrum().Period();
    double variance = 0;
    for (int refined = 0; refined < static_cast<int>(m_model.Frequencies.Refined.size()); ++refined)
    {
        variance += sea.Spectrum().Density(m_model.Frequencies.Refined[Index(refined)]) *
                    m_model.Frequencies.Weight(refined);
    }
    results.BandHeight = 4 * std::sqrt(variance);
    results.Rms.resize(headings);
    results.RollAngle.resize(headings);
    results.RollFrequency.resize(headings);
    results.Positions.assign(m_model.Input.Positions.size(), std::vector<CPositionAtHeading>(headings));
    results.Loads.resize(m_model.Loads ? Index(m_model.Loads->CutCount()) : 0);
    for (auto& cut : results.Loads)
    {
        cut.resize(headings);
    }
    ForEach(static_cast<int>(headings), m_model.Threads,
            [&](int heading) { HeadingResults(seaway, heading, results); });
    return results;
}

std::vector<CComplexMatrix6> CSpeedCalculation::RadiationOnGrid() const
{
    std::vector<CComplexMatrix6> matrices;
    for (const double w : m_model.Potentials.Grid())
    {
        matrices.push_back(RadiationMatrix(m_model.Hull, StripCoefficients(m_model.Potentials, w), m_speed,
                                           m_model.Input.EndTerms));
    }
    return matrices;
}

} // namespace oe7
