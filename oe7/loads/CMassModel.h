// How the ship's mass lies along her length, and the loads in still water.
#pragma once

#include "oe7/hull/CHullCondition.h"
#include "oe7/motion/CInertia.h"

namespace oe7
{

/// Moments of the mass forward of a cut: x from G forward, z up from G.
struct CMassMoments
{
    double M0 = 0, M1 = 0, M2 = 0; ///< kg, kg m, kg m2: orders of x
    double Mz = 0, Mxz = 0;        ///< kg m, kg m2
    double Mk = 0;                 ///< kg m2, of k^2 + z^2
};

/// A mass spread evenly between two places.
struct CMassSlice
{
    double Forward = 0, Aft = 0; ///< m from G
    double Mass = 0;             ///< kg
    double Z = 0;                ///< m from G
    double RollRadius = 0;       ///< m about its own centre
};

class CMassModel
{
public:
    /// Station masses lie evenly over the slice halfway to the neighbours, overhangs evenly about their
    /// centres so that they have their pitch radius. Heights that are all 0 become the ship's KG, roll radii
    /// that are all 0 hers. Warns when the masses are more than 5 percent off the displacement.
    CMassModel(const CInput& input, const CHullCondition& hull, const CInertia& inertia, CRunLog& log);

    /// Forward of x0 (m from G); all at the aft end of the ship and behind it.
    CMassMoments Forward(double x0) const;
    CMassMoments All() const;
    /// The slice of a station, without the overhangs.
    const CMassSlice& Slice(int station) const { return m_slices[static_cast<std::size_t>(station)]; }

private:
    std::vector<CMassSlice> m_slices; ///< of the stations, then the overhangs
    double m_all = 0;                 ///< m from G: from here aft a cut has everything before it
};

/// At every station: weight and buoyancy of its slice (N), shear (N, net upward force on the part forward of
/// it) and bending moment (N m, hogging positive).
struct CStillWater
{
    std::vector<double> Weight, Buoyancy, Shear, Moment;
};
CStillWater StillWater(const CHullCondition& hull, const CMassModel& masses);

} // namespace oe7
