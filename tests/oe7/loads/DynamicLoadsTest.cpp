#include "tests/oe7/loads/BoxShip.h"
#include "tests/oe7/loads/CShipInWaves.h"
#include "tests/oe7/support/ReferenceShips.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

using namespace oe7;

namespace
{
/// An amplitude and its phase in degrees.
struct CPolar
{
    double Amplitude;
    double Degrees;

    Complex Value() const { return std::polar(Amplitude, Degrees * std::numbers::pi / 180); }
};

void ExpectLoads(const CLoadVector& loads, const std::array<CPolar, kLoadComponents>& expected,
                 double tolerance)
{
    for (int component = 0; component < kLoadComponents; ++component)
    {
        const Complex wanted = expected[static_cast<std::size_t>(component)].Value();
        EXPECT_NEAR(std::abs(loads(component) - wanted), 0, tolerance * std::abs(wanted) + 1e-4)
            << "component " << component << ": " << loads(component) << ", wanted " << wanted;
    }
}

CInput WithCuts(CInput input, const std::vector<double>& stations)
{
    input.LoadStations = stations;
    return input;
}

const CShipInWaves& Barge()
{
    static const CShipInWaves ship(WithCuts(ReferenceBarge(), {1, 2, 3, 4}));
    return ship;
}

/// Masses spread as the buoyancy of the stations' slices.
CInput WigleyInput()
{
    CInput input = WithCuts(FineWigley(60), {10});
    input.Loads = true;
    input.PitchRadius = 27.416;
    CRunLog log;
    const CHullCondition hull = FindCondition(input, log);
    const CMassModel none(input, hull, {}, log);
    for (const double buoyancy : StillWater(hull, none).Buoyancy)
    {
        input.Masses.Masses.push_back(buoyancy / kGravity);
    }
    return input;
}

const CShipInWaves& Wigley()
{
    static const CShipInWaves ship(WigleyInput());
    return ship;
}

/// Frequency of a wave by its length.
double Frequency(double waveLength)
{
    return std::sqrt(2 * std::numbers::pi * kGravity / waveLength);
}
} // namespace

TEST(DynamicLoads, AtTheBowAreTheInertiaAndWeightOfTheOverhangAlone)
{
    constexpr double mass = 6, x = 53, z = 3, x0 = 50, w2 = 0.64;
    CInput input = WithCuts(BoxInput(), {0});
    input.Masses.Bow = {.Mass = mass, .Kg = 4 + z, .RollRadius = 2, .Distance = x - x0, .PitchRadius = 1};
    const CBoxShip box(input);
    const std::vector<CSurface> none;
    const CDynamicLoads loads(input, box.Hull, box.Masses, none);
    const Eigen::VectorXcd ones = Eigen::VectorXcd::Ones(box.Hull.StationCount());
    const CWave wave(0.7, 180);
    const CStripCoefficients strips{0.8, ones, ones, ones, ones};
    const CSectionalForces sections{0.8, ones, ones, ones, ones, ones, ones, ones};
    const CLoadTransfer bow =
        loads.At(0, {5, 0.8, &wave, &strips, &sections, nullptr, nullptr}, loads.Phases(0)[0]);

    // A mass of which every point moves with the ship; its weight rolls and pitches it further.
    constexpr double m2 = mass * (x * x + 1), weight = mass * kGravity * z;
    Eigen::Matrix<double, kLoadComponents, kModes> expected;
    expected << 0, mass, 0, -mass * z, 0, mass * x, 0, 0, //
        0, 0, mass, 0, -mass * x, 0, 0, 0,                //
        0, -mass * z, 0, mass * (4 + z * z) + weight / w2, 0, -mass * x * z, 0, 0, 0, 0, -mass * (x - x0), 0,
        m2 - x0 * mass * x + weight / w2, 0, 0, 0, //
        0, mass * (x - x0), 0, -mass * z * (x - x0), 0, m2 - x0 * mass * x, 0, 0;
    EXPECT_LT((bow.PerMotion - w2 * expected).norm(), 1e-9 * expected.norm());
    EXPECT_LT(bow.Wave.norm(), 1e-9);
    EXPECT_LT(std::abs(bow.RollDamping), 1e-9);
}

