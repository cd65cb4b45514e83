#include "oe7/input/InputFile.h"

#include "tests/oe7/support/CInputText.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::DoubleEq;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(ReferenceBargeFile, IsReadWhole)
{
    const CInput input = CInputText("barge").Read();
    EXPECT_EQ(input.Title, "Reference barge");
    EXPECT_EQ(input.Water, EWater::Salt);
    EXPECT_EQ(input.RaoTables, ERaoTables::MotionAndDamping);
    EXPECT_EQ(input.BinaryFile, "ondara7.bin");
    EXPECT_TRUE(input.Loads);
    EXPECT_DOUBLE_EQ(input.LowestFrequency, 0.3);
    EXPECT_DOUBLE_EQ(input.FrequencyStep, 0.1);
    EXPECT_EQ(input.FrequencyCount, 13);
    EXPECT_EQ(input.EndTerms, (CEndTerms{true, true, true}));
    EXPECT_FALSE(input.HeaveCorrection);
    EXPECT_THAT(input.Grid, Each(0));
    EXPECT_EQ(input.Spectrum, ESpectrum::Bretschneider);
    EXPECT_THAT(input.Directions, ElementsAre(90, 135, 180));
    EXPECT_EQ(input.SpreadingAngle, 0);
    ASSERT_THAT(input.Seaways, SizeIs(1));
    EXPECT_EQ(input.Seaways[0].Height, 3);
    EXPECT_EQ(input.Seaways[0].Period, 10);
    EXPECT_THAT(input.Speeds, ElementsAre(0, 8));
    EXPECT_EQ(input.Length, 100);
    EXPECT_EQ(input.Kg, 4);
    EXPECT_EQ(input.PitchRadius, 28.868);
    EXPECT_FALSE(input.Gm);
    EXPECT_EQ(input.RollInertia, ERollInertia::DryRadius);
    EXPECT_EQ(input.RollValue, 7);
}

TEST(ReferenceBargeFile, HasItsHullMassesAndPosition)
{
    const CInput input = CInputText("barge").Read();
    EXPECT_EQ(input.StationCount, 5);
    ASSERT_THAT(input.Offsets, SizeIs(5));
    EXPECT_THAT(input.Offsets[4].Y, ElementsAre(0, 5, 10, 10, 10));
    EXPECT_THAT(input.Offsets[4].Z, ElementsAre(0, 0, 0, 4.5, 9));
    EXPECT_FALSE(input.ByDisplacement);
    EXPECT_EQ(input.Draft, 5);
    EXPECT_THAT(input.LoadStations, ElementsAre(1, 2, 4));
    EXPECT_THAT(input.Masses.Masses, ElementsAre(1281250, 2562500, 2562500, 2562500, 1281250));
    EXPECT_EQ(input.Hours, 20);
    EXPECT_EQ(input.Exceedance, 0.01);
    ASSERT_THAT(input.Positions, SizeIs(1));
    const CPosition& corner = input.Positions[0];
    EXPECT_EQ(corner.Label, "Corner");
    EXPECT_EQ(corner.Event, EWaterEvent::DeckWetness);
    EXPECT_EQ(corner.Sickness, ESickness::Colwell);
    EXPECT_THAT((std::array{corner.Station, corner.Y, corner.Height, corner.DeckHeight}),
                ElementsAre(0.5, 8, 9, 9));
    EXPECT_THAT((std::array{corner.LateralTipping, corner.LongitudinalTipping, corner.InterruptionTime}),
                ElementsAre(0.25, 0.17, 60));
    EXPECT_EQ(corner.Exposure, 2);
    EXPECT_THAT(input.BilgeKeels, IsEmpty());
    EXPECT_FALSE(input.Skeg || input.Rudder || input.Fins || input.Tank);
    EXPECT_THAT(input.FoilPairs, IsEmpty());
}

TEST(ReferenceWigleyFile, IsReadWhole)
{
    const CInput input = CInputText("wigley").Read();
    EXPECT_EQ(input.Water, EWater::Fresh);
    EXPECT_FALSE(input.Loads);
    EXPECT_THAT(input.LoadStations, IsEmpty());
    EXPECT_EQ(input.FrequencyCount, 19);
    EXPECT_THAT(input.Speeds, ElementsAre(0, 13.34, 20.01));
    ASSERT_THAT(input.Offsets, SizeIs(21));
    EXPECT_THAT(input.Offsets, Each(testing::Field(&COffsets::Y, SizeIs(17))));
    EXPECT_DOUBLE_EQ(input.Offsets[10].Y.back(), 6);
    EXPECT_THAT(input.Positions, IsEmpty());
    EXPECT_EQ(input.Hours, 20);
}

