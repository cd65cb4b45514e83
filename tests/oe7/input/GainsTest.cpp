#include "oe7/input/GainFiles.h"

#include "oe7/input/CRunLog.h"
#include "tests/oe7/support/CInputText.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kBritish = "BRITISH METRIC SALT NOSPEEDCOR NOSWELLCOR MODAMP NOPPR";

std::array<double, 3> Values(const CGains& gains)
{
    return {gains.Acceleration, gains.Velocity, gains.Motion};
}

/// The barge with a rudder.
CInputText Steered()
{
    return CInputText().Set(55, "4.00 1.0 2.0 3.0 2.5 1.5 0.0 1 -75");
}

TEST(Rudder, HasGainsServoAndCutOffs)
{
    const CRudder rudder =
        Steered().Set(57, "1 2 3 4 5 6 7").Set(58, "8 9 10").Set(59, "11 12 13 1").Read().Rudder.value();
    const CRudderGains& gains = rudder.Gains.At(10, 90);
    EXPECT_THAT(Values(gains.Roll), ElementsAre(1, 2, 3));
    EXPECT_EQ(rudder.Servo.Frequency, 4);
    EXPECT_EQ(rudder.Servo.Damping, 5);
    EXPECT_EQ(gains.LowCut, 6);
    EXPECT_EQ(gains.HighCut, 7);
    EXPECT_THAT(Values(gains.Yaw), ElementsAre(8, 9, 10));
    EXPECT_THAT(Values(gains.Lateral), ElementsAre(11, 12, 13));
    EXPECT_TRUE(rudder.GainsAtG);
}

TEST(Rudder, WithoutSpanIsNoneThoughItsGainsStandThere)
{
    const CInput input = CInputText().Set(56, "1 ").Set(57, "1 2 3 4 5 6 7").Read();
    EXPECT_FALSE(input.Rudder);
}

TEST(Rudder, WithoutDihedralHangsDown)
{
    const CFoil blade = Steered().Set(55, "4 1 2 3 2.5 1.5 0 -1 -999.000").Read().Rudder->Blade;
    EXPECT_EQ(blade.Dihedral, -90);
    EXPECT_FALSE(blade.Slipstream);
}

TEST(LateralGains, ArePerFootInBritishInput)
{
    const CRudder rudder = Steered().Set(2, kBritish).Set(59, "0.3048 0.6096 3.048 1").Read().Rudder.value();
    EXPECT_THAT(Values(rudder.Gains.Fixed.Lateral), ElementsAre(DoubleEq(1), DoubleEq(2), DoubleEq(10)));
}

TEST(LateralGains, MayActAtAPointOfAnotherLine)
{
    const CRudder rudder =
        Steered().Set(2, kBritish).Set(59, "0 0 0 0").Insert(60, {"2.5000 10.000"}).Read().Rudder.value();
    EXPECT_FALSE(rudder.GainsAtG);
    EXPECT_EQ(rudder.LateralStation, 2.5);
    EXPECT_DOUBLE_EQ(rudder.LateralHeight, 3.048);
    EXPECT_EQ(Steered().Set(59, "0 0 0 0").Insert(60, {"2.5"}).Error(),
              "line 60: the height of the lateral gains is missing");
}

TEST(Gain, ThatIsNotGivenIsNoneInEveryConversion)
{
    const CRudderGains gains = Steered()
                                   .Set(57, "-111111.0000 -1.11111e5 -111111 0 0 0 0")
                                   .Set(58, "-111110 -111111.5 0")
                                   .Set(59, "-33866.633 -364537.413 -364536 1")
                                   .Read()
                                   .Rudder->Gains.Fixed;
    EXPECT_THAT(Values(gains.Roll), ElementsAre(0, 0, 0));
    EXPECT_THAT(Values(gains.Yaw), ElementsAre(0, 0, 0));
    EXPECT_THAT(Values(gains.Lateral), ElementsAre(0, 0, 0));
    EXPECT_THAT(Values(Steered().Set(58, "-100000 -33860 -1").Read().Rudder->Gains.Fixed.Yaw),
                ElementsAre(-100000, -33860, -1));
}

