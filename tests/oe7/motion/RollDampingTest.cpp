#include "oe7/motion/CRollDamping.h"

#include "oe7/motion/EddyMaking.h"
#include "tests/oe7/support/ReferenceShips.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace oe7
{
namespace
{
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

constexpr double kDegree = std::numbers::pi / 180;

/// A ship with its damping, and what makes a fraction of critical damping of it.
class CDampedShip
{
public:
    explicit CDampedShip(CInput input, double rollFrequency)
        : m_input(std::move(input)),
          m_hull(Condition(m_input)),
          m_surfaces(FindSurfaces(m_input, m_hull)),
          m_damping(m_input, m_hull, m_surfaces),
          m_perDamping(rollFrequency / (2 * m_hull.C44))
    {
    }
    CDampedShip(const CDampedShip&) = delete;
    CDampedShip& operator=(const CDampedShip&) = delete;

    double Fraction(double damping) const { return damping * m_perDamping; }
    std::vector<double> Fractions(std::vector<double> damping) const
    {
        for (double& value : damping)
        {
            value = Fraction(value);
        }
        return damping;
    }
    const CRollDamping& Damping() const { return m_damping; }
    const CHullCondition& Hull() const { return m_hull; }

private:
    static CHullCondition Condition(const CInput& input)
    {
        CRunLog log;
        return FindCondition(input, log);
    }

    CInput m_input;
    CHullCondition m_hull;
    std::vector<CSurface> m_surfaces;
    CRollDamping m_damping;
    double m_perDamping;
};

constexpr double kShipFrequency = 0.596798; ///< rad/s, of roll
constexpr double kBargeFrequency = 0.837223;
constexpr double kShipSpeed = 18 * kKnot;
constexpr double kShipW = 0.67159; ///< rad/s
constexpr double kShipAngle = 3.54539 * kDegree;

TEST(RollDamping, ShipHasItsKnownComponents)
{
    const CDampedShip ship(ReferenceShip(), kShipFrequency);
    const CRollComponents components = ship.Damping().At(kShipSpeed, kShipW, kShipAngle);
    EXPECT_NEAR(ship.Fraction(components.Lift()), 0.07864, 6e-6);
    EXPECT_NEAR(ship.Fraction(components.Eddy), 0.00047, 6e-6);
    EXPECT_NEAR(ship.Fraction(components.Skin), 0.00061, 6e-6);
    EXPECT_NEAR(ship.Fraction(components.Keels), 0.02084, 6e-6);
    EXPECT_NEAR(ship.Fraction(components.Foils), 0.00076, 6e-6);
    EXPECT_EQ(components.HullLift, 0);
}

TEST(RollDamping, ShipsAppendagesHaveTheirKnownShares)
{
    const CDampedShip ship(ReferenceShip(), kShipFrequency);
    const CRollDamping& damping = ship.Damping();
    EXPECT_THAT(damping.LiftColumns(),
                ElementsAre("rudder", "skeg", "keel-pair-1", "foil-pair-1", "fin-pair-1"));
    EXPECT_THAT(ship.Fractions(damping.AppendageLift(kShipSpeed)),
                Pointwise(DoubleNear(1e-6), {0.013840, 0.004251, 0.003942, 0.008876, 0.047734}));
    EXPECT_THAT(damping.ViscousColumns(), ElementsAre("rudder", "keel-pair-1", "foil-pair-1", "fin-pair-1"));
    EXPECT_THAT(ship.Fractions(damping.AppendageViscous(kShipW, kShipAngle)),
                Pointwise(DoubleNear(1e-6), {0.000067, 0.020839, 0.000052, 0.000642}));
}

TEST(RollDamping, BargeAtRestHasItsKnownComponents)
{
    const CDampedShip barge(ReferenceBarge(), kBargeFrequency);
    const CRollComponents components = barge.Damping().At(0, 0.79881, 7.53818 * kDegree);
    EXPECT_NEAR(barge.Fraction(components.Eddy), 0.06113, 6e-6);
    EXPECT_NEAR(barge.Fraction(components.Skin), 0.00043, 6e-6);
    EXPECT_EQ(components.Lift(), 0);
    EXPECT_EQ(components.Keels, 0);
    EXPECT_EQ(components.Foils, 0);
}

TEST(RollDamping, SpeedTakesEddiesAwayAndAddsFriction)
{
    const CDampedShip barge(ReferenceBarge(), kBargeFrequency);
    const CRollComponents components = barge.Damping().At(8 * kKnot, 0.80834, 9.28456 * kDegree);
    EXPECT_NEAR(barge.Fraction(components.Eddy), 0.02908, 6e-6);
    EXPECT_NEAR(barge.Fraction(components.Skin), 0.00059, 6e-6);
}

TEST(RollDamping, HullLiftIsLeftOutWhereTheEndTermOfRollHoldsIt)
{
    CInput input = ReferenceBarge();
    EXPECT_EQ(CDampedShip(input, 1).Damping().At(5, 1, 0.1).HullLift, 0);
    input.EndTerms.Roll = false;
    // k_N = 2 pi 5/100 + 0.3 (4.1 20/100 - 0.045) of the full box; levers 1.5 and 2.5, the axis 1 m below the
    // water.
    const double slope = 0.314159265 + 0.2325;
    const double expected = 0.5 * 1025 * 5 * 100 * 5 * slope * 1.5 * 2.5 * (1 - 1.4 / 2.5 + 0.7 / 3.75);
    EXPECT_NEAR(CDampedShip(input, 1).Damping().At(5, 1, 0.1).HullLift, expected, 1e-6 * expected);
    EXPECT_EQ(CDampedShip(input, 1).Damping().At(0, 1, 0.1).HullLift, 0);
}

TEST(RollDamping, HullLiftIsNeverNegative)
{
    CInput input = ReferenceBarge();
    input.EndTerms.Roll = false;
    // Between both axes of the lift it would drive the roll.
    input.Kg = 3.3;
    EXPECT_GE(CDampedShip(input, 1).Damping().At(5, 1, 0.1).HullLift, 0);
}

TEST(RollDamping, TheEquationTakesAllButTheSurfacesLift)
{
    const CDampedShip ship(ReferenceShip(), kShipFrequency);
    const CRollComponents components = ship.Damping().At(kShipSpeed, kShipW, kShipAngle);
    EXPECT_NEAR(ship.Fraction(components.InEquation()), 0.003942 + 0.00047 + 0.00061 + 0.02084 + 0.00076,
                2e-5);
    EXPECT_NEAR(ship.Fraction(components.OfHull()), 0.003942 + 0.00047 + 0.00061 + 0.02084, 2e-5);
    EXPECT_NEAR(ship.Fraction(components.SurfaceLift), 0.013840 + 0.004251 + 0.008876 + 0.047734, 2e-6);
}

TEST(RollDamping, EddiesGrowWithTheRollVelocity)
{
    const CDampedShip barge(ReferenceBarge(), kBargeFrequency);
    const double once = barge.Damping().At(0, 0.5, 0.1).Eddy;
    EXPECT_NEAR(barge.Damping().At(0, 1, 0.1).Eddy, 2 * once, 1e-9 * once);
    EXPECT_NEAR(barge.Damping().At(0, 0.5, 0.3).Eddy, 3 * once, 1e-9 * once);
}

TEST(RollDamping, OnlyTheBroadestPieceOfAKeelLifts)
{
    CInput input = ReferenceBarge();
    input.BilgeKeels = {{{1, 2, 9, 1, 0.4}, {2, 3, 10, 0, 0.5}, {3, 3.5, 12, 0, 0.5}}};
    const CDampedShip barge(input, kBargeFrequency);
    // r^2 = 10^2 + 4^2
    EXPECT_NEAR(barge.Damping().At(4, 1, 0.1).KeelLift, std::numbers::pi * 1025 * 4 * 0.25 * 116, 1);
    EXPECT_THAT(barge.Damping().AppendageLift(4), ElementsAre(barge.Damping().At(4, 1, 0.1).KeelLift));
}

TEST(RollDamping, AKeelWithoutAnExtentDampsNothing)
{
    CInput input = ReferenceBarge();
    input.BilgeKeels = {{{1, 1, 9, 1, 0.4}, {2, 3, 9, 1, 0}, {2, 3, 0, 4, 0.5}}, {}};
    const CDampedShip barge(input, kBargeFrequency);
    const CRollComponents components = barge.Damping().At(4, 1, 0.1);
    EXPECT_EQ(components.Keels, 0);
    EXPECT_EQ(components.KeelLift, 0);
    EXPECT_THAT(barge.Damping().ViscousColumns(), ElementsAre("keel-pair-1", "keel-pair-2"));
}

TEST(RollDamping, AKeelAtADryStationStandsOnASectionOfTheShipsBeamAndDraft)
{
    CInput input = ReferenceBarge();
    input.BilgeKeels = {{{0, 0.2, 9, 1, 0.4}}};
    const auto keels = [&](const COffsets& station)
    {
        input.Offsets[0] = station;
        return CDampedShip(input, kBargeFrequency).Damping().At(0, 1, 0.1).Keels;
    };
    // 20 m wide, 5 m deep, filled to nine tenths.
    const double expected = keels({{0, 8, 10, 10}, {0, 0, 5, 9}});
    EXPECT_GT(expected, 0);
    EXPECT_NEAR(keels({{0, 1}, {8, 9}}), expected, 1e-9 * expected);
}

TEST(RollDamping, ColumnsFollowTheAppendagesThatAreThere)
{
    CInput input = ReferenceShip();
    input.Skeg.reset();
    input.Rudder.reset();
    input.FoilPairs.push_back(input.FoilPairs[0]);
    input.Fins->Pairs.push_back(input.Fins->Pairs[0]);
    const CDampedShip ship(input, kShipFrequency);
    const auto names = ElementsAre("keel-pair-1", "foil-pair-1", "foil-pair-2", "fin-pair-1", "fin-pair-2");
    EXPECT_THAT(ship.Damping().LiftColumns(), names);
    EXPECT_THAT(ship.Damping().ViscousColumns(), names);
    EXPECT_THAT(CDampedShip(ReferenceBarge(), 1).Damping().LiftColumns(), IsEmpty());
}

TEST(RollDamping, ColumnsAddUpToTheComponents)
{
    const CDampedShip ship(ReferenceShip(), kShipFrequency);
    const CRollComponents components = ship.Damping().At(kShipSpeed, kShipW, kShipAngle);
    double lift = 0;
    for (const double value : ship.Damping().AppendageLift(kShipSpeed))
    {
        lift += value;
    }
    double viscous = 0;
    for (const double value : ship.Damping().AppendageViscous(kShipW, kShipAngle))
    {
        viscous += value;
    }
    EXPECT_NEAR(lift, components.Lift(), 1e-9 * lift);
    EXPECT_NEAR(viscous, components.Keels + components.Foils, 1e-9 * viscous);
}

TEST(RollDamping, ExtremeSectionsDampFinitely)
{
    const std::vector<COffsets> sections = {
        {{0, 0.05, 10}, {0, 4.9, 9}},     // a stem
        {{0, 10, 10}, {4.99, 4.99, 9}},   // as flat as a board
        {{0, 10, 0.1, 10}, {0, 0, 4, 9}}, // a mushroom
        {{0, 3, 0}, {0, 1, 2}},           // a bulb under the water
        {{0, 10, 10}, {0, 0, 9}},
    };
    CInput input = ReferenceBarge();
    input.EndTerms.Roll = false;
    input.BilgeKeels = {{{0, 1, 9, 1, 0.4}, {1, 2, 9, 1, 0.4}, {2, 3, 9, 1, 0.4}, {3, 4, 9, 1, 0.4}}};
    for (const double kg : {0.0, 4.0, 30.0})
    {
        input.Kg = kg;
        input.Offsets = sections;
        const CDampedShip ship(input, kBargeFrequency);
        for (const double amplitude : {0.0, 1e-4, 1.0})
        {
            const CRollComponents components = ship.Damping().At(30, 1e-3, amplitude);
            EXPECT_TRUE(std::isfinite(components.InEquation())) << "KG " << kg;
            EXPECT_GE(components.Eddy, 0);
            EXPECT_GE(components.Keels, 0);
            EXPECT_GE(components.Skin, 0);
        }
    }
}

TEST(RollDamping, BilgeRadiusIsBoundedByDraftAndHalfBeam)
{
    EXPECT_NEAR(BilgeRadius(1.25, 0.95, 2), 2 * 2 * std::sqrt(1.25 * 0.05 / (4 - std::numbers::pi)), 1e-12);
    EXPECT_EQ(BilgeRadius(2, 0.3, 3), 3);
    EXPECT_EQ(BilgeRadius(0.5, 0.3, 3), 1.5);
    EXPECT_EQ(BilgeRadius(1, 1, 3), 0);
    EXPECT_EQ(BilgeRadius(1, 1.1, 3), 0);
}
} // namespace
} // namespace oe7