TEST(ReferenceShipFile, IsReadUpToItsFins)
{
    const CInput input = CInputText("ship").Read();
    EXPECT_EQ(input.SpeedCorrection, EWaterRise::Everywhere);
    EXPECT_TRUE(input.HeaveCorrection);
    EXPECT_EQ(input.SpreadingAngle, 90);
    EXPECT_THAT(input.Directions, SizeIs(24));
    EXPECT_EQ(input.Seaways.at(0).PeakEnhancement, 3.3);
    EXPECT_TRUE(input.ByDisplacement);
    EXPECT_EQ(input.Displacement, 4050e3);
    EXPECT_EQ(input.CentreFromStation0, 64.267);
    EXPECT_THAT(input.Positions, SizeIs(5));
    ASSERT_TRUE(input.Fins);
    EXPECT_THAT(input.Fins->Pairs, SizeIs(1));
    EXPECT_EQ(input.Fins->Pairs[0].Dihedral, -35);
    EXPECT_EQ(input.Fins->Gains.Fixed.Roll.Velocity, 3);
    EXPECT_EQ(input.Fins->Gains.Fixed.Roll.Motion, 0.5);
    EXPECT_EQ(input.Fins->Servo.Frequency, 6);
    EXPECT_EQ(input.Fins->Servo.Damping, 0.7);
    EXPECT_EQ(input.Fins->Gains.Fixed.HighCut, 8);
    EXPECT_THAT(input.Fins->Gains.Conditions, IsEmpty());
}

TEST(ReferenceShipFile, HasWrappedMasses)
{
    const CInput input = CInputText("ship").Read();
    EXPECT_THAT(input.Masses.Masses,
                ElementsAre(60e3, 220e3, 330e3, 430e3, 500e3, 530e3, 525e3, 505e3, 470e3, 360e3, 120e3));
    EXPECT_THAT(input.Masses.RollRadius, SizeIs(11));
}

TEST(ReferenceShipFile, HasKeelsSkegRudderAndFoils)
{
    const CInput input = CInputText("ship").Read();
    ASSERT_THAT(input.BilgeKeels, ElementsAre(SizeIs(3)));
    EXPECT_EQ(input.BilgeKeels[0][1].Forward, 4.5);
    EXPECT_EQ(input.BilgeKeels[0][1].Aft, 5.5);
    EXPECT_EQ(input.BilgeKeels[0][1].Y, 5.6);
    EXPECT_EQ(input.BilgeKeels[0][1].Z, 0.8);
    EXPECT_EQ(input.BilgeKeels[0][1].Breadth, 0.6);
    ASSERT_TRUE(input.Skeg);
    EXPECT_THAT((std::array{input.Skeg->AftStation, input.Skeg->Breadth, input.Skeg->Length}),
                ElementsAre(8.5, 1.2, 14));
    ASSERT_TRUE(input.Rudder);
    const CFoil& blade = input.Rudder->Blade;
    EXPECT_THAT((std::array{blade.Station, blade.Y, blade.Z, blade.Span, blade.RootChord, blade.TipChord,
                            blade.LiftSlope, blade.Dihedral}),
                ElementsAre(9.75, 0, 3.2, 3.2, 2.6, 2, 0, -90));
    EXPECT_TRUE(blade.Slipstream);
    EXPECT_TRUE(input.Rudder->GainsAtG);
    EXPECT_EQ(input.Rudder->Gains.Fixed.Yaw.Velocity, 1);
    EXPECT_EQ(input.Rudder->Gains.Fixed.Yaw.Motion, 0.5);
    EXPECT_THAT(input.FoilPairs, SizeIs(1));
}

TEST(InputFile, WithWindowsLineEndsAndBlanksReadsTheSame)
{
    CRunLog log;
    const CInput input = ParseInput(CInputText("ship").Text(" \t \r\n"), "/nowhere", log);
    EXPECT_EQ(input.Title, "Reference ship");
    EXPECT_EQ(input.BinaryFile, "ondara7.bin");
    EXPECT_EQ(input.Positions.at(4).Label, "Prop");
    EXPECT_TRUE(input.Fins);
}

TEST(InputFile, NeedsNoLineEndAtItsEnd)
{
    std::string text = CInputText("barge").Text();
    text.pop_back();
    CRunLog log;
    EXPECT_EQ(ParseInput(text, "/nowhere", log).Title, "Reference barge");
}

TEST(InputFile, IsFoundInAnyCase)
{
    const CTestFolder folder;
    folder.Write("ONDARA7.INP", CInputText("barge").Text());
    CRunLog log;
    EXPECT_EQ(ReadInput(folder.Path(), log).Title, "Reference barge");
}

TEST(InputFile, SpelledAsItShouldGoesBeforeOneInAnotherCase)
{
    const CTestFolder folder;
    folder.Write("ONDARA7.INP", CInputText("wigley").Text());
    folder.Write("Ondara7.inp", CInputText("barge").Text());
    CRunLog log;
    EXPECT_EQ(ReadInput(folder.Path(), log).Title, "Reference barge");
}

TEST(InputFile, ThatIsMissingIsAnError)
{
    const CTestFolder folder;
    CRunLog log;
    try
    {
        ReadInput(folder.Path(), log);
        ADD_FAILURE();
    }
    catch (const CInputError& error)
    {
        EXPECT_STREQ(error.what(), "the file Ondara7.inp is not there");
    }
}

