#include "oe7/input/InputFile.h"

#include "tests/oe7/support/CInputText.h"

#include <gmock/gmock.h>

namespace oe7
{
namespace
{
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(WaveFrequencies, AreAtMostSixtyAndMoreAreNoted)
{
    CRunLog log;
    const CInput input = ParseInput(CInputText().Set(5, "0.2 2.0 0.0001").Text(), "/nowhere", log);
    EXPECT_EQ(input.FrequencyCount, 60);
    EXPECT_THAT(log.Notes(), ElementsAre("only the first 60 wave frequencies are used"));
    EXPECT_THAT(log.Warnings(), IsEmpty());
}

TEST(WaveFrequencies, AreSixtyWithoutANoteIfJustSoMany)
{
    CRunLog log;
    EXPECT_EQ(ParseInput(CInputText().Set(5, "0.1 6.0 0.1").Text(), "/nowhere", log).FrequencyCount, 60);
    EXPECT_THAT(log.Notes(), IsEmpty());
}

TEST(WaveFrequencies, CountTheHighestThoughItsDecimalsAreRounded)
{
    EXPECT_EQ(CInputText().Set(5, "0.2 2.0 0.1").Read().FrequencyCount, 19);
    EXPECT_EQ(CInputText().Set(5, "0.2 0.2 0.1").Read().FrequencyCount, 1);
    EXPECT_EQ(CInputText().Set(5, "0.2 0.39 0.1").Read().FrequencyCount, 2);
}

TEST(Grid, IsKeptAsGiven)
{
    EXPECT_THAT(CInputText().Set(7, "0.00 3.0 0.05").Read().Grid, ElementsAre(0, 3, 0.05));
    EXPECT_THAT(CInputText().Set(7, "-0.2 3.0 0.1").Read().Grid, ElementsAre(-0.2, 3, 0.1));
}

TEST(SectionMethod, IsTheUsersChoiceBehindTheWord)
{
    EXPECT_EQ(CInputText().Read().Method, ESectionMethod::BoundaryElement);
    EXPECT_EQ(CInputText().Set(6, "NOSAVEHY BOUND2D LATLONG NOHVCOR").Read().Method,
              ESectionMethod::ConformalMapping);
}

TEST(EndTerms, AreThoseOfTheWord)
{
    const auto terms = [](const std::string& word)
    { return CInputText().Set(6, "NOSAVEHY CONFORMAL " + word + " NOHVCOR").Read().EndTerms; };
    EXPECT_EQ(terms("NOHYEND"), (CEndTerms{false, false, false}));
    EXPECT_EQ(terms("SWAYYAW"), (CEndTerms{false, true, false}));
    EXPECT_EQ(terms("LAT"), (CEndTerms{false, true, true}));
    EXPECT_EQ(terms("LONG"), (CEndTerms{true, false, false}));
    EXPECT_EQ(terms("LATLONG"), (CEndTerms{true, true, true}));
}

TEST(NegativeCounts, OfSeawaysAndSpeedsMeanNone)
{
    const CInput input = CInputText().Set(13, "-1 ").Set(11, "-1").Erase(12, 12).Read();
    EXPECT_THAT(input.Seaways, IsEmpty());
    EXPECT_THAT(input.Speeds, IsEmpty());
}

TEST(NegativeCounts, OfPartsMeanNone)
{
    const CInput input = CInputText().Set(60, "-1").Set(53, "-1").Read();
    EXPECT_THAT(input.BilgeKeels, IsEmpty());
    EXPECT_THAT(input.FoilPairs, IsEmpty());
}

TEST(SeaDirections, MayBeNoneOnAnEmptyLine)
{
    EXPECT_THAT(CInputText().Set(9, "0 0.00").Set(10, "").Read().Directions, IsEmpty());
}

TEST(SpreadingAngle, IsNoneIfItIsLeftOutOrNegative)
{
    EXPECT_EQ(CInputText().Set(9, "3 ").Read().SpreadingAngle, 0);
    EXPECT_EQ(CInputText().Set(9, "3 -1").Read().SpreadingAngle, 0);
    EXPECT_EQ(CInputText().Set(9, "3 90").Read().SpreadingAngle, 90);
}

TEST(PitchRadius, ThatIsNotGivenIsAQuarterOfTheLengthWithAWarning)
{
    const CInputText text = CInputText().Set(14, "100 4 -1.000");
    EXPECT_EQ(text.Read().PitchRadius, 25);
    EXPECT_THAT(text.Warnings(),
                ElementsAre("the pitch radius of gyration is not given, a quarter of the length is used"));
    EXPECT_THAT(CInputText().Warnings(), IsEmpty());
}

TEST(Gm, GivenStandsInALineOfItsOwn)
{
    const CInput input =
        CInputText().Set(15, "GMINPUT WETROLLNF").Insert(16, {"1.25 "}).Set(17, "0.7").Read();
    EXPECT_EQ(input.Gm, 1.25);
    EXPECT_EQ(input.RollInertia, ERollInertia::WetFrequency);
    EXPECT_EQ(input.RollValue, 0.7);
}

TEST(RollValue, IsALengthUnlessItIsAFrequency)
{
    CInputText british;
    british.Set(2, "BRITISH METRIC SALT NOSPEEDCOR NOSWELLCOR MODAMP NOPPR").Set(16, "10");
    EXPECT_DOUBLE_EQ(british.Set(15, "GMCOMP WETROLLRG").Read().RollValue, 3.048);
    EXPECT_EQ(british.Set(15, "GMCOMP WETROLLNF").Read().RollValue, 10);
}

TEST(HullFactors, MultiplyBreadthsAndHeights)
{
    const CInput input = CInputText().Set(18, "5 5 2.000 0.500").Read();
    EXPECT_THAT(input.Offsets[1].Y, ElementsAre(0, 10, 20, 20, 20));
    EXPECT_THAT(input.Offsets[1].Z, ElementsAre(0, 0, 0, 2.25, 4.5));
    EXPECT_EQ(input.Draft, 5);
}

TEST(Station, WithOnePointOrNoneIsNoError)
{
    const CInput input =
        CInputText().Set(36, "0").Set(37, "").Set(38, "").Set(20, "1").Set(21, "0").Set(22, "3").Read();
    EXPECT_THAT(input.Offsets[0].Z, ElementsAre(3));
    EXPECT_THAT(input.Offsets[4].Y, IsEmpty());
    EXPECT_THAT(input.Offsets[4].Z, IsEmpty());
}

TEST(Sections, ByDimensionsTakeTheFactorsToo)
{
    CInputText text;
    text.Set(17, "BEAMDRAFT").Set(18, "2 2 2.0 0.5");
    text.Erase(19, 38).Insert(19, {"0", "20 5 0.9", "1", "18 4 0.8"});
    const CInput input = text.Read();
    EXPECT_THAT(input.Offsets, IsEmpty());
    ASSERT_THAT(input.Dimensions, SizeIs(2));
    EXPECT_EQ(input.Dimensions[1].Beam, 36);
    EXPECT_EQ(input.Dimensions[1].Draft, 2);
    EXPECT_EQ(input.Dimensions[1].Coefficient, 0.8);
}

TEST(LoadStations, MoreThanTheirCountAreLeftAside)
{
    EXPECT_THAT(CInputText().Set(41, "2").Set(42, "0 1 2 3 4").Read().LoadStations, ElementsAre(0, 1));
}

TEST(Masses, AreReadOverAsManyLinesAsTheyTake)
{
    const CInput input = CInputText().Set(43, "1 2").Insert(44, {"  3", "", "  4 5 "}).Read();
    EXPECT_THAT(input.Masses.Masses, ElementsAre(1000, 2000, 3000, 4000, 5000));
    EXPECT_THAT(input.Masses.Kg, SizeIs(5));
}

TEST(Overhangs, HaveMassHeightRadiiAndDistance)
{
    const CInput input = CInputText().Set(46, "1 2 3 4 5").Set(47, "6 7 8 9 10").Read();
    const COverhang& bow = input.Masses.Bow;
    EXPECT_THAT((std::array{bow.Mass, bow.Kg, bow.RollRadius, bow.Distance, bow.PitchRadius}),
                ElementsAre(1000, 2, 3, 4, 5));
    EXPECT_EQ(input.Masses.Stern.Mass, 6000);
    EXPECT_EQ(input.Masses.Stern.PitchRadius, 10);
}

TEST(PositionLabel, OfSeveralWordsIsJoined)
{
    EXPECT_EQ(CInputText().Set(49, "Wing  of\tthe bridge DECKWET MII MSICOLWELL").Read().Positions[0].Label,
              "Wing_of_the_bridge");
}

TEST(PositionLabel, MayBeAWordOfTheFile)
{
    const CPosition position = CInputText().Set(49, "MII DECKWET MII MSICOLWELL").Read().Positions[0];
    EXPECT_EQ(position.Label, "MII");
    EXPECT_EQ(position.Event, EWaterEvent::DeckWetness);
}

TEST(PositionLabel, ThatIsMissingIsThePositionsNumber)
{
    EXPECT_EQ(CInputText().Set(49, "DECKWET MII MSICOLWELL").Read().Positions[0].Label, "Position1");
}

TEST(Position, HasTheValuesOfItsEvent)
{
    const CInput ship = CInputText("ship").Read();
    EXPECT_EQ(ship.Positions[0].Event, EWaterEvent::SlamForm);
    EXPECT_EQ(ship.Positions[0].Sickness, ESickness::BureauVeritas);
    EXPECT_EQ(ship.Positions[0].FormFactor, 15);
    EXPECT_EQ(ship.Positions[0].Width, 2);
    EXPECT_EQ(ship.Positions[1].Deadrise, 25);
    EXPECT_EQ(ship.Positions[1].WedgeHeight, 0.44);
    EXPECT_FALSE(ship.Positions[1].Interruptions);
    EXPECT_THAT(ship.Positions[2].SlamY, ElementsAre(0, 0.3, 0.7, 1.2));
    EXPECT_THAT(ship.Positions[2].SlamZ, ElementsAre(0, 0.2, 0.6, 1.5));
    EXPECT_EQ(ship.Positions[2].LoadHeight, 0.44);
    EXPECT_EQ(ship.Positions[3].Event, EWaterEvent::DeckWetness);
    EXPECT_EQ(ship.Positions[4].Event, EWaterEvent::Emergence);
    EXPECT_EQ(ship.Positions[4].Exposure, 0);
}

TEST(Numbers, MayHaveASignAnExponentOrNoLeadingZero)
{
    EXPECT_THAT(CInputText().Set(10, "+90 .5e2 -1.E+1").Read().Directions,
                ElementsAre(DoubleEq(90), DoubleEq(50), DoubleEq(-10)));
}

TEST(Lines, BehindTheLastRecordAreLeftAside)
{
    EXPECT_EQ(CInputText().Insert(62, {"a remark of the user"}).Read().StationCount, 5);
}

TEST(Words, NameTheValues)
{
    EXPECT_EQ(MethodName(ESectionMethod::BoundaryElement), "boundary element");
    EXPECT_EQ(MethodName(ESectionMethod::ConformalMapping), "conformal mapping");
    EXPECT_EQ(UnitsWord(EUnits::British), "BRITISH");
    EXPECT_EQ(WaterWord(EWater::Fresh), "FRESH");
    EXPECT_EQ(SpectrumWord(ESpectrum::Points), "INPUTUNI");
    EXPECT_EQ(SpectrumWord(ESpectrum::Directional), "INPUTDIR");
    EXPECT_EQ(SpeedCorrectionWord(EWaterRise::Bow), "BOWSPEEDCOR");
    EXPECT_EQ(SwellCorrectionWord(EWaterRise::Everywhere), "SWELLCOR");
    EXPECT_EQ(EndTermsWord({.Vertical = false, .Sway = true, .Roll = true}), "LAT");
    EXPECT_EQ(RollInertiaWord(ERollInertia::WetRadius), "WETROLLRG");
    EXPECT_EQ(EventWord(EWaterEvent::Emergence), "EMERGE");
}

} // namespace
} // namespace oe7
