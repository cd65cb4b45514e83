#include "oe7/seas/Statistics.h"

#include <algorithm>
#include <numbers>

namespace oe7
{
namespace
{
double Root(double variance)
{
    return FiniteOrZero(std::sqrt(std::max(variance, 0.0)));
}
} // namespace

double CMoments::Displacement() const
{
    return Root(M0);
}

double CMoments::Velocity() const
{
    return Root(M2);
}

double CMoments::Acceleration() const
{
    return Root(M4);
}

double CMoments::ZeroCrossingPeriod() const
{
    return M2 > 0 ? 2 * std::numbers::pi * Root(M0 / M2) : 0;
}

CModeRms RmsOfModes(const CHeadingResponse& response)
{
    std::array<CMoments, kModes> moments;
    for (const CComponentResponse& component : response)
    {
        for (std::size_t n = 0; n < component.Waves.size(); ++n)
        {
            const CWaveMoments wave(component.Encounter[n], component.Energy[n]);
            for (std::size_t mode = 0; mode < kModes; ++mode)
            {
                moments[mode].Add(std::norm(component.Motions[n][mode]), wave);
            }
        }
    }
    CModeRms rms{};
    for (std::size_t mode = 0; mode < kModes; ++mode)
    {
        rms[0][mode] = moments[mode].Displacement();
        rms[1][mode] = moments[mode].Velocity();
        rms[2][mode] = moments[mode].Acceleration();
    }
    return rms;
}

} // namespace oe7
