// Moments of inertia and the natural frequency of roll.
#pragma once

#include "oe7/section/CSectionPotentials.h"

namespace oe7
{

struct CInertia
{
    double I44 = 0;           ///< kg m2, dry
    double I55 = 0;           ///< kg m2, also yaw
    double RollFrequency = 0; ///< RNF, rad/s, in water

    double DryRollRadius(double mass) const; ///< m
};

/// Warns when the roll data of the input can't be used and takes 0.35 B then.
CInertia FindInertia(const CInput& input, const CHullCondition& hull, const CSectionPotentials& potentials,
                     CRunLog& log);

} // namespace oe7
