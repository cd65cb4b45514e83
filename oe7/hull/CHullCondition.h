// The ship afloat: hydrostatics of the hull in its loading condition.
#pragma once

#include "oe7/hull/CLengthRule.h"
#include "oe7/hull/CSection.h"
#include "oe7/input/CRunLog.h"

namespace oe7
{

struct CHullCondition
{
    CLengthRule Rule; ///< x from G
    std::vector<CSection> Sections;
    double Density = 0;            ///< kg/m3
    double Length = 0;             ///< m
    double Kg = 0;                 ///< m
    double Draft = 0;              ///< m at midship
    double Trim = 0;               ///< m by the stern
    double Volume = 0;             ///< m3
    double Mass = 0;               ///< kg
    double Xg = 0;                 ///< m from midship, forward
    double Zg = 0;                 ///< m, of G above the calm waterline at its station
    double Kb = 0, Bm = 0, Gm = 0; ///< m, computed
    double GmUsed = 0;             ///< m, given or computed
    double GmRoll = 0;             ///< m, in the roll equation: GmUsed if positive
    double WaterplaneArea = 0;     ///< m2
    double Lcf = 0;                ///< m from midship, forward
    double WettedSurface = 0;      ///< m2
    double LargestBeam = 0;        ///< m at the waterline
    double BlockCoefficient = 0;
    double C33 = 0, C35 = 0, C44 = 0, C55 = 0; ///< N/m, N, N m, N m

    int StationCount() const { return static_cast<int>(Sections.size()); }
    double X(double station) const { return Rule.X(station); } ///< m from G
    double Z(double height) const { return height - Kg; }      ///< m from G, of a height above the baseline
    /// Height of the calm waterline above the baseline at x (m from G), a straight line also beyond the ends.
    double Waterline(double x) const { return Draft - Trim * (x + Xg) / Length; }
    /// Height of a section's centroid above G (m); 0 for a dry station.
    double CentroidHeight(int station) const;
    /// The station nearest to x (m from G), its number.
    int NearestStation(double x) const;
};

/// Throws CInputError if there is no displaced volume or the wanted displacement can't be found. Warns of a
/// GM that isn't positive, notes contours that had to be carried up to the waterline.
CHullCondition FindCondition(const CInput& input, CRunLog& log);

} // namespace oe7
