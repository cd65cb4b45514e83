#include "oe7/motion/CSurfaces.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oe7
{

namespace
{
constexpr double kPi = std::numbers::pi;
constexpr double kDragCoefficient = 1.17; ///< of a flat plate across the flow
constexpr double kSlipstreamFactor = 1.2; ///< inflow behind the propeller to ship speed

/// Cosine of quarters * 90 degrees + rest radians.
double CosineOfQuarters(int quarters, double rest)
{
    switch (quarters & 3)
    {
    case 0:
        return std::cos(rest);
    case 1:
        return 0 - std::sin(rest);
    case 2:
        return -std::cos(rest);
    default:
        return std::sin(rest);
    }
}

double CosineOfShifted(double degrees, int quarters)
{
    int whole = 0;
    const double rest = std::remquo(degrees, 90.0, &whole);
    return CosineOfQuarters(whole + quarters, rest * kPi / 180);
}

CVector6 ModeVector(const Eigen::Vector3d& place, const Eigen::Vector3d& normal)
{
    CVector6 mode;
    mode << 0, normal.y(), normal.z(), place.y() * normal.z() - place.z() * normal.y(),
        -place.x() * normal.z(), place.x() * normal.y();
    return mode;
}

/// Whicker and Fehlner 1958, of a blade whose root is closed by the hull.
double ComputedLiftSlope(double span, double area)
{
    const double aspect = 2 * span * span / area;
    return 1.8 * kPi * aspect / (std::sqrt(aspect * aspect + 4) + 1.8);
}

/// The blade of the port side (side 1) or its mirror image (side -1).
CBlade FoilBlade(const CFoil& foil, const CHullCondition& hull, double side)
{
    const double chords = foil.RootChord + foil.TipChord;
    const double lever = chords > 0 ? (foil.RootChord + 2 * foil.TipChord) / (3 * chords) * foil.Span : 0;
    const double cosine = CosineOfDegrees(foil.Dihedral);
    const double sine = SineOfDegrees(foil.Dihedral);

    CBlade blade;
    blade.Centre = {hull.X(foil.Station), side * (foil.Y + cosine * lever), hull.Z(foil.Z) + sine * lever};
    blade.Normal = {0, -side * sine, cosine};
    blade.Area = 0.5 * chords * foil.Span;
    if (blade.Area > 0)
    {
        blade.LiftSlope = foil.LiftSlope > 0 ? foil.LiftSlope : ComputedLiftSlope(foil.Span, blade.Area);
    }
    blade.AddedMass = hull.Density * kPi / 4 * (chords / 2) * (chords / 2) * foil.Span;
    blade.Mode = ModeVector(blade.Centre, blade.Normal);
    return blade;
}

CSurface Pair(ESurface kind, int pair, const CFoil& foil, const CHullCondition& hull)
{
    return {kind, pair, {FoilBlade(foil, hull, 1), FoilBlade(foil, hull, -1)}};
}

CSurface RudderSurface(const CFoil& foil, const CHullCondition& hull)
{
    CSurface rudder = Pair(ESurface::Rudder, 0, foil, hull);
    if (foil.Y == 0)
    {
        rudder.Blades.pop_back();
    }
    for (CBlade& blade : rudder.Blades)
    {
        blade.FlowFactor = foil.Slipstream ? kSlipstreamFactor : 1;
    }
    return rudder;
}

/// A low wing along the keel.
CSurface SkegSurface(const CSkeg& skeg, const CHullCondition& hull)
{
    CBlade blade;
    const double x = hull.X(skeg.AftStation) + skeg.Length / 2;
    const CSection& section = hull.Sections[static_cast<std::size_t>(hull.NearestStation(x))];
    blade.Centre = {x, 0, hull.Z(section.Waterline - section.Draft) - skeg.Breadth / 2};
    blade.Normal = {0, 1, 0};
    blade.Area = skeg.Breadth * skeg.Length;
    blade.LiftSlope = skeg.Length > 0 ? kPi * skeg.Breadth / skeg.Length : 0;
    blade.AddedMass = hull.Density * kPi / 2 * skeg.Breadth * skeg.Breadth * skeg.Length;
    blade.Mode = ModeVector(blade.Centre, blade.Normal);
    return {ESurface::Skeg, 0, {blade}};
}
} // namespace

double CosineOfDegrees(double degrees)
{
    return CosineOfShifted(degrees, 0);
}

double SineOfDegrees(double degrees)
{
    return CosineOfShifted(degrees, -1);
}

double CBlade::LiftDamping(double density, double speed) const
{
    return 0.5 * density * speed * FlowFactor * Area * LiftSlope;
}

double CBlade::LiftForce(double density, double speed) const
{
    return LiftDamping(density, speed) * speed * FlowFactor;
}

std::vector<CSurface> FindSurfaces(const CInput& input, const CHullCondition& hull)
{
    std::vector<CSurface> surfaces;
    const auto addPairs = [&](ESurface kind, const std::vector<CFoil>& foils)
    {
        for (std::size_t i = 0; i < foils.size(); ++i)
        {
            surfaces.push_back(Pair(kind, static_cast<int>(i), foils[i], hull));
        }
    };
    if (input.Rudder)
    {
        surfaces.push_back(RudderSurface(input.Rudder->Blade, hull));
    }
    if (input.Skeg)
    {
        surfaces.push_back(SkegSurface(*input.Skeg, hull));
    }
    addPairs(ESurface::Foils, input.FoilPairs);
    if (input.Fins)
    {
        addPairs(ESurface::Fins, input.Fins->Pairs);
    }
    return surfaces;
}

CSurfaceForces SurfaceForces(const std::vector<CSurface>& surfaces, double density, double speed)
{
    CSurfaceForces forces;
    for (const CSurface& surface : surfaces)
    {
        for (const CBlade& blade : surface.Blades)
        {
            const double damping = blade.LiftDamping(density, speed);
            const CMatrix6 square = blade.Mode * blade.Mode.transpose();
            forces.AddedMass += blade.AddedMass * square;
            forces.Damping += damping * square;
            forces.Stiffness.col(4) += damping * speed * blade.Normal.z() * blade.Mode;
            forces.Stiffness.col(5) -= damping * speed * blade.Normal.y() * blade.Mode;
        }
    }
    return forces;
}

CWave::CWave(double frequency, double direction)
    : Frequency(frequency),
      WaveNumber(frequency * frequency / kGravity),
      Cosine(CosineOfDegrees(direction)),
      Sine(SineOfDegrees(direction))
{
}

Complex WaveNormalVelocity(const CBlade& blade, const CWave& wave, double zG)
{
    const double depth = std::min(blade.Centre.z() + zG, 0.0);
    const double phase = -wave.WaveNumber * (blade.Centre.x() * wave.Cosine + blade.Centre.y() * wave.Sine);
    const Complex velocity = wave.Frequency * std::polar(std::exp(wave.WaveNumber * depth), phase);
    return Complex(blade.Normal.y() * wave.Sine, blade.Normal.z()) * velocity;
}

CComplexVector6 SurfaceWaveForce(const std::vector<CSurface>& surfaces, const CWave& wave, double zG,
                                 double density, double speed)
{
    CComplexVector6 force = CComplexVector6::Zero();
    for (const CSurface& surface : surfaces)
    {
        for (const CBlade& blade : surface.Blades)
        {
            const Complex perVelocity(blade.LiftDamping(density, speed), wave.Frequency * blade.AddedMass);
            force += perVelocity * WaveNormalVelocity(blade, wave, zG) * blade.Mode;
        }
    }
    return force;
}

double LiftRollDamping(const CSurface& surface, double density, double speed)
{
    double sum = 0;
    for (const CBlade& blade : surface.Blades)
    {
        sum += blade.LiftDamping(density, speed) * blade.Arm() * blade.Arm();
    }
    return sum;
}

double ViscousRollDamping(const CSurface& surface, double density, double w, double amplitude)
{
    double sum = 0;
    for (const CBlade& blade : surface.Blades)
    {
        sum += blade.Area * std::pow(std::abs(blade.Arm()), 3);
    }
    return 8 / (3 * kPi) * w * amplitude * 0.5 * density * kDragCoefficient * sum;
}

} // namespace oe7
