#include "oe7/loads/CMassModel.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
constexpr double kMassTolerance = 0.05;        ///< of the displacement
constexpr double kShortestHalfOverhang = 1e-6; ///< of the length
constexpr double kAtEnd = 1e-9;                ///< of the length: a cut so near to the aft end is at it

bool AllZero(const std::vector<double>& values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return value == 0; });
}

/// Of one station; 0 where the list is too short.
double At(const std::vector<double>& values, int station)
{
    const auto index = static_cast<std::size_t>(station);
    return index < values.size() ? values[index] : 0;
}

/// What stands for a height or radius of 0, and whether it does.
struct CDefault
{
    bool Used = false;
    double Value = 0;

    double Of(double given) const { return Used && given == 0 ? Value : given; }
};

/// The ends of a station's slice: halfway to the neighbours, at the end stations nothing beyond them.
CMassSlice StationSlice(const CLengthRule& rule, int station)
{
    CMassSlice slice;
    slice.Forward = rule.X(std::max(station - 0.5, 0.0));
    slice.Aft = rule.X(std::min(station + 0.5, rule.StationCount() - 1.0));
    return slice;
}

/// An even spread has a radius of gyration of half its length over the root of 3.
CMassSlice OverhangSlice(const COverhang& overhang, double centre, double length)
{
    const double half =
        std::max(std::sqrt(3.0) * std::abs(overhang.PitchRadius), kShortestHalfOverhang * length);
    CMassSlice slice;
    slice.Forward = centre + half;
    slice.Aft = centre - half;
    slice.Mass = overhang.Mass;
    return slice;
}

CMassMoments PartForward(const CMassSlice& slice, double x0)
{
    const double aft = std::max(slice.Aft, x0);
    if (aft >= slice.Forward)
    {
        return {};
    }
    const double length = slice.Forward - aft;
    const double middle = (slice.Forward + aft) / 2;
    CMassMoments part;
    part.M0 = slice.Mass * length / (slice.Forward - slice.Aft);
    part.M1 = part.M0 * middle;
    part.M2 = part.M0 * (middle * middle + length * length / 12);
    part.Mz = part.M0 * slice.Z;
    part.Mxz = part.M1 * slice.Z;
    part.Mk = part.M0 * (slice.RollRadius * slice.RollRadius + slice.Z * slice.Z);
    return part;
}

CMassMoments PartForward(const std::vector<CMassSlice>& slices, double x0)
{
    CMassMoments sum;
    for (const CMassSlice& slice : slices)
    {
        const CMassMoments part = PartForward(slice, x0);
        sum.M0 += part.M0;
        sum.M1 += part.M1;
        sum.M2 += part.M2;
        sum.Mz += part.Mz;
        sum.Mxz += part.Mxz;
        sum.Mk += part.Mk;
    }
    return sum;
}
} // namespace

CMassModel::CMassModel(const CInput& input, const CHullCondition& hull, const CInertia& inertia, CRunLog& log)
    : m_all(hull.Rule.Aft() + kAtEnd * hull.Length)
{
    const CMassDistribution& given = input.Masses;
    const CDefault height{AllZero(given.Kg), hull.Kg};
    const CDefault radius{AllZero(given.RollRadius), inertia.DryRollRadius(hull.Mass)};
    for (int station = 0; station < hull.StationCount(); ++station)
    {
        CMassSlice slice = StationSlice(hull.Rule, station);
        slice.Mass = At(given.Masses, station);
        slice.Z = hull.Z(height.Of(At(given.Kg, station)));
        slice.RollRadius = radius.Of(At(given.RollRadius, station));
        m_slices.push_back(slice);
    }
    const auto addOverhang = [&](const COverhang& overhang, double centre)
    {
        CMassSlice slice = OverhangSlice(overhang, centre, hull.Length);
        slice.Z = hull.Z(height.Of(overhang.Kg));
        slice.RollRadius = radius.Of(overhang.RollRadius);
        m_slices.push_back(slice);
    };
    addOverhang(given.Bow, hull.Rule.Bow() + given.Bow.Distance);
    addOverhang(given.Stern, hull.Rule.Aft() - given.Stern.Distance);
    if (std::abs(All().M0 - hull.Mass) > kMassTolerance * hull.Mass)
    {
        log.Warn(
            "the masses of the stations and overhangs differ from the displacement by more than 5 percent");
    }
}

CMassMoments CMassModel::Forward(double x0) const
{
    return x0 <= m_all ? All() : PartForward(m_slices, x0);
}

CMassMoments CMassModel::All() const
{
    return PartForward(m_slices, -HUGE_VAL);
}

CStillWater StillWater(const CHullCondition& hull, const CMassModel& masses)
{
    const int stations = hull.StationCount();
    Eigen::VectorXd area(stations);
    for (int station = 0; station < stations; ++station)
    {
        area(station) = hull.Sections[static_cast<std::size_t>(station)].Area;
    }
    const double weight = hull.Density * kGravity;
    // Buoyancy forward of x and its moment about G's station.
    const auto buoyancy = [&](double x) -> Eigen::Vector2d
    { return weight * hull.Rule.Moments(1, x) * area; };
    CStillWater result;
    for (int station = 0; station < stations; ++station)
    {
        const CMassSlice& slice = masses.Slice(station);
        const double x0 = hull.X(station);
        const Eigen::Vector2d forward = buoyancy(x0);
        const CMassMoments mass = masses.Forward(x0);
        result.Weight.push_back(slice.Mass * kGravity);
        result.Buoyancy.push_back(buoyancy(slice.Aft)(0) - buoyancy(slice.Forward)(0));
        result.Shear.push_back(forward(0) - kGravity * mass.M0);
        result.Moment.push_back(kGravity * (mass.M1 - x0 * mass.M0) - (forward(1) - x0 * forward(0)));
    }
    return result;
}

} // namespace oe7