TEST(BinaryFileName, IsTheThirdLineEvenOfAFileThatIsWrongElsewhere)
{
    EXPECT_EQ(BinaryFileName("x\ny\n other.bin \r\nz"), "other.bin");
    EXPECT_EQ(BinaryFileName("x\ny\nwith blank.bin"), "with blank.bin");
}

TEST(BinaryFileName, IsNothingThatLeadsElsewhereOrIsAnotherFileOfTheEngine)
{
    for (const char* name :
         {"", "/etc/passwd", "../ondara7.bin", "a/b", "a\\b", "c:b", ".", "..", "ondara7.log", "ONDARA7.INP",
          "Ondara7.out", "Ondara7_DimHyCo.csv", "finGain.inp", "ondara7.log.part", ".bin", "a/b.bin"})
    {
        EXPECT_EQ(BinaryFileName(std::string("x\ny\n") + name + "\n"), std::nullopt) << name;
        EXPECT_EQ(CInputText().Set(3, name).Error(),
                  "line 3: the name of the binary file is missing, or is not that of a file in this folder "
                  "that ends in .bin");
    }
    EXPECT_EQ(BinaryFileName("x"), std::nullopt);
}

/// The barge in feet and long tons.
CInput BritishBarge()
{
    return CInputText().Set(2, "BRITISH METRIC SALT NOSPEEDCOR NOSWELLCOR MODAMP NOPPR").Read();
}

TEST(BritishInput, IsConvertedFromFeet)
{
    const CInput input = BritishBarge();
    EXPECT_EQ(input.InputUnits, EUnits::British);
    EXPECT_EQ(input.OutputUnits, EUnits::Metric);
    EXPECT_DOUBLE_EQ(input.Length, 30.48);
    EXPECT_DOUBLE_EQ(input.Kg, 1.2192);
    EXPECT_DOUBLE_EQ(input.PitchRadius, 8.7989664);
    EXPECT_DOUBLE_EQ(input.RollValue, 2.1336);
    EXPECT_DOUBLE_EQ(input.Seaways[0].Height, 0.9144);
    EXPECT_DOUBLE_EQ(input.Offsets[0].Y[2], 3.048);
    EXPECT_DOUBLE_EQ(input.Offsets[0].Z[4], 2.7432);
    EXPECT_DOUBLE_EQ(input.Draft, 1.524);
    EXPECT_DOUBLE_EQ(input.Positions[0].Y, 2.4384);
    EXPECT_DOUBLE_EQ(input.Positions[0].Height, 2.7432);
    EXPECT_DOUBLE_EQ(input.Positions[0].DeckHeight, 2.7432);
}

TEST(BritishInput, KeepsSpeedsStationsPeriodsAndFactors)
{
    const CInput input = BritishBarge();
    EXPECT_THAT(input.Speeds, ElementsAre(0, 8));
    EXPECT_THAT(input.LoadStations, ElementsAre(1, 2, 4));
    EXPECT_EQ(input.Positions[0].Station, 0.5);
    EXPECT_EQ(input.Seaways[0].Period, 10);
    EXPECT_EQ(input.LowestFrequency, 0.3);
}

TEST(BritishInput, HasMassesInLongTons)
{
    const CInput input = BritishBarge();
    EXPECT_NEAR(input.Masses.Masses[0], 1281.25 * 1016.0469, 1e-6);
    const CInput ship =
        CInputText("ship").Set(2, "BRITISH BRITISH SALT SPEEDCOR SWELLCOR MODAMP NOPPR").Read();
    EXPECT_NEAR(ship.Displacement, 4050 * 1016.0469, 1e-6);
    EXPECT_NEAR(ship.CentreFromStation0, 64.267 * 0.3048, 1e-12);
}

TEST(BritishInput, HasAppendagesAndSlamsInFeet)
{
    const CInput ship =
        CInputText("ship").Set(2, "BRITISH BRITISH SALT SPEEDCOR SWELLCOR MODAMP NOPPR").Read();
    EXPECT_DOUBLE_EQ(ship.BilgeKeels[0][0].Y, 5.4 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.BilgeKeels[0][0].Breadth, 0.6 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Skeg->Length, 14 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Rudder->Blade.Span, 3.2 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Rudder->Blade.TipChord, 2 * 0.3048);
    EXPECT_EQ(ship.Rudder->Blade.Station, 9.75);
    EXPECT_EQ(ship.Rudder->Blade.Dihedral, -90);
    EXPECT_DOUBLE_EQ(ship.Positions[0].Width, 2 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Positions[1].WedgeHeight, 0.44 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Positions[2].LoadHeight, 0.44 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Positions[2].SlamY[3], 1.2 * 0.3048);
    EXPECT_DOUBLE_EQ(ship.Positions[2].SlamZ[3], 1.5 * 0.3048);
    EXPECT_EQ(ship.Positions[0].FormFactor, 15);
    EXPECT_EQ(ship.Positions[1].Deadrise, 25);
}

} // namespace
} // namespace oe7
