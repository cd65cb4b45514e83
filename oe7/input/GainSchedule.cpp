#include "oe7/input/CInput.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace oe7
{
namespace
{
constexpr double kFullTurn = 360; ///< degrees

double Folded(double heading)
{
    const double turn = std::fmod(std::abs(heading), kFullTurn);
    return std::min(turn, kFullTurn - turn);
}

/// A line for any heading is as near as one for this very heading, which goes before it.
double HeadingDistance(double ofLine, double heading)
{
    return ofLine < 0 ? std::numeric_limits<double>::min() : std::abs(Folded(ofLine) - Folded(heading));
}
} // namespace

template <class Gains>
const Gains& CGainSchedule<Gains>::At(double speed, double heading) const
{
    const CGainCondition<Gains>* nearest = nullptr;
    for (const CGainCondition<Gains>& line : Conditions)
    {
        if (nearest == nullptr || std::abs(line.Speed - speed) < std::abs(nearest->Speed - speed))
        {
            nearest = &line;
        }
    }
    if (nearest == nullptr)
    {
        return Fixed;
    }
    const double nearestSpeed = nearest->Speed;
    for (const CGainCondition<Gains>& line : Conditions)
    {
        if (line.Speed == nearestSpeed &&
            HeadingDistance(line.Heading, heading) < HeadingDistance(nearest->Heading, heading))
        {
            nearest = &line;
        }
    }
    return nearest->Values;
}

template struct CGainSchedule<CRudderGains>;
template struct CGainSchedule<CFinGains>;

} // namespace oe7
