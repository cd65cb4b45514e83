#include "oe7/motion/CControls.h"

#include <cmath>
#include <numbers>

namespace oe7
{

namespace
{
constexpr double kFreshWater = 1000; ///< kg/m3, of a specific gravity of 1
constexpr int kLegPoints = 200;

/// One leg of the tank at a height (m) above the bottom of the duct.
struct CLeg
{
    const CUTubeTank& Tank;
    double Slope = 0; ///< of the outer wall

    double Width(double height) const { return Tank.LegWidth + height * Slope; }
    /// Of its middle, m to the side.
    double Y(double height) const { return Tank.DuctWidth / 2 + Width(height) / 2; }
};

/// Along the middle of one leg, from that of the duct to the surface: of the reciprocal area, and of the
/// moment arm of the flow about G.
struct CLegIntegrals
{
    double PerArea = 0; ///< 1/m
    double Arm = 0;     ///< m2
};

CLegIntegrals IntegrateLeg(const CLeg& leg, double bottom, double from, double to)
{
    CLegIntegrals sum;
    const double step = (to - from) / (kLegPoints - 1);
    for (int i = 0; i < kLegPoints - 1; ++i)
    {
        const double low = from + step * i;
        const double high = low + step;
        const double rise = leg.Y(high) - leg.Y(low);
        sum.PerArea += step / 2 * (1 / leg.Width(low) + 1 / leg.Width(high)) / leg.Tank.Length;
        sum.Arm += step / 2 * (leg.Y(low) + leg.Y(high)) - rise * (bottom + (low + high) / 2);
    }
    return sum;
}

bool IsTank(const CUTubeTank& tank, double surfaceWidth)
{
    return tank.Length > 0 && tank.DuctWidth >= 0 && tank.LegWidth > 0 && surfaceWidth > 0 &&
           tank.FluidDepth > 0 && tank.DuctHeight > 0 && tank.SpecificGravity > 0 &&
           std::isfinite(surfaceWidth);
}
} // namespace

CTankModel FindTank(const CUTubeTank& tank, const CHullCondition& hull)
{
    const CLeg leg{tank, std::tan(tank.Inclination * std::numbers::pi / 180)};
    const double depth = std::max(tank.FluidDepth, tank.DuctHeight);
    const double surface = leg.Width(depth);
    if (!IsTank(tank, surface))
    {
        throw CInputError(
            "The dimensions of the U-tube tank make no tank: length, leg width, duct height, fluid depth "
            "and specific gravity must be above 0");
    }
    const double bottom = hull.Z(tank.Height);
    const double middle = tank.DuctHeight / 2;
    const CLegIntegrals legs = IntegrateLeg(leg, bottom, middle, depth);
    const double area = surface * tank.Length;
    const double arm = leg.Y(depth);
    const double perArea = 2 * leg.Y(middle) / (tank.DuctHeight * tank.Length) + 2 * legs.PerArea;
    const double flowArm = 2 * legs.Arm - (bottom + middle) * 2 * leg.Y(middle);
    const double density = kFreshWater * tank.SpecificGravity;

    CTankModel model;
    model.Att = density * area * arm * area * arm * perArea;
    model.Ctt = 2 * density * kGravity * area * arm * arm;
    model.At4 = density * area * arm * flowArm;
    model.At2 = 2 * density * area * arm * arm;
    model.At6 = hull.X(tank.Station) * model.At2;
    model.ZeroResistance = tank.ZeroResistance;
    model.HighResistance = tank.HighResistance;
    model.BreakFrequency = tank.BreakFrequency;
    return model;
}

double CTankModel::NaturalFrequency() const
{
    return std::sqrt(Ctt / Att);
}

CFollower CTankModel::At(double w) const
{
    double resistance = HighResistance;
    if (std::abs(w) < BreakFrequency)
    {
        resistance = ZeroResistance + (HighResistance - ZeroResistance) * std::abs(w) / BreakFrequency;
    }
    const double damping = 2 * resistance * std::sqrt(Att * Ctt);
    CComplexVector6 coupling = CComplexVector6::Zero();
    coupling(1) = -w * w * At2;
    coupling(3) = -w * w * At4 + Ctt;
    coupling(5) = -w * w * At6;

    CFollower fluid;
    fluid.Force = -coupling;
    fluid.Row = -coupling.transpose() / Complex(Ctt - w * w * Att, w * damping);
    return fluid;
}

} // namespace oe7
