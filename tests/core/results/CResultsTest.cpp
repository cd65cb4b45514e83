#include "core/results/CResults.h"

#include "core/results/CResultsCursor.h"
#include "tests/support/CMadeResults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ResultsReader, HoldsTheWordsOfTheHead)
{
    CMadeResults made;
    made.SpreadAngle = 45;
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Head.RunStamp, "Mon Nov 03 14:07:52 2008");
    EXPECT_EQ(results.Head.SpectrumKind, kSpectrumJonswap);
    EXPECT_EQ(results.Head.Length, 120.5F);
    EXPECT_EQ(results.Head.StationCount, 3);
    EXPECT_EQ(results.Head.VerticalCentreOfGravity, 6.25F);
    EXPECT_EQ(results.Head.SpreadAngle, 45);
    EXPECT_EQ(results.Head.LoadStationCount, 2);
}

TEST(ResultsReader, KnowsTheKeywordsOfTheSpectra)
{
    const std::pair<const char*, int> kinds[] = {
        {"REGULAR", 0},      {"QUADRATIC", 1}, {"BRETSCHNEIDER", 2}, {"JONSWAP", 3},
        {"OCHIHUBBLE", 4},   {"INPUTUNI", 5},  {"TENPARAMETER", 6},  {"ODGPHINDCAST", 7},
        {"INPUTDIR", 8},     {"JONSWAP2", -1}, {"jonswap", -1},      {"", -1},
        {"JONSWAP waves", 3}};
    for (const auto& [keyword, kind] : kinds)
    {
        CMadeResults made;
        made.Keyword = keyword;
        // What stands behind the head doesn't matter to the kind.
        made.Positions.clear();
        made.LoadStationCount = 0;
        made.SeawayCount = 0;
        EXPECT_EQ(ReadResults(made.Bytes()).Head.SpectrumKind, kind) << keyword;
    }
}

TEST(ResultsReader, HoldsTheTablesOfTheBody)
{
    const CResults results = ReadResults(CMadeResults().Bytes());
    const CResultsBody& body = results.Body;
    EXPECT_THAT(body.LoadStations, ElementsAre(MadeValue("LoadStations", 0), MadeValue("LoadStations", 1)));
    EXPECT_EQ(body.StillWaterWeight.size(), 3U);
    EXPECT_EQ(body.StillWaterWeight[2], MadeValue("Weight", 2));
    EXPECT_EQ(body.StillWaterBuoyancy[1], MadeValue("Buoyancy", 1));
    EXPECT_EQ(body.StillWaterShear[0], MadeValue("Shear", 0));
    EXPECT_EQ(body.StillWaterMoment[2], MadeValue("Moment", 2));
    EXPECT_EQ(body.PositionCount, 3);
    EXPECT_EQ(body.PositionStation[2], MadeValue("PositionStation", 2));
    EXPECT_EQ(body.PositionY[1], MadeValue("PositionY", 1));
    EXPECT_EQ(body.PositionZ[0], MadeValue("PositionZ", 0));
    EXPECT_THAT(body.Headings, ElementsAre(0, 90, 180, 270));
    EXPECT_THAT(body.WaveHeights, ElementsAre(MadeValue("WaveHeights", 0), MadeValue("WaveHeights", 1)));
    EXPECT_THAT(body.WavePeriods, ElementsAre(MadeValue("WavePeriods", 0), MadeValue("WavePeriods", 1)));
    EXPECT_EQ(body.FreqCount, 3);
    EXPECT_EQ(body.FirstFrequency, 0.2F);
    EXPECT_EQ(body.FrequencyStep, 0.1F);
}

TEST(ResultsReader, HoldsRaosByTheirIndices)
{
    const CResultsBody body = ReadResults(CMadeResults().Bytes()).Body;
    for (int speed = 0; speed < 2; ++speed)
    {
        for (int heading = 0; heading < 4; ++heading)
        {
            for (int mode = 0; mode < kMotionModes; ++mode)
            {
                EXPECT_EQ(body.RaoAmplitude(speed, heading, mode, 2),
                          MadeValue("RaoAmplitude", speed, heading, mode, 2));
                EXPECT_EQ(body.RaoPhase(speed, heading, mode, 1),
                          MadeValue("RaoPhase", speed, heading, mode, 1));
            }
        }
        for (int component = 0; component < kLoadComponents; ++component)
        {
            EXPECT_EQ(body.LoadRaoAmplitude(speed, component, 1, 3, 2),
                      MadeValue("LoadRaoAmplitude", speed, component, 1, 3, 2));
            EXPECT_EQ(body.LoadRaoPhase(speed, component, 0, 2, 0),
                      MadeValue("LoadRaoPhase", speed, component, 0, 2, 0));
        }
    }
}

