// The statistics of one reported heading in one seaway.
#include "oe7/calculation/CSpeedCalculation.h"

namespace oe7
{

void CSpeedCalculation::HeadingResults(int seaway, int heading, CSeawayResults& results) const
{
    const CSeaState& sea = m_model.Seas[static_cast<std::size_t>(seaway)];
    const std::size_t index = static_cast<std::size_t>(heading);
    const CEquivalentDamping& damping = m_equivalent[static_cast<std::size_t>(seaway)][index];
    results.RollAngle[index] = damping.Amplitude;
    results.RollFrequency[index] = damping.Frequency;
    const CHeadingResponse response = Response(sea, heading, damping);
    results.Rms[index] = RmsOfModes(response);
    for (std::size_t position = 0; position < results.Positions.size(); ++position)
    {
        results.Positions[position][index] = EvaluatePosition(
            m_model.Input, m_model.Hull, m_model.Input.Positions[position], m_speed, response);
    }
    LoadResults(sea, heading, response, damping.Components.OfHull(), results);
}

void CSpeedCalculation::LoadResults(const CSeaState& sea, int heading, const CHeadingResponse& response,
                                    double hullDamping, CSeawayResults& results) const
{
    for (std::size_t cut = 0; cut < results.Loads.size(); ++cut)
    {
        std::array<CMoments, kLoadComponents> moments;
        auto part = response.begin();
        VisitComponents(sea, heading,
                        [&](int, const std::vector<CWaveCase>& waves)
                        {
                            for (std::size_t refined = 0; refined < waves.size(); ++refined)
                            {
                                const CLoadVector load =
                                    waves[refined].Loads[cut].At(part->Motions[refined], hullDamping);
                                for (int i = 0; i < kLoadComponents; ++i)
                                {
                                    moments[static_cast<std::size_t>(i)].Add(
                                        std::norm(load(i)), part->Encounter[refined], part->Energy[refined]);
                                }
                            }
                            ++part;
                        });
        auto& found = results.Loads[cut][static_cast<std::size_t>(heading)];
        for (std::size_t i = 0; i < found.size(); ++i)
        {
            found[i] = {moments[i].Displacement(), moments[i].ZeroCrossingPeriod()};
        }
    }
}

} // namespace oe7