TEST(DynamicLoads, ReachTheBargesInHeadSeas)
{
    const auto loads = [](double knots, double frequency)
    { return Barge().RelativeLoads({.Knots = knots, .Direction = 180, .Frequency = frequency})[1]; };
    ExpectLoads(loads(0, 0.5), {{{0, 0}, {5.1800, 111.3}, {0, 0}, {10.1678, 18.9}, {0, 0}}}, 0.005);
    ExpectLoads(loads(0, 0.7), {{{0, 0}, {24.6106, 120.7}, {0, 0}, {21.6507, 28.5}, {0, 0}}}, 0.005);
    ExpectLoads(loads(8, 0.5), {{{0, 0}, {11.2558, 94.1}, {0, 0}, {12.1308, 28.7}, {0, 0}}}, 0.005);
    ExpectLoads(loads(8, 0.7), {{{0, 0}, {40.1482, 93.9}, {0, 0}, {27.4059, 31.7}, {0, 0}}}, 0.005);
}

TEST(DynamicLoads, ReachTheBargesInBowSeas)
{
    const auto resting = [](double frequency) {
        return Barge().RelativeLoads({0, 135, frequency, 2.7202, 0.757})[0];
    };
    ExpectLoads(resting(0.5),
                {{{3.7008, -93.8}, {16.9723, -158.5}, {0.5651, 12.1}, {2.9384, 25.6}, {0.6894, -89.9}}},
                0.005);
    ExpectLoads(resting(0.7),
                {{{21.5128, -100.9}, {44.8265, -144.4}, {1.4498, 24.3}, {7.4317, 44.1}, {3.9308, -93.1}}},
                0.005);
    const auto underway = [](double frequency) {
        return Barge().RelativeLoads({8, 135, frequency, 4.7096, 0.816})[0];
    };
    ExpectLoads(underway(0.5),
                {{{3.7184, -99.2}, {19.0124, -154.4}, {0.5516, 15.2}, {4.4953, 44.3}, {0.6639, -102.2}}},
                0.005);
    ExpectLoads(underway(0.7),
                {{{19.9887, -110.7}, {52.1253, -145.6}, {1.8637, 31.9}, {14.2386, 55.1}, {3.6806, -114.1}}},
                0.005);
}

TEST(DynamicLoads, BendTheWigleyHullAmidshipsAsFineOffsetsDo)
{
    const auto bending = [](double ratio)
    { return std::abs(Wigley().Loads({.Direction = 180, .Frequency = Frequency(120 * ratio)})[0](3)) / 1e6; };
    EXPECT_NEAR(bending(0.50), 11.76, 0.005 * 11.76);
    EXPECT_NEAR(bending(0.75), 31.67, 0.005 * 31.67);
    EXPECT_NEAR(bending(1.00), 30.81, 0.005 * 30.81);
    EXPECT_NEAR(bending(1.50), 20.37, 0.005 * 20.37);
    EXPECT_NEAR(bending(2.00), 13.30, 0.005 * 13.30);
}

TEST(DynamicLoads, TwistTheWigleyHullAmidshipsAsFineOffsetsDo)
{
    const CLoadVector loads =
        Wigley().Loads({.Direction = 135, .Frequency = Frequency(120 * 0.625)})[0] / 1e6;
    EXPECT_NEAR(std::abs(loads(0)), 0.678, 0.005 * 0.678);
    EXPECT_NEAR(std::abs(loads(2)), 1.750, 0.005 * 1.750);
    EXPECT_NEAR(std::abs(loads(4)), 38.43, 0.005 * 38.43);
}

TEST(DynamicLoads, ReachTheReferenceShipsAmidships)
{
    const CShipInWaves ship(WithCuts(ReferenceShip(), {5}));
    const auto loads = [&](double frequency) {
        return ship.RelativeLoads({18, 135, frequency, 2.5526, 0.835})[0];
    };
    ExpectLoads(loads(0.6),
                {{{1.8546, -88.2}, {10.3742, -176.8}, {0.3822, 50.0}, {9.9152, 18.9}, {2.0163, -112.0}}},
                0.005);
    ExpectLoads(loads(0.8),
                {{{5.9396, 177.3}, {32.7679, 158.0}, {0.4509, -40.7}, {21.4306, 11.1}, {6.9666, -111.2}}},
                0.005);
}

TEST(DynamicLoads, VanishAtTheBargesAftEnd)
{
    for (const CMeeting& meeting : {CMeeting{0, 135, 0.6, 3, 0.8}, CMeeting{8, 135, 0.7, 3, 0.8},
                                    CMeeting{8, 60, 0.5, 3, 0.8}, CMeeting{8, 20, 0.9, 3, 0.8}})
    {
        const std::vector<CLoadVector> loads = Barge().Loads(meeting);
        for (int component = 0; component < kLoadComponents; ++component)
        {
            double largest = 0;
            for (const CLoadVector& load : loads)
            {
                largest = std::max(largest, std::abs(load(component)));
            }
            EXPECT_LT(std::abs(loads.back()(component)), 0.005 * largest)
                << "component " << component << ", heading " << meeting.Direction << ", " << meeting.Knots
                << " kn";
        }
    }
}
