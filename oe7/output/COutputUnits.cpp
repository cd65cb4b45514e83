#include "oe7/output/COutputUnits.h"

namespace oe7
{
namespace
{
constexpr double kSlugSquareFoot = 1.3558179; ///< kg m2
constexpr double kPsi = 6894.757;             ///< Pa
constexpr double kThousand = 1000;
constexpr double kPoundFoot = kPoundForce * kFoot; ///< N m

/// Modes below are translations.
constexpr int kFirstRotation = 3;
constexpr int kAcceleration = 2;
} // namespace

COutputUnits::COutputUnits(EUnits units)
    : Length{1, "m"},
      Area{1, "m2"},
      Velocity{1, "m/s"},
      Mass{kTonne, "tonnes"},
      Force{1, "N"},
      Moment{1, "N-m"},
      LargeForce{kThousand, "kN"},
      LargeMoment{kThousand, "kN-m"},
      Inertia{1, "kg-m2"},
      Pressure{kThousand, "kPa"},
      ForcePerLength{1, "N/m"}
{
    if (units == EUnits::British)
    {
        Length = {kFoot, "ft"};
        Area = {kFoot * kFoot, "ft2"};
        Velocity = {kFoot, "ft/s"};
        Mass = {kLongTon, "long tons"};
        Force = {kPoundForce, "lb"};
        Moment = {kPoundFoot, "lb-ft"};
        LargeForce = {kThousand * kPoundForce, "10^3 lb"};
        LargeMoment = {kThousand * kPoundFoot, "10^3 ft-lb"};
        Inertia = {kSlugSquareFoot, "slug-ft2"};
        Pressure = {kPsi, "psi"};
        ForcePerLength = {kPoundForce / kFoot, "lb/ft"};
    }
}

double COutputUnits::Rms(int kind, int mode, double value) const
{
    if (mode >= kFirstRotation)
    {
        return value / kDegree;
    }
    return kind == kAcceleration ? value / kGravity : Length.Of(value);
}

double COutputUnits::Local(int quantity, double value) const
{
    switch (quantity)
    {
    case 2:
    case 5:
    case 8:
    case 11:
    case 12:
    case 13:
    case 14:
    case 15:
    case 18:
        return value / kGravity;
    case 19:
    case 20:
        return value;
    default:
        return Length.Of(value);
    }
}

double COutputUnits::LoadRms(int component, double value) const
{
    return (IsShear(component) ? LargeForce : LargeMoment).Of(value);
}

double LoadScale(const CHullCondition& hull, int component)
{
    const double shear = 0.001 * hull.Density * kGravity * hull.LargestBeam * hull.Length;
    return IsShear(component) ? shear : shear * hull.Length;
}

double PhaseDegrees(Complex value)
{
    return std::arg(value) / kDegree;
}

} // namespace oe7
