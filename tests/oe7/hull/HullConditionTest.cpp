#include "oe7/hull/CHullCondition.h"

#include "tests/oe7/support/ReferenceShips.h"

#include <gmock/gmock.h>

#include <cmath>

namespace oe7
{
namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

CHullCondition Condition(const CInput& input)
{
    CRunLog log;
    return FindCondition(input, log);
}

CInput Box(int stations)
{
    CInput input = ReferenceBarge();
    input.StationCount = stations;
    input.Offsets.assign(static_cast<std::size_t>(stations), input.Offsets[0]);
    return input;
}

class BoxOfStations : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(HullCondition, BoxOfStations, testing::Values(2, 3, 4, 5, 6, 11, 21, 60));

TEST_P(BoxOfStations, HasTheHydrostaticsOfABox)
{
    const CHullCondition hull = Condition(Box(GetParam()));
    EXPECT_NEAR(hull.Volume, 10000, 1e-5);
    EXPECT_NEAR(hull.Mass, 10250e3, 1e-2);
    EXPECT_NEAR(hull.Xg, 0, 1e-9);
    EXPECT_NEAR(hull.Kb, 2.5, 1e-9);
    EXPECT_NEAR(hull.Bm, 20.0 / 3, 1e-9);
    EXPECT_NEAR(hull.Gm, 2.5 + 20.0 / 3 - 4, 1e-9);
    EXPECT_NEAR(hull.WaterplaneArea, 2000, 1e-6);
    EXPECT_NEAR(hull.WettedSurface, 3000, 1e-6);
    EXPECT_NEAR(hull.BlockCoefficient, 1, 1e-9);
    EXPECT_NEAR(hull.Zg, -1, 1e-9);
    EXPECT_NEAR(hull.C44, 5.19521e8, 5e2);
    EXPECT_NEAR(hull.C33, 1025 * 9.81 * 2000, 1e-2);
    EXPECT_NEAR(hull.C35, 0, 1e-2);
}

/// All values of a ship that are known to the digits of a table.
struct CExpected
{
    double Draft, Trim, Volume, Xcg, Waterplane, Lcf, Kb, Bm, Gm, Cb, Wetted, Zg, C44, C55, C35;
};

void ExpectHydrostatics(const CHullCondition& hull, const CExpected& expected)
{
    const auto close = [](double actual, double value, const char* what)
    { EXPECT_NEAR(actual, value, 5e-6 * std::abs(value) + 1e-6) << what; };
    const double half = hull.Length / 2;
    close(hull.Draft, expected.Draft, "draft");
    close(hull.Trim, expected.Trim, "trim");
    close(hull.Volume, expected.Volume, "volume");
    close(half - hull.Xg, expected.Xcg, "XCG");
    close(hull.WaterplaneArea, expected.Waterplane, "waterplane");
    close(half - hull.Lcf, expected.Lcf, "LCF");
    close(hull.Kb, expected.Kb, "KB");
    close(hull.Bm, expected.Bm, "BM");
    close(hull.Gm, expected.Gm, "GM");
    close(hull.BlockCoefficient, expected.Cb, "Cb");
    close(hull.WettedSurface, expected.Wetted, "wetted surface");
    close(hull.Zg, expected.Zg, "height of G");
    close(hull.C44, expected.C44, "C44");
    close(hull.C55, expected.C55, "C55");
    if (expected.C35 != 0)
    {
        close(hull.C35, expected.C35, "C35");
    }
}

TEST(HullCondition, PitchStiffnessOfABoxIsExactFromThreeStationsOn)
{
    for (const int stations : {3, 4, 5, 6, 21})
    {
        EXPECT_NEAR(Condition(Box(stations)).C55, 1.66079e10, 5e4) << stations << " stations";
    }
}

TEST(HullCondition, WigleyHullHasItsKnownHydrostatics)
{
    ExpectHydrostatics(Condition(ReferenceWigley()),
                       {7.5, 0, 4983.01, 60, 998.384, 60, 4.68746, 1.69664, 0.884099, 0.46139, 2154.69, -2,
                        4.32177e7, 7.32097e9, 0});
}

TEST(HullCondition, WigleyHullOfManyPointsHasTheVolumeOfItsFormula)
{
    EXPECT_NEAR(Condition(FineWigley(2000)).Volume, 4992.0, 0.05);
}

TEST(HullCondition, ShipFloatsAtTheDraftAndTrimOfItsDisplacementAndCentre)
{
    ExpectHydrostatics(Condition(ReferenceShip()),
                       {4.40593, -0.155465, 3951.22, 64.267, 1266.27, 69.0312, 2.60117, 4.05665, 1.05782,
                        0.5338, 1796.99, 1.1996, 4.20277e7, 1.06902e10, 6.06607e7});
}

TEST(HullCondition, AGivenGmIsUsedInsteadOfTheCalculatedOne)
{
    CInput input = ReferenceBarge();
    input.Gm = 2;
    const CHullCondition hull = Condition(input);
    EXPECT_NEAR(hull.Gm, 2.5 + 20.0 / 3 - 4, 1e-9);
    EXPECT_EQ(hull.GmUsed, 2);
    EXPECT_NEAR(hull.C44, 10250e3 * 9.81 * 2, 1);
}

TEST(HullCondition, RollTakesASmallGmWithAWarningWhereItIsNotPositive)
{
    CInput input = ReferenceBarge();
    input.Kg = 12;
    CRunLog log;
    const CHullCondition hull = FindCondition(input, log);
    EXPECT_LT(hull.GmUsed, 0);
    EXPECT_NEAR(hull.GmRoll, 0.4, 1e-12);
    EXPECT_NEAR(hull.C44, 10250e3 * 9.81 * 0.4, 1);
    EXPECT_THAT(log.Warnings(), ElementsAre(HasSubstr("GM isn't positive")));
}

TEST(HullCondition, WaterlineIsStraightAlsoBeyondTheEnds)
{
    CInput input = ReferenceBarge();
    input.Trim = 1;
    const CHullCondition hull = Condition(input);
    for (int n = 0; n < 5; ++n)
    {
        EXPECT_NEAR(hull.Waterline(hull.X(n)), hull.Sections[static_cast<std::size_t>(n)].Waterline, 1e-12);
    }
    EXPECT_NEAR(hull.Waterline(hull.X(-4)), 3.5, 1e-12);
    EXPECT_NEAR(hull.Waterline(hull.X(8)), 6.5, 1e-12);
    EXPECT_NEAR(hull.Zg, 4 - (5 - hull.Xg / 100), 1e-12);
    EXPECT_LT(hull.Xg, 0);
}

TEST(HullCondition, CentroidIsMeasuredFromG)
{
    EXPECT_NEAR(Condition(ReferenceBarge()).CentroidHeight(2), -1.5, 1e-12);
}

TEST(HullCondition, NearestStationIsTheForwardOneOfTwoAndAnEndStationBeyondTheEnds)
{
    const CHullCondition hull = Condition(ReferenceBarge());
    EXPECT_EQ(hull.NearestStation(hull.X(1.49)), 1);
    EXPECT_EQ(hull.NearestStation(hull.X(1.5)), 1);
    EXPECT_EQ(hull.NearestStation(hull.X(1.51)), 2);
    EXPECT_EQ(hull.NearestStation(hull.X(-3)), 0);
    EXPECT_EQ(hull.NearestStation(hull.X(40)), 4);
    EXPECT_EQ(hull.NearestStation(1e300), 0);
    EXPECT_EQ(hull.NearestStation(-1e300), 4);
}

CInput Formed()
{
    CInput input = ReferenceBarge();
    input.Offsets.clear();
    input.Dimensions.assign(5, {20, 5, 0.9});
    return input;
}

TEST(HullCondition, FormedSectionsHaveTheirGivenDraftsWhateverTheWaterline)
{
    CInput input = Formed();
    input.Dimensions[0].Draft = 0;
    input.Draft = 6;
    const CHullCondition hull = Condition(input);
    EXPECT_TRUE(hull.Sections[0].Dry());
    EXPECT_EQ(hull.CentroidHeight(0), 0);
    EXPECT_NEAR(hull.Sections[1].Draft, 5, 1e-12);
    EXPECT_NEAR(hull.Sections[1].Area, 90, 1e-9);
}

TEST(HullCondition, FormedSectionsSinkWithTheShipFromTheirLevelDesignWaterline)
{
    CInput input = Formed();
    input.Dimensions[4].Draft = 3;
    input.ByDisplacement = true;
    input.Displacement = 1025 * 9300;
    input.CentreFromStation0 = 50;
    const CHullCondition hull = Condition(input);
    EXPECT_NEAR(hull.Volume, 9300, 1e-3);
    EXPECT_NEAR(hull.Xg, 0, 1e-4);
    for (const int n : {0, 4})
    {
        const CSection& section = hull.Sections[static_cast<std::size_t>(n)];
        const double designDraft = n == 4 ? 3 : 5;
        EXPECT_NEAR(section.Draft, designDraft + section.Waterline - 5, 1e-9);
        EXPECT_NEAR(section.Area, 0.9 * 20 * section.Draft, 1e-9);
    }
}

TEST(HullCondition, StationsWhosePointsEndBelowTheWaterAreNoted)
{
    CInput input = ReferenceBarge();
    input.Draft = 10;
    CRunLog log;
    EXPECT_NEAR(FindCondition(input, log).Volume, 20000, 1e-5);
    EXPECT_THAT(log.Notes(), ElementsAre(HasSubstr("at station 0, 1, 2, 3, 4")));
    EXPECT_THAT(log.Warnings(), IsEmpty());
}

TEST(HullCondition, DryEndStationsDisplaceNothing)
{
    CInput input = ReferenceBarge();
    input.Offsets[0] = {{0, 1}, {8, 9}};
    const CHullCondition hull = Condition(input);
    EXPECT_TRUE(hull.Sections[0].Dry());
    EXPECT_LT(hull.Xg, 0);
}

/// Inputs that are no ship. Each must be told, none may give a number that isn't one.
struct CNoShip
{
    const char* Name;
    void (*Spoil)(CInput&);
};

class NoShip : public testing::TestWithParam<CNoShip>
{
};
INSTANTIATE_TEST_SUITE_P(
    HullCondition, NoShip,
    testing::Values(CNoShip{"AllZero",
                            [](CInput& input) {
                                input.Offsets.assign(5, {{0, 0, 0}, {0, 0, 0}});
                            }},
                    CNoShip{"NoPoints", [](CInput& input) { input.Offsets.assign(5, {}); }},
                    CNoShip{"NoStations", [](CInput& input) { input.Offsets.clear(); }},
                    CNoShip{"OneStation", [](CInput& input) { input.StationCount = 1; }},
                    CNoShip{"NoLength", [](CInput& input) { input.Length = 0; }},
                    CNoShip{"OutOfTheWater", [](CInput& input) { input.Draft = -1; }},
                    CNoShip{"BaselineAboveTheWater",
                            [](CInput& input)
                            {
                                input.Offsets.assign(5, {{0, 10, 10}, {-5, -5, 5}});
                                input.Draft = -1;
                            }},
                    CNoShip{"UnderTheWater",
                            [](CInput& input) {
                                input.Offsets.assign(5, {{0, 3, 0}, {0, 1, 2}});
                            }},
                    CNoShip{"Huge",
                            [](CInput& input)
                            {
                                input.Offsets.assign(5, {{0, 1e200, 1e200}, {0, 1e200, 1e300}});
                                input.Draft = 1e250;
                            }},
                    CNoShip{"HugeDraft", [](CInput& input) { input.Draft = 1e308; }},
                    CNoShip{"NotANumber", [](CInput& input) { input.Offsets[2].Y[2] = std::nan(""); }},
                    CNoShip{"TooHeavyToFloat",
                            [](CInput& input)
                            {
                                input.ByDisplacement = true;
                                input.Displacement = 1e30;
                            }},
                    CNoShip{"NoDisplacement", [](CInput& input) { input.ByDisplacement = true; }},
                    CNoShip{"CentreBeyondTheBow",
                            [](CInput& input)
                            {
                                input.ByDisplacement = true;
                                input.Displacement = 1e7;
                                input.CentreFromStation0 = -80;
                            }}),
    [](const auto& ship) { return ship.param.Name; });

TEST_P(NoShip, IsAnError)
{
    CInput input = ReferenceBarge();
    GetParam().Spoil(input);
    EXPECT_THROW(Condition(input), CInputError);
}
} // namespace
} // namespace oe7
