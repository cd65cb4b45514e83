#include "oe7/motion/CRollDamping.h"

#include "core/platform/NumberText.h"
#include "oe7/motion/EddyMaking.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
constexpr double kPi = std::numbers::pi;

/// The fullest section's area coefficient among those that are wider than half the ship.
double LargestCoefficient(const CHullCondition& hull)
{
    double largest = 0;
    for (const CSection& section : hull.Sections)
    {
        if (section.Beam > hull.LargestBeam / 2 && section.Draft > 0)
        {
            largest = std::max(largest, section.Area / (section.Beam * section.Draft));
        }
    }
    return largest;
}

/// Lift of the bare hull per speed after Ikeda (N s2).
double HullLiftPerSpeed(const CHullCondition& hull)
{
    const double coefficient = LargestCoefficient(hull);
    const double kappa = coefficient <= 0.92 ? 0 : coefficient <= 0.97 ? 0.1 : 0.3;
    const double slope =
        2 * kPi * hull.Draft / hull.Length + kappa * (4.1 * hull.LargestBeam / hull.Length - 0.045);
    const double lift = 0.3 * hull.Draft;
    const double roll = 0.5 * hull.Draft;
    const double axis = hull.Draft - hull.Kg;
    const double levers = 1 - 1.4 * axis / roll + 0.7 * axis * axis / (lift * roll);
    return std::max(0.5 * hull.Density * hull.Length * hull.Draft * slope * lift * roll * levers, 0.0);
}

bool IsKeelward(const CSurface& surface)
{
    return surface.Kind == ESurface::Rudder || surface.Kind == ESurface::Skeg;
}

std::string SurfaceName(const CSurface& surface)
{
    switch (surface.Kind)
    {
    case ESurface::Rudder:
        return "rudder";
    case ESurface::Skeg:
        return "skeg";
    case ESurface::Foils:
        return "foil-pair-" + IntegerText(surface.Pair + 1);
    default:
        return "fin-pair-" + IntegerText(surface.Pair + 1);
    }
}

/// A value of each appendage in the order of the columns: rudder and skeg, the keels, the other surfaces.
template <class Value, class OfSurface, class OfKeels>
std::vector<Value> InColumns(const std::vector<CSurface>& surfaces, std::size_t keelPairs,
                             const OfSurface& ofSurface, const OfKeels& ofKeels)
{
    std::vector<Value> values;
    const auto others = std::find_if_not(surfaces.begin(), surfaces.end(), IsKeelward);
    std::transform(surfaces.begin(), others, std::back_inserter(values), ofSurface);
    for (std::size_t n = 0; n < keelPairs; ++n)
    {
        values.push_back(ofKeels(n));
    }
    std::transform(others, surfaces.end(), std::back_inserter(values), ofSurface);
    return values;
}

std::vector<CSurface> WithoutSkeg(std::vector<CSurface> surfaces)
{
    std::erase_if(surfaces, [](const CSurface& surface) { return surface.Kind == ESurface::Skeg; });
    return surfaces;
}

std::string KeelName(std::size_t pair)
{
    return "keel-pair-" + IntegerText(static_cast<int>(pair) + 1);
}
} // namespace

CRollDamping::CRollDamping(const CInput& input, const CHullCondition& hull,
                           const std::vector<CSurface>& surfaces)
    : m_hull(hull),
      m_surfaces(surfaces),
      m_viscosity(input.Viscosity()),
      m_liftPerSpeed(input.EndTerms.Roll ? 0 : HullLiftPerSpeed(hull)),
      m_eddyIntegral(EddyIntegral(hull))
{
    for (const CKeelPair& pair : input.BilgeKeels)
    {
        m_keels.push_back(MakeBilgeKeels(pair, hull));
    }
}

CRollComponents CRollDamping::At(double speed, double w, double amplitude) const
{
    const double density = m_hull.Density;
    CRollComponents components;
    components.HullLift = m_liftPerSpeed * speed;
    components.Skin = Skin(speed, w, amplitude);
    components.Eddy = Eddy(speed, w, amplitude);
    for (const CBilgeKeelPair& keels : m_keels)
    {
        components.KeelLift += KeelLiftDamping(keels, density, speed);
        components.Keels += KeelRollDamping(keels, density, w, amplitude);
    }
    for (const CSurface& surface : m_surfaces)
    {
        components.SurfaceLift += LiftRollDamping(surface, density, speed);
        double& viscous = surface.Kind == ESurface::Skeg ? components.Eddy : components.Foils;
        viscous += ViscousRollDamping(surface, density, w, amplitude);
    }
    return components;
}

std::vector<double> CRollDamping::AppendageLift(double speed) const
{
    return InColumns<double>(
        m_surfaces, m_keels.size(),
        [&](const CSurface& surface) { return LiftRollDamping(surface, m_hull.Density, speed); },
        [&](std::size_t pair) { return KeelLiftDamping(m_keels[pair], m_hull.Density, speed); });
}

std::vector<double> CRollDamping::AppendageViscous(double w, double amplitude) const
{
    return InColumns<double>(
        WithoutSkeg(m_surfaces), m_keels.size(),
        [&](const CSurface& surface) { return ViscousRollDamping(surface, m_hull.Density, w, amplitude); },
        [&](std::size_t pair) { return KeelRollDamping(m_keels[pair], m_hull.Density, w, amplitude); });
}

std::vector<std::string> CRollDamping::LiftColumns() const
{
    return InColumns<std::string>(m_surfaces, m_keels.size(), SurfaceName, KeelName);
}

std::vector<std::string> CRollDamping::ViscousColumns() const
{
    return InColumns<std::string>(WithoutSkeg(m_surfaces), m_keels.size(), SurfaceName, KeelName);
}

/// Friction of the bare hull (Kato 1958).
double CRollDamping::Skin(double speed, double w, double amplitude) const
{
    const double axis = m_hull.Draft - m_hull.Kg;
    const double girths = (0.887 + 0.145 * m_hull.BlockCoefficient) * m_hull.WettedSurface / m_hull.Length;
    const double radius = std::max((girths - 2 * axis) / kPi, 0.05 * m_hull.LargestBeam);
    const double path = radius * amplitude;
    const double reynolds = std::max(3.22 * path * path * w / (2 * kPi * m_viscosity), 1.0);
    const double friction = 1.328 / std::sqrt(reynolds) + 0.014 * std::pow(reynolds, -0.114);
    return 4 / (3 * kPi) * m_hull.Density * m_hull.WettedSurface * radius * radius * radius * w * amplitude *
           friction * (1 + 4.1 * speed / (w * m_hull.Length));
}

double CRollDamping::Eddy(double speed, double w, double amplitude) const
{
    return 4 / (3 * kPi) * m_hull.Density * w * amplitude * m_eddyIntegral *
           EddyShareAtSpeed(m_hull.Length, speed, w);
}

} // namespace oe7
