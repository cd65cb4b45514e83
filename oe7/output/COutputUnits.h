// The units in which results are written.
#pragma once

#include "oe7/calculation/CResults.h"

#include <numbers>
#include <string>
#include <string_view>

namespace oe7
{

constexpr double kDegree = std::numbers::pi / 180; ///< rad

struct CUnit
{
    double Size = 1; ///< in SI
    std::string_view Name;

    /// A value in SI, in this unit.
    double Of(double value) const { return value / Size; }
    std::string InBrackets() const { return "(" + std::string(Name) + ")"; }
};

struct COutputUnits
{
    explicit COutputUnits(EUnits units);

    CUnit Length;
    CUnit Area;
    CUnit Velocity;
    CUnit Mass; ///< tonnes, long tons
    CUnit Force;
    CUnit Moment;
    CUnit LargeForce; ///< a thousand times Force, of sea loads
    CUnit LargeMoment;
    CUnit Inertia;
    CUnit Pressure;
    CUnit ForcePerLength;

    /// An RMS value of a mode, kind 0 displacement, 1 velocity, 2 acceleration: lengths; degrees;
    /// accelerations g and deg/s2.
    double Rms(int kind, int mode, double value) const;
    /// One of the quantities of CPositionAtHeading::Local: lengths, g, seconds.
    double Local(int quantity, double value) const;
    /// RMS of a load component.
    double LoadRms(int component, double value) const;
};

/// Whether a component of a CLoadVector is a force, not a moment.
constexpr bool IsShear(int component)
{
    return component < 2;
}
/// What a load per unit wave amplitude is divided by, for shears (N/m) and moments (N): 0.001 rho g B L and L
/// times that.
double LoadScale(const CHullCondition& hull, int component);

/// In degrees, -180 to 180.
double PhaseDegrees(Complex value);

} // namespace oe7