TEST(RudderGainFile, HoldsConditionsBesideTheServoOfTheInput)
{
    const CTestFolder folder;
    folder.Write(
        "ruddergain.INP",
        "# speed heading ...\n10 -1 1 2 3 4 5 6 7 8 9 10 11 # any\n\n20 90 2 2 3 4 5 6 7 8 9 10 11\r\n");
    const CRudder rudder =
        Steered().Set(56, "1 ").Set(57, "0 0 0 4 5 0 0").Read(folder.Path()).Rudder.value();
    EXPECT_EQ(rudder.Servo.Frequency, 4);
    ASSERT_THAT(rudder.Gains.Conditions, SizeIs(2));
    const CGainCondition<CRudderGains>& first = rudder.Gains.Conditions[0];
    EXPECT_EQ(first.Speed, 10);
    EXPECT_EQ(first.Heading, -1);
    EXPECT_THAT(Values(first.Values.Roll), ElementsAre(1, 2, 3));
    EXPECT_EQ(first.Values.LowCut, 4);
    EXPECT_EQ(first.Values.HighCut, 5);
    EXPECT_THAT(Values(first.Values.Yaw), ElementsAre(6, 7, 8));
    EXPECT_THAT(Values(first.Values.Lateral), ElementsAre(9, 10, 11));
}

TEST(RudderGainFile, HasLateralGainsInTheUnitsOfTheInput)
{
    const auto gains = ParseRudderGains("10 0 1 1 1 0 0 1 1 1 0.3048 0.3048 0.3048", EUnits::British);
    EXPECT_DOUBLE_EQ(gains.at(0).Values.Lateral.Motion, 1);
    EXPECT_EQ(gains.at(0).Values.Roll.Motion, 1);
}

TEST(RudderGainFile, ThatIsWrongIsToldWithItsLine)
{
    const CTestFolder folder;
    const CInputText text = Steered().Set(56, "1 ");
    EXPECT_EQ(text.Error(folder.Path()), "the file RudderGain.inp is not there");
    folder.Write("RudderGain.inp", "# none\n");
    EXPECT_EQ(text.Error(folder.Path()), "RudderGain.inp, line 1: there are no gains in the file");
    folder.Write("RudderGain.inp", "# head\n10 90 1 2 3 4 5 6 7 8 9 10 # 11\n");
    EXPECT_EQ(text.Error(folder.Path()), "RudderGain.inp, line 2: a lateral gain is missing");
    folder.Write("RudderGain.inp", "ten 90\n");
    EXPECT_EQ(text.Error(folder.Path()), "RudderGain.inp, line 1: the speed is \"ten\", which is no number");
}

TEST(FinGainFile, HoldsConditions)
{
    const CTestFolder folder;
    folder.Write("FinGain.inp", "10 90 1 2 3 4 5 6 -111111\n");
    CInputText text;
    text.Erase(61, 61).Insert(61, {"FIN", "1 ", "1", "2 9 1 2 2 1 0 -35", "0 0 0 6 0.7 8", "0 0 0"});
    const CFins fins = text.Read(folder.Path()).Fins.value();
    ASSERT_THAT(fins.Gains.Conditions, SizeIs(1));
    const CFinGains& gains = fins.Gains.Conditions[0].Values;
    EXPECT_THAT(Values(gains.Roll), ElementsAre(1, 2, 3));
    EXPECT_EQ(gains.HighCut, 4);
    EXPECT_THAT(Values(gains.Yaw), ElementsAre(5, 6, 0));
    EXPECT_EQ(fins.Servo.Frequency, 6);
}

TEST(Fins, WithoutAPairAreNone)
{
    const CInput input = CInputText().Erase(61, 61).Insert(61, {"FIN", "1 ", "-1"}).Read();
    EXPECT_FALSE(input.Fins);
}

TEST(Fins, AreReadToTheLastRecord)
{
    CInputText text;
    text.Erase(61, 61).Insert(61, {"FIN", "0 ", "1", "2 9 1 2 2 1 0"});
    EXPECT_EQ(text.Error(), "line 64: the dihedral angle is missing");
    text.Set(64, "2 9 1 2 2 1 0 -35").Insert(65, {"1 2 3 4 5"});
    EXPECT_EQ(text.Error(), "line 65: the high cut-off of the fins is missing");
    EXPECT_EQ(text.Set(65, "1 2 3 4 5 6").Error(), "line 66: a yaw gain of the fins is missing");
    EXPECT_THAT(Values(text.Insert(66, {"7 8 9"}).Read().Fins->Gains.Fixed.Yaw), ElementsAre(7, 8, 9));
}

