#include "oe7/motion/CInertia.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
constexpr int kMostSteps = 50;
constexpr double kCloseEnough = 1e-9;   ///< rad/s
constexpr double kTypicalRadius = 0.35; ///< of the beam
// Below it the data of the input contradict each other.
constexpr double kLeastRadius = 0.2;   ///< of the beam
constexpr double kLeastInertia = 0.05; ///< of the one with the least radius
constexpr double kLeastMoving = 0.05;  ///< of the dry inertia, with the water's

double InertiaOf(double mass, double radius)
{
    return mass * radius * radius;
}

/// Where the frequency fits the added mass that belongs to it.
double FrequencyInWater(double inertia, double stiffness, const CSectionPotentials& potentials)
{
    double frequency = std::sqrt(stiffness / inertia);
    for (int n = 0; n < kMostSteps; ++n)
    {
        const double moving = std::max(inertia + potentials.RollAddedMass(frequency), kLeastMoving * inertia);
        const double next = std::sqrt(stiffness / moving);
        const bool found = std::abs(next - frequency) < kCloseEnough;
        frequency = next;
        if (found)
        {
            break;
        }
    }
    return frequency;
}

/// The frequency in water that the input tells, itself or by the radius of gyration in water (rad/s).
double ToldFrequency(const CInput& input, const CHullCondition& hull)
{
    return input.RollInertia == ERollInertia::WetFrequency
               ? input.RollValue
               : std::sqrt(hull.C44 / InertiaOf(hull.Mass, input.RollValue));
}
} // namespace

double CInertia::DryRollRadius(double mass) const
{
    return std::sqrt(I44 / mass);
}

CInertia FindInertia(const CInput& input, const CHullCondition& hull, const CSectionPotentials& potentials,
                     CRunLog& log)
{
    CInertia inertia;
    inertia.I55 = InertiaOf(hull.Mass, input.PitchRadius);
    const bool dry = input.RollInertia == ERollInertia::DryRadius;
    if (input.RollValue > 0 && dry)
    {
        inertia.I44 = InertiaOf(hull.Mass, input.RollValue);
    }
    else if (input.RollValue > 0)
    {
        inertia.RollFrequency = ToldFrequency(input, hull);
        inertia.I44 = hull.C44 / (inertia.RollFrequency * inertia.RollFrequency) -
                      potentials.RollAddedMass(inertia.RollFrequency);
    }
    const double least = kLeastInertia * InertiaOf(hull.Mass, kLeastRadius * hull.LargestBeam);
    const bool usable = std::isfinite(inertia.I44) && inertia.I44 > least;
    if (!usable)
    {
        log.Warn(
            "The roll data leave no inertia in air: its radius of gyration is taken as 0.35 times the beam");
        inertia.I44 = InertiaOf(hull.Mass, kTypicalRadius * hull.LargestBeam);
    }
    if (!usable || dry)
    {
        inertia.RollFrequency = FrequencyInWater(inertia.I44, hull.C44, potentials);
    }
    return inertia;
}

} // namespace oe7