TEST(ResultsReader, HoldsRmsValuesByTheirIndices)
{
    const CResultsBody body = ReadResults(CMadeResults().Bytes()).Body;
    for (int speed = 0; speed < 2; ++speed)
    {
        for (int seaway = 0; seaway < 2; ++seaway)
        {
            EXPECT_EQ(body.RmsCg(speed, seaway, 2, 7, 3), MadeValue("RmsCg", speed, seaway, 2, 7, 3));
            EXPECT_EQ(body.RmsCg(speed, seaway, 0, 1, 2), MadeValue("RmsCg", speed, seaway, 0, 1, 2));
            EXPECT_EQ(body.RmsLocal(speed, seaway, 20, 2, 3), MadeValue("RmsLocal", speed, seaway, 20, 2, 3));
            EXPECT_EQ(body.RmsLocal(speed, seaway, 0, 1, 0), MadeValue("RmsLocal", speed, seaway, 0, 1, 0));
        }
    }
}

TEST(ResultsReader, RegularWavesHaveNoRmsBlocks)
{
    CMadeResults made;
    made.Keyword = "REGULAR";
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Body.RaoPhase(1, 3, 7, 2), MadeValue("RaoPhase", 1, 3, 7, 2));
    EXPECT_EQ(results.Body.RmsCg(1, 1, 2, 7, 3), 0);
}

TEST(ResultsReader, WithoutLoadStationsThereAreNoLoadTables)
{
    CMadeResults made;
    made.LoadStationCount = 0;
    made.LoadFlag = 1;
    const CResultsBody body = ReadResults(made.Bytes()).Body;
    EXPECT_THAT(body.LoadStations, IsEmpty());
    EXPECT_THAT(body.StillWaterWeight, IsEmpty());
    EXPECT_EQ(body.RmsLocal(1, 1, 20, 2, 3), MadeValue("RmsLocal", 1, 1, 20, 2, 3));
}

TEST(ResultsReader, TextsEndAtTheirFirstBlank)
{
    CMadeResults made;
    made.Title = "Frigate at sea";
    made.GeometryFile = "my hull.od7";
    made.EnvironmentFile = " sea.od7";
    made.Positions[0].Label = "Bow Station";
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.ProjectTitle, "Frigate");
    EXPECT_EQ(results.GeometryFile, "my");
    EXPECT_EQ(results.EnvironmentFile, "");
    EXPECT_EQ(results.Input->PositionLabel[0], "Bow");
}

TEST(ResultsReader, TheStampKeepsItsBlanksButNotItsPadding)
{
    CMadeResults made;
    made.Stamp = "3 Nov 14:07";
    EXPECT_EQ(ReadResults(made.Bytes()).Head.RunStamp, "3 Nov 14:07");
    made.Stamp = std::string("14:07\0rest", 10);
    EXPECT_EQ(ReadResults(made.Bytes()).Head.RunStamp, "14:07");
    made.Stamp = "";
    EXPECT_EQ(ReadResults(made.Bytes()).Head.RunStamp, "");
}

TEST(ResultsReader, TheInputHasTheValuesOfTheFile)
{
    CMadeResults made;
    made.OutRao = 1;
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Input->OUTRAO.Integer(), 1);
    EXPECT_EQ(results.Input->SHIPLEN.Value(), 120.5F);
    EXPECT_EQ(results.Input->NPOS.Value(), 4); // with the centre of gravity
    EXPECT_EQ(results.Input->NSTLOAD.Value(), 2);
}

TEST(ResultsTrailer, OfARunWithAComputedGMHasIt)
{
    CMadeResults made;
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Trailer.CalculatedGM, 1.5F);
    EXPECT_EQ(results.Trailer.SectionC, made.SectionC);
    EXPECT_EQ(results.Trailer.SectionB, made.SectionB);
    EXPECT_EQ(results.Trailer.SectionA, made.SectionA);
}

TEST(ResultsTrailer, OfARunWithAGivenGMIsShorter)
{
    CMadeResults made;
    made.GivenGM = true;
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Trailer.CalculatedGM, std::nullopt);
    EXPECT_EQ(results.Trailer.SectionC, made.SectionC);
    EXPECT_EQ(results.Trailer.SectionB, made.SectionB);
    EXPECT_EQ(results.Trailer.SectionA, made.SectionA);
}