TEST(Tank, IsReadInTheOrderOfItsRecord)
{
    CInputText text;
    text.Erase(61, 61).Insert(61, {"UTUBETANK", "1 2 3 4 5 6 7 8 9 10 11 12"});
    const CUTubeTank tank = text.Read().Tank.value();
    EXPECT_THAT((std::array{tank.Length, tank.DuctWidth, tank.LegWidth, tank.FluidDepth, tank.Inclination,
                            tank.DuctHeight, tank.Height, tank.Station, tank.SpecificGravity,
                            tank.HighResistance, tank.ZeroResistance, tank.BreakFrequency}),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_EQ(text.Set(62, "1 2 3 4 5 6 7 8 9 10 11").Error(),
              "line 62: the tank's break frequency is missing");
}

TEST(Tank, HasLengthsInFeetButNoAnglesOrStations)
{
    CInputText text;
    text.Set(2, kBritish).Erase(61, 61).Insert(61, {"UTUBETANK", "10 10 10 10 10 10 10 10 10 10 10 10"});
    const CUTubeTank tank = text.Read().Tank.value();
    for (const double length :
         {tank.Length, tank.DuctWidth, tank.LegWidth, tank.FluidDepth, tank.DuctHeight, tank.Height})
    {
        EXPECT_DOUBLE_EQ(length, 3.048);
    }
    for (const double other : {tank.Inclination, tank.Station, tank.SpecificGravity, tank.HighResistance,
                               tank.ZeroResistance, tank.BreakFrequency})
    {
        EXPECT_EQ(other, 10);
    }
}

TEST(BilgeKeels, HaveASegmentForEachOfTheirStations)
{
    CInputText text;
    text.Set(53, "2").Insert(54, {"1 2", "1 1.5 2 3 0.4", "1.5 2 2 3 0.4", "3 3", "3 4 5 6 0.7"});
    const CInput input = text.Read();
    EXPECT_THAT(input.BilgeKeels, ElementsAre(SizeIs(2), SizeIs(1)));
    EXPECT_EQ(input.BilgeKeels[1][0].Z, 6);
    EXPECT_EQ(text.Set(54, "2 1").Error(),
              "line 54: the stations of the bilge keel are not from first to last");
    EXPECT_EQ(text.Set(54, "0 500").Error(),
              "line 54: the stations of the bilge keel are not from first to last");
    EXPECT_EQ(text.Set(54, "1 3").Error(), "line 57: y of the segment is missing");
}

CGainSchedule<CFinGains> Schedule(const std::vector<std::pair<double, double>>& speedsAndHeadings)
{
    CGainSchedule<CFinGains> schedule;
    schedule.Fixed.HighCut = -1;
    for (const auto& [speed, heading] : speedsAndHeadings)
    {
        CFinGains gains;
        gains.HighCut = static_cast<double>(schedule.Conditions.size());
        schedule.Conditions.push_back({speed, heading, gains});
    }
    return schedule;
}

TEST(GainSchedule, WithoutLinesHasTheFixedGains)
{
    EXPECT_EQ(Schedule({}).At(10, 90).HighCut, -1);
}

TEST(GainSchedule, TakesTheNearestSpeedAndThenTheNearestHeading)
{
    const auto schedule = Schedule({{10, 0}, {10, 90}, {10, 180}, {20, 135}});
    EXPECT_EQ(schedule.At(12, 100).HighCut, 1);
    EXPECT_EQ(schedule.At(0, 20).HighCut, 0);
    EXPECT_EQ(schedule.At(14.9, 135.1).HighCut, 2);
    EXPECT_EQ(schedule.At(18, 0).HighCut, 3);
    EXPECT_EQ(schedule.At(100, 0).HighCut, 3);
}

TEST(GainSchedule, FoldsHeadingsToOneSide)
{
    const auto schedule = Schedule({{10, 0}, {10, 90}, {10, 180}});
    EXPECT_EQ(schedule.At(10, 270).HighCut, 1);
    EXPECT_EQ(schedule.At(10, 350).HighCut, 0);
    EXPECT_EQ(schedule.At(10, 190).HighCut, 2);
    EXPECT_EQ(schedule.At(10, -90).HighCut, 1);
}

TEST(GainSchedule, TakesALineForAnyHeadingUnlessOneFitsExactly)
{
    const auto schedule = Schedule({{10, -1}, {10, 90}});
    EXPECT_EQ(schedule.At(10, 89).HighCut, 0);
    EXPECT_EQ(schedule.At(10, 90).HighCut, 1);
    EXPECT_EQ(schedule.At(10, 270).HighCut, 1);
}

} // namespace
} // namespace oe7
