// Where a position is, and how high the water stands there.
#include "oe7/seas/CPositionResults.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
double SectionDraft(const CHullCondition& hull, double station)
{
    const int last = hull.StationCount() - 1;
    if (!(station >= 0 && station <= last) || last < 1)
    {
        return 0;
    }
    const int before = std::min(static_cast<int>(station), last - 1);
    const double part = station - before;
    const auto index = static_cast<std::size_t>(before);
    return (1 - part) * hull.Sections[index].Draft + part * hull.Sections[index + 1].Draft;
}

/// From station 0 to the first station of nearly the largest beam, at least one station interval.
double EntranceLength(const CHullCondition& hull)
{
    const auto full =
        std::find_if(hull.Sections.begin(), hull.Sections.end(),
                     [&](const CSection& section) { return section.Beam >= 0.95 * hull.LargestBeam; });
    const auto station = static_cast<int>(full - hull.Sections.begin());
    return hull.X(0) - hull.X(std::max(station, 1));
}

/// Bow wave and sinkage, rules of thumb. `aft` is the distance behind station 0, m.
double RiseAtSpeed(EWaterRise correction, const CHullCondition& hull, double aft, double speed)
{
    const double length = hull.Length;
    if (correction == EWaterRise::None || !(speed > 0) ||
        (correction == EWaterRise::Bow && aft > 0.25 * length))
    {
        return 0;
    }
    const double froude = speed / std::sqrt(kGravity * length);
    const double atBow = 0.75 * hull.LargestBeam * length / EntranceLength(hull) * froude * froude;
    const double distance = std::max(aft, 0.0);
    const double wave =
        atBow * std::cos(kGravity * distance / (speed * speed)) * std::exp(-distance / (0.15 * length));
    const double sinkage =
        correction == EWaterRise::Everywhere ? 4.5 * froude * froude * hull.Volume / (length * length) : 0;
    return FiniteOrZero(wave + sinkage);
}
} // namespace

CPositionGeometry PositionGeometry(const CInput& input, const CHullCondition& hull, const CPosition& position,
                                   double speed)
{
    CPositionGeometry geometry;
    geometry.X = hull.X(position.Station);
    geometry.Z = hull.Z(position.Height);
    const double waterline = hull.Waterline(geometry.X);
    const double draft = SectionDraft(hull, position.Station);
    geometry.Draft = draft > 0 ? draft : std::max(waterline - position.Height, 0.0);
    geometry.Freeboard = position.DeckHeight - waterline;
    geometry.Depth = waterline - position.Height;
    geometry.Rise = RiseAtSpeed(input.SpeedCorrection, hull, hull.X(0) - geometry.X, speed);
    return geometry;
}

} // namespace oe7