TEST(ControlSection, OfACurrentFile)
{
    const CControlSection control = ReadResults(CMadeResults().Bytes()).Control;
    EXPECT_TRUE(control.HasMagic);
    EXPECT_EQ(control.StationNumbering, 1);
    EXPECT_EQ(control.BilgeKeelCount, 2);
    EXPECT_EQ(control.FinCount, 1);
    EXPECT_EQ(control.FoilCount, 1);
    EXPECT_EQ(control.PositionCount, 3);
    EXPECT_THAT(control.RelMotionKind, ElementsAre(1, 4, 5, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(control.MiiKind, ElementsAre(1, 0, 1, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(control.MsiKind, ElementsAre(1, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(control.Speeds, ElementsAre(10, 20));
    EXPECT_EQ(control.HasRudderColumn, 1);
    EXPECT_EQ(control.HasSkegColumn, 1);
    EXPECT_EQ(control.HasAppendageBreakdown, 1);
    EXPECT_EQ(control.KeelColumns, 2);
    EXPECT_EQ(control.FoilColumns, 1);
    EXPECT_EQ(control.FinColumns, 1);
}

TEST(ControlSection, OfAFileWithoutTheMagicHasNoMotionSickness)
{
    CMadeResults made;
    made.Magic = false;
    const CResults results = ReadResults(made.Bytes());
    EXPECT_FALSE(results.Control.HasMagic);
    EXPECT_EQ(results.Control.StationNumbering, 1);
    EXPECT_EQ(results.Control.BilgeKeelCount, 2);
    EXPECT_EQ(results.Control.PositionCount, 3);
    EXPECT_THAT(results.Control.RelMotionKind, ElementsAre(1, 4, 5, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(results.Control.MsiKind, Each(0));
    EXPECT_THAT(results.Control.Speeds, ElementsAre(10, 20));
    EXPECT_EQ(results.Control.FinColumns, 1);
    EXPECT_EQ(results.Body.RmsLocal(1, 1, 20, 2, 3), MadeValue("RmsLocal", 1, 1, 20, 2, 3));
}

TEST(ControlSection, TheEarliestFilesHaveTheColumnsOfTheirFloats)
{
    CMadeResults made;
    made.Magic = false;
    made.HasColumnWords = false; // the title stands in their place
    made.KeelWord = 1;
    const CControlSection control = ReadResults(made.Bytes()).Control;
    EXPECT_EQ(control.HasRudderColumn, 0);
    EXPECT_EQ(control.HasSkegColumn, 0);
    EXPECT_EQ(control.HasAppendageBreakdown, 0);
    EXPECT_EQ(control.KeelColumns, 1);
    EXPECT_EQ(control.FoilColumns, 1);
    EXPECT_EQ(control.FinColumns, 1);
}

TEST(ControlSection, AnEmptyTitleOfTheEarliestFilesReadsAsColumnWords)
{
    CMadeResults made;
    made.Magic = false;
    made.HasColumnWords = false;
    made.Title = "";
    const CControlSection control = ReadResults(made.Bytes()).Control;
    EXPECT_EQ(control.HasAppendageBreakdown, 1);
    EXPECT_EQ(control.KeelColumns + control.FoilColumns + control.FinColumns, 0);
}

TEST(ControlSection, ColumnsAreThoseOfTheIntegersWhenTheKeelsAreNotIncluded)
{
    CMadeResults made;
    made.KeelWord = 0;
    const CControlSection control = ReadResults(made.Bytes()).Control;
    EXPECT_EQ(control.BilgeKeelCount, 0);
    EXPECT_EQ(control.KeelColumns, 2);
}

TEST(CalculatedHead, OfACurrentFile)
{
    const CCalculatedHead head = ReadResults(CMadeResults().Bytes()).Calculated;
    EXPECT_EQ(head.EncounterMinimum, MadeValue("CalculatedHead", 0));
    EXPECT_EQ(head.EncounterMaximum, MadeValue("CalculatedHead", 1));
    EXPECT_EQ(head.EncounterIncrement, MadeValue("CalculatedHead", 2));
    EXPECT_EQ(head.InputGM, MadeValue("CalculatedHead", 3));
    EXPECT_EQ(head.Draft, MadeValue("CalculatedHead", 4));
    EXPECT_EQ(head.XCG, MadeValue("CalculatedHead", 5));
    EXPECT_EQ(head.Displacement, MadeValue("CalculatedHead", 6));
    EXPECT_EQ(head.BlockCoefficient, MadeValue("CalculatedHead", 7));
    ASSERT_EQ(head.Stations.size(), 3U);
    EXPECT_EQ(head.Stations[2].XCG, MadeValue("Station", 2, 0));
    EXPECT_EQ(head.Stations[2].Beam, MadeValue("Station", 2, 1));
    EXPECT_EQ(head.Stations[2].Draft, MadeValue("Station", 2, 2));
    EXPECT_EQ(head.Stations[2].AreaCoefficient, MadeValue("Station", 2, 4));
    ASSERT_EQ(head.Positions.size(), 3U);
    EXPECT_EQ(head.Positions[1].Station, MadeValue("Position", 1, 0));
    EXPECT_EQ(head.Positions[1].X, MadeValue("Position", 1, 1));
    EXPECT_EQ(head.Positions[1].Y, MadeValue("Position", 1, 2));
    EXPECT_EQ(head.Positions[1].ZFromBaseline, MadeValue("Position", 1, 3));
    EXPECT_EQ(head.Positions[1].ZFromCG, MadeValue("Position", 1, 4));
    EXPECT_EQ(head.Positions[1].Draft, MadeValue("Position", 1, 5));
    EXPECT_EQ(head.Positions[1].Freeboard, MadeValue("Position", 1, 6));
    EXPECT_EQ(head.Duration, 24);
    EXPECT_EQ(head.Exceedence, 0.01F);
}

TEST(CalculatedHead, PositionsOfAFileWithoutTheMagicHaveNoX)
{
    CMadeResults made;
    made.Magic = false;
    const CCalculatedHead head = ReadResults(made.Bytes()).Calculated;
    EXPECT_EQ(head.Positions[2].Station, MadeValue("Position", 2, 0));
    EXPECT_EQ(head.Positions[2].X, 0);
    EXPECT_EQ(head.Positions[2].Y, MadeValue("Position", 2, 1));
    EXPECT_EQ(head.Positions[2].Freeboard, MadeValue("Position", 2, 5));
}

TEST(CalculatedHead, WithoutPositionsThereAreNoDurationWords)
{
    CMadeResults made;
    made.Positions.clear();
    const CResults results = ReadResults(made.Bytes());
    EXPECT_THAT(results.Calculated.Positions, IsEmpty());
    EXPECT_EQ(results.Calculated.Duration, std::nullopt);
    EXPECT_EQ(results.Calculated.Exceedence, std::nullopt);
    EXPECT_EQ(results.SpeedBlocks, static_cast<std::size_t>(made.SectionA) + 4 * (8 + 5 * 3));
}

TEST(CalculatedHead, WithoutSlammingThereAreNoDurationWords)
{
    CMadeResults made;
    made.Positions = {{4, 0, 0, "a"}, {5, 0, 0, "b"}};
    const CResults results = ReadResults(made.Bytes());
    EXPECT_EQ(results.Calculated.Duration, std::nullopt);
    EXPECT_EQ(results.SpeedBlocks, static_cast<std::size_t>(made.SectionA) + 4 * (8 + 5 * 3 + 7 * 2));
}

TEST(CalculatedHead, FormsAreThoseOfKindOneAndInCurrentFilesThree)
{
    for (const bool magic : {true, false})
    {
        CMadeResults made;
        made.Magic = magic;
        made.Positions = {{2, 0, 0, "a"}, {3, 0, 0, "b"}, {1, 0, 0, "c"}};
        const CCalculatedHead head = ReadResults(made.Bytes()).Calculated;
        EXPECT_EQ(head.Positions[0].FormFactor, std::nullopt);
        EXPECT_EQ(head.Positions[1].FormFactor.has_value(), magic);
        EXPECT_EQ(head.Positions[1].FormFactor.value_or(MadeValue("Form", 1, 0)), MadeValue("Form", 1, 0));
        EXPECT_EQ(head.Positions[2].FormFactor, MadeValue("Form", 2, 0));
        EXPECT_EQ(head.Positions[2].EffectiveWidth, MadeValue("Form", 2, 1));
    }
}

TEST(SeaState, FollowsTheWaveHeight)
{
    const std::pair<double, int> states[] = {{0, 1},    {0.09, 1}, {0.1, 2}, {0.5, 3}, {1.25, 4},
                                             {2.49, 4}, {2.5, 5},  {4, 6},   {6, 7},   {9, 8},
                                             {13.9, 8}, {14, 9},   {100, 9}};
    for (const auto& [height, state] : states)
    {
        EXPECT_EQ(SeaState(height), state) << height;
    }
}

TEST(Headings, UpTo180AreCounted)
{
    CResultsBody body;
    body.Headings = {0, 180, 180.5F, 90, 270};
    EXPECT_EQ(HeadingsTo180(body), 3);
}
