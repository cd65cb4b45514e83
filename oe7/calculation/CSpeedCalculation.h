// One speed: the linear solutions for all waves, the roll damping that belongs to each sea, and the results.
#pragma once

#include "oe7/calculation/CShipModel.h"

#include <functional>

namespace oe7
{

/// Roll damping at the frequency and the roll amplitude for which it was linearised.
struct CEquivalentDamping
{
    double Amplitude = 0; ///< rad
    double Frequency = 0; ///< rad/s
    CRollComponents Components;
};

class CSpeedCalculation
{
public:
    /// Told the part of the work that is done, 0 to 1.
    using CProgress = std::function<void(double)>;

    CSpeedCalculation(const CShipModel& model, double knots);

    CSpeedResults Run(const CProgress& progress);

private:
    /// One component direction and wave frequency.
    struct CWaveCase
    {
        CWave Wave;
        double Encounter = 0; ///< rad/s, true, signed
        double Evaluated = 0; ///< rad/s, bounded
        CMotions Motions;
        double WaveDamping = 0; ///< N m s, of roll
        double AddedMass = 0;   ///< kg m2, of roll
        CComplexVector6 Force;
        std::vector<CLoadTransfer> Loads; ///< [cut]
    };

    bool IsNeeded(int refined) const;
    /// Calls visit(component, waves) for each component direction of a sea at a reported heading.
    template <class Visit>
    void VisitComponents(const CSeaState& sea, int heading, const Visit& visit) const
    {
        for (int component = 0; component < m_model.Headings.ComponentCount(); ++component)
        {
            if (sea.Contributes(heading, component))
            {
                visit(component, m_waves[static_cast<std::size_t>(component)]);
            }
        }
    }
    /// Of the sea's component in one wave, with the weight of its frequency, m2.
    double Energy(const CSeaState& sea, int heading, int component, int refined) const;
    void SolveWaves(const CProgress& progress);
    void SolveFrequency(int refined, const std::vector<CControls>& controls);
    CWaveCase Solved(int refined, int component, const CControls& controls) const;
    std::vector<CLoadTransfer> Transfers(const CWaveCase& wave, const CLoadCase& loadCase) const;

    void FindDamping();
    CEquivalentDamping Damping(double frequency, double amplitude) const;
    CEquivalentDamping InRegularWave(const CWaveCase& wave) const;
    CEquivalentDamping InSeaway(const CSeaState& sea, int heading) const;
    CEquivalentDamping WithoutSeaway() const;
    CHeadingResponse Response(const CSeaState& sea, int heading, const CEquivalentDamping& damping) const;

    CDirectionResults DirectionResults(int index) const;
    CDampingRow DampingRow(const CWaveCase& wave, const CEquivalentDamping& damping) const;
    CSeawayResults SeawayResults(int seaway) const;
    void HeadingResults(int seaway, int heading, CSeawayResults& results) const;
    void LoadResults(const CSeaState& sea, int heading, const CHeadingResponse& response, double hullDamping,
                     CSeawayResults& results) const;
    std::vector<CComplexMatrix6> RadiationOnGrid() const;

    const CShipModel& m_model;
    double m_knots;
    double m_speed; ///< m/s
    CSurfaceForces m_surfaces;
    double m_surgeAddedMass;
    double m_surgeDamping;
    std::vector<std::vector<CWaveCase>> m_waves;               ///< [component][refined frequency]
    std::vector<std::vector<CEquivalentDamping>> m_equivalent; ///< [seaway][heading]
};

} // namespace oe7
