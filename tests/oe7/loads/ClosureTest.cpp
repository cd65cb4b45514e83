// At the aft end the part forward of the cut is the whole ship: there the loads are what is left of her
// equations of motion, nothing. That holds whatever the sections' coefficients are, so here they are made up.
#include "tests/oe7/loads/BoxShip.h"
#include "tests/oe7/loads/SolvedLoads.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace oe7;

namespace
{
constexpr int kStations = 5;
constexpr double kRollDamping = 3e7; ///< N m s

/// Breadths that grow evenly from the bow to the stern, so that the moments of area and their parabolas
/// agree.
CInput TaperedInput()
{
    CInput input = BoxInput();
    for (int station = 0; station < kStations; ++station)
    {
        const double half = 6.0 + station;
        input.Offsets[static_cast<std::size_t>(station)] = {{0, half / 2, half, half, half},
                                                            {0, 0, 0, 4.5, 9}};
    }
    input.EndTerms = {.Vertical = true, .Sway = true, .Roll = true};
    input.LoadStations = {0.5, 1, 2, 2.5, 3, 3.5, 4};
    return input;
}

/// Two overhangs bring the masses to the displacement, with their centre at G.
CMassDistribution BalancedMasses(const CHullCondition& hull)
{
    CMassDistribution masses;
    const double slice = hull.Mass / 8;
    masses.Masses = {0.3 * slice, 1.2 * slice, 1.9 * slice, 1.7 * slice, 0.9 * slice};
    masses.Bow = {.Mass = 0, .Kg = 0, .RollRadius = 0, .Distance = 3, .PitchRadius = 1};
    masses.Stern = {.Mass = 0, .Kg = 0, .RollRadius = 0, .Distance = 2, .PitchRadius = 1};
    CInput input;
    input.Masses = masses;
    CRunLog log;
    const CMassMoments given = CMassModel(input, hull, {}, log).All();
    const double bow = hull.Rule.Bow() + 3, stern = hull.Rule.Aft() - 2;
    masses.Bow.Mass = (-given.M1 - stern * (hull.Mass - given.M0)) / (bow - stern);
    masses.Stern.Mass = hull.Mass - given.M0 - masses.Bow.Mass;
    return masses;
}

CFoil Foil(double station, double y, double dihedral)
{
    CFoil foil;
    foil.Station = station;
    foil.Y = y;
    foil.Z = 1;
    foil.Span = 3;
    foil.RootChord = 2.5;
    foil.TipChord = 1.5;
    foil.Dihedral = dihedral;
    return foil;
}

/// Rudder behind the last station, skeg and foils.
void AddSurfaces(CInput& input)
{
    CRudder rudder;
    rudder.Blade = Foil(4.2, 0, -90);
    rudder.Blade.Slipstream = true;
    rudder.Gains.Fixed.Roll = {0, 2, 0.5};
    rudder.Gains.Fixed.Yaw = {0, 3, 1};
    rudder.Gains.Fixed.Lateral = {0, 0.02, 0.01};
    rudder.Servo = {3, 0.7};
    input.Rudder = rudder;
    input.Skeg = CSkeg{3.5, 1.5, 10};
    input.FoilPairs = {Foil(3.2, 4, -60)};
}

void AddFins(CInput& input)
{
    CFins fins;
    fins.Pairs = {Foil(1.5, 6, -35), Foil(2.6, 7, -35)};
    fins.Gains.Fixed.Roll = {0, 3, 0.5};
    fins.Gains.Fixed.Yaw = {0, 1, 0.2};
    input.Fins = fins;
}

void AddTank(CInput& input)
{
    CUTubeTank tank;
    tank.Length = 5;
    tank.DuctWidth = 8;
    tank.LegWidth = 2.4;
    tank.FluidDepth = 1.6;
    tank.DuctHeight = 0.62;
    tank.Height = 6;
    tank.Station = 1.7;
    tank.SpecificGravity = 1;
    tank.HighResistance = 0.1;
    input.Tank = tank;
}

Eigen::VectorXcd Along(Complex first, Complex step)
{
    Eigen::VectorXcd values(kStations);
    for (int station = 0; station < kStations; ++station)
    {
        values(station) = first + step * static_cast<double>(station);
    }
    return values;
}

CStripCoefficients Strips(double w)
{
    const auto z = [w](double a, double b, double growth) {
        return Along({b, w * a}, {growth * b, -growth * w * a});
    };
    return {w, z(8e4, 3e4, 0.1), z(-5e4, 2e4, 0.2), z(2e5, 9e4, 0.15), z(3e6, 4e5, 0.05)};
}

Eigen::VectorXcd Uneven(double size, double phase)
{
    Eigen::VectorXcd values(kStations);
    for (int station = 0; station < kStations; ++station)
    {
        values(station) = std::polar(size * (1 + 0.3 * ((station * 3) % kStations)), phase + 0.4 * station);
    }
    return values;
}

CSectionalForces Sections(double w)
{
    return {w,
            Uneven(2e4, 1.5),
            Uneven(3e4, 1.2),
            Uneven(1e5, 0.1),
            Uneven(5e4, -1),
            Uneven(2e4, 2.2),
            Uneven(6e4, -2),
            Uneven(3e4, 0.7)};
}

/// The loads at every cut of a ship that moves as her equations tell.
std::vector<CLoadVector> Loads(const CInput& shape, double knots, double direction, double frequency)
{
    CRunLog log;
    CInput input = shape;
    const CHullCondition hull = FindCondition(input, log);
    input.Masses = BalancedMasses(hull);
    CInertia inertia{.I44 = hull.Mass * 49};
    const CMassModel masses(input, hull, inertia, log);
    inertia.I55 = masses.All().M2;
    const std::vector<CSurface> surfaces = FindSurfaces(input, hull);
    const CDynamicLoads loads(input, hull, masses, surfaces);

    const CWave wave(frequency, direction);
    const double w = wave.EncounterFrequency(knots * kKnot);
    return SolvedLoads({input, hull, inertia, surfaces, loads},
                       {knots, direction, wave, Strips(w), Sections(w)}, {.Eddy = kRollDamping});
}

void ExpectClosed(const std::vector<CLoadVector>& loads)
{
    for (int component = 0; component < kLoadComponents; ++component)
    {
        double largest = 0;
        for (const CLoadVector& load : loads)
        {
            largest = std::max(largest, std::abs(load(component)));
        }
        EXPECT_GT(largest, 1) << component;
        EXPECT_LT(std::abs(loads.back()(component)), 1e-9 * largest) << component;
    }
}
} // namespace

TEST(Closure, HoldsAtRest)
{
    ExpectClosed(Loads(TaperedInput(), 0, 135, 0.7));
}

TEST(Closure, HoldsUnderway)
{
    ExpectClosed(Loads(TaperedInput(), 12, 135, 0.7));
}

TEST(Closure, HoldsInWavesThatTheShipOvertakes)
{
    ExpectClosed(Loads(TaperedInput(), 25, 30, 1.2));
}

TEST(Closure, HoldsWithAGivenGm)
{
    CInput input = TaperedInput();
    input.Gm = 1.3;
    ExpectClosed(Loads(input, 12, 60, 0.8));
}

TEST(Closure, HoldsWithRudderSkegAndFoils)
{
    CInput input = TaperedInput();
    AddSurfaces(input);
    ExpectClosed(Loads(input, 12, 135, 0.7));
}

TEST(Closure, HoldsWithFins)
{
    CInput input = TaperedInput();
    AddSurfaces(input);
    AddFins(input);
    ExpectClosed(Loads(input, 18, 60, 0.8));
}

TEST(Closure, HoldsWithATank)
{
    CInput input = TaperedInput();
    AddTank(input);
    ExpectClosed(Loads(input, 6, 110, 0.6));
}
